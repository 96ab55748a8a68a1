#include "entry/journal/journal.h"

#include <algorithm>

#include "core/ledger/ledger.h"
#include "core/ledger/settlement.h"
#include "core/ledger/stored_row.h"
#include "core/store/recordset.h"
#include "core/values/format.h"

namespace tallymere {
namespace {

constexpr const char* entry_type = "Ledger Entry";
constexpr std::string_view entry_types[] = {entry_type};

}  // namespace

const DocumentKind<LedgerEntry> Ledger_Kind = {
    "ledger entry", {entry_types}, New_Ledger_Entry, Load_Ledger_Entry, Enter_Ledger};

// --- loading ---------------------------------------------------------------------------------------------

LedgerEntry New_Ledger_Entry(Session& session) {
  return {.TransNum = Next_TransNum(*session.dbCompany), .Date = session.today()};
}

namespace {

LedgerLine Read_Line(Session& session, const LedgerRow& row) {
  LedgerLine line{.Category = Category_Name(session, row.Account),
                  .Memo = row.Memo,
                  .Name = row.Name.value_or(""),
                  .Class = row.Class,
                  .CatID = row.Account,
                  .Cleared = row.Cleared,
                  .kept = std::make_shared<const LedgerRow>(row)};
  (row.Credit.is_zero() ? line.Debit : line.Credit) = row.Credit.is_zero() ? row.Debit : row.Credit;
  return line;
}

}  // namespace

std::optional<LedgerEntry> Load_Ledger_Entry(Session& session, int64_t TransNum) {
  store::Database& db = *session.dbCompany;
  LedgerEntry entry{.TransNum = TransNum, .Date = session.today(), .probe = Probe::Of(db, TransNum)};
  auto rows = db.OpenRecordset(
      "SELECT * FROM Transactions WHERE TransNum = ? AND Type = 'Ledger Entry' ORDER BY RowKey", {TransNum});
  if (!rows.has_row()) return std::nullopt;
  entry.is_stored = true;
  entry.Date = rows["Date"].date();
  entry.Number = rows["Number"].text();
  for (; !rows.Eof(); rows.MoveNext()) entry.lines.push_back(Read_Line(session, Stored_Row(rows)));
  return entry;
}

Money Off_Balance(const std::vector<LedgerLine>& lines, size_t count) {
  Money sum;
  for (size_t at = 0; at < std::min(count, lines.size()); ++at)
    sum += lines[at].Debit.value_or(Money()) - lines[at].Credit.value_or(Money());
  return sum;
}

// --- saving ----------------------------------------------------------------------------------------------

namespace {

auto Content_Of(const LedgerEntry& entry) { return std::tie(entry.Date, entry.Number, entry.lines); }

std::optional<Fault> Line_Fault(const LedgerLine& line) {
  // One that names no category would be left out, and the ledger would be off.
  if (line.CatID.empty()) return Mistake("Please Enter a Categorry for each entry line", "No Category", "grdLedger");
  if (!line.Credit && !line.Debit)
    return Mistake("This Transaction must have a value for every category", "Balance Error", "grdLedger");
  // The credit would go under in the debit.
  if (line.Credit && line.Debit && !line.Credit->is_zero() && !line.Debit->is_zero())
    return Mistake("A line takes either a Credit or a Debit. Please enter them on two lines.", "Balance Error",
                   "grdLedger");
  return std::nullopt;
}

/// What an entry takes off accounts payable: it has paid bills by that much.
Money Payable_Of(const std::vector<LedgerLine>& lines) {
  std::vector<LedgerLine> payable;
  std::ranges::copy_if(lines, std::back_inserter(payable),
                       [](const LedgerLine& line) { return line.CatID == accounts_payable; });
  return Off_Balance(payable);
}

std::optional<Fault> Payment_Fault(Session& session, const LedgerEntry& entry) {
  const auto stored = entry.is_stored ? Load_Ledger_Entry(session, entry.TransNum) : std::nullopt;
  if (!stored || Applied_By(*session.dbCompany, entry.TransNum).empty()) return std::nullopt;
  const Money paid = Payable_Of(stored->lines);
  if (Payable_Of(entry.lines) == paid) return std::nullopt;
  Fault fault = Mistake("This entry has paid bills. What it takes off Accounts Payable stays as it is.", "Bills Paid",
                        "grdLedger");
  fault.box.detail = "It paid " + Dollar_Text(paid) + ". Delete it and the bills are open again.";
  return fault;
}

std::optional<Fault> Entry_Fault(Session& session, const LedgerEntry& entry) {
  for (const LedgerLine& line : entry.lines)
    if (auto fault = Line_Fault(line)) return fault;
  if (!Off_Balance(entry.lines).is_zero())
    return Mistake("This Entry Does not Balance. Debits and Credits must equal zero.", "Balance Error", "grdLedger");
  return Payment_Fault(session, entry);
}

LedgerRow Row_Of(Session& session, const LedgerLine& line) {
  LedgerRow row = line.kept ? *line.kept : LedgerRow{};
  row.Account = Posts_To(session, line.CatID, line.kept);
  const bool debit = line.Debit && (!line.Credit || line.Credit->is_zero());
  Post(row, debit ? LineSide::Debit : LineSide::Credit, debit ? line.Debit : line.Credit);
  row.Memo = line.Memo;
  row.Class = line.Class;
  row.Cleared = line.Cleared;
  row.Name = line.Name;
  row.Address = line.kept ? line.kept->Address.value_or("") : "";
  row.Type = row.Number = std::nullopt;  // the head's
  return row;
}

/// Of two lines each names the other's category, of more none does.
std::vector<LedgerRow> Rows_Of(Session& session, const std::vector<LedgerLine>& lines) {
  std::vector<LedgerRow> rows;
  for (const LedgerLine& line : lines) rows.push_back(Row_Of(session, line));
  const bool two = rows.size() == 2;
  for (size_t at = 0; at < rows.size(); ++at) rows[at].Category = two ? rows[1 - at].Account : break_down;
  return rows;
}

void Write_Entry(Session& session, LedgerEntry& entry) {
  Transaction_Writer writer(session,
                            {.TransNum = entry.TransNum,
                             .Type = entry_type,
                             .Date = entry.Date,
                             .Number = entry.Number,
                             .Name = entry.lines.front().Name},
                            entry.probe);
  for (LedgerRow& row : Rows_Of(session, entry.lines)) writer.add(std::move(row));
  writer.commit();
  entry.TransNum = writer.number();
  entry.is_stored = true;
  entry.probe = writer.probe();
}

const Box cleared_box{"This transaction has been cleared, Are you sure you want to Delete this Ledger Entry?",
                      "Delete Entry", Icon::Critical};

std::vector<Box> Cleared_Question(const LedgerEntry& entry) {
  if (std::ranges::none_of(entry.lines, &LedgerLine::Cleared)) return {};
  return {cleared_box};
}

/// All lines of a stored entry are gone: so is the entry. What is cleared is asked about as when it is deleted.
SaveResult Remove_Entry(Session& session, LedgerEntry& entry) {
  const auto stored = Load_Ledger_Entry(session, entry.TransNum);
  if (stored && !Cleared_Question(*stored).empty() && !session.prompts.ask(cleared_box, Buttons::YesNoDefaultNo))
    return {.declined = true};
  auto conflict = Save_Or_Conflict([&] { Delete_Rows(session, entry.TransNum, entry.probe, {}); });
  if (!conflict) entry = New_Ledger_Entry(session);
  return {.conflict = conflict, .written = !conflict};
}

}  // namespace

SaveResult Enter_Ledger(Session& session, LedgerEntry& entry) {
  std::erase_if(entry.lines, &LedgerLine::blank);
  if (entry.lines.empty()) return entry.is_stored ? Remove_Entry(session, entry) : SaveResult{};
  if (entry.is_stored) {
    const auto stored = Load_Ledger_Entry(session, entry.TransNum);
    if (stored && Content_Of(*stored) == Content_Of(entry)) return {};
  }
  if (auto fault = Entry_Fault(session, entry)) return {.fault = fault};
  auto conflict = Save_Or_Conflict([&] { Write_Entry(session, entry); });
  return {.conflict = conflict, .written = !conflict};
}

// --- deleting --------------------------------------------------------------------------------------------

Deleted<LedgerEntry> Delete_Ledger_Entry(Session& session, const LedgerEntry& entry) {
  Money amount;
  for (const LedgerLine& line : entry.lines) amount += line.Debit.value_or(Money());
  const std::string name = entry.lines.empty() ? "" : entry.lines.front().Name;
  return Delete_Document(session, Ledger_Kind, entry,
                         {.question = "Are you sure you want to Delete this Ledger Entry?",
                          .spoken = Spoken(entry.is_stored ? entry_type : "the new Ledger Entry", entry.Number, name,
                                           entry.is_stored ? std::optional(amount) : std::nullopt),
                          .title = "Delete Entry",
                          .more = Cleared_Question(entry)});
}

}  // namespace tallymere
