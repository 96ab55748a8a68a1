#include "entry/register/register_entry.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "core/ledger/ledger.h"
#include "core/ledger/stored_row.h"
#include "core/store/error.h"
#include "core/store/recordset.h"

namespace tallymere {
namespace {

constexpr const char* grid = "grdRegister";

std::optional<Money> Amount_On(store::Recordset& row, const char* field) {
  const Money amount = row[field].money();
  return amount.is_zero() ? std::nullopt : std::optional(amount);
}

/// Which side a register's row stands on. Break-down lines opposite it are positive, those beside it
/// negative.
bool Is_Outgoing(const RegisterEntry& entry) { return entry.Credit && !entry.Credit->is_zero(); }

LineSide Side_Of(const RegisterEntry& entry) { return Is_Outgoing(entry) ? LineSide::Debit : LineSide::Credit; }

BreakDownLine Read_Line(Session& session, const KeptRow& row, LineSide side) {
  return {.Account = Category_Name(session, row->Account),
          .Amount = Posted(*row, side),
          .Memo = row->Memo,
          .Customer = row->Name.value_or(""),
          .Class = row->Class,
          .CatID = row->Account,
          .kept = row};
}

std::vector<BreakDownLine> Read_Lines(Session& session, store::Recordset rows, LineSide side) {
  std::vector<BreakDownLine> lines;
  for (; !rows.Eof(); rows.MoveNext())
    lines.push_back(Read_Line(session, std::make_shared<const LedgerRow>(Stored_Row(rows)), side));
  return lines;
}

}  // namespace

bool RegisterEntry::is_broken_down() const { return Category == break_down; }

std::optional<RegisterEntry> Open_Entry(Session& session, const Register& reg, const RegisterLine& line) {
  store::Database& db = *session.dbCompany;
  RegisterEntry entry{.TransNum = line.TransNum, .key = line.key, .probe = Probe::Of(db, line.TransNum)};
  auto row = db.OpenRecordset("SELECT * FROM Transactions WHERE RowKey = ?", {line.key});
  if (!row.has_row()) return std::nullopt;
  entry.kept = std::make_shared<const LedgerRow>(Stored_Row(row));
  entry.Date = row["Date"].maybe_date();
  entry.Number = row["Number"].text();
  entry.Name = row["Name"].text();
  entry.Category = Category_Name(session, row["Category"].text());
  entry.Memo = row["Memo"].text();
  entry.Class = row["Class"].text();
  entry.Credit = Amount_On(row, "Credit");
  entry.Cleared = row["Cleared"].flag();
  entry.Debit = Amount_On(row, "Debit");
  entry.CatID = entry.is_broken_down() ? "" : row["Category"].text();
  auto others = db.OpenRecordset("SELECT * FROM Transactions WHERE TransNum = ? AND Account <> ? ORDER BY RowKey",
                                 {line.TransNum, reg.category().CatID});
  entry.below = others.has_row() && others.key() < line.key;
  entry.breakdown = Read_Lines(session, std::move(others), Side_Of(entry));
  return entry;
}

RegisterEntry Entry_As_Shown(const RegisterLine& line) {
  return {.Date = line.Date,
          .Number = line.Number,
          .Name = line.Name,
          .Category = line.Category,
          .Memo = line.Memo,
          .Class = line.Class,
          .Credit = line.Credit,
          .Cleared = line.Cleared,
          .Debit = line.Debit,
          .TransNum = line.TransNum,
          .CatID = line.CatID == break_down ? "" : line.CatID,
          .key = line.key};
}

bool Shows(const RegisterLine& line, const RegisterEntry& entry) {
  const auto told = [](const RegisterEntry& e) {
    return std::tie(e.Date, e.Number, e.Name, e.Category, e.Memo, e.Class, e.Credit, e.Cleared, e.Debit, e.CatID);
  };
  return told(Entry_As_Shown(line)) == told(entry);
}

RegisterEntry New_Entry(const Register& reg) { return {.Date = reg.New_Line_Date()}; }

void Fill_Memorised(Session& session, RegisterEntry& entry) {
  if (!entry.is_new() || entry.Name.empty()) return;
  store::Database& db = *session.dbCompany;
  const int64_t last = db.value(
                             "SELECT RowKey FROM Transactions WHERE Name = ? AND Credit <> 0 AND Account <> "
                             "'AP1' AND Account <> 'AR1' ORDER BY Date DESC, TransNum DESC, RowKey LIMIT 1",
                             {entry.Name})
                           .integer();
  auto row = db.OpenRecordset("SELECT * FROM Transactions WHERE RowKey = ?", {last});
  if (!row.has_row()) return;
  if (entry.Memo.empty()) entry.Memo = row["Memo"].text();
  if (!entry.amount()) entry.Credit = row["Credit"].money();
  if (!entry.Category.empty()) return;
  entry.Category = Category_Name(session, row["Category"].text());
  if (!entry.is_broken_down()) {
    entry.CatID = row["Category"].text();
    return;
  }
  entry.breakdown = Read_Lines(session,
                               db.OpenRecordset("SELECT * FROM Transactions WHERE TransNum = ? AND Category <> "
                                                "'<-Break Down->' ORDER BY RowKey",
                                                {row["TransNum"].integer()}),
                               LineSide::Debit);
  if (entry.breakdown.empty()) entry.Category.clear();
  for (BreakDownLine& line : entry.breakdown) line.kept.reset();  // a customer nobody sees would be billed
}

Box Save_Changes_Question() { return {"Do you wish to record your changes?", "Save Changes", Icon::Question}; }

// --- Record ----------------------------------------------------------------------------------------------

namespace {

const Box not_equal{"Break Down Values do not equal Transaction amount", "Not Equal", Icon::Critical};

Fault Incomplete() {
  return Mistake("Please Enter a Category and a dollar value for all transactions.", "Invalid Data", grid);
}

/// What the break down itself lacks: every line needs a category, and they add up to the amount.
std::optional<Fault> Break_Down_Fault(const RegisterEntry& entry) {
  for (const BreakDownLine& line : entry.breakdown)
    if (line.Amount && line.CatID.empty()) return Incomplete();
  if (Sum_Of(entry.breakdown) != entry.amount()) return Fault{not_equal, "grdBreakDown"};
  return std::nullopt;
}

/// A transaction as it stands in the ledger before a rewrite.
struct Stored {
  std::string Type = "Ledger Entry";
  std::string Address = {};
  std::string Category = {};  ///< of the register's row
  int64_t rows = 0;
  bool has_items = false;
};

Stored Read_Stored(Session& session, int64_t TransNum, int64_t key) {
  Stored stored;
  auto rows =
      session.dbCompany->OpenRecordset("SELECT * FROM Transactions WHERE TransNum = ? ORDER BY RowKey", {TransNum});
  if (rows.has_row()) stored.Type = rows["Type"].text();
  for (; !rows.Eof(); rows.MoveNext(), ++stored.rows) {
    if (stored.Address.empty()) stored.Address = rows["Address"].text();
    if (rows.key() == key) stored.Category = rows["Category"].text();
    stored.has_items |= !rows["Item"].blank();
  }
  return stored;
}

bool May_Rewrite(const Stored& stored) {
  return stored.Type == "Ledger Entry" || (stored.Type == "Check" && !stored.has_items);
}

/// One line of a larger transaction, whose other lines this register does not show and would drop.
bool Is_Part_Of_More(const Stored& stored, const RegisterEntry& entry) {
  return stored.rows > 2 && stored.Category != break_down && !entry.is_broken_down();
}

/// Of a larger ledger entry a register only changes the mark.
bool Takes_Only_Mark(const Stored& stored) { return stored.Type == "Ledger Entry" && stored.rows > 2; }

/// Lines that will not be written need not add up: a ledger entry may stand here with several rows.
bool Writes_Lines(Session& session, const RegisterEntry& entry) {
  if (entry.is_new()) return true;
  const Stored stored = Read_Stored(session, entry.TransNum, entry.key);
  return May_Rewrite(stored) && !Takes_Only_Mark(stored);
}

std::optional<Fault> Entry_Fault(Session& session, const Register& reg, const RegisterEntry& entry) {
  if (!entry.Date) return Mistake("Please Enter a date value for all transactions.", "Invalid Data", grid);
  if (entry.Category.empty() || !entry.amount()) return Incomplete();
  if (entry.is_broken_down()) return Writes_Lines(session, entry) ? Break_Down_Fault(entry) : std::nullopt;
  if (entry.CatID.empty()) return Incomplete();
  if (entry.CatID == reg.category().CatID)
    return Mistake("Cannot Assign Category to Transaction that is also the Category that you are editing.",
                   "Invalid Category", grid);
  return std::nullopt;
}

void Rewrite_Cleared(Session& session, RegisterEntry& entry) {
  store::Transaction tx(*session.dbCompany, "Cleared " + entry.Number + ", " + entry.Name);
  entry.probe.check(*session.dbCompany);
  session.dbCompany->Execute("UPDATE Transactions SET Cleared = ? WHERE RowKey = ? AND (Credit = ? OR Debit = ?)",
                             {entry.Cleared, entry.key, entry.Credit, entry.Debit});
  tx.commit();
}

/// An amount typed with a minus stands in the other column without it.
void Turn_Negative(RegisterEntry& entry) {
  if (!entry.amount()->is_negative()) return;
  std::swap(entry.Credit, entry.Debit);
  for (std::optional<Money>* side : {&entry.Credit, &entry.Debit})
    if (*side) *side = -**side;
  for (BreakDownLine& line : entry.breakdown)
    if (line.Amount) line.Amount = -*line.Amount;
}

/// The register's own row: what its line shows, the rest as it was.
LedgerRow Own_Row(const std::string& here, const RegisterEntry& entry, const std::vector<LedgerRow>& others) {
  LedgerRow row = entry.kept ? *entry.kept : LedgerRow{};
  row.Account = here;
  row.Category = entry.is_broken_down() ? break_down : others.front().Account;
  Post(row, entry.Credit ? LineSide::Credit : LineSide::Debit, entry.amount());
  row.Memo = entry.Memo;
  row.Class = entry.Class;
  row.Cleared = entry.Cleared;
  row.Type = row.Number = row.Name = std::nullopt;  // the head's
  return row;
}

/// What a row of the other side takes over from the register's line: of a row that was there, what was changed.
LedgerRow Other_Row(const KeptRow& kept, const std::string& here, const RegisterEntry& entry) {
  LedgerRow row = kept ? *kept : LedgerRow{};
  row.Category = here;
  row.Type = std::nullopt;
  if (!kept || entry.Number != entry.kept->Number) row.Number = std::nullopt;
  if (!kept || entry.Cleared != entry.kept->Cleared) row.Cleared = entry.Cleared;
  return row;
}

/// The two rows of a simple entry mirror each other. The line of a check keeps the memo and class of its own that it has.
LedgerRow Single_Row(Session& session, const std::string& here, const RegisterEntry& entry) {
  const bool same_line = entry.breakdown.size() == 1 && entry.breakdown.front().CatID == entry.CatID;
  const KeptRow kept = same_line ? entry.breakdown.front().kept : nullptr;
  LedgerRow row = Other_Row(kept, here, entry);
  row.Account = Posts_To(session, entry.CatID, kept);
  Post(row, Side_Of(entry), entry.amount());
  if (!kept || entry.Memo != entry.kept->Memo) row.Memo = entry.Memo;
  if (!kept || entry.Class != entry.kept->Class) row.Class = entry.Class;
  if (!kept || entry.Name != entry.kept->Name) row.Name = std::nullopt;
  return row;
}

LedgerRow Break_Down_Row(Session& session, const std::string& here, const RegisterEntry& entry,
                         const BreakDownLine& line) {
  LedgerRow row = Other_Row(line.kept, here, entry);
  row.Account = Posts_To(session, line.CatID, line.kept);
  Post(row, Side_Of(entry), line.Amount);
  row.Memo = line.Memo;
  row.Name = line.Customer;  // its own, or none: the payee is not repeated
  row.Class = line.Class;
  return row;
}

std::vector<LedgerRow> Other_Rows(Session& session, const std::string& here, const RegisterEntry& entry) {
  if (!entry.is_broken_down()) return {Single_Row(session, here, entry)};
  std::vector<LedgerRow> rows;
  for (const BreakDownLine& line : entry.breakdown)
    if (!line.CatID.empty()) rows.push_back(Break_Down_Row(session, here, entry, line));
  return rows;
}

void Write_Entry(Session& session, const Register& reg, const Stored& stored, RegisterEntry& entry) {
  const std::string& here = reg.category().CatID;
  Transaction_Writer rows(session,
                          {.TransNum = entry.TransNum,
                           .Type = stored.Type,
                           .Date = *entry.Date,
                           .Number = entry.Number,
                           .Name = entry.Name,
                           .Address = stored.Address},
                          entry.probe);
  const std::vector<LedgerRow> others = Other_Rows(session, here, entry);
  const LedgerRow own = Own_Row(here, entry, others);
  // A check's bank stays its first row, also when the check is changed in the register of what it pays.
  if (!entry.below) rows.add(own);
  for (const LedgerRow& row : others) rows.add(row);
  if (entry.below) rows.add(own);
  rows.commit();
  const char* own_key = entry.below ? "MAX(RowKey)" : "MIN(RowKey)";
  const int64_t key =
      session.dbCompany
          ->value("SELECT " + std::string(own_key) + " FROM Transactions WHERE TransNum = ?", {rows.number()})
          .integer();
  if (auto written = Open_Entry(session, reg, {.TransNum = rows.number(), .key = key})) entry = std::move(*written);
}

Fault Access_Denied() {
  return {{"Cannot edit this Transaction type in register mode. Please go to the transaction for editing.",
           "Access Denied", Icon::Critical},
          grid};
}

Box Only_Mark_Taken() {
  Box box = Access_Denied().box;
  box.icon = Icon::Information;
  box.detail = "This entry has several lines: only whether it is cleared was recorded.";
  return box;
}

/// Whether anything but the mark was typed into an entry.
bool Says_More_Than_Mark(Session& session, const Register& reg, const RegisterEntry& entry) {
  const auto stored = Open_Entry(session, reg, {.TransNum = entry.TransNum, .key = entry.key});
  const auto told = [](const RegisterEntry& e) {
    return std::tie(e.Date, e.Number, e.Name, e.Category, e.Memo, e.Class, e.Credit, e.Debit, e.CatID);
  };
  const auto line_told = [](const BreakDownLine& line) {
    return std::tie(line.CatID, line.Amount, line.Memo, line.Customer, line.Class);
  };
  return !stored || told(*stored) != told(entry) ||
         !std::ranges::equal(stored->breakdown, entry.breakdown, {}, line_told, line_told);
}

void Save_Entry(Session& session, const Register& reg, RegisterEntry& entry, RecordResult& result) {
  Stored stored;
  if (!entry.is_new()) {
    entry.probe.check(*session.dbCompany);
    stored = Read_Stored(session, entry.TransNum, entry.key);
    if (stored.rows == 0) throw store::Error(store::errors::data_changed, "The transaction was deleted.");
    if (!May_Rewrite(stored) || (stored.Type == "Check" && Is_Part_Of_More(stored, entry))) {
      result.fault = Access_Denied();
      return;
    }
    if (Takes_Only_Mark(stored)) {
      if (Says_More_Than_Mark(session, reg, entry)) result.notice = Only_Mark_Taken();
      return Rewrite_Cleared(session, entry);
    }
  }
  Write_Entry(session, reg, stored, entry);
  result.stapler = true;
}

}  // namespace

RecordResult Record(Session& session, const Register& reg, RegisterEntry& entry) {
  RecordResult result;
  result.fault = Entry_Fault(session, reg, entry);
  if (result.fault) return result;
  Turn_Negative(entry);
  result.conflict = Save_Or_Conflict([&] { Save_Entry(session, reg, entry, result); });
  result.reload = !result.conflict || result.conflict->reload;
  result.TransNum = entry.TransNum;
  return result;
}

bool Can_Edit_In_Register(Session& session, int64_t TransNum) { return May_Rewrite(Read_Stored(session, TransNum, 0)); }

// --- Break down ------------------------------------------------------------------------------------------

std::optional<Fault> Break_Down(Session& session, RegisterEntry& entry) {
  if (!entry.amount())
    return Mistake("Please enter a total Dollar value first before entering breakdown", "No Value", grid);
  if (!entry.is_new() && !Can_Edit_In_Register(session, entry.TransNum))
    return Fault{{"Cannot Break Down this type of Transaction in Register Mode. Please 'Go to' the "
                  "Transaction for editing.",
                  "Break Down Denied", Icon::Critical},
                 grid};
  if (entry.is_broken_down() || entry.breakdown.size() > 1) return std::nullopt;
  // The one line of an entry that is not broken down yet follows what was typed.
  entry.breakdown.resize(1);
  entry.breakdown.front().Account = entry.Category;
  entry.breakdown.front().CatID = entry.CatID;
  entry.breakdown.front().Amount = entry.amount();
  return std::nullopt;
}

std::optional<Fault> Close_Break_Down(RegisterEntry& entry) {
  if (Sum_Of(entry.breakdown) != entry.amount()) return Fault{not_equal, "grdBreakDown"};
  const bool single = entry.breakdown.size() == 1;
  entry.Category = single ? entry.breakdown.front().Account : std::string(break_down);
  entry.CatID = single ? entry.breakdown.front().CatID : "";
  return std::nullopt;
}

}  // namespace tallymere
