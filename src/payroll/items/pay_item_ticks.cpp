#include "payroll/items/pay_item_ticks.h"

#include <algorithm>
#include <array>

#include "core/store/sql.h"
#include "core/values/text.h"
#include "payroll/time_sheet.h"

namespace tallymere {
namespace {

using enum ItemType;
using store::Database;

// --- reading -------------------------------------------------------------------------------------

std::vector<TickRow> Read_Set(Database& db, const TickGrid& grid) {
  std::vector<TickRow> rows;
  db.each("SELECT " + std::string(grid.set_name) + ", \"Default\" FROM " + std::string(grid.set) + " ORDER BY RowKey",
          {}, [&](const store::Row& row) {
            rows.push_back({0, std::string(row.text(0)), row.flag(1)});
          });
  return rows;
}

std::vector<TickRow> Read_Table(Database& db, const TickGrid& grid, const std::string& name) {
  std::vector<TickRow> rows;
  db.each("SELECT RowKey, " + std::string(grid.other) + ", Selected FROM " + std::string(grid.table) +
              " WHERE Name = ? ORDER BY RowKey",
          {name}, [&](const store::Row& row) {
            rows.push_back({row.integer(0), std::string(row.text(1)), row.flag(2)});
          });
  return rows;
}

// --- the tracking types --------------------------------------------------------------------------

/// Whether pay or a deduction of this tracking type moves the wage that a tax is reckoned on.
bool Is_Ticked(std::string_view tracking, const PayItem& tax) {
  const auto is = [](std::string_view text, std::initializer_list<std::string_view> all) {
    return std::ranges::any_of(all, [text](std::string_view each) { return same_text(text, each); });
  };
  using namespace fixed_items;
  const bool unemployment = tax.TaxType == "State Unemployment";
  const bool federal_unemployment_tax = is(tax.Name, {federal_unemployment});
  const bool federal_withholding_tax = is(tax.Name, {federal_withholding});
  if (is(tracking, {"SIMPLE IRA", "401(k)", "403(b)", "408(k)(6) SEP", "501(c)(18)(D)", "Elective 457(b)",
                    "SEC 457 Distribution", "SIMPLE Retirement Deduction"}))
    return federal_withholding_tax || tax.TaxType == "State Withholding";
  if (is(tracking, {"Non-Qual. Plan Distribution"})) return !federal_unemployment_tax;
  if (is(tracking, {"Dependant Care"})) return !unemployment;
  if (is(tracking, {"Taxable Group Trm Life"}))
    return !unemployment && !federal_unemployment_tax && !federal_withholding_tax;
  if (is(tracking, {"Adoption Benefits"}))
    return is(tax.Name, {federal_unemployment, social_security_company, social_security_employee, medicare_company,
                         medicare_employee});
  return true;
}

// --- writing -------------------------------------------------------------------------------------

void Add_Tick(Database& db, std::string_view table, std::string_view other, const std::string& name,
              const std::string& of, bool selected) {
  db.Execute("INSERT INTO " + std::string(table) + " (Name, " + std::string(other) + ", Selected) VALUES (?, ?, ?)",
             {name, of, selected});
}

void Add_To_Set(Database& db, std::string_view table, std::string_view field, const std::string& name, bool offered) {
  db.Execute("INSERT INTO " + std::string(table) + " (" + std::string(field) + ", \"Default\") VALUES (?, ?)",
             {name, offered});
}

std::vector<std::string> Items_Where(Database& db, std::string_view condition) {
  std::vector<std::string> names;
  db.each("SELECT Name FROM PayrollItems WHERE " + std::string(condition) + " ORDER BY RowKey", {},
          [&](const store::Row& row) { names.emplace_back(row.text(0)); });
  return names;
}

std::vector<std::string> Taxes(Database& db) { return Items_Where(db, "Type LIKE '*Tax*'"); }

/// New pay is compensation for every tax at once.
void Add_Pay(Database& db, const std::string& name) {
  Add_To_Set(db, "PreWageSet", "Wage", name, true);
  for (const std::string& tax : Taxes(db)) Add_Tick(db, "PreWageTable", "WageName", tax, name, true);
}

void Add_Deduction(Database& db, const PayItemForm& form, const std::string& name) {
  Add_To_Set(db, "PreDeducSet", "PreDeduc", name, false);
  for (const std::string& tax : Taxes(db)) {
    const auto tick = std::ranges::find(form.ticks.front(), tax, &TickRow::name);
    Add_Tick(db, "PreDeducTable", "DeducName", tax, name, tick != form.ticks.front().end() && tick->selected);
  }
}

void Add_Tax(Database& db, const std::string& name) {
  Add_To_Set(db, "PreTaxSet", "PreTax", name, false);
  for (const std::string& item :
       Items_Where(db, "Type = 'Addition' OR Type = 'Deduction' OR Type = 'Company Contribution'"))
    Add_Tick(db, "PreTaxTable", "TaxName", item, name, false);
}

/// Where the ticks name payroll items.
constexpr std::pair<std::string_view, std::string_view> tick_names[] = {
    {"PreTaxTable", "Name"},      {"PreTaxTable", "TaxName"}, {"PreWageTable", "Name"},
    {"PreWageTable", "WageName"}, {"PreDeducTable", "Name"},  {"PreDeducTable", "DeducName"},
    {"PreTaxSet", "PreTax"},      {"PreWageSet", "Wage"},     {"PreDeducSet", "PreDeduc"}};

}  // namespace

std::vector<TickGrid> Tick_Grids_Of(ItemType type) {
  std::vector<TickGrid> grids;
  std::ranges::copy_if(Tick_Grids(), std::back_inserter(grids),
                       [type](const TickGrid& grid) { return grid.type == type; });
  return grids;
}

void Offer_Ticks(Database& db, PayItemForm& form) {
  for (const TickGrid& grid : Tick_Grids_Of(form.type())) form.ticks.push_back(Read_Set(db, grid));
}

void Read_Ticks(Database& db, PayItemForm& form) {
  for (const TickGrid& grid : Tick_Grids_Of(form.type())) {
    form.probes.push_back(Probe::Of(db, grid.table, "Name", form.Name));
    auto rows = Read_Table(db, grid, form.Name);
    if (rows.empty() && grid.table != "PreTaxTable") rows = Read_Set(db, grid);
    form.ticks.push_back(std::move(rows));
  }
  form.ticks_as_read = form.ticks;
}

void Tick_By_Tracking_Type(Session& session, PayItemForm& form) {
  const auto items = PayItems::Of(*session.dbCompany);
  for (TickRow& row : form.ticks.front())
    if (const PayItem* tax = items->find(row.name)) row.selected = Is_Ticked(form.at("TrackingType"), *tax);
}

void Save_Ticks(Database& db, const PayItemForm& form) {
  for (const Probe& probe : form.probes) probe.check(db);
  const auto grids = Tick_Grids_Of(form.type());
  for (size_t at = 0; at < grids.size(); ++at) {
    if (form.ticks[at] == form.ticks_as_read[at]) continue;
    for (const TickRow& row : form.ticks[at]) {
      if (row.key == 0)
        Add_Tick(db, grids[at].table, grids[at].other, form.Name, row.name, row.selected);
      else
        db.Execute("UPDATE " + std::string(grids[at].table) + " SET Selected = ? WHERE RowKey = ?",
                   {row.selected, row.key});
    }
  }
}

void Write_New_Ticks(Database& db, const PayItemForm& form, const std::string& name) {
  Delete_Ticks(db, name);  // of one that had this name before
  const auto grids = Tick_Grids_Of(form.type());
  for (size_t at = 0; at < grids.size(); ++at)
    for (const TickRow& row : form.ticks[at])
      Add_Tick(db, grids[at].table, grids[at].other, name, row.name, row.selected);
  const ItemType type = form.type();
  if (type == Wage || type == Addition) Add_Pay(db, name);
  if (type == Deduction) Add_Deduction(db, form, name);
  if (type == StateTax || type == OtherTax) Add_Tax(db, name);
}

void Delete_Ticks(Database& db, const std::string& name) {
  for (const auto& [table, field] : tick_names)
    db.Execute("DELETE FROM " + std::string(table) + " WHERE " + std::string(field) + " = ?", {name});
}

std::vector<NameUse> Pay_Item_Uses(Database& db, const std::string& name) {
  const auto count = [&](const std::string& sql) { return db.value(sql, {name}).integer(); };
  std::vector<NameUse> uses = {
      {"transaction", count("SELECT COUNT(DISTINCT TransNum) FROM Transactions WHERE PayrollItem = ?")},
      {"employee", 0},
      {"time sheet line", 0}};
  uses[1].count = count(
      "SELECT COUNT(DISTINCT SSNum) FROM (SELECT SSNum, Wage AS Item FROM EmployeeEarnings UNION ALL"
      " SELECT SSNum, Adjustment FROM EmployeeAdjustments UNION ALL SELECT SSNum, Tax FROM EmployeeTaxes) WHERE Item = ? AND SSNum <> '000'");
  for (const std::string& table : Time_Tables(db))
    uses[2].count += count("SELECT COUNT(*) FROM " + store::Quoted(table) + " WHERE PayrollItem = ?");
  std::erase_if(uses, [](const NameUse& use) { return use.count == 0; });
  return uses;
}

}  // namespace tallymere
