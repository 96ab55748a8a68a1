#include "payroll/chosen_items.h"

#include <algorithm>

#include "core/values/text.h"

namespace tallymere {

bool Is_Other_Item(const PayItem& item) {
  return item.type() == ItemType::Addition || item.type() == ItemType::Deduction ||
         item.type() == ItemType::CompanyContribution;
}

EarningRow Chosen_Wage(const PayFacts& facts, std::string_view name) {
  const PayItem* item = facts.items->find(name);
  if (!item) return {std::string(name), "", ""};
  EarningRow row{item->Name, item->DefaultRate, item->PayType == "Hourly" ? "0.0" : ""};
  const auto& earnings = facts.employee.earnings;
  const auto own = std::ranges::find_if(earnings, [name](const auto& each) { return same_text(each.Wage, name); });
  // The rate of a salary is that of a year.
  if (row.Rate.empty() && !item->is_salary() && own != earnings.end() && own->Rate) row.Rate = own->Rate->to_text();
  return row;
}

OtherItemRow Chosen_Item(const PayFacts& facts, std::string_view name) {
  const PayItem* item = facts.items->find(name);
  return item ? OtherItemRow{item->Name, item->DefaultRate, "", item->Type}
              : OtherItemRow{std::string(name), "", "", ""};
}

bool Is_Missing_From_Upcoming(store::Database& company, const PayEmployee& employee, std::string_view item) {
  const auto known = [item](const EmployeeLine& line) { return same_text(line.item, item); };
  return std::ranges::none_of(employee.adjustments, known) && Find_Employee_By_Number(company, employee.SSNum);
}

void Add_To_Upcoming(Session& session, PayFacts& facts, std::string_view name) {
  const PayItem& item = facts.items->item(name);
  const EmployeeLine line{item.Name, item.DefaultRate, item.DefaultLimit ? item.DefaultLimit->to_text() : ""};
  store::Transaction tx(*session.dbCompany, item.Name + " on upcoming paychecks of " + facts.employee.Name);
  session.dbCompany->Execute(
      "INSERT INTO EmployeeAdjustments (SSNum, Adjustment, AmountRate, \"Limit\") VALUES (?, ?, ?, ?)",
      {facts.employee.SSNum, line.item, *line.AmountRate, line.Limit});
  tx.commit();
  facts.employee.adjustments.push_back(line);
}

}  // namespace tallymere
