#pragma once

#include <string>
#include <vector>

#include "entry/document/document.h"
#include "shell/amount_cells.h"
#include "shell/widgets/Form.h"
#include "shell/widgets/grid/SSDBGrid.h"

class QPushButton;

namespace tallymere {

/// What all entry windows share: what is on screen is saved whole, the boxes when it cannot be or another user was
/// faster, and the question before something typed goes. Control+Enter does what cmdOk does.
///
/// A window fills its controls and calls keep(); it implements enter() and load_again().
class EntryForm : public Form {
  Q_OBJECT

 public:
  bool may_close() override;
  bool control_enter() override;

  /// A grid of lines: written in, with a new line, Insert and Delete, and only amounts in amount columns.
  SSDBGrid* line_grid(const char* name, std::vector<GridColumn> columns, const QString& hint);

  /// Valid: the category, item or payee typed last is one of its list.
  bool Valid() const { return valid_; }
  void set_Valid(bool valid) { valid_ = valid; }

 protected:
  EntryForm(Shell& shell_of_frame, const char* name);

  /// The save routine. true: saved, or nothing to save; then the window may close or move on.
  virtual bool enter() = 0;
  /// Another user changed what is on screen: shows it as it is now.
  virtual void load_again() = 0;

  /// Saves what is on screen and takes it as that from which changes are told. The lists hear of categories it made.
  bool save();
  void save_and_close();  ///< cmdOk
  void discard();         ///< Cancel: closes, and what was typed goes without a question
  /// Shows a mistake or another user's change. true: saved, or nothing to save.
  bool conclude(const SaveResult& result);
  void show_conflict(const Conflict& conflict);

  /// The screen now shows what is stored, or a blank document.
  void keep() { kept_ = content(); }
  bool changed() const { return content() != kept_; }
  /// What is on screen is to leave it. false: the user wants to go on with it.
  bool let_go();

  /// A button that closes without saving: "&Cancel".
  QPushButton* cancel_button(const char* name = "cmdCancel");
  /// A button that leads to a window which may not be there yet: then it says so.
  QPushButton* leads_to(QPushButton* button, const char* window);

  QPushButton* cmdOk;

 private:
  std::string content() const;  ///< all that stands in the fields and grids

  std::string kept_;
  bool valid_ = true;
};

}  // namespace tallymere
