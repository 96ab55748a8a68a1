#pragma once

#include <QComboBox>
#include <string>
#include <vector>

#include "shell/widgets/grid/SSDBDropDown.h"

namespace tallymere {

/// A line to type in with a list of several columns below. Typing completes from the first name that begins
/// so, the rest selected; Valid tells whether the text is a name of the list.
class SSDBCombo : public QComboBox {
  Q_OBJECT

 public:
  explicit SSDBCombo(QWidget* parent = nullptr);

  /// Its own list, or the one given by set_list (owned elsewhere, may be shared).
  SSDBDropDown& list() const { return *list_; }
  void set_list(SSDBDropDown* shared);
  void set_columns(std::vector<ListColumn> columns) { list_->set_columns(std::move(columns)); }
  void AddItem(const std::string& tab_separated, const std::string& id = {}) { list_->AddItem(tab_separated, id); }
  void RemoveAll() { list_->RemoveAll(); }
  /// Only names of the list can be chosen; typing jumps to them.
  void set_list_only(bool only);

  std::string text() const;
  void set_text(const std::string& text);  ///< as code does: no signal but QComboBox's own
  bool set_id(const std::string& id);      ///< shows the row with this id; false and empty when there is none
  std::string id() const;                  ///< of the row whose name stands in the box; "" when none
  int row() const;                         ///< that row of the list, or -1
  bool Valid() const { return row() >= 0; }

  /// What choosing the row in the open list does, signals included. For tools that drive the windows.
  void pick(int row);

  void showPopup() override;

 Q_SIGNALS:
  void Click();      ///< a row was picked
  void CloseUp();    ///< the list went up by picking, after Click
  void LostFocus();  ///< the box was left
  void Changed();    ///< the user changed the text, by typing or picking

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void take_list(SSDBDropDown* list);
  void typed();
  void picked(int row);
  void settle();  ///< on leaving a list-only box: no name, no text
  void size_popup();
  bool holds(int row) const;  ///< the row's name stands in the box

  SSDBDropDown* list_;
  std::string kept_;        ///< the text while the list is filled anew
  int chosen_ = -1;         ///< the row picked or completed, while its name still stands in the box
  bool completes_ = false;  ///< the last key wrote a letter
  bool list_only_ = false;
};

}  // namespace tallymere
