#include "core/values/text.h"
#include "import/list_records.h"

namespace tallymere {
namespace {

struct Kind {
  std::string_view theirs, Type;
  bool wage_set = false, tax_set = false, deduction_set = false;
};
constexpr Kind kinds[] = {{"SALARY", "Wage", true},
                          {"HOURLY", "Wage", true},
                          {"ADD", "Addition", true, true},
                          {"COMMISSION", "Commision", true},
                          {"DEDUCT", "Deduction", false, true, true},
                          {"COMPANY", "Company Contribution"},
                          {"STATETAX", "State Tax", false, true},
                          {"SDI", "State Tax", false, true},
                          {"SUI", "State Tax", false, true},
                          {"LOCALTAX", "Other Tax", false, true}};

/// Theirs, ours.
constexpr std::array<std::pair<std::string_view, std::string_view>, 7> tax_names = {
    {{"Co. Paid Dep. Care", "Company Paid Dep. Care"},
     {"Co. Paid Other Tax", "Company Paid Other Tax"},
     {"Dependant Care FSA", "Dependant Care"},
     {"Local Income Tax", "Loc 1 Income Tax"},
     {"Co. Paid Med Savings", "Medical Savings Benefit"},
     {"Non-qual. Plan Distr", "Non-Qual. Plan Distribution"},
     {"Taxable Grp Trm Life", "Taxable Group Trm Life"}}};

std::string Map_Tax_Name(const std::string& name) {
  for (const auto& [theirs, ours] : tax_names)
    if (same_text(theirs, name)) return std::string(ours);
  return name;
}

/// The second item of one name in a file is another item.
std::string Own_Name(ImportWork& work, const std::string& name) {
  return work.payroll_names[folded(name)]++ == 0 ? name : name + " (2)";
}

void Offer_In_Sets(ImportWork& work, const Kind& kind, const std::string& name) {
  if (kind.wage_set) work.put("PreWageSet", {{"Wage", name}}, {{"Default", "Y"}});
  if (kind.tax_set) work.put("PreTaxSet", {{"PreTax", name}}, {{"Default", "Y"}});
  if (kind.deduction_set) work.put("PreDeducSet", {{"PreDeduc", name}}, {{"Default", "Y"}});
}

bool Is_Whole_Zero_Date(const std::string& text) { return text == "0/0/0"; }

constexpr std::string_view titles[] = {"Mr.", "Miss", "Ms.", "Mrs.", "Dr."};

struct Person {
  std::string Prefix, Name;
};

/// "Mr. Karl K. Karlson"
Person Person_Of(const std::string& given) {
  Person person{"", given};
  for (const std::string_view title : titles)
    if (starts_with_same_text(given, std::string(title) + " ")) {
      person.Prefix = title;
      person.Name = trim(given.substr(title.size()));
    }
  return person;
}

struct Town {
  std::string City, State, Zip;
};

/// "Lindsborg, KS 67456" or "Lindsborg, KS, 67456"
Town Town_Of(const std::string& text) {
  const size_t comma = text.find(',');
  if (comma == std::string::npos) return {text, "", ""};
  const std::string rest = trim(replace_all(text.substr(comma + 1), ",", " "));
  const size_t blank = rest.find(' ');
  return {trim(text.substr(0, comma)), rest.substr(0, blank),
          blank == std::string::npos ? "" : trim(rest.substr(blank + 1))};
}

}  // namespace

RecordDone Put_Payroll_Item(ImportWork& work, const IifRecord& record) {
  const auto cell = [&](int position) { return record.at({"", position}, work.release_2003); };
  const std::string given = cell(1), kind_name = cell(5);
  if (given.empty()) return {ImportDid::Skipped, "it has no name"};
  if (same_text(kind_name, "FEDTAX")) return {ImportDid::Skipped, "every company has the federal taxes"};
  const auto kind = std::ranges::find_if(kinds, [&](const Kind& row) { return same_text(row.theirs, kind_name); });
  if (kind == std::end(kinds)) return {ImportDid::Skipped, "there is no kind \"" + kind_name + "\""};

  const std::string name = Own_Name(work, given);
  const bool unemployment = same_text(kind_name, "SUI"), contribution = same_text(kind_name, "COMPANY");
  const bool employer = contribution || (unemployment && contains(given, "Co. Paid"));
  std::vector<ListRows::Cell> cells = {{"Type", std::string(kind->Type)},
                                       {"ExpenseAcct", work.categories.Map_Category(cell(8))},
                                       {"LiabilityAcct", work.categories.Map_Category(cell(9))},
                                       {"LiabilityAgency", cell(12)},
                                       {"LiabilityNumber", cell(21)},
                                       {"FUTACredit", cell(16)},
                                       {"SState", cell(10)},
                                       {"TaxPaid", employer ? "Employer Paid Tax" : "Employee Paid Tax"},
                                       {"DefaultRate", unemployment ? "" : cell(6)},
                                       {"DefaultLimit", cell(7)},
                                       {"TrackingType", cell(13)}};
  if (kind->Type == "Wage") {
    cells.push_back({"PayType", same_text(kind_name, "SALARY") ? "Salary" : "Hourly"});
    const std::string style = cell(14);
    cells.push_back({"PayStyle", contains(style, "Sick") ? "Sick" : contains(style, "Vac ") ? "Vacation" : "Regular"});
  }
  if (kind->Type == "Deduction") {
    cells.push_back({"PayCal", same_text(cell(22), "Net") ? "Net" : "Gross"});
    cells.push_back({"QuantityBased", cell(23).empty() || same_text(cell(23), "NONE") ? "" : "Y"});
  }
  if (same_text(kind_name, "STATETAX")) cells.push_back({"TaxType", "State Withholding"});
  if (unemployment) {
    cells.push_back({"TaxType", "State Unemployment"});
    cells.push_back({"UnempTaxRate", cell(6)});
  }
  RecordDone done = work.put("PayrollItems", {{"Name", name}}, cells);
  Offer_In_Sets(work, *kind, name);
  return done;
}

RecordDone Put_Payroll_Tax(ImportWork& work, const IifRecord& record) {
  const std::string item = record.at({"", 1}, work.release_2003), tax = record.at({"", 2}, work.release_2003);
  if (item.empty() || tax.empty()) return {ImportDid::Skipped, "it names no item or no tax"};
  if (same_text(tax, "Advance Earned Income Credit")) return {ImportDid::Skipped, "there is no such tax any more"};
  return work.put("PreTaxTable", {{"Name", Map_Tax_Name(item)}, {"TaxName", Map_Tax_Name(tax)}}, {{"Selected", "Y"}});
}

RecordDone Put_Employee(ImportWork& work, const IifRecord& record, Box& cannot) {
  const auto cell = [&](std::string_view header, int off, int on) {
    return record.at({header, off, on}, work.release_2003);
  };
  const std::string given = cell("NAME", 1, 1), SSNum = cell("SSNO", 10, 13);
  const Person person = Person_Of(given);
  if (SSNum.empty()) {
    cannot = {given + " does not have a Social Security Number. " + given + " will not be added.", "No Number"};
    return {ImportDid::Skipped, "without a Social Security Number"};
  }
  Town town{cell("", 0, 10), cell("", 0, 11), cell("", 0, 12)};
  if (!work.release_2003)
    town = Town_Of(cell("", 7, 0).find(',') != std::string::npos ? cell("", 7, 0) : cell("", 8, 0));
  return work.put("Employees", {{"SSNum", SSNum}},
                  {{"Prefix", person.Prefix},
                   {"Name", person.Name},
                   {"Initials", cell("INIT", 0, 0)},
                   {"PrintAs", given},
                   {"AddressOne", cell("", 4, 4)},
                   {"AddressTwo", cell("", 6, 6)},
                   {"City", town.City},
                   {"State", town.State},
                   {"Zip", town.Zip},
                   {"StateWorked", town.State},
                   {"StateLived", town.State},
                   {"Phone", cell("PHONE1", 11, 14)},
                   {"AltPhone", cell("PHONE2", 12, 15)},
                   {"AcctNum", cell("", 13, 17)},
                   {"Notes", With_Lines(cell("NOTEPAD", 0, 18))}});
}

RecordDone Put_Employee_Pay(ImportWork& work, const IifRecord& record, const std::vector<const IifRecord*>& inside) {
  const auto cell = [&](int position) { return record.at({"", position}, work.release_2003); };
  const auto day = [&](int position) { return Is_Whole_Zero_Date(cell(position)) ? std::string() : cell(position); };
  const Person person = Person_Of(cell(1));
  const std::string SSNum = work.rows.look_up("Employees", {"Name", person.Name}, "SSNum");
  if (SSNum.empty()) return {ImportDid::Skipped, "there is no employee of this name"};
  const auto yearly = [&](int position) { return contains(cell(position), "SVA_YEARLY") ? "1" : "0"; };
  RecordDone done = work.put("Employees", {{"SSNum", SSNum}},
                             {{"Class", cell(5)},
                              {"Type", cell(43)},
                              {"HireDate", day(17)},
                              {"ReleaseDate", day(18)},
                              {"PayPeriod", cell(4)},
                              {"FedStatus", cell(19)},
                              {"FedAllow", cell(20)},
                              {"FedWithHolding", cell(21)},
                              {"SSHold", cell(33)},
                              {"MedicareHold", cell(34)},
                              {"FUTAHold", cell(35)},
                              {"EICHold", cell(36)},
                              {"StateStatus", cell(26)},
                              {"StateAllow", cell(27)},
                              {"StateWithHolding", cell(28)},
                              {"SUIHold", cell(25)},
                              {"StateLived", cell(22)},
                              {"StateWorked", cell(23)},
                              {"SickHoursStart", cell(11)},
                              {"AccurPayPeriodSick", yearly(9)},
                              {"SickHoursPerPeriod", cell(10)},
                              {"ResetSick", cell(40)},
                              {"VacHoursStart", cell(16)},
                              {"AccurPayPeriodVac", yearly(13)},
                              {"VacHoursPerPeriod", cell(14)},
                              {"ResetVac", cell(41)}});
  bool more = false;
  for (const IifRecord* line : inside) {
    const auto part = [&](int position) { return line->at({"", position}, work.release_2003); };
    if (part(1).empty()) continue;
    RecordDone own{ImportDid::Same};
    if (line->key == "CUSTOMPI")
      own = work.put("EmployeeAdjustments", {{"SSNum", SSNum}, {"Adjustment", part(1)}},
                     {{"AmountRate", part(2)}, {"Limit", part(3)}});
    else if (line->key == "HOURLYPI")
      own = work.put("EmployeeEarnings", {{"SSNum", SSNum}, {"Wage", part(1)}}, {{"Rate", part(2)}});
    else if (line->key == "LOCALPI")
      own = work.put("EmployeeTaxes", {{"SSNum", SSNum}, {"Tax", part(1)}}, {});
    more = more || own.did != ImportDid::Same;
    if (!own.why.empty()) done.why += (done.why.empty() ? "" : "; ") + own.why;
  }
  if (more && done.did == ImportDid::Same) done.did = ImportDid::Changed;
  return done;
}

}  // namespace tallymere
