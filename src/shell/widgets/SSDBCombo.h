#pragma once

#include <QComboBox>
#include <string>
#include <vector>

#include "shell/widgets/SSDBDropDown.h"

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
  void AddItem(const std::string& tab_separated, const std::string& id = {}) {
    list_->AddItem(tab_separated, id);
  }
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
  void hidePopup() override;

 Q_SIGNALS:
  void Click();      ///< a row was picked
  void CloseUp();    ///< the list went up, after Click
  void LostFocus();  ///< the box was left
  void Changed();    ///< the user changed the text, by typing or picking

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void typed();
  void picked(int row);
  void size_popup();

  SSDBDropDown* list_;
  int chosen_ = -1;  ///< the row picked or completed, while its name still stands in the box
  bool erasing_ = false;
};

}  // namespace tallymere
