#include "entry/sales/invoice.h"

#include <algorithm>

#include "core/company/preferences.h"
#include "core/ledger/ledger.h"
#include "core/ledger/stored_row.h"
#include "core/ledger/taken_papers.h"
#include "core/store/recordset.h"
#include "entry/document/next_number.h"
#include "entry/sales/inventory_posting.h"

namespace tallymere {
namespace {

constexpr std::string_view invoice_types[] = {"Invoice"};

bool Is_Head(const LedgerRow& row) { return row.Account == accounts_receivable && row.Item.empty(); }

}  // namespace

StyleFields Fields_Of(std::string_view Style) {
  if (Style == "Product") return {.Terms = true, .PONum = true, .shipping = true};
  return {.Terms = true, .PONum = Style == "Service"};
}

Addresses Customer_Addresses(Session& session, const std::string& Name) {
  if (Name.empty()) return {};
  auto row = session.dbCompany->OpenRecordset("SELECT * FROM Customers WHERE Name = ?", {Name});
  if (!row.has_row()) return {};
  return {row["BillingAddress"].text(), row["ShippingAddress"].text()};
}

// --- loading -------------------------------------------------------------------------------------

Invoice New_Invoice(Session& session) {
  store::Database& db = *session.dbCompany;
  return {.TransNum = Next_TransNum(db),
          .Style = Preference(db, preference::InvoiceStyle),
          .Number = Next_Invoice_Number(db),
          .Date = session.today(),
          .ShipDate = session.today()};
}

namespace {

/// The row in receivables first, the others in writing order.
std::vector<LedgerRow> Read_Rows(store::Recordset& stored) {
  std::vector<LedgerRow> rows;
  for (; !stored.Eof(); stored.MoveNext()) rows.push_back(Stored_Row(stored));
  const auto head = std::ranges::find_if(rows, Is_Head);
  if (head != rows.end()) std::rotate(rows.begin(), head, head + 1);
  return rows;
}

void Read_Head(const LedgerRow& row, Invoice& invoice) {
  invoice.Style = row.SourceName;
  invoice.Name = row.Name.value_or("");
  invoice.Billto = row.Address.value_or("");
  invoice.ShipTo = row.ShippingAddress;
  invoice.Number = row.Number.value_or("");
  invoice.ShipDate = row.ShipDate;
  invoice.Terms = row.Terms;
  invoice.PONum = row.PONum;
  invoice.FOB = row.FOB;
  invoice.Rep = row.Rep;
  invoice.Via = row.Via;
  invoice.Class = row.Class;
  invoice.Message = row.Memo;
  invoice.Total = Posted(row, LineSide::Debit).value_or(Money());
  invoice.kept = std::make_shared<const LedgerRow>(row);
}

/// A quantity is stored as what leaves the stock. One of 0 stands for none: an empty cell was stored so.
std::optional<double> Shown(std::optional<double> Qty) {
  return Qty && *Qty != 0 ? std::optional(-*Qty) : std::nullopt;
}

ItemLine Read_Line(const LedgerRow& row, const LedgerRow& head) {
  ItemLine line = Read_Item(row, head, LineSide::Credit);
  line.Quantity = Shown(row.Qty);
  if (line.Cost && line.Cost->is_zero()) line.Cost.reset();
  if (row.Item.empty()) line.Description = row.Memo;  // another window wrote it
  return line;
}

/// The second and third row belong to the line before them. The third is the sale: its side tells the amount's sign.
bool Read_Part(const LedgerRow& row, Invoice& invoice) {
  if (row.SourceName != part_source || invoice.lines.empty()) return false;
  ItemLine& line = invoice.lines.back();
  std::vector<LedgerRow>& rows = invoice.parts[line.kept];
  if (row.Item != line.Item || rows.size() == 3) return false;
  if (rows.empty()) rows.push_back(*line.kept);
  rows.push_back(row);
  if (rows.size() == 3) line.Amount = Posted(row, LineSide::Credit);
  return true;
}

void Read_Lines(Session& session, const std::vector<LedgerRow>& rows, Invoice& invoice) {
  for (size_t at = invoice.kept ? 1 : 0; at < rows.size(); ++at)
    if (!Read_Part(rows[at], invoice)) invoice.lines.push_back(Read_Line(rows[at], rows.front()));
  std::erase_if(invoice.parts, [](const auto& part) { return part.second.empty(); });
  SaleItems items(session);
  std::vector<ItemLine> reckoned = invoice.lines;
  Reckon_Lines(items, reckoned);
  for (size_t at = 0; at < reckoned.size(); ++at)
    if (items.type(reckoned[at].Item) == "Subtotal") invoice.lines[at].Amount = reckoned[at].Amount;  // none is stored
}

}  // namespace

std::optional<Invoice> Load_Invoice(Session& session, int64_t TransNum) {
  store::Database& db = *session.dbCompany;
  Invoice invoice{.TransNum = TransNum, .Date = session.today(), .probe = Probe::Of(db, TransNum)};
  auto stored = db.OpenRecordset("SELECT * FROM Transactions WHERE TransNum = ? AND Type = 'Invoice' ORDER BY RowKey",
                                 {TransNum});
  if (!stored.has_row()) return std::nullopt;
  invoice.Date = stored["Date"].date();
  const std::vector<LedgerRow> rows = Read_Rows(stored);
  Read_Head(rows.front(), invoice);
  if (!Is_Head(rows.front())) invoice.kept = nullptr;
  invoice.Paid = std::ranges::any_of(rows, &LedgerRow::Paid);
  Read_Lines(session, rows, invoice);
  if (!invoice.kept) {
    SaleItems items(session);
    invoice.Total = Total_Of(items, invoice.lines);
  }
  const Addresses known = Customer_Addresses(session, invoice.Name);
  if (invoice.Billto.empty()) invoice.Billto = known.Billing;
  if (invoice.ShipTo.empty()) invoice.ShipTo = known.Shipping;
  return invoice;
}

// --- saving --------------------------------------------------------------------------------------

namespace {

Fault Line_Fault(std::string title, std::string detail) {
  return {{"Please Select a item for this Invoice.", std::move(title), Icon::Information, std::move(detail)},
          "SSDBGrid1"};
}

/// Nothing was written in it, or all was taken out. A line that another window wrote without an item is none.
bool Is_Blank(const ItemLine& line) {
  const bool as_stored = line.kept && line.kept->Item.empty();
  return line.Item.empty() && line.Amount.value_or(Money()).is_zero() && !as_stored;
}

/// A line that would be left out, though its amount is in the total, and one that would be posted to no category.
std::optional<Fault> Lines_Fault(SaleItems& items, const std::vector<ItemLine>& lines) {
  if (std::ranges::all_of(lines, Is_Blank)) return Line_Fault("No Items", "");
  for (const ItemLine& line : lines) {
    const bool as_stored = line.kept && line.kept->Item == line.Item;
    if (Is_Blank(line) || as_stored) continue;
    if (line.Item.empty())
      return Line_Fault("No Items", "There is an amount of " + line.Amount->to_text() + " on a line without one.");
    const ItemFacts& item = items.of(line.Item);
    if (!item.known) return Line_Fault("No Items", "\"" + line.Item + "\" is not in the list of items.");
    const bool posts = item.ItemType != "Subtotal" && line.Amount && !line.Amount->is_zero();
    if (posts && line.CatID.empty())
      return Line_Fault("No Category", "\"" + line.Item + "\" has no category to post to. Edit the item first.");
    if (posts && item.is_stock() && (item.COGScat.empty() || item.ItemCat.empty()))
      return Line_Fault("No Category", "\"" + line.Item + "\" lacks a category for its cost or its income.");
  }
  return std::nullopt;
}

/// Line ends aside, and one that stands at the very end.
bool Same_Lines(const std::string& a, const std::string& b) {
  const auto plain = [](std::string text) {
    std::erase(text, '\r');
    if (text.ends_with('\n')) text.pop_back();
    return text;
  };
  return plain(a) == plain(b);
}

/// Writes what the screen shows of an invoice over what its rows were.
class Invoice_Rows {
 public:
  Invoice_Rows(Session& session, const Invoice& invoice)
      : session_(session), invoice_(invoice), items_(session), known_(Customer_Addresses(session, invoice.Name)) {
    before_ = invoice.kept ? *invoice.kept : LedgerRow{};
    now_ = {.Memo = invoice.Message,
            .SourceName = invoice.Style,
            .Class = invoice.Class,
            .Paid = before_.Paid,
            .PaidBy = before_.PaidBy,
            .ShippingAddress = own(invoice.ShipTo, before_.ShippingAddress, known_.Shipping),
            .Terms = invoice.Terms,
            .PONum = invoice.PONum,
            .ShipDate = invoice.ShipDate,
            .FOB = invoice.FOB,
            .Via = invoice.Via,
            .Rep = invoice.Rep};
  }

