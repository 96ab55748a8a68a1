#include "payroll/pay_cases.h"

#include <algorithm>

#include "core/values/control_characters.h"
#include "core/values/text.h"
#include "core/values/tsv.h"
#include "payroll/calc/state_holding.h"
#include "payroll/defaults.h"
#include "payroll/states.h"

namespace tallymere {
namespace {

/// The cells of one row by the names of their fields.
class Cells {
 public:
  Cells(const Tsv& table, size_t row) : table_(table), row_(table.rows[row]) {}
  std::string operator[](std::string_view field) const {
    const auto found = std::ranges::find(table_.fields, field);
    return found == table_.fields.end() ? "" : row_[static_cast<size_t>(found - table_.fields.begin())];
  }
  std::string or_else(std::string_view field, std::string_view otherwise) const {
    const std::string cell = (*this)[field];
    return cell.empty() ? std::string(otherwise) : cell;
  }
  int64_t whole(std::string_view field) const { return First_Number((*this)[field]).money().units() / 10000; }
  Money money(std::string_view field) const { return First_Number((*this)[field]).money(); }
  bool flag(std::string_view field) const { return same_text((*this)[field], "Yes"); }

 private:
  const Tsv& table_;
  const std::vector<std::string>& row_;
};

struct Entry {
  std::string name, rate, count;
};
/// "Hourly=18.50x80;Bonus=100"
std::vector<Entry> Entries_Of(const std::string& cell) {
  std::vector<Entry> entries;
  for (const std::string& part : split(cell, ";")) {
    const size_t equals = part.rfind('=');
    if (equals == part.npos) continue;
    const std::string value = part.substr(equals + 1);
    const size_t times = value.find('x');
    entries.push_back({trim(part.substr(0, equals)), trim(value.substr(0, times)),
                       times == value.npos ? "" : trim(value.substr(times + 1))});
  }
  return entries;
}

PayFacts Facts_Of(const Cells& cells, const PayCaseBooks& books) {
  PayFacts facts{.employee = {},
                 .items = books.items,
                 .tables = books.tables,
                 .rule = books.rule,
                 .earned_this_year = {},
                 .paid_this_year = {}};
  PayEmployee& employee = facts.employee;
  employee.PayPeriod = cells.or_else("PayPeriod", "BiWeekly");
  employee.FedStatus = cells.or_else("FedStatus", "Single");
  employee.FedAllow = cells.whole("FedAllow");
  employee.FedWithHolding = cells.money("FedWithHolding");
  employee.StateWorked = cells["StateWorked"];
  employee.StateStatus = cells.or_else("StateStatus", employee.FedStatus);
  employee.StateAllow = cells.whole("StateAllow");
  employee.StateWithHolding = cells.money("StateWithHolding");
  employee.SUIHold = cells.flag("SUIHold");
  for (const Entry& tax : Entries_Of(cells["OtherTaxes"])) employee.taxes.push_back({tax.name, tax.rate, ""});
  return facts;
}

class Output {
 public:
  void row(const std::vector<std::string>& cells) {
    std::vector<std::string> plain;
    for (const std::string& cell : cells) plain.push_back(in_one_plain_line(cell));
    text += join(plain, "\t") + "\n";
  }
  void check(const std::string& name, const Paycheck& check) {
    for (const EarningRow& row_of : check.grdEarnings)
      row({name, "grdEarnings", row_of.Name, row_of.Rate, row_of.Hours, "", "", ""});
    for (const OtherItemRow& row_of : check.grdOtherItems)
      row({name, "grdOtherItems", row_of.Item, row_of.Rate, row_of.Quantity, row_of.Type, "", ""});
    for (const SummaryRow& row_of : check.grdEmployee) summary(name, "grdEmployee", row_of);
    for (const SummaryRow& row_of : check.grdCompany) summary(name, "grdCompany", row_of);
    label(name, "gross", check.gross.to_text());
    label(name, "lblNet", check.lblNet.to_text());
    label(name, "net", check.net.text());
    label(name, "lblTotal", Exact(check.lblTotal).cell());
    for (const Box& box : check.boxes) row({name, "box", box.text, "", "", "", "", ""});
    for (const std::string& note : check.notes) row({name, "note", note, "", "", "", "", ""});
  }
  std::string text;

