#pragma once

#include <initializer_list>
#include <optional>
#include <string>

#include "lists/list_row.h"
#include "shell/widgets/Form.h"

class QPushButton;

namespace tallymere {

/// What the forms of one list row share (a category, a customer, a vendor, an item, an employee): the row is read when
/// the form opens; Ok saves it whole, unless another user changed it meanwhile, and tells the open windows; a changed
/// form does not go without a question, but by Cancel.
///
/// Asked for with the row's key, or with none for a new row; its answer is the key. A window fills its controls in
/// show_row() and saves what they say in save_row().
class RowForm : public Form {
  Q_OBJECT

 public:
  void take(const Request& request) override;
  bool may_close() override;

 protected:
  /// `captions`: of a new row and of one that is edited.
  struct Captions {
    const char *make, *edit;
  };
  RowForm(Shell& shell_of_frame, const char* name, const RowList& list, const Captions& captions);

  /// Fills the controls from row(), and goes to the first field.
  virtual void show_row() = 0;
  /// Saves what the controls say as row().
  virtual RowSave save_row() = 0;
  /// What the caller gets: the key of the saved row.
  virtual std::string saved_key() const = 0;
  /// Tells the open windows what a save changed: the list's table, unless more.
  virtual void announce();

  bool is_new() const { return row_->is_new(); }
  ListRow& row() { return *row_; }
  /// Tab goes from each of these to the next.
  void tab_order(std::initializer_list<QWidget*> fields);

  QPushButton *cmdOk, *cmdCancel;

 private:
  bool save();
  void show(std::string key);  ///< by value: it may be of the row that goes
  void show_conflict(const Conflict& conflict);

  RowList list_;
  Captions captions_;
  std::optional<ListRow> row_;
  std::string kept_;  ///< what the fields held when the row was shown
};

}  // namespace tallymere
