#include "payroll/taxtables/replies.h"

#include <algorithm>
#include <fstream>
#include <optional>

#include "core/company/schema.h"
#include "core/store/sql.h"
#include "core/values/text.h"
#include "payroll/calc/rates.h"
#include "payroll/periods.h"
#include "payroll/taxtables/update.h"

namespace tallymere {
namespace {

using store::Value;
using Names = std::vector<std::string>;

const Money above_all_wages = Money::dollars(9'999'999);

/// A reply on its way to being a table.
class Reader {
 public:
  Reader(store::Database& accounts, std::string_view table, std::string_view reply)
      : accounts_(accounts), table_(*find_table(table)), reply_(reply), read_{std::string(table_.name), {}} {}

  TaxTableRows read() {
    if (reply_.empty()) fail("is empty");
    if (reply_.back() != '\n') fail("is cut short: the last row has no end");
    Names lines = split(reply_, "\n");
    lines.pop_back();
    for (const std::string& line : lines) add_row(line);
    check_keys();
    if (column("AmountOver")) check_brackets();
    return std::move(read_);
  }

 private:
  void add_row(const std::string& line) {
    const Names cells = split(line, "\t");
    if (cells.size() != table_.fields.size())
      fail("has " + std::to_string(cells.size()) + " fields in place of " + std::to_string(table_.fields.size()));
    read_.rows.emplace_back();
    for (size_t at = 0; at < cells.size(); ++at)
      read_.rows.back().push_back(value_of(table_.fields[at], trim(cells[at])));
  }

  Value value_of(const FieldDef& field, const std::string& cell) const {
    if (cell.empty()) fail("has nothing in " + std::string(field.name));
    if (field.type == FieldType::Text) return cell;
    if (cell.find_first_not_of("0123456789.-") != cell.npos || !Money::parse(cell.substr(0, cell.find('.'))))
      fail("has \"" + cell + "\" in " + std::string(field.name));
    if (field.type == FieldType::Money) {
      const auto amount = Money::parse(cell);
      if (!amount) fail("has \"" + cell + "\" in " + std::string(field.name));
      return *amount;
    }
    const Exact number = First_Number(cell);
    if (field.type == FieldType::Long) {
      if (contains(cell, ".") || number < 0) fail("has \"" + cell + "\" in " + std::string(field.name));
      return static_cast<int64_t>(std::stoll(cell));
    }
    // An update sends the federal unemployment rates in percent.
    const Exact rate = table_.name == "FedUnRates" ? number / 100 : number;
    if (rate < 0 || rate > 1) fail("has a rate of " + cell);
    return std::stod(rate.text());
  }

  std::optional<size_t> column(std::string_view name) const {
    const auto found = std::ranges::find(table_.fields, name, &FieldDef::name);
    if (found == table_.fields.end()) return std::nullopt;
    return static_cast<size_t>(found - table_.fields.begin());
  }
  Money money(size_t row, std::string_view name) const { return read_.rows[row][*column(name)].money(); }
  std::string key(size_t row) const { return read_.rows[row].front().text(); }

  /// What must be among the values of the first field.
  Names wanted_keys() const {
    const std::string_view first = table_.fields.front().name;
    Names wanted;
    if (first == "PayPeriod") wanted.assign(pay_period_names.begin(), pay_period_names.end());
    if (first == "FedStatus" || first == "Status" || table_.name == "INWithHoldB")
      wanted = {"Single", "Married", "Don't WithHold"};
    if (table_.name == "MOWithhold") wanted.emplace_back("Head");
    if (table_.name == "INWithHoldA") wanted.emplace_back("0");
    if (!table_.indexes.empty())
      accounts_.each("SELECT DISTINCT " + store::Quoted(first) + " FROM " + store::Quoted(table_.name), {},
                     [&wanted](const store::Row& row) { wanted.emplace_back(row.text(0)); });
    return wanted;
  }
  void check_keys() const {
    const size_t least = table_.name == "FedUnRates" ? 2 : 1;
    if (read_.rows.size() < least) fail("has too few rows");
    for (const std::string& wanted : wanted_keys())
      if (std::ranges::none_of(read_.rows, [&](const auto& row) { return same_text(row.front().text(), wanted); }))
        fail("has no row for " + wanted);
  }
  /// Every status in one piece, rising, to a top that no wage reaches.
  void check_brackets() const {
    Names done;
    for (size_t row = 0; row < read_.rows.size(); ++row) {
      const bool last = row + 1 == read_.rows.size() || key(row + 1) != key(row);
      if (row > 0 && key(row - 1) == key(row) && money(row, "AmountOver") <= money(row - 1, "AmountOver"))
        fail("does not rise in row " + std::to_string(row + 1));
      if (last && std::ranges::find(done, key(row)) != done.end()) fail("has " + key(row) + " in two places");
      if (last) done.push_back(key(row));
      check_top(row, last);
    }
  }
  void check_top(size_t row, bool last) const {
    const std::string_view top = column("AmountUnder") ? "AmountUnder" : "AmountOver";
    if (last && money(row, top) < above_all_wages) fail("has no row for high wages of " + key(row));
    if (!last && top == "AmountUnder" && money(row, top) != money(row + 1, "AmountOver"))
      fail("has a gap after row " + std::to_string(row + 1));
  }

  [[noreturn]] void fail(const std::string& what) const {
    const std::string row = read_.rows.empty() ? "" : ", row " + std::to_string(read_.rows.size());
    throw Tax_Reply_Error(std::string(table_.name) + row + ": the table " + what + ".");
  }

  store::Database& accounts_;
  const TableDef& table_;
  std::string_view reply_;
  TaxTableRows read_;
};

void Replace_Rows(store::Database& accounts, const TaxTableRows& table) {
  const store::TableDef& definition = *accounts.find_table(table.table);
  std::string names, marks;
  for (const store::Field& field : definition.fields) {
    names += (names.empty() ? "" : ", ") + store::Quoted(field.name);
    marks += marks.empty() ? "?" : ", ?";
  }
  accounts.Execute("DELETE FROM " + store::Quoted(table.table));
  for (const auto& row : table.rows)
    accounts.Execute("INSERT INTO " + store::Quoted(table.table) + " (" + names + ") VALUES (" + marks + ")", row);
}

}  // namespace

TaxTableRows Read_Reply(store::Database& accounts, std::string_view table, std::string_view reply) {
  return Reader(accounts, table, reply).read();
}

void Load_Tax_Tables(store::Database& accounts, const std::vector<TaxTableRows>& tables, Date today) {
  store::Transaction tx(accounts, "Tax tables");
  for (const TaxTableRows& table : tables) Replace_Rows(accounts, table);
  Note_Tax_Check(accounts, today);
  tx.commit();
}

std::vector<std::string> Load_Tax_Folder(store::Database& accounts, const std::filesystem::path& folder, Date today) {
  std::vector<TaxTableRows> tables;
  std::vector<std::string> names;
  for (const TaxTablePath& path : tax_table_paths) {
    const auto file = folder / (std::string(path.table) + ".tsv");
    if (!std::filesystem::exists(file) || std::ranges::find(names, path.table) != names.end()) continue;
    std::ifstream in(file, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(in), {}};
    tables.push_back(Read_Reply(accounts, path.table, text));
    names.emplace_back(path.table);
  }
  if (!tables.empty()) Load_Tax_Tables(accounts, tables, today);
  return names;
}

}  // namespace tallymere
