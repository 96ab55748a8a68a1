#include "import/list_records.h"

#include "core/store/sql.h"
#include "core/values/text.h"

namespace tallymere {

PathName::PathName(const std::string& path) {
  const auto parts = split(path, ":");
  last = trim(parts.back());
  if (parts.size() > 1) parent = trim(parts[parts.size() - 2]);
}

std::string With_Lines(const std::string& text) { return replace_all(text, "\\n", "\r\n"); }

std::string Address_Of(const std::vector<std::string>& lines, const std::string& name) {
  std::vector<std::string> kept;
  for (size_t at = 0; at < lines.size(); ++at)
    if (!lines[at].empty() && !(at == 0 && same_text(lines[at], name))) kept.push_back(lines[at]);
  return join(kept, "\r\n");
}

RecordDone ImportWork::put(std::string_view table, const std::vector<ListRows::Cell>& key,
                           const std::vector<ListRows::Cell>& cells) {
  const ImportDid did = rows.put(table, key, cells);
  return {did, rows.left_out().empty() ? "" : rows.left_out() + " is left out"};
}

std::optional<std::string> ImportWork::other_parent(std::string_view table, std::string_view field,
                                                    std::string_view parent_field, const PathName& name) {
  if (!name.parent.empty() && !rows.has(table, {field, name.parent})) return "there is no " + name.parent + " above it";
  if (!rows.has(table, {field, name.last})) return std::nullopt;
  const std::string parent = rows.look_up(table, {field, name.last}, parent_field);
  if (same_text(parent, name.parent)) return std::nullopt;
  return "the name is another's, " + (parent.empty() ? "at the top of the list" : "below " + parent);
}

bool ImportWork::is_entered(std::string_view field, const std::string& name) {
  return !db.value("SELECT TransNum FROM Transactions WHERE " + store::Quoted(field) + " = ?", {name}).is_null();
}

RecordDone Put_Customer(ImportWork& work, const IifRecord& record) {
  const auto cell = [&](std::string_view header, int position) {
    return record.at({header, position}, work.release_2003);
  };
  const PathName name(cell("NAME", 1));
  if (name.last.empty()) return {ImportDid::Skipped, "it has no name"};
  if (auto other = work.other_parent("Customers", "Name", "ParentName", name)) return {ImportDid::Skipped, *other};
  std::vector<std::string> billing, shipping;
  for (int line = 0; line < 5; ++line) {
    billing.push_back(cell("BADDR" + std::to_string(line + 1), 4 + line));
    shipping.push_back(cell("SADDR" + std::to_string(line + 1), 9 + line));
  }
  return work.put("Customers", {{"Name", name.last}},
                  {{"ParentName", name.parent},
                   {"BillingAddress", Address_Of(billing)},
                   {"ShippingAddress", Address_Of(shipping)},
                   {"Contact", cell("CONT1", 19)},
                   {"Phone", cell("PHONE1", 14)},
                   {"AltPhone", cell("PHONE2", 15)},
                   {"FaxPhone", cell("FAXNUM", 16)},
                   {"AccountNum", cell("NOTE", 17)},
                   {"RepName", cell("REP", 25)},
                   {"Notes", With_Lines(cell("NOTEPAD", 27))},
                   {"Dormant", cell("HIDDEN", 54)}});
}

RecordDone Put_Vendor(ImportWork& work, const IifRecord& record) {
  const auto cell = [&](std::string_view header, int position) {
    return record.at({header, position}, work.release_2003);
  };
  const std::string name = cell("NAME", 1);
  if (name.empty()) return {ImportDid::Skipped, "it has no name"};
  std::vector<std::string> address;
  const int last_line = record.header ? 9 : 7;
  for (int line = 5; line <= last_line; ++line) address.push_back(cell("ADDR" + std::to_string(line - 4), line));
  return work.put("Vendors", {{"Name", name}},
                  {{"ShippingAddress", Address_Of(address, name)},
                   {"Contact", cell("CONT1", 11)},
                   {"Phone", cell("PHONE1", 13)},
                   {"AltPhone", cell("PHONE2", 14)},
                   {"FaxPhone", cell("FAXNUM", 15)},
                   {"AccountNum", cell("NOTE", 16)},
                   {"CheckPrint", cell("PRINTAS", 4)},
                   {"Notes", With_Lines(cell("NOTEPAD", 20))},
                   {"TaxID", cell("TAXID", 17)},
                   {"Terms", cell("TERMS", 19)},
                   {"Eligible1099", cell("1099", 41)},
                   {"Dormant", cell("HIDDEN", 42)}});
}

RecordDone Put_Small_List(ImportWork& work, const IifRecord& record) {
  const auto cell = [&](std::string_view header, int position) {
    return record.at({header, position}, work.release_2003);
  };
  const std::string name = cell("NAME", 1);
  if (name.empty()) return {ImportDid::Skipped, "it has no name"};
  if (record.key == "CLASS") return work.put("Class", {{"Class", name}}, {});
  if (record.key == "SHIPMETH") return work.put("VIA", {{"Method", name}}, {});
  if (record.key == "PAYMETH") return work.put("PaymentMethod", {{"Method", name}}, {});
  if (record.key == "TERMS") return work.put("Terms", {{"Term", name}}, {{"Days", cell("STDDUEDAYS", 5)}});
  if (record.key == "OTHERNAME") return work.put("OtherNames", {{"Name", name}}, {});
  if (record.key == "SALESREP") return work.put("RepNames", {{"Name", name}}, {});
  return work.put("CustomerMessages", {{"Message", With_Lines(name)}}, {});
}

/// Twelve months from the first of a year; other periods have no place in a budget of months.
RecordDone Put_Budget(ImportWork& work, const IifRecord& record) {
  const auto named = [&](std::string_view header) { return record.at({header, 0}, work.release_2003); };
  if (!record.header) return {ImportDid::Skipped, "a budget needs its \"!BUD\" line"};
  const auto from = Date::parse(named("STARTDATE"));
  if (!same_text(named("PERIOD"), "MONTH") || !from || from->month() != 1)
    return {ImportDid::Skipped, "only budgets of twelve months from January are kept here"};
  if (!named("CLASS").empty() || !named("CUSTOMER").empty())
    return {ImportDid::Skipped, "budgets by class or customer are not kept here"};
  const auto first = record.header->find("AMOUNT");
  if (first == record.header->end()) return {ImportDid::Skipped, "it has no amounts"};
  const std::string CatID = work.categories.Map_Category(named("ACCNT"));
  bool added = false, changed = false;
  for (int month = 1; month <= 12; ++month) {
    const size_t at = first->second + static_cast<size_t>(month) - 1;
    const auto amount = at < record.fields.size() ? Money::parse(record.fields[at]) : std::nullopt;
    if (!amount) continue;
    const std::vector<store::Value> key = {CatID, from->year(), month};
    const std::string where = " WHERE Category = ? AND Year = ? AND Month = ?";
    const store::Value stands = work.db.value("SELECT Amount FROM Budget" + where, key);
    if (stands.is_null()) {
      work.db.Execute("INSERT INTO Budget (Category, Year, Month, Amount) VALUES (?, ?, ?, ?)",
                      {CatID, from->year(), month, *amount});
      added = true;
    } else if (stands.money() != *amount) {
      work.db.Execute("UPDATE Budget SET Amount = ?" + where, {*amount, CatID, from->year(), month});
      changed = true;
    }
  }
  return {added ? ImportDid::Added : changed ? ImportDid::Changed : ImportDid::Same};
}

}  // namespace tallymere
