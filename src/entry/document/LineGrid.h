#pragma once

#include <functional>
#include <string>
#include <vector>

#include "entry/document/EntryForm.h"
#include "entry/document/lines.h"

namespace tallymere {

class DropDowns;
class SSDBDropDown;

/// What grids of expense lines and of item lines share: they stand in an entry window, choose from its lists, and
/// remember of each line the row it was loaded from.
class LineGrid : public QObject {
 public:
  SSDBGrid* grid = nullptr;

  /// Classes that were typed and are in no list are added to it when their line is left.
  void add_new_classes(int class_column);
  /// The user or the window changed a line, or the lines as a whole.
  void when_changed(std::function<void()> handler) { changed_ = std::move(handler); }

 protected:
  LineGrid(EntryForm& window, Shell& shell_of_frame, DropDowns& lists_of_window);

  static GridColumn text(const char* caption) { return {.name = QString::fromLatin1(caption)}; }
  static GridColumn amount(const char* caption, int width);
  static GridColumn price(const char* caption, int width);  ///< of one piece: parts of a cent show
  static GridColumn choice(const char* caption, SSDBDropDown* list, int id_column = -1);
  static GridColumn hidden(const char* caption);

  /// The CatID of a category by its name; one that is not there is offered to be made. "": it was not.
  std::string category_or_new(const std::string& name);

  /// The hidden cell that stands for a row, and the row it stands for.
  std::string keep(const KeptRow& row);
  KeptRow kept(const std::string& cell) const;
  void forget() { kept_.clear(); }
  void tell() const {
    if (changed_) changed_();
  }

  /// Connects a signal of the grid under the window's guard.
  template <typename Signal, typename Handler>
  void on(Signal signal, const char* procedure, Handler handler) {
    QObject::connect(grid, signal, this,
                     [this, procedure, handler](auto&&... args) { form.guard(procedure, [&] { handler(args...); }); });
  }

  EntryForm& form;
  Shell& shell;
  Session& session;
  DropDowns& lists;

 private:
  std::vector<KeptRow> kept_;
  std::function<void()> changed_;
};

}  // namespace tallymere