  /// An address is stored where it was typed; one that is the customer's follows the customer.
  std::string Address() const { return own(invoice_.Billto, before_.Address.value_or(""), known_.Billing); }

  LedgerRow head() {
    LedgerRow row = begin(invoice_.kept);
    row.Account = accounts_receivable;
    row.Category = break_down;
    Post(row, LineSide::Debit, invoice_.Total);
    if (!invoice_.kept) row.PaidBy.clear();
    return row;
  }

  std::vector<LedgerRow> line(const ItemLine& line) {
    const auto part = invoice_.parts.find(line.kept);
    const bool same_item = line.kept && line.kept->Item == line.Item;
    const ItemFacts& item = items_.of(line.Item);
    if (part != invoice_.parts.end() && same_item) return part_again(line, item, part->second);
    std::vector<LedgerRow> rows = {line_row(line, line.kept)};
    if (!item.is_stock() || same_item) return rows;
    rows.push_back(part_row(line, item.COGScat));
    rows.push_back(part_row(line, item.ItemCat));
    Post_Part(rows, Inventory_Rule(*session_.dbCompany), line.Amount, Cost_Now(session_, item, line.Quantity));
    return rows;
  }

 private:
  static std::string own(const std::string& typed, const std::string& stored, const std::string& customers) {
    if (Same_Lines(typed, stored)) return stored;
    return stored.empty() && Same_Lines(typed, customers) ? "" : typed;
  }

