#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/ledger/probe.h"
#include "lists/list_row.h"

/// The list of employees, and the form that makes or changes one with all that hangs on the number.
namespace tallymere {

inline constexpr RowList Employee_Rows = {"Employees", "SSNum", "employee"};

/// One row of grdEmployees.
struct EmployeeListRow {
  std::string SSNum, Name;
  bool released = false;
};
/// By name; those who were released only on request.
std::vector<EmployeeListRow> Make_Employee_List(Session& session, bool show_released);

/// A field that the form shows, and the control it stands in.
struct EmployeeField {
  enum class Holds { Text, Flag, Whole, Amount, Hours };
  std::string_view field, control;
  Holds holds = Holds::Text;
};
extern const std::array<EmployeeField, 45> Employee_Fields;

/// A line of one of the three grids.
struct EmployeeGridRow {
  int64_t key = 0;  ///< of the row it was read from; 0: a new one
  std::string item = {}, rate = {}, limit = {};
  friend bool operator==(const EmployeeGridRow&, const EmployeeGridRow&) = default;
};
/// The three grids, in this order, and where their lines are kept.
struct EmployeeGrid {
  std::string_view control, table, item, rate, limit;  ///< without a limit, none
};
inline constexpr std::array<EmployeeGrid, 3> Employee_Grids = {
    {{"grdEarnings", "EmployeeEarnings", "Wage", "Rate", ""},
     {"grdOthers", "EmployeeAdjustments", "Adjustment", "AmountRate", "Limit"},
     {"grdOtherTax", "EmployeeTaxes", "Tax", "AmountRate", "Limit"}}};

/// What frmModEmployee shows: texts as they are typed, flags as "1" and "0".
struct EmployeeForm {
  std::array<std::string, 45> texts = {};  ///< in the order of Employee_Fields
  std::optional<Date> ReleaseDate = {};    ///< nothing while employed
  std::array<std::vector<EmployeeGridRow>, 3> lines = {};
  std::array<Probe, 3> lines_as_read = {};
  std::optional<Date> SickDateStart = {}, VacDateStart = {};  ///< shown only

  std::string& operator[](std::string_view field);
  const std::string& operator[](std::string_view field) const;
};
EmployeeForm New_Employee(Session& session);
EmployeeForm Employee_Form(Session& session, ListRow& row);

/// Saves the form, or answers with the first mistake. The lines, another number or name and the pay periods opened so
/// far go with it, in one commit.
RowSave Save_Employee(Session& session, ListRow& row, const EmployeeForm& form);

/// Deletes somebody to whom no transaction applies, with all that hangs on the number. true: the list has changed.
bool Delete_Employee(Session& session, const std::string& SSNum, const std::string& Name);

}  // namespace tallymere
