#pragma once

#include "entry/document/LineGrid.h"
#include "entry/journal/journal.h"

namespace tallymere {

/// grdLedger: the debits and credits of an entry. A new line comes up with what balances the lines above it.
class LedgerGrid : public LineGrid {
 public:
  enum Column { Category, Credit, Debit, Memo, Name, Class, EntryNum, Cleared, Kept };

  LedgerGrid(EntryForm& window, Shell& shell_of_frame, DropDowns& lists_of_window);

  void show(const std::vector<LedgerLine>& lines);
  /// As they stand; without a line that was proposed and left as it came up.
  std::vector<LedgerLine> read() const;
  /// Takes what is being typed. false: the line that is being left names no category.
  bool settle();

 private:
  void check_amount(int row, int column, const std::string& typed, bool& cancel);
  void check_category(int row, bool& cancel);
  void propose();
  void new_category();
  bool is_proposal(int row) const;
  LedgerLine line(int row) const;
  /// Boxes wait until the focus has arrived where it is going.
  void later(const char* procedure, std::function<void()> work);

  int proposed_ = -1;  ///< the line that came up with an amount
  int typed_in_ = -1;  ///< the line whose category was typed and is none
};

}  // namespace tallymere