  /// What all rows repeat is changed in a stored row too, but for what it said otherwise than the first one.
  LedgerRow begin(const KeptRow& kept) const {
    if (!kept) {
      LedgerRow row = now_;
      row.AmountReceived = Money();
      return row;
    }
    LedgerRow row = *kept;
    for (auto field : {&LedgerRow::Memo, &LedgerRow::SourceName, &LedgerRow::Class, &LedgerRow::ShippingAddress,
                       &LedgerRow::Terms, &LedgerRow::PONum, &LedgerRow::FOB, &LedgerRow::Via, &LedgerRow::Rep})
      if (row.*field == before_.*field) row.*field = now_.*field;
    if (row.ShipDate == before_.ShipDate) row.ShipDate = now_.ShipDate;
    Follow_Head(row, before_);
    return row;
  }

  LedgerRow line_row(const ItemLine& line, const KeptRow& kept) const {
    LedgerRow row = begin(kept);
    row.Account = line.CatID;
    row.Category = accounts_receivable;
    const bool subtotal = items_.type(line.Item) == "Subtotal";
    Post(row, LineSide::Credit, subtotal ? Money() : line.Amount.value_or(Money()));
    row.Item = line.Item;
    (line.Item.empty() ? row.Memo : row.ItemDescription) = line.Description;
    if (!kept || Shown(kept->Qty) != line.Quantity)
      row.Qty = line.Quantity ? std::optional(0 - *line.Quantity) : std::nullopt;
    if (!kept || line.Cost || (kept->SalePrice && !kept->SalePrice->is_zero()))
      row.SalePrice = line.Cost.value_or(Money());
    const std::optional<double> exact = kept ? kept->ExactRate : Line_Rate(line, items_.of(line.Item)).ExactRate;
    row.ExactRate = Rate_Of(line.Cost, exact).ExactRate;  // unless another rate was typed
    row.Taxable = line.Tax;
    return row;
  }

  LedgerRow part_row(const ItemLine& line, const std::string& Account) const {
    LedgerRow row = line_row(line, nullptr);
    row.Account = Account;
    row.SourceName = part_source;
    return row;
  }

