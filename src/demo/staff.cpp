#include "demo/staff.h"

#include <algorithm>

#include "demo/rows.h"
#include "demo/words.h"

namespace tallymere::demo {
namespace {

/// No Social Security number begins with a 9.
std::string Example_Number(int index) { return "987-65-" + std::to_string(4320 + index); }

void Write_Pay(store::Database& db, const Employee& person) {
  const std::string_view regular = person.salaried ? pay_items::salary : pay_items::hourly;
  Add_Row(db, "EmployeeEarnings", {{"SSNum", person.ss_num}, {"Wage", regular}, {"Rate", person.rate}});
  if (!person.salaried) {
    Add_Row(db, "EmployeeEarnings",
            {{"SSNum", person.ss_num}, {"Wage", pay_items::overtime}, {"Rate", person.rate.times(1.5)}});
    Add_Row(db, "EmployeeEarnings", {{"SSNum", person.ss_num}, {"Wage", pay_items::sick}, {"Rate", person.rate}});
  }
  auto adjust = [&](std::string_view item, std::string_view rate, std::string_view limit) {
    Add_Row(db, "EmployeeAdjustments",
            {{"SSNum", person.ss_num}, {"Adjustment", item}, {"AmountRate", rate}, {"Limit", limit}});
  };
  if (person.in_plan) adjust(pay_items::retirement, "4%", "24500");
  if (person.in_plan) adjust(pay_items::match, "2%", "");
  if (person.insured) adjust(pay_items::health, "85.00", "");
  Add_Row(db, "EmployeeTaxes",
          {{"SSNum", person.ss_num}, {"Tax", pay_items::training}, {"AmountRate", "0.1%"}, {"Limit", "14250"}});
}

}  // namespace

Staff::Staff(Books& books) {
  Write_Payroll_Items(books.db, books.chart);
  books.db.each("SELECT Name, ExpenseAcct, LiabilityAcct, LiabilityAgency, LiabilityNumber, Type FROM PayrollItems", {},
                [this](const store::Row& row) {
                  auto text = [&row](int column) { return std::string(row.text(column)); };
                  items.push_back({text(0), text(1), text(2), text(3), text(4), row.text(5) == "Federal Tax"});
                });
  for (int index = 0; index < books.plan.employees; ++index) Hire(books);
}

void Staff::Hire(Books& books) {
  Random& random = books.random;
  const int index = static_cast<int>(employees.size());
  Employee person(books.plan.first.plus_days(-random.between(30, 1500)));
  do {
    person.name = std::string(random.pick(words::first_names)) + " " + std::string(random.pick(words::last_names));
  } while (std::ranges::count(employees, person.name, &Employee::name) > 0);
  const auto& place = random.pick(words::places);
  person.ss_num = Example_Number(index);
  person.address_one = std::to_string(random.between(10, 4900)) + " " + std::string(random.pick(words::streets));
  person.city = place.city;
  person.zip = place.zip;
  person.address = person.name + "\r\n" + person.address_one + " \r\n" + person.city + ", IL " + person.zip;
  person.salaried = index % 5 == 0;
  person.rate =
      person.salaried ? Money::dollars(random.between(48, 66) * 1000) : Money::dollars(random.between(18, 29), 50);
  person.married = random.chance(50);
  person.allowances = random.below(3);
  person.in_plan = random.chance(50);
  person.insured = random.chance(60);
  person.class_name = person.salaried ? "Office" : words::classes[static_cast<size_t>(random.below(2))];
  if (index == 3) person.released = books.plan.last.plus_days(-random.between(60, 200));
  employees.push_back(std::move(person));
}

const Pay_Item& Staff::item(std::string_view name) const { return *std::ranges::find(items, name, &Pay_Item::name); }

void Staff::Write_Employees(store::Database& db) const {
  for (const Employee& person : employees) {
    const std::string_view status = person.married ? "Married" : "Single";
    Add_Row(db, "Employees",
            {{"SSNum", person.ss_num},
             {"Name", person.name},
             {"PrintAs", person.name},
             {"AddressOne", person.address_one},
             {"City", person.city},
             {"State", "IL"},
             {"Zip", person.zip},
             {"Type", person.salaried ? "Officer" : "Regular"},
             {"Class", person.class_name},
             {"PayPeriod", "BiWeekly"},
             {"FedStatus", status},
             {"StateStatus", status},
             {"StateWorked", "IL"},
             {"StateLived", "IL"},
             {"FedAllow", person.allowances},
             {"StateAllow", person.allowances},
             {"FedWithHolding", Money()},
             {"StateWithHolding", Money()},
             {"HireDate", person.hired},
             {"ReleaseDate", person.released},
             {"SickDateStart", person.hired},
             {"VacDateStart", person.hired},
             {"SSHold", true},
             {"MedicareHold", true},
             {"FUTAHold", true},
             {"SUIHold", true},
             {"EICHold", false},
             {"ResetSick", true},
             {"ResetVac", false},
             {"SickHoursStart", 40.0},
             {"VacHoursStart", 60.0},
             {"SickHoursPerPeriod", 1.5},
             {"VacHoursPerPeriod", 3.0},
             {"MaxSick", 80.0},
             {"MaxVac", 160.0},
             {"AccurPayPeriodSick", 1},
             {"AccurPayPeriodVac", 1}});
    Write_Pay(db, person);
  }
}

void Staff::Learn_Facts(store::Database& db, store::Database& accounts) {
  for (Employee& person : employees)
    person.facts = {.employee = *Find_Employee_By_Number(db, person.ss_num),
                    .items = PayItems::Of(db),
                    .tables = TaxTables::Of(accounts),
                    .rule = PayrollPosting::Balanced,
                    .earned_this_year = {},
                    .paid_this_year = {}};
}

}  // namespace tallymere::demo