 private:
  void summary(const std::string& name, const char* grid, const SummaryRow& of) {
    row({name, grid, of.Name, "", "", "", of.Amount, of.YTD});
  }
  void label(const std::string& name, const char* label_name, const std::string& amount) {
    row({name, "label", label_name, "", "", "", amount, ""});
  }
};

void Calculate_Case(Output& output, const Cells& cells, const std::string& name, const PayCaseBooks& books) {
  try {
    PayFacts facts = Facts_Of(cells, books);
    Paycheck check;
    for (const Entry& entry : Entries_Of(cells["Earnings"]))
      check.grdEarnings.push_back({entry.name, entry.rate, entry.count});
    for (const Entry& entry : Entries_Of(cells["OtherItems"]))
      check.grdOtherItems.push_back({entry.name, entry.rate, entry.count, ""});
    if (!check.grdEarnings.empty())
      facts.earned_this_year.add({check.grdEarnings[0].Name, "", 0, 0, {cells.money("YearEarnings"), 0, 1}});
    Calculate(check, facts);
    output.check(name, check);
  } catch (const std::exception& fault) {
    output.row({name, "fault", fault.what(), "", "", "", "", ""});
  }
}

PayItem State_Item(const std::string& state, std::string_view tax_type, std::string_view suffix) {
  PayItem item{.Name = state + std::string(suffix), .Type = "State Tax"};
  item.TaxType = tax_type;
  item.SState = state;
  item.TaxPaid = tax_type == "State Unemployment" ? "Employer Paid Tax" : "Employee Paid Tax";
  return item;
}

}  // namespace

PayItems Standard_Items(store::Database& model) {
  PayItems items = PayItems::Read(model);
  for (const char* pay : {"Salary", "Hourly"}) {
    PayItem wage{.Name = pay, .Type = "Wage"};
    wage.PayType = pay;
    wage.PayStyle = "Regular";
    items.add(wage);
  }
  for (const UsState& state : us_states) {
    const std::string letters(state.letters);
    if (!Has_State_Formula(letters)) continue;
    items.add(State_Item(letters, "State Withholding", " Withholding"));
    PayItem unemployment = State_Item(letters, "State Unemployment", " Unemployment");
    if (const PayrollDefault* known = Unemployment_Default(letters)) {
      unemployment.UnempTaxRate = known->rate;
      unemployment.DefaultLimit = known->limit;
    }
    items.add(unemployment);
  }
  return items;
}

void Add_Items(PayItems& items, std::string_view text, std::string_view source) {
  const Tsv table = Parse_Tsv(text, source);
  for (size_t row = 0; row < table.rows.size(); ++row) {
    const Cells cells(table, row);
    PayItem item{.Name = cells["Name"], .Type = cells["Type"], .TaxType = cells["TaxType"], .PayCal = cells["PayCal"]};
    item.PayStyle = cells["PayStyle"];
    item.PayType = cells["PayType"];
    item.SState = cells["SState"];
    item.LiabilityNumber = cells["LiabilityNumber"];
    item.DefaultRate = cells["DefaultRate"];
    item.UnempTaxRate = cells["UnempTaxRate"];
    item.TaxPaid = cells.or_else("TaxPaid", "Employee Paid Tax");
    if (!cells["DefaultLimit"].empty()) item.DefaultLimit = cells.money("DefaultLimit");
    item.QuantityBased = cells.flag("QuantityBased");
    for (const std::string& tax : split(cells["Ticked"], ";"))
      if (!trim(tax).empty()) items.tick(item.Name, trim(tax));
    items.add(std::move(item));
  }
}

std::string Calculate_Cases(std::string_view cases, std::string_view source, const PayCaseBooks& books) {
  const Tsv table = Parse_Tsv(cases, source);
  Output output;
  output.row({"case", "grid", "Name", "Rate", "Hours", "Type", "Amount", "YTD"});
  for (size_t row = 0; row < table.rows.size(); ++row) {
    const Cells cells(table, row);
    Calculate_Case(output, cells, cells.or_else("case", std::to_string(row + 1)), books);
  }
  return output.text;
}

}  // namespace tallymere