  /// A stored part keeps the way it was posted, and while its quantity stays also what it cost.
  std::vector<LedgerRow> part_again(const ItemLine& line, const ItemFacts& item, const std::vector<LedgerRow>& stored) {
    std::vector<LedgerRow> rows;
    for (const LedgerRow& each : stored) {
      rows.push_back(line_row(line, std::make_shared<const LedgerRow>(each)));
      rows.back().Account = each.Account;
    }
    const auto rule = Rule_Of(stored);
    if (!rule) return rows;
    const bool same_quantity = Shown(stored.front().Qty) == line.Quantity;
    Post_Part(rows, *rule, line.Amount, same_quantity ? Cost_Of(stored) : Cost_Now(session_, item, line.Quantity));
    return rows;
  }

  Session& session_;
  const Invoice& invoice_;
  mutable SaleItems items_;
  Addresses known_;
  LedgerRow before_, now_;  ///< what all rows repeat: as loaded, as on screen
};

void Warn_Of_No_Value(Session& session, SaleItems& items, const std::vector<ItemLine>& lines) {
  for (const ItemLine& line : lines)
    if (!line.Amount && items.of(line.Item).is_stock())
      session.prompts.box({"WARNING! Item \"" + line.Item + "\" does not have a value!", "No Value", Icon::Critical});
}

/// A paper that another user took meanwhile must not be billed twice.
std::optional<Fault> Taken_Meanwhile(Session& session, const Invoice& invoice) {
  for (const TakenPaper& taken : invoice.taken) {
    const auto open = Open_Papers(session, *taken.paper, invoice.Name);
    if (std::ranges::find(open, taken.Index, &OpenPaper::Index) == open.end())
      return Mistake("Another user has taken up one of the papers of this invoice. Please begin it anew.",
                     "Data has changed", "SSDBGrid1");
  }
  return std::nullopt;
}

std::optional<Fault> Write_Invoice(Session& session, Invoice& invoice) {
  Invoice_Rows rows_of(session, invoice);
  Transaction_Writer rows(session,
                          {.TransNum = invoice.TransNum,
                           .Type = "Invoice",
                           .Date = invoice.Date,
                           .Number = invoice.Number,
                           .Name = invoice.Name,
                           .Address = rows_of.Address()},
                          invoice.probe);
  if (auto fault = Taken_Meanwhile(session, invoice)) return fault;
  for (const TakenPaper& taken : invoice.taken)
    Take_Paper(*session.dbCompany, taken.paper->table, taken.Index, rows.number());
  rows.add(rows_of.head());
  for (const ItemLine& line : invoice.lines)
    for (const LedgerRow& row : rows_of.line(line)) rows.add(row);
  rows.commit();
  invoice.TransNum = rows.number();
  invoice.probe = rows.probe();
  invoice.taken.clear();
  return std::nullopt;
}

}  // namespace

SaveResult Enter_Invoice(Session& session, Invoice& invoice) {
  SaleItems items(session);
  if (invoice.Name.empty()) {
    if (std::ranges::all_of(invoice.lines, Is_Blank)) return {};
    return {.fault = Mistake("Please select the customer this invoice is for.", "No Customer", "cmbCustomer")};
  }
  if (auto fault = Lines_Fault(items, invoice.lines)) return {.fault = fault};
  std::erase_if(invoice.lines, Is_Blank);
  invoice.Total = Total_Of(items, invoice.lines);
  Warn_Of_No_Value(session, items, invoice.lines);
  SaveResult result;
  result.conflict = Save_Or_Conflict([&] { result.fault = Write_Invoice(session, invoice); });
  result.written = result.ok();
  return result;
}

// --- deleting ------------------------------------------------------------------------------------

const DocumentKind<Invoice> Invoice_Kind = {
    "invoice", {invoice_types, 0, "AR1"}, New_Invoice, Load_Invoice, Enter_Invoice};

Deleted<Invoice> Delete_Invoice(Session& session, const Invoice& invoice) {
  Deletion deletion{
      .question = "Are you sure you want to delete this Invoice?",
      .spoken = Spoken(invoice.is_new() ? "the new Invoice" : "Invoice", invoice.Number, invoice.Name, invoice.Total)};
  if (invoice.Paid)
    deletion.more.push_back(
        {"This Invoice has already received a payment. Are you sure you want to delete this Invoice?", "Confirm Delete",
         Icon::Question});
  return Delete_Document(session, Invoice_Kind, invoice, deletion);
}

}  // namespace tallymere
