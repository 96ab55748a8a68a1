#include "payroll/employees.h"

#include <algorithm>

#include "core/names/names.h"
#include "core/store/sql.h"
#include "core/values/text.h"
#include "payroll/pay_history.h"
#include "payroll/time_sheet.h"

namespace tallymere {

using enum EmployeeField::Holds;
const std::array<EmployeeField, 45> Employee_Fields = {{
    {"SSNum", "txtSSNum"},
    {"Prefix", "cmbPrefix"},
    {"Name", "txtName"},
    {"Initials", "txtInitials"},
    {"PrintAs", "txtPrintAs"},
    {"AddressOne", "txtAddressOne"},
    {"AddressTwo", "txtAddressTwo"},
    {"City", "txtCity"},
    {"State", "cmbState"},
    {"Zip", "txtZip"},
    {"Phone", "txtPhone"},
    {"AltPhone", "txtAltPhone"},
    {"AcctNum", "txtAccNum"},
    {"Type", "cmbType"},
    {"HireDate", "dteHire"},
    {"Class", "txtClass"},
    {"Cust1", "txtCust1"},
    {"Cust2", "txtCust2"},
    {"Cust3", "txtCust3"},
    {"Cust4", "txtCust4"},
    {"Notes", "txtNotes"},
    {"PayPeriod", "cmbPayPeriod"},
    {"FedStatus", "cmbFedStatus"},
    {"FedAllow", "txtFedAllow", Whole},
    {"FedWithHolding", "txtFedWithHolding", Amount},
    {"SSHold", "chkSS", Flag},
    {"MedicareHold", "chkMedicare", Flag},
    {"FUTAHold", "chkFUTA", Flag},
    {"EICHold", "chkEarned", Flag},
    {"StateLived", "cmbStateLive"},
    {"StateWorked", "cmbStateWorked"},
    {"StateStatus", "cmbSStatus"},
    {"StateAllow", "txtSAllow", Whole},
    {"StateWithHolding", "txtSWithHold", Amount},
    {"SUIHold", "chkSUI", Flag},
    {"SickHoursStart", "txtSickStart", Hours},
    {"SickHoursPerPeriod", "txtSickRecur", Hours},
    {"MaxSick", "txtSickMax", Hours},
    {"AccurPayPeriodSick", "optPeriod", Flag},
    {"ResetSick", "chkSickReset", Flag},
    {"VacHoursStart", "txtVacStart", Hours},
    {"VacHoursPerPeriod", "txtVacRecur", Hours},
    {"MaxVac", "txtVacMax", Hours},
    {"AccurPayPeriodVac", "optVac", Flag},
    {"ResetVac", "chkVacReset", Flag},
}};

namespace {

using store::Database;
using store::Quoted;

const std::string nobody = "000";  // the number under which the lines of the template stand

size_t Place_Of(std::string_view field) {
  return static_cast<size_t>(std::ranges::find(Employee_Fields, field, &EmployeeField::field) -
                             Employee_Fields.begin());
}

// --- reading -------------------------------------------------------------------------------------

std::vector<EmployeeGridRow> Read_Lines(Database& db, const EmployeeGrid& grid, const std::string& number) {
  std::vector<EmployeeGridRow> lines;
  auto rows =
      db.OpenRecordset("SELECT * FROM " + std::string(grid.table) + " WHERE SSNum = ? ORDER BY RowKey", {number});
  for (; !rows.Eof(); rows.MoveNext())
    lines.push_back({rows.key(), rows[grid.item].text(), rows[grid.rate].text(),
                     grid.limit.empty() ? "" : rows[grid.limit].text()});
  return lines;
}

// --- mistakes ------------------------------------------------------------------------------------

bool Has_Number(const EmployeeField& field, const std::string& typed) {
  const auto number = Money::parse(typed);
  return number && (field.holds != Whole || Money::dollars(number->units() / 10000) == *number);
}

/// The first of these fields that holds no number.
std::optional<std::string> Without_Number(const EmployeeForm& form, std::initializer_list<std::string_view> fields) {
  for (const std::string_view name : fields) {
    const EmployeeField& field = Employee_Fields[Place_Of(name)];
    if (!Has_Number(field, form[name])) return std::string(field.control);
  }
  return std::nullopt;
}

/// As it is to be stored: one that was not touched stays as it is.
std::string Number_Of(const ListRow& row, const EmployeeForm& form) {
  return form["SSNum"] == row.key() ? row.key() : trim(form["SSNum"]);
}

std::optional<Fault> Number_Fault(Session& session, const ListRow& row, const EmployeeForm& form) {
  const std::string number = Number_Of(row, form);
  const auto fault = [](const char* text) { return Fault{{text, "No Entry"}, "txtSSNum"}; };
  if (number.empty()) return fault("Please fill in a Social Security Number");
  const bool own = !row.is_new() && same_text(number, row.key());
  if (!own && (number == nobody || Row_Exists(session, Employee_Rows, number)))
    return fault("Social Security Number already exists. Try Again.");
  return std::nullopt;
}

std::optional<Fault> Lines_Fault(const EmployeeForm& form) {
  const auto& earnings = form.lines[0];
  if (earnings.empty()) return Fault{{"Enter an Earning", "No Value"}, "grdEarnings"};
  for (const EmployeeGridRow& line : earnings)
    if (line.item.empty()) return Fault{{"Enter a Wage Type for each Earning", "No Value"}, "grdEarnings"};
  for (const EmployeeGridRow& line : earnings)
    if (!trim(line.rate).empty() && !Money::parse(line.rate))
      return Fault{{"This needs to be a numeric value", "Not a Number"}, "grdEarnings"};
  for (size_t at = 1; at < form.lines.size(); ++at)
    for (const EmployeeGridRow& line : form.lines[at])
      if (line.item.empty())
        return Fault{{"Enter a Payroll Item for each line", "No Value"}, std::string(Employee_Grids[at].control)};
  return std::nullopt;
}

std::optional<Fault> Employee_Fault(Session& session, const ListRow& row, const EmployeeForm& form) {
  if (auto fault = Number_Fault(session, row, form)) return fault;
  if (const auto control = Without_Number(form, {"FedAllow", "FedWithHolding", "StateAllow", "StateWithHolding"}))
    return Fault{{"Please enter values for Allowances and Withholdings for State and Federal Taxes", "No Data"},
                 *control};
  if (form["StateLived"].empty()) return Fault{{"Please Enter a State", "No State"}, "cmbStateLive"};
  if (form["StateWorked"].empty()) return Fault{{"Please Enter a State", "No State"}, "cmbStateWorked"};
  if (const auto control = Without_Number(
          form, {"MaxSick", "SickHoursStart", "SickHoursPerPeriod", "MaxVac", "VacHoursPerPeriod", "VacHoursStart"}))
    return Fault{{"Value needed", "No Value"}, *control};
  return Lines_Fault(form);
}

// --- writing -------------------------------------------------------------------------------------

void Write_Fields(ListRow& row, const EmployeeForm& form) {
  for (size_t at = 0; at < Employee_Fields.size(); ++at) {
    const EmployeeField& field = Employee_Fields[at];
    store::FieldRef stored = row[field.field];
    if (field.holds == Flag) {
      if (row.is_new() || stored.flag() != (form.texts[at] == "1")) stored = form.texts[at];
    } else {
      row.set_text(field.field, field.field == "SSNum" ? Number_Of(row, form) : form.texts[at]);
    }
  }
  if (row["ReleaseDate"].maybe_date() != form.ReleaseDate) row["ReleaseDate"] = form.ReleaseDate;
}

void Write_Line(store::Recordset& row, const EmployeeGrid& grid, const EmployeeGridRow& line) {
  const auto set = [&](std::string_view field, const std::string& typed) {
    if (line.key == 0 || row[field].text() != typed) row[field] = trim(typed);  // no rate would repeat the line before
  };
  set(grid.item, line.item);
  set(grid.rate, line.rate);
  if (!grid.limit.empty()) set(grid.limit, line.limit);
}

/// The lines of one grid become those of the form; a line that nobody touched is not written.
void Save_Lines(Database& db, const EmployeeGrid& grid, const std::string& number,
                const std::vector<EmployeeGridRow>& lines) {
  auto rows =
      db.OpenRecordset("SELECT * FROM " + std::string(grid.table) + " WHERE SSNum = ? ORDER BY RowKey", {number});
  for (; !rows.Eof(); rows.MoveNext()) {
    const auto line = std::ranges::find(lines, rows.key(), &EmployeeGridRow::key);
    if (line == lines.end()) {
      rows.Delete();
      continue;
    }
    rows.Edit();
    Write_Line(rows, grid, *line);
    rows.Update();
  }
  for (const EmployeeGridRow& line : lines) {
    if (line.key != 0) continue;
    rows.AddNew();
    rows["SSNum"] = number;
    Write_Line(rows, grid, line);
    rows.Update();
  }
}

/// Everything that stands under the old number goes under the new one. What a number without an employee left behind
/// is nobody's, and no part of whoever comes by it.
void Carry_Number(Database& db, const std::string& from, const std::string& to) {
  if (from == to) return;
  const auto carry = [&](const std::string& table) {
    if (!from.empty()) db.Execute("UPDATE " + Quoted(table) + " SET SSNum = ? WHERE SSNum = ?", {to, from});
  };
  for (const EmployeeGrid& grid : Employee_Grids) {
    if (!same_text(from, to)) db.Execute("DELETE FROM " + std::string(grid.table) + " WHERE SSNum = ?", {to});
    carry(std::string(grid.table));
  }
  carry("Transactions");
  for (const std::string& table : Time_Tables(db)) carry(table);
}

/// A name that two employees bear stands in the pay periods for both: the one who is renamed takes a copy along.
void Carry_Name(Session& session, const std::string& number, const std::string& from, const std::string& to) {
  if (from == to) return;
  Database& db = *session.dbCompany;
  db.Execute("UPDATE Transactions SET Name = ? WHERE SSNum = ?", {to, number});
  if (from.empty()) return;
  if (!Is_Taken(session, NameList::Employees, from, from))
    return Rename(session, NameList::Employees, from, to, Carry::Lists, true);
  db.Execute(
      "INSERT INTO PayHistory (Employee, PayPeriod, PayEndDate, PayCheckDate, Paid)"
      " SELECT ?, MIN(PayPeriod), PayEndDate, MIN(PayCheckDate), MAX(Paid) FROM PayHistory WHERE Employee = ?"
      " GROUP BY PayEndDate",
      {to, from});
}

/// Somebody without pay periods gets all that were opened; a new frequency goes to those there are.
void Keep_Pay_History(Database& db, const std::string& name, const std::string& period, bool new_period) {
  if (db.value("SELECT RowKey FROM PayHistory WHERE Employee = ? LIMIT 1", {name}).is_null())
    return Seed_Pay_History(db, name, period);
  if (new_period) db.Execute("UPDATE PayHistory SET PayPeriod = ? WHERE Employee = ?", {period, name});
}

void Write_Employee(Session& session, ListRow& row, const EmployeeForm& form) {
  Database& db = *session.dbCompany;
  if (!row.is_new())
    for (const Probe& lines : form.lines_as_read) lines.check(db);
  const std::string number = Number_Of(row, form), name = form["Name"];
  const std::string name_before = row["Name"].text();
  const bool new_period = !row.is_new() && row["PayPeriod"].text() != form["PayPeriod"];
  Write_Fields(row, form);
  Carry_Number(db, row.key(), number);
  for (size_t at = 0; at < Employee_Grids.size(); ++at) Save_Lines(db, Employee_Grids[at], number, form.lines[at]);
  if (row.is_new()) return Seed_Pay_History(db, name, form["PayPeriod"]);
  Carry_Name(session, number, name_before, name);
  Keep_Pay_History(db, name, form["PayPeriod"], new_period);
}

// --- deleting ------------------------------------------------------------------------------------

bool Has_Transactions(Session& session, const std::string& SSNum, const std::string& Name, bool shares_name) {
  if (!session.dbCompany->value("SELECT RowKey FROM Transactions WHERE SSNum = ? LIMIT 1", {SSNum}).is_null())
    return true;
  if (shares_name) return false;
  const auto uses = Used_In(session, NameList::Employees, Name);
  return std::ranges::find(uses, "transaction", &NameUse::word) != uses.end();
}

int64_t Time_Lines(Database& db, const std::string& SSNum) {
  int64_t lines = 0;
  for (const std::string& table : Time_Tables(db))
    lines += db.value("SELECT COUNT(*) FROM " + Quoted(table) + " WHERE SSNum = ?", {SSNum}).integer();
  return lines;
}

/// Hours that nobody has been paid for go with somebody: that is asked.
bool Wants_Time_Deleted(Session& session, const std::string& name, int64_t lines) {
  const Box question{"Are you sure you want to delete \"" + name + "\"", "Confirm Delete", Icon::Critical,
                     Spoken({{"time sheet line", lines}}) + " will be deleted as well."};
  return lines == 0 || session.prompts.ask(question, Buttons::YesNoDefaultNo);
}

/// false: transactions have been applied, and nothing is deleted.
bool Delete_Unpaid(Session& session, const std::string& SSNum, const std::string& Name) {
  Database& db = *session.dbCompany;
  store::Transaction tx(db, "Deleted employee " + Name);
  const bool shares_name = Is_Taken(session, NameList::Employees, Name, Name);
  if (Has_Transactions(session, SSNum, Name, shares_name)) return false;
  std::vector<std::string> tables = Time_Tables(db);
  for (const EmployeeGrid& grid : Employee_Grids) tables.emplace_back(grid.table);
  tables.emplace_back("Employees");
  for (const std::string& table : tables) db.Execute("DELETE FROM " + Quoted(table) + " WHERE SSNum = ?", {SSNum});
  if (!shares_name) db.Execute("DELETE FROM PayHistory WHERE Employee = ?", {Name});
  tx.commit();
  return true;
}

}  // namespace

std::string& EmployeeForm::operator[](std::string_view field) { return texts.at(Place_Of(field)); }
const std::string& EmployeeForm::operator[](std::string_view field) const { return texts.at(Place_Of(field)); }

std::vector<EmployeeListRow> Make_Employee_List(Session& session, bool show_released) {
  std::vector<EmployeeListRow> rows;
  session.dbCompany->each("SELECT SSNum, Name, ReleaseDate FROM Employees ORDER BY Name", {},
                          [&](const store::Row& row) {
                            const bool released = row.date(2).has_value();
                            if (show_released || !released)
                              rows.push_back({std::string(row.text(0)), std::string(row.text(1)), released});
                          });
  return rows;
}

EmployeeForm New_Employee(Session& session) {
  EmployeeForm form;
  for (const EmployeeField& field : Employee_Fields)
    if (field.holds == Flag) form[field.field] = "0";
  for (const char* ticked :
       {"FUTAHold", "MedicareHold", "SSHold", "SUIHold", "AccurPayPeriodSick", "AccurPayPeriodVac"})
    form[ticked] = "1";
  form["PayPeriod"] = "BiWeekly";
  form["HireDate"] = session.today().to_text();
  form.SickDateStart = form.VacDateStart = session.today();
  return form;
}

EmployeeForm Employee_Form(Session& session, ListRow& row) {
  EmployeeForm form;
  for (const EmployeeField& field : Employee_Fields)
    form[field.field] = field.holds == Flag ? (row[field.field].flag() ? "1" : "0") : row[field.field].text();
  form.ReleaseDate = row["ReleaseDate"].maybe_date();
  form.SickDateStart = row["SickDateStart"].maybe_date();
  form.VacDateStart = row["VacDateStart"].maybe_date();
  for (size_t at = 0; at < Employee_Grids.size(); ++at) {
    form.lines_as_read[at] = Probe::Of(*session.dbCompany, Employee_Grids[at].table, "SSNum", row.key());
    form.lines[at] = Read_Lines(*session.dbCompany, Employee_Grids[at], row.key());
  }
  return form;
}

RowSave Save_Employee(Session& session, ListRow& row, const EmployeeForm& form) {
  if (auto fault = Employee_Fault(session, row, form)) return {.fault = std::move(fault)};
  return Save_Row(session, row, "employee " + form["Name"], [&](ListRow& fields) {
    auto fault = Number_Fault(session, fields, form);  // another user may have taken it just now
    if (!fault) Write_Employee(session, fields, form);
    return fault;
  });
}

bool Delete_Employee(Session& session, const std::string& SSNum, const std::string& Name) {
  if (!Wants_Time_Deleted(session, Name, Time_Lines(*session.dbCompany, SSNum))) return false;
  if (Delete_Unpaid(session, SSNum, Name)) return true;
  session.prompts.box(
      {"Cannot delete employee, Transactions have been applied to this employee", "No Delete", Icon::Critical});
  return false;
}

}  // namespace tallymere
