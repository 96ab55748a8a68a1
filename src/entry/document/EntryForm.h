#pragma once

#include <string>
#include <vector>

#include "entry/document/document.h"
#include "shell/widgets/Form.h"
#include "shell/widgets/grid/SSDBGrid.h"

class QPushButton;

namespace tallymere {

/// What the entry windows share: a document on screen that is saved whole, the walk to the next and previous
/// one, Control+Enter, the boxes when another user was faster, and the question before a changed document
/// goes.
///
/// A window fills its controls from a document and calls keep(); it implements enter(), step() and
/// load_again().
class EntryForm : public Form {
  Q_OBJECT

 public:
  bool may_close() override;
  bool control_enter() override;

 protected:
  EntryForm(Shell& shell_of_frame, const char* name);

  /// The save routine. true: saved, or nothing to save; then the window may close or move on.
  virtual bool enter() = 0;
  /// Shows the next or the previous document, or a blank one.
  virtual void step(bool forward) = 0;
  /// Another user changed the document: shows it as it is now.
  virtual void load_again() = 0;

  /// Saves what is on screen and takes it as the document from which changes are told.
  bool save();
  /// cmdNext and cmdPrev: saves, then moves.
  void walk(bool forward);
  /// cmdOk: saves, then closes.
  void save_and_close();
  /// Shows a mistake or another user's change. true: saved, or nothing to save.
  bool conclude(const SaveResult& result);
  void show_conflict(const Conflict& conflict);
  void bounce();  ///< the sound at either end of the walk

  /// The screen now shows a document as it is stored, or a blank one.
  void keep() { kept_ = content(); }
  bool changed() const { return content() != kept_; }
  /// The document is to leave the screen. false: the user wants to go on with it.
  bool let_go();

  /// A grid of lines: written in, with a new line, Insert and Delete, and only amounts in amount columns.
  SSDBGrid* line_grid(const char* name, std::vector<GridColumn> columns, const QString& hint);

  QPushButton *cmdPrev, *cmdNext, *cmdOk;

 private:
  std::string content() const;  ///< all that stands in the fields and grids
  void refuse_no_amount(SSDBGrid* grid, int column, const std::string& typed, bool& cancel);

  std::string kept_;
};

/// Cells of a line as documents hold them; a cell that is blank or does not read as a number is nothing.
std::optional<Money> Money_At(const SSDBGrid& grid, int row, int column);
std::optional<double> Number_At(const SSDBGrid& grid, int row, int column);

}  // namespace tallymere
