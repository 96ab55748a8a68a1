#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/company/session.h"
#include "core/ledger/category_tree.h"
#include "entry/document/document.h"

/// An account register: the rows of one category with a running balance.
namespace tallymere {

/// What the two amount columns are called for a type of category.
struct RegisterCaptions {
  std::string_view out;  ///< always shows Credit
  std::string_view in;   ///< always shows Debit
};
RegisterCaptions Register_Captions(std::string_view AccountType);

/// Receivables and payables are entered in windows of their own: no new lines here.
bool Takes_New_Lines(std::string_view AccountType);

/// One line of grdRegister.
struct RegisterLine {
  std::optional<tallymere::Date> Date = {};
  std::string Number = {};
  std::string Name = {};
  std::string Category = {};  ///< the other side's AccountName, or "<-Break Down->"
  std::string Memo = {};
  std::string Class = {};
  std::optional<Money> Credit = {};  ///< the amount-out column; empty when there is none
  bool Cleared = false;
  std::optional<Money> Debit = {};  ///< the amount-in column
  Money Balance = {};               ///< after this line
  int64_t TransNum = 0;
  std::string CatID = {};  ///< of the other side; "<-Break Down->" as it stands in the row
  int64_t key = 0;         ///< hidden key of the row
};

/// The lines of a register in the order Date, Number. Opening it sums the category day by day; the lines
/// themselves are read when they come into view.
class Register {
 public:
  Register(Session& session, const std::string& CatID);
  /// Fills the grid anew from the ledger.
  void Load_Register();

  const Category& category() const { return category_; }
  Money ending_balance() const { return ending_; }
  std::string lblTotal() const;  ///< "-$1,234.50"
  int64_t count() const { return count_; }

  /// Whether a line has been read. Up to twenty lines all are from the start, else the last twenty.
  bool filled(int64_t row) const;
  /// Reads the lines that have come into view.
  void Fill(int64_t first, int64_t lines);
  /// The line, or an empty one until it is filled.
  RegisterLine line(int64_t row) const;
  /// The line of a transaction; -1 when it has none here.
  int64_t Row_Of(int64_t TransNum);
  /// Somebody else's rows have come or gone since the register was opened: load it again.
  bool stale() const { return stale_; }

  /// What a new line proposes: the last line's date, or today.
  Date New_Line_Date() const;

 private:
  struct Day {
    std::optional<Date> date;
    int64_t first = 0;  ///< row
    int64_t count = 0;
    Money before;  ///< balance before its first line
    std::vector<RegisterLine> lines = {};
  };
  size_t day_of(int64_t row) const;
  void read(Day& day);

  Session& session_;
  CategoryTree categories_;
  Category category_ = {};
  std::vector<Day> days_;
  std::vector<bool> filled_;
  int64_t count_ = 0;
  Money ending_;
  bool stale_ = false;
};

/// Where "&Go to" leads: the transaction's type and window. No window: nowhere.
struct GoTo {
  std::string Type = {};
  std::string_view window = {};
};
GoTo Go_To(Session& session, int64_t TransNum);

/// mnuDelReg: asks, and deletes the line's whole transaction, unless another user changed it since `probe` was taken.
struct RegisterDeletion {
  bool deleted = false;
  std::optional<Conflict> conflict = {};
};
RegisterDeletion Delete_From_Register(Session& session, const RegisterLine& line, const Probe& probe = {});

}  // namespace tallymere
