#include "printing/stub_lines.h"

#include <algorithm>

#include "core/company/schema.h"
#include "core/ledger/ledger.h"
#include "core/ledger/settlement.h"
#include "core/store/recordset.h"
#include "printing/check_layout.h"

namespace tallymere {
namespace {

/// What is debited to a category, or the Amount where neither side says anything.
Money Line_Amount(store::Recordset& row) {
  const Money side = row["Debit"].money() - row["Credit"].money();
  return side.is_zero() ? row["Amount"].money() : side;
}

std::vector<StubLine> Own_Lines(Session& session, int64_t TransNum) {
  std::vector<StubLine> lines;
  auto rows = session.dbCompany->OpenRecordset(
      "SELECT * FROM Transactions WHERE TransNum = ? ORDER BY Item, PayrollItem, Debit < 0, Debit, RowKey", {TransNum});
  if (!rows.Eof()) rows.MoveNext();  // the bank's row
  for (; !rows.Eof(); rows.MoveNext())
    lines.push_back({Category_Name(session, rows["Account"].text()), rows["Memo"].text(), Line_Amount(rows)});
  return lines;
}

/// The bills that name this check as their payment, first or among others, each with what this check paid of it.
std::vector<StubLine> Bill_Lines(Session& session, int64_t TransNum) {
  const std::string paid_by = Paid_By(TransNum);
  std::vector<StubLine> lines;
  session.dbCompany->each(
      "SELECT Date, Number, COALESCE((SELECT SUM(Applied.Amount) FROM Applied WHERE Payment = ? AND Document = TransNum), "
      "Amount) FROM Transactions WHERE RowKey IN (SELECT RowKey FROM Transactions WHERE PaidBy = ? UNION "
      "SELECT RowKey FROM Transactions WHERE " +
          std::string(not_one_payment) +
          " AND instr(';' || PaidBy, ?) > 0) AND Account = 'AP1' AND (Paid <> 0 OR EXISTS (SELECT 1 FROM Applied WHERE "
          "Payment = ? AND Document = TransNum)) ORDER BY Date, TransNum",
      {TransNum, paid_by, ";" + paid_by, TransNum}, [&](const store::Row& row) {
        const auto day = row.date(0);
        lines.push_back({day ? day->to_text() : "", std::string(row.text(1)), row.money(2)});
      });
  return lines;
}

struct ItemKind {
  std::string Type;
  bool on_stub = false;
  bool earns() const { return Type == "Wage" || Type == "Addition" || Type == "Commision"; }
};

ItemKind Kind_Of(Session& session, const std::string& item) {
  auto row = session.dbCompany->OpenRecordset("SELECT * FROM PayrollItems WHERE Name = ?", {item});
  if (!row.has_row()) return {};
  ItemKind kind{row["Type"].text()};
  const bool tax = kind.Type == "Federal Tax" || kind.Type == "State Tax" || kind.Type == "Other Tax";
  kind.on_stub = kind.earns() || kind.Type == "Deduction" || (tax && row["TaxPaid"].text() == "Employee Paid Tax");
  return kind;
}

/// Both sides of one item on one check are the same money: the larger side is what it came to.
constexpr const char* item_sums =
    "SELECT PayrollItem, CASE WHEN SUM(Debit <> 0) > 0 AND SUM(Credit <> 0) > 0 THEN MAX(SUM(Debit), SUM(Credit)) * "
    "CASE WHEN SUM(Amount) < 0 THEN -1 ELSE 1 END ELSE SUM(Amount) END AS Total, SUM(Hours), COUNT(Hours) FROM Transactions ";

Money Signed(Money amount, const ItemKind& kind) { return kind.earns() ? amount : -amount; }

}  // namespace

std::vector<StubLine> Stub_Lines(Session& session, int64_t TransNum, const std::string& Type) {
  return Type == "Billcheck" ? Bill_Lines(session, TransNum) : Own_Lines(session, TransNum);
}

std::vector<PayLine> Pay_Lines(Session& session, int64_t TransNum) {
  std::vector<PayLine> lines;
  std::vector<ItemKind> kinds;
  auto head = session.dbCompany->OpenRecordset("SELECT * FROM Transactions WHERE TransNum = ?", {TransNum});
  if (!head.has_row()) return lines;
  session.dbCompany->each(
      std::string(item_sums) + "WHERE TransNum = ? AND PayrollItem <> '' GROUP BY PayrollItem ORDER BY PayrollItem",
      {TransNum}, [&](const store::Row& row) {
        ItemKind kind = Kind_Of(session, std::string(row.text(0)));
        if (!kind.on_stub) return;
        lines.push_back({.PayrollItem = std::string(row.text(0)),
                         .Amount = Signed(row.money(1), kind),
                         .year_to_date = {},
                         .Hours = row.integer(3) == 0 ? std::nullopt : std::optional(row.number(2)),
                         .earns = kind.earns()});
      });
  for (PayLine& line : lines)
    line.year_to_date = YTD_Item_Total(session, line.PayrollItem, head["Name"].text(), head["Date"].date());
  return lines;
}

Money YTD_Item_Total(Session& session, const std::string& item, const std::string& name, Date date) {
  Money total;
  session.dbCompany->each(
      std::string(item_sums) + "WHERE PayrollItem = ? AND Name = ? AND Date >= ? AND Date <= ? GROUP BY TransNum",
      {item, name, Date(date.year(), 1, 1), date}, [&](const store::Row& row) { total += row.money(1); });
  return Signed(total, Kind_Of(session, item));
}

}  // namespace tallymere
