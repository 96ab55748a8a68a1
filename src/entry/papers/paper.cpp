#include "entry/papers/paper.h"

#include <algorithm>

#include "core/ledger/category_list.h"
#include "core/store/recordset.h"
#include "core/store/sql.h"
#include "core/values/text.h"
#include "entry/document/lines.h"

namespace tallymere {
namespace {

constexpr PaperTable tables[] = {
    {PaperKind::Estimate, "frmEstimate", "Estimates", "estimate", "Estimates", "EstItems", "Customer",
     "CustomerAddress", "EstimateNumber", "EstimateIndex", "Customers",
     "&Customer:", "Estimate N&umber:", "No More Previous Estimates", "frmPrintPO", Estimate_Numbers},
    {PaperKind::PO, "frmPOs", "Create Purchase Orders", "purchase order", "POs", "POItems", "Vendor", "VendorAddress",
     "PONumber", "POIndex", "Vendors", "&Vendor:", "P.O. N&umber:", "No More Previous POs", "frmPrintPO", PO_Numbers},
    {PaperKind::Slip, "frmPackageSlips", "Create Package Slips", "package slip", "PSlips", "PSlipItems", "Vendor",
     "VendorAddress", "PONumber", "POIndex", "Customers", "&Customer:", "Slip N&umber:", "No More Previous PSlips",
     "frmPrintSlip", Slip_Numbers},
};

using store::Quoted;

std::string All_Of(const char* table, std::string_view field) {
  return "SELECT * FROM " + Quoted(table) + " WHERE " + Quoted(field) + " = ?";
}

int64_t Last_Index(store::Database& db, const PaperTable& table) {
  return db.value("SELECT MAX(\"Index\") FROM " + Quoted(table.header)).integer();
}

std::vector<PaperLine> Load_Lines(store::Database& db, const PaperTable& table, int64_t Index) {
  std::vector<PaperLine> lines;
  db.each("SELECT Item, Description, Qty, Rate, Amount FROM " + Quoted(table.lines) + " WHERE " + Quoted(table.link) +
              " = ? ORDER BY RowKey",
          {Index}, [&](const store::Row& row) {
            PaperLine line{.Item = std::string(row.text(0)), .Description = std::string(row.text(1))};
            if (!row.is_null(2)) line.Qty = row.number(2);
            if (!row.is_null(3)) line.Rate = row.money(3);
            if (!row.is_null(4)) line.Amount = row.money(4);
            lines.push_back(std::move(line));
          });
  return lines;
}

bool Number_Is_Used(store::Database& db, const PaperTable& table, const std::string& number) {
  return db.OpenRecordset(All_Of(table.header, table.number), {number}).has_row();
}

/// Opens the row to write in: the paper's own, or a new one under the next free Index.
store::Recordset Header_To_Write(store::Database& db, const PaperTable& table, PaperDocument& paper) {
  auto header = db.OpenRecordset(All_Of(table.header, "Index"), {paper.Index});
  if (paper.is_new()) {
    if (header.has_row()) {
      paper.Index = Last_Index(db, table) + 1;
      if (Number_Is_Used(db, table, paper.Number)) paper.Number = Next_Paper_Number(db, table.numbers);
    }
    header.AddNew();
    header["Index"] = paper.Index;
    header["Open"] = true;
  } else {
    paper.probe.check(db);
    paper.line_probe.check(db);
    header.Edit();
  }
  return header;
}

void Write_Header(store::Database& db, const PaperTable& table, PaperDocument& paper) {
  auto header = Header_To_Write(db, table, paper);
  header[table.party] = paper.Party;
  header[table.address] = paper.Address;
  header["Date"] = paper.Date;
  header[table.number] = paper.Number;
  header["Memo"] = paper.Memo;
  header["Total"] = paper.total();
  header.Update();
}

void Write_Lines(store::Database& db, const PaperTable& table, const PaperDocument& paper) {
  db.Execute("DELETE FROM " + Quoted(table.lines) + " WHERE " + Quoted(table.link) + " = ?", {paper.Index});
  const std::string insert = "INSERT INTO " + Quoted(table.lines) + " (" + Quoted(table.link) +
                             ", Item, Description, Qty, Rate, Amount) VALUES (?, ?, ?, ?, ?, ?)";
  for (const PaperLine& line : paper.lines)
    db.Execute(insert, {paper.Index, line.Item, line.Description, line.Qty, line.Rate, line.Amount});
}

void Take_Probes(store::Database& db, const PaperTable& table, PaperDocument& paper) {
  paper.probe = Probe::Of(db, table.header, "Index", paper.Index);
  paper.line_probe = Probe::Of(db, table.lines, table.link, paper.Index);
}

std::string Title(const PaperTable& table, const PaperDocument& paper) {
  return std::string(table.word) + " " + paper.Number + (paper.Party.empty() ? "" : ", " + paper.Party);
}

void Write(store::Database& db, const PaperTable& table, PaperDocument& paper) {
  store::Transaction tx(db, Title(table, paper));
  Write_Header(db, table, paper);
  Write_Lines(db, table, paper);
  Take_Probes(db, table, paper);
  tx.commit();
}

Conflict Changed_Meanwhile(const PaperTable& table) {
  return {
      {"This " + std::string(table.word) +
           " has been modified by another user since you opened it. It will not be updated. Click Ok to see changes.",
       "Data has changed", Icon::Information},
      true};
}

}  // namespace

const PaperTable& Table_Of(PaperKind kind) { return *std::ranges::find(tables, kind, &PaperTable::kind); }

Money PaperDocument::total() const {
  Money sum;
  for (const PaperLine& line : lines) sum += line.Amount.value_or(Money());
  return sum;
}

bool PaperDocument::says_the_same(const PaperDocument& other) const {
  return Party == other.Party && Address == other.Address && Date == other.Date && Number == other.Number &&
         Memo == other.Memo && lines == other.lines;
}

// --- reading and walking ---------------------------------------------------------------------------------

PaperDocument New_Paper(Session& session, PaperKind kind) {
  store::Database& db = *session.dbCompany;
  const PaperTable& table = Table_Of(kind);
  return {.Index = Last_Index(db, table) + 1, .Date = session.today(), .Number = Next_Paper_Number(db, table.numbers)};
}

std::optional<PaperDocument> Load_Paper(Session& session, PaperKind kind, int64_t Index) {
  store::Database& db = *session.dbCompany;
  const PaperTable& table = Table_Of(kind);
  PaperDocument paper{.Index = Index, .Date = session.today()};
  Take_Probes(db, table, paper);
  auto header = db.OpenRecordset(All_Of(table.header, "Index"), {Index});
  if (!header.has_row()) return std::nullopt;
  paper.Party = header[table.party].text();
  paper.Address = header[table.address].text();
  paper.Date = header["Date"].maybe_date().value_or(session.today());
  paper.Number = header[table.number].text();
  paper.Memo = header["Memo"].text();
  paper.lines = Load_Lines(db, table, Index);
  return paper;
}

std::optional<PaperDocument> Paper_Beside(Session& session, PaperKind kind, int64_t Index, bool forward) {
  const std::string next = forward ? "SELECT MIN(\"Index\") FROM " : "SELECT MAX(\"Index\") FROM ";
  const auto beside = session.dbCompany->value(
      next + Quoted(Table_Of(kind).header) + " WHERE \"Index\" " + (forward ? ">" : "<") + " ?", {Index});
  if (!beside.is_null()) return Load_Paper(session, kind, beside.integer());
  return forward ? std::optional(New_Paper(session, kind)) : std::nullopt;
}

// --- saving ----------------------------------------------------------------------------------------------

SaveResult Enter_PO(Session& session, PaperKind kind, PaperDocument& paper) {
  const PaperTable& table = Table_Of(kind);
  std::erase_if(paper.lines, [](const PaperLine& line) { return line.blank(); });
  if (paper.total().is_zero() && paper.Party.empty()) return {};
  PaperDocument written = paper;
  SaveResult result{.conflict = Save_Or_Conflict([&] { Write(*session.dbCompany, table, written); })};
  if (result.conflict && result.conflict->reload) result.conflict = Changed_Meanwhile(table);
  result.written = !result.conflict;
  if (result.written) paper = std::move(written);
  return result;
}

// --- filling in ------------------------------------------------------------------------------------------

std::optional<std::string> Party_Address(Session& session, PaperKind kind, const std::string& name) {
  const auto address = session.dbCompany->value(
      "SELECT ShippingAddress FROM " + Quoted(Table_Of(kind).parties) + " WHERE Name = ?", {name});
  return address.is_null() ? std::nullopt : std::optional(address.text());
}

PaperLine Paper_Line(Session& session, PaperKind kind, const std::string& ItemName) {
  const ItemFacts item = Item_Facts(session, ltrim(ItemName));
  if (!item.known) return {.Item = ItemName};
  const bool buys = kind == PaperKind::PO;
  PaperLine line{.Item = item.ItemName,
                 .Description = buys && !item.InvPurchaseDesc.empty() ? item.InvPurchaseDesc : item.Description,
                 .Qty = 1,
                 .Rate = buys ? item.Cost : item.PriceRate};
  line.Amount = line.Rate;
  return line;
}

void Reckon(PaperLine& line) {
  if (line.Rate && line.Qty) line.Amount = line.Rate->times(*line.Qty);
}

std::vector<PaperItem> Paper_Items(Session& session, PaperKind kind) {
  std::vector<PaperItem> items;
  bool taken = true;  // the row at the top and all below it
  for (const ItemRow& row : Make_Item_List(*session.dbCompany)) {
    if (row.level == 0) taken = kind != PaperKind::Slip || row.ItemType == "Inventory Part";
    const std::string& description = kind == PaperKind::PO ? row.InvPurchaseDesc : row.Description;
    if (taken)
      items.push_back({row.ItemName, description,
                       kind == PaperKind::PO ? row.Cost : row.PriceRate.PriceRate.value_or(Money()), row.level});
  }
  return items;
}

}  // namespace tallymere
