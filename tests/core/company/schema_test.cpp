#include "core/company/schema.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "core/company/schema_doc.h"
#include "core/values/tsv.h"
#include "support/places.h"

namespace tallymere {
namespace {

std::string lowered(std::string_view text) {
  std::string result(text);
  for (char& c : result) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return result;
}

std::vector<TableDef> all_tables() {
  std::vector<TableDef> tables(company_tables().begin(), company_tables().end());
  tables.insert(tables.end(), accounts_tables().begin(), accounts_tables().end());
  return tables;
}

bool has_field(std::string_view table, std::string_view field) {
  const TableDef* def = find_table(table);
  return def != nullptr && def->find_field(field) != nullptr;
}

TEST(Schema, NamesAreUnique) {
  std::set<std::string> tables;
  for (const TableDef& table : all_tables()) {
    EXPECT_TRUE(tables.insert(lowered(table.name)).second) << table.name;
    std::set<std::string> fields;
    for (const FieldDef& field : table.fields) {
      EXPECT_TRUE(fields.insert(lowered(field.name)).second) << table.name << '.' << field.name;
    }
    std::set<std::string> indexes;
    for (const IndexDef& index : table.indexes) {
      EXPECT_TRUE(indexes.insert(lowered(index.name)).second) << table.name << ", index " << index.name;
    }
  }
}

TEST(Schema, IndexesStandOnFields) {
  for (const TableDef& table : all_tables()) {
    for (const IndexDef& index : table.indexes) {
      EXPECT_TRUE(has_field(table.name, index.field)) << table.name << ", index " << index.name;
    }
  }
  for (const ReadingIndex& index : reading_indexes()) {
    std::istringstream columns{std::string(index.columns)};
    for (std::string column; std::getline(columns >> std::ws, column, ',');) {
      EXPECT_TRUE(column == "RowKey" || has_field(index.table, column)) << index.name << ": " << column;
    }
    const std::string_view first = index.where.substr(0, index.where.find(' '));
    EXPECT_TRUE(first.empty() || has_field(index.table, first)) << index.name << ": " << index.where;
  }
}

TEST(Schema, ReferencesJoinFieldsOfOneType) {
  for (const Reference& link : references()) {
    const std::string text = std::string(link.from_table) + '.' + std::string(link.from_field);
    ASSERT_TRUE(has_field(link.from_table, link.from_field)) << text;
    ASSERT_TRUE(has_field(link.to_table, link.to_field)) << text;
    EXPECT_EQ(find_table(link.from_table)->find_field(link.from_field)->type,
              find_table(link.to_table)->find_field(link.to_field)->type)
        << text;
    const std::string_view first = link.condition.substr(0, link.condition.find(' '));
    EXPECT_TRUE(first.empty() || has_field(link.from_table, first)) << text << ": " << link.condition;
  }
}

TEST(Schema, TablesAreFoundInAnyCaseAndByWeek) {
  ASSERT_NE(find_table("PrededucSet"), nullptr);
  EXPECT_EQ(find_table("PrededucSet")->name, "PreDeducSet");
  ASSERT_NE(find_table("MNWithHold"), nullptr);
  ASSERT_NE(find_table("Time20260104"), nullptr);
  EXPECT_EQ(find_table("Time20260104")->name, "Time");
  for (const char* name : {"", "Times", "Time2026010", "Time2026010x", "Class20260104", "Nothing"}) {
    EXPECT_EQ(find_table(name), nullptr) << name;
  }
}

TEST(Schema, DocumentIsUpToDate) {
  std::ifstream in(testing::docs_folder / "schema.md", std::ios::binary);
  const std::string shipped{std::istreambuf_iterator<char>(in), {}};
  EXPECT_TRUE(shipped == Schema_Document()) << "docs/schema.md is not what Schema_Document() gives";
}

// --- the shipped rows ---

using Row = std::map<std::string, std::string>;

std::vector<Row> rows_of(const std::filesystem::path& file) {
  const Tsv table = Read_Tsv(file);
  std::vector<Row> rows;
  for (const auto& cells : table.rows) {
    Row row;
    for (std::size_t i = 0; i < cells.size(); ++i) row[table.fields[i]] = cells[i];
    rows.push_back(row);
  }
  return rows;
}

std::vector<Row> model(const std::string& table) { return rows_of(testing::data_folder / "model" / (table + ".tsv")); }

std::vector<Row> shared(const std::string& table) {
  return rows_of(testing::data_folder / "accounts" / (table + ".tsv"));
}

std::vector<std::string> column(const std::vector<Row>& rows, const std::string& field) {
  std::vector<std::string> cells;
  for (const Row& row : rows) cells.push_back(row.at(field));
  return cells;
}

std::set<std::string> values(const std::vector<Row>& rows, const std::string& field) {
  const auto cells = column(rows, field);
  return {cells.begin(), cells.end()};
}

const std::regex& form_of(FieldType type) {
  static const std::regex any("[^]*"), whole("-?\\d{1,9}"), money("-?\\d{1,9}\\.\\d\\d"), number("-?\\d+(\\.\\d+)?"),
      date("(1[0-2]|[1-9])/(3[01]|[12]\\d|[1-9])/\\d{4}"), flag("Yes|No");
  switch (type) {
    case FieldType::Text:
    case FieldType::Memo:
      return any;
    case FieldType::Long:
    case FieldType::Integer:
      return whole;
    case FieldType::Money:
      return money;
    case FieldType::Double:
      return number;
    case FieldType::Date:
      return date;
    case FieldType::Flag:
      return flag;
  }
  return any;
}

void expect_rows_fit(const TableDef& table, const std::filesystem::path& file) {
  const Tsv tsv = Read_Tsv(file);
  std::vector<std::string> names;
  for (const FieldDef& field : table.fields) names.emplace_back(field.name);
  ASSERT_EQ(tsv.fields, names) << file;
  for (std::size_t row = 0; row < tsv.rows.size(); ++row) {
    for (std::size_t i = 0; i < names.size(); ++i) {
      const std::string& cell = tsv.rows[row][i];
      EXPECT_TRUE(cell.empty() || std::regex_match(cell, form_of(table.fields[i].type)))
          << file << ", line " << row + 2 << ", " << names[i] << ": " << cell;
    }
  }
}

TEST(ShippedRows, EveryCellFitsItsField) {
  for (const auto& [folder, tables] :
       {std::pair{"model", company_tables()}, std::pair{"accounts", accounts_tables()}}) {
    for (const auto& entry : std::filesystem::directory_iterator(testing::data_folder / folder)) {
      const std::string name = entry.path().stem().string();
      const auto table = std::ranges::find(tables, name, &TableDef::name);
      ASSERT_NE(table, tables.end()) << folder << '/' << name;
      expect_rows_fit(*table, entry.path());
    }
  }
}

TEST(ShippedRows, EverySharedTableHasRows) {
  for (const TableDef& table : accounts_tables()) {
    EXPECT_FALSE(shared(std::string(table.name)).empty()) << table.name;
  }
}

TEST(ShippedRows, LinksOfTheModelResolve) {
  for (const Reference& link : references()) {
    const std::filesystem::path folder = testing::data_folder / "model";
    const std::string from(link.from_table), to(link.to_table), to_field(link.to_field);
    if (!link.condition.empty() || !exists(folder / (from + ".tsv"))) continue;
    const auto targets = values(model(to), to_field);
    for (const std::string& cell : column(model(from), std::string(link.from_field))) {
      EXPECT_TRUE(cell.empty() || targets.contains(cell)) << from << '.' << link.from_field << ": " << cell;
    }
  }
}

TEST(ShippedRows, FixedCategoriesStand) {
  std::map<std::string, std::pair<std::string, std::string>> found;
  for (const Row& row : model("Accounts")) {
    if (!row.at("CatID").ends_with("SS")) found[row.at("CatID")] = {row.at("AccountName"), row.at("AccountType")};
  }
  const decltype(found) expected = {{"AR1", {"Accounts Receivable", "Accounts Receivable"}},
                                    {"AP1", {"Accounts Payable", "Accounts Payable"}},
                                    {"UF1", {"Undeposited Funds", "Current Asset"}},
                                    {"RE1", {"Retained Earnings", "Equity"}},
                                    {"OE1", {"Opening Balance Equity", "Equity"}}};
  EXPECT_EQ(found, expected);
}

TEST(ShippedRows, ChartIsATreeOfNamedCategories) {
  const auto rows = model("Accounts");
  const auto types = values(shared("AccountTypes"), "Type");
  std::map<std::string, Row> by_id;
  for (const Row& row : rows) EXPECT_TRUE(by_id.emplace(row.at("CatID"), row).second) << row.at("CatID");
  EXPECT_EQ(values(rows, "AccountName").size(), rows.size()) << "imports find categories by name";
  for (const auto& [id, row] : by_id) {
    EXPECT_TRUE(types.contains(row.at("AccountType"))) << id;
    if (const auto parent = by_id.find(row.at("ParentAccount")); parent != by_id.end()) {
      EXPECT_EQ(parent->second.at("AccountType"), row.at("AccountType")) << id;
      EXPECT_NE(parent->first, id);
    }
  }
  for (std::size_t n = 0; n + 5 < rows.size(); ++n) {
    EXPECT_TRUE(by_id.contains(std::to_string(n) + "SS")) << "a gap at " << n;
  }
}

TEST(ShippedRows, EveryPreferenceAndColourStands) {
  std::map<std::string, std::string> prefs, type_of;
  for (const Row& row : model("GeneralPrefs")) prefs[row.at("Preference")] = row.at("State");
  for (const Row& row : model("Accounts")) type_of[row.at("CatID")] = row.at("AccountType");
  EXPECT_EQ(type_of[prefs["DefaultBank"]], "Bank");
  EXPECT_EQ(type_of[prefs["FinanceCat"]], "Income");
  const std::map<std::string, std::set<std::string>> allowed = {
      {"ToolBarVisible", {"Yes", "No"}},
      {"InvoiceStyle", {"Professional", "Product", "Service"}},
      {"FirstDay", {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"}},
      {"PrintInvoice", {"BlankBox", "PrePrinted", "BlankNoBox", "Letterhead"}},
      {"Feed", {"Single Sheet", "Continuous Sheets"}},
      {"Style", {"Original", "Custom"}},
      {"SalesBase", {"Cash", "Accural"}}};
  for (const auto& [key, states] : allowed) EXPECT_TRUE(states.contains(prefs[key])) << key << ": " << prefs[key];
  for (const char* key : {"FinanceAPR", "LogoPath", "ItemSort"}) EXPECT_TRUE(prefs.contains(key)) << key;
  EXPECT_EQ(values(model("Colors"), "Items"), (std::set<std::string>{"MainBack", "RegBack", "CheckBack", "BillBack"}));
  for (const std::string& colour : column(model("Colors"), "Color")) EXPECT_LE(std::stol(colour), 0xFFFFFF);
}

TEST(ShippedRows, FederalItemsCanBeCalculatedAndPosted) {
  // Rates of 2026: the calculation cuts the last character off a DefaultRate and takes UnempTaxRate as a
  // fraction.
  const std::map<std::string, std::array<std::string, 4>> expected = {
      {"Federal Withholding", {"Employee Paid Tax", "", "", ""}},
      {"Social Security Company", {"Employer Paid Tax", "6.2%", "184500.00", ""}},
      {"Social Security Employee", {"Employee Paid Tax", "6.2%", "184500.00", ""}},
      {"Medicare Company", {"Employer Paid Tax", "1.45%", "", ""}},
      {"Medicare Employee", {"Employee Paid Tax", "1.45%", "", ""}},
      {"Federal Unemployment", {"Employer Paid Tax", "", "7000.00", "0.006"}}};
  std::map<std::string, std::string> type_of;
  for (const Row& row : model("Accounts")) type_of[row.at("CatID")] = row.at("AccountType");
  const auto rows = model("PayrollItems");
  ASSERT_EQ(rows.size(), expected.size());
  for (const Row& row : rows) {
    const std::string& name = row.at("Name");
    ASSERT_TRUE(expected.contains(name)) << name;
    EXPECT_EQ((std::array{row.at("TaxPaid"), row.at("DefaultRate"), row.at("DefaultLimit"), row.at("UnempTaxRate")}),
              expected.at(name))
        << name;
    EXPECT_EQ(row.at("Type"), "Federal Tax") << name;
    EXPECT_EQ(type_of[row.at("LiabilityAcct")], "Current Liability") << name;
    // only what the employer pays is an expense; a withheld tax is part of the wage already
    EXPECT_EQ(type_of[row.at("ExpenseAcct")], row.at("TaxPaid") == "Employer Paid Tax" ? "Expense" : "") << name;
  }
  EXPECT_EQ(values(rows, "Name"), values(model("PreTaxSet"), "PreTax"));
}

// --- the tax tables: walked row by row, so order, edges and bases must join ---

std::map<std::string, std::vector<Row>> by_status(const std::string& table, const std::string& status) {
  std::map<std::string, std::vector<Row>> groups;
  std::string last;
  for (const Row& row : shared(table)) {
    const std::string& now = row.at(status);
    EXPECT_TRUE(now == last || !groups.contains(now)) << table << ": " << now << " stands in two places";
    groups[last = now].push_back(row);
  }
  return groups;
}

double number(const Row& row, const std::string& field) { return std::stod(row.at(field)); }

// Each bracket ends where the next begins, with the tax that the one below has reached by then.
void expect_joined(const std::string& table, const std::vector<Row>& rows, double slack) {
  for (std::size_t i = 1; i < rows.size(); ++i) {
    const Row &low = rows[i - 1], &high = rows[i];
    const double width = number(high, "AmountOver") - number(low, "AmountOver");
    EXPECT_GT(width, 0) << table << ", " << high.at("AmountOver");
    if (low.contains("AmountUnder")) {
      EXPECT_EQ(low.at("AmountUnder"), high.at("AmountOver")) << table;
    }
    const bool guard = number(high, "AmountOver") == 999999999;
    if (!high.contains("BaseAmount") || guard) continue;
    const double reached = number(low, "BaseAmount") + width * number(low, "Percentage");
    EXPECT_NEAR(number(high, "BaseAmount"), reached, slack) << table << ", " << high.at("AmountOver");
  }
}

TEST(TaxTables, BracketsAscendAndJoin) {
  for (const char* table : {"FedDaily", "FedWeekly", "FedBiWeekly", "FedSemiMonthly", "FedMonthly", "FedQuarterly",
                            "FedSemiAnnual", "FedAnnual"}) {
    for (const auto& [status, rows] : by_status(table, "FedStatus")) expect_joined(table, rows, 0.0101);
  }
  for (const char* table : {"MNWithhold", "WIWithhold", "MOWithhold"}) {
    // Wisconsin's bases are the state's own, rounded to the cent from a formula
    for (const auto& [status, rows] : by_status(table, "Status")) expect_joined(table, rows, 0.0201);
  }
}

TEST(TaxTables, NoStatusOrWageWalksOffATable) {
  const std::set<std::string> three = {"Single", "Married", "Don't WithHold"};
  std::set<std::string> four = three;
  four.insert("Head");
  const std::map<std::string, std::set<std::string>> states = {
      {"MNWithhold", three}, {"WIWithhold", three}, {"MOWithhold", four}};
  for (const auto& [table, statuses] : states) {
    EXPECT_EQ(values(shared(table), "Status"), statuses) << table;
    for (const auto& [status, rows] : by_status(table, "Status")) {
      const bool has_top = rows.back().contains("AmountUnder");
      EXPECT_EQ(number(rows.back(), has_top ? "AmountUnder" : "AmountOver"), 999999999) << table << ", " << status;
    }
  }
  EXPECT_EQ(values(shared("FedAnnual"), "FedStatus"), three);
  EXPECT_EQ(values(shared("INWithHoldB"), "Allowance"), three);
}

TEST(TaxTables, EveryVendorBoxHasAThreshold) {
  const auto boxes = values(shared("Threshold"), "Box");
  for (const char* box :
       {"Rents", "Royalties", "Other Income", "Federal Income Tax withheld", "Fishing Boat proceeds",
        "Medical health care Payments", "Nonemployee compensation",
        "Substitute payments in lieu of dividens or interest", "Crop insurance proceeds",
        "Excess golden parachute payments", "Gross proceeds paid to an attorney", "Intrest Income",
        "Early withdrawl penalty", "Intrest on U.S. Savings Bonds", "Investments expenses", "Foreign tax paid"}) {
    EXPECT_TRUE(boxes.contains(box)) << box;
  }
}

TEST(TaxTables, EveryPayPeriodHasAColumnAndAnAllowance) {
  for (const std::string& period : column(shared("FedWithholdAllowance"), "PayPeriod")) {
    EXPECT_TRUE(has_field("INWithHoldA", period) && has_field("INWithHoldB", period)) << period;
  }
  EXPECT_EQ(shared("FedWithholdAllowance").size(), 8u);
  for (const std::string& rate : column(shared("FedUnRates"), "Rate")) EXPECT_LT(std::stod(rate), 0.1) << rate;
}

}  // namespace
}  // namespace tallymere
