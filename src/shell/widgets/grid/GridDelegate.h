#pragma once

#include <QStyledItemDelegate>

namespace tallymere {

class SSDBGrid;
class SSDBCombo;

/// Opens a grid's cells for typing, each kind with its own field, and draws them.
class GridDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  explicit GridDelegate(SSDBGrid& grid);

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
  void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const override;
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  /// The part of a drop-down cell that opens its list.
  static QRect arrow_of(const QRect& cell);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

 private:
  SSDBCombo* list_editor(QWidget* parent, const QModelIndex& index) const;
  void paint_rule(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
  void quieten_without_focus(QStyleOptionViewItem& option) const;
  void paint_check(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;

  SSDBGrid& grid_;
};

}  // namespace tallymere
