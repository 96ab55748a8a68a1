#include "payroll/items/pay_item_form.h"

#include <algorithm>

#include "core/values/text.h"
#include "payroll/defaults.h"
#include "payroll/items/pay_item_ticks.h"

namespace tallymere {
namespace {

using store::Database;
using Is = PayItemField::Is;

constexpr std::string_view employee_paid = "Employee Paid Tax", employer_paid = "Employer Paid Tax";
constexpr std::string_view unemployment = "State Unemployment";

/// What the items of a type have, in the order of their frame.
std::vector<PayItemField> Fields_Of(ItemType type) {
  std::vector<PayItemField> fields;
  std::ranges::copy_if(PayItem_Fields(), std::back_inserter(fields),
                       [type](const PayItemField& field) { return field.type == type; });
  return fields;
}

std::string First_Option(std::string_view control) {
  return std::string(std::ranges::find(PayItem_Options(), control, &PayItemOption::control)->stored);
}

// --- mistakes ------------------------------------------------------------------------------------

Fault Mistake(const char* text, const char* title, std::string_view control) {
  return {{text, title}, std::string(control)};
}

std::string_view Control_Of(const PayItemForm& form, std::string_view field) {
  for (const PayItemField& shown : PayItem_Fields())
    if (shown.type == form.type() && shown.field == field) return shown.control;
  return {};
}

std::optional<Fault> Category_Fault(const PayItemForm& form, std::string_view field) {
  if (!form.at(field).empty() || !Has_Use_For(form, field)) return std::nullopt;
  const bool expense = field == "ExpenseAcct";
  return Mistake(expense ? "Please Enter a Expense Category" : "Please Enter a Liability Category", "No Category",
                 Control_Of(form, field));
}

std::optional<Fault> Federal_Fault(const PayItemForm& form) {
  if (auto fault = Category_Fault(form, "LiabilityAcct")) return fault;
  return Category_Fault(form, "ExpenseAcct");
}

std::optional<Fault> State_Fault(const PayItemForm& form) {
  if (form.at("SState").empty()) return Mistake("Please Enter a State", "No State", "cmbSState");
  if (form.at("TaxType") == unemployment && trim(form.at("UnempTaxRate")).empty())
    return Mistake("Please Enter a Unemployment Rate", "No Rate", "txtStateRate");
  if (auto fault = Category_Fault(form, "ExpenseAcct")) return fault;
  return Category_Fault(form, "LiabilityAcct");
}

/// A limit is an amount; a fee may be a percentage.
bool Is_Number(const PayItemField& field, const std::string& typed) {
  if (trim(typed).empty() || (field.is != Is::Limit && field.is != Is::Fraction)) return true;
  const bool percent = field.is == Is::Fraction && trim(typed).ends_with('%');
  return Money::parse(percent ? trim(typed).substr(0, trim(typed).size() - 1) : typed).has_value();
}

std::optional<Fault> Number_Fault(const PayItemForm& form) {
  for (const PayItemField& field : Fields_Of(form.type()))
    if (Has_Use_For(form, field.field) && !Is_Number(field, form.at(field.field)))
      return Mistake("This needs to be a numeric value", "Not a Number", field.control);
  return std::nullopt;
}

std::optional<Fault> Name_Fault(Session& session, const ListRow& row, const PayItemForm& form) {
  if (!row.is_new()) return std::nullopt;
  const std::string name = trim(form.Name);
  if (name.empty()) return Mistake("Please enter a Name", "No Name", "txtName");
  if (Row_Exists(session, PayItem_Rows, name))
    return Fault{{"There is already a payroll item named \"" + name + "\".", "Name in Use"}, "txtName"};
  if (form.Type.empty()) return Mistake("Please select a type for this Payroll Item", "No Type", "cmbType");
  return std::nullopt;
}

std::optional<Fault> Pay_Item_Fault(Session& session, const ListRow& row, const PayItemForm& form) {
  if (auto fault = Name_Fault(session, row, form)) return fault;
  std::optional<Fault> fault;
  if (form.type() == ItemType::FederalTax) fault = Federal_Fault(form);
  if (form.type() == ItemType::StateTax) fault = State_Fault(form);
  if (form.type() == ItemType::OtherTax && trim(form.at("DefaultRate")).empty())
    fault = Mistake("Please Enter a Rate or an Amount", "No Rate", "txtOtherRate");
  return fault ? fault : Number_Fault(form);
}

/// "3.35" for "3.35%" would take more than the whole wage.
bool Wants_Rate(Session& session, ListRow& row, const PayItemForm& form) {
  const std::string& rate = form.at("UnempTaxRate");
  const bool untouched = !row.is_new() && row["UnempTaxRate"].text() == rate;
  if (untouched || !Has_Use_For(form, "UnempTaxRate") || !Is_Suspicious_Rate(rate)) return true;
  return session.prompts.ask(
      {"The rate " + rate + " without \"%\" is more than the whole wage. Do you want to keep it?", "Check Rate",
       Icon::Question},
      Buttons::YesNoDefaultNo);
}

// --- writing -------------------------------------------------------------------------------------

/// A deduction's rate is kept positive.
std::string Rate_Of(const PayItemForm& form, const std::string& typed) {
  return form.type() == ItemType::Deduction && typed.starts_with('-') ? typed.substr(1) : typed;
}

void Write_Field(ListRow& row, const PayItemForm& form, const PayItemField& field) {
  const std::string& typed = form.at(field.field);
  store::FieldRef stored = row[field.field];
  if (field.is == Is::Tick) {
    if (row.is_new() || stored.flag() != (typed == "1")) stored = typed == "1";
  } else if (field.is == Is::Fraction) {
    if (stored.text() != typed)
      stored = trim(typed).empty() ? store::Value() : store::Value(Read_Rate(typed).fraction().text());
  } else {
    row.set_text(field.field, field.is == Is::Rate ? Rate_Of(form, typed) : typed);
  }
}

void Write_Item(ListRow& row, const PayItemForm& form) {
  if (row.is_new()) {
    row.set_text("Name", trim(form.Name));
    row.set_text("Type", form.Type);
  }
  for (const PayItemField& field : Fields_Of(form.type())) Write_Field(row, form, field);
  if (form.type() == ItemType::StateTax)
    row.set_text("TaxPaid", std::string(form.at("TaxType") == unemployment ? employer_paid : employee_paid));
  else if (form.type() != ItemType::OtherTax && form.type() != ItemType::FederalTax)
    row.set_text("TaxPaid", std::string(employee_paid));
}

// --- deleting ------------------------------------------------------------------------------------

bool Wants_Deleted(Session& session, const std::string& name) {
  const std::string uses = Spoken(Pay_Item_Uses(*session.dbCompany, name));
  return session.prompts.ask({"Are you sure you want to delete \"" + name + "\"", "Confirm Delete", Icon::Critical,
                              uses.empty() ? "" : "It is used in " + uses + "."},
                             Buttons::YesNoDefaultNo);
}

}  // namespace

const std::string& PayItemForm::at(std::string_view field) const {
  static const std::string nothing;
  const auto found = fields.find(field);
  return found == fields.end() ? nothing : found->second;
}

bool Has_Use_For(const PayItemForm& form, std::string_view field) {
  if (form.type() == ItemType::StateTax)
    return form.at("TaxType") == unemployment ||
           (field != "ExpenseAcct" && field != "UnempTaxRate" && field != "DefaultLimit" && field != "WFRate" &&
            field != "FUTACredit");
  if (form.type() != ItemType::FederalTax) return true;
  const bool is_unemployment = same_text(form.Name, fixed_items::federal_unemployment);
  const bool withholding = same_text(form.Name, fixed_items::federal_withholding);
  if (field == "UnempTaxRate") return is_unemployment;
  if (field == "DefaultRate") return !is_unemployment && !withholding;
  if (field == "DefaultLimit") return !withholding;
  return field != "ExpenseAcct" || form.TaxPaid == employer_paid;
}

PayItemForm New_Pay_Item(Session& session, const std::string& Type) {
  PayItemForm form{.Type = Type};
  for (const PayItemField& field : Fields_Of(form.type())) {
    std::string& text = form.fields[std::string(field.field)];
    if (field.is == Is::Options) text = First_Option(field.control);
    if (field.is == Is::Tick) text = "0";
  }
  Offer_Ticks(*session.dbCompany, form);
  return form;
}

PayItemForm Pay_Item_Form(Session& session, ListRow& row) {
  PayItemForm form{.Name = row.key(), .Type = row["Type"].text()};
  form.TaxPaid = row["TaxPaid"].text();
  for (const PayItemField& field : Fields_Of(form.type()))
    form.fields[std::string(field.field)] =
        field.is == Is::Tick ? (row[field.field].flag() ? "1" : "0") : row[field.field].text();
  Read_Ticks(*session.dbCompany, form);
  return form;
}

std::vector<CategoryRow> Pay_Item_Categories(Session& session, std::string_view type, const std::string& keep) {
  std::vector<CategoryRow> rows;
  const CategoryRow* kept = nullptr;
  const auto all = Make_Expense_List(*session.dbCompany);
  bool wanted = false, there = keep.empty();
  for (const CategoryRow& row : all) {
    if (row.level == 0) wanted = same_text(row.AccountType, type);
    if (wanted) rows.push_back(row);
    if (row.CatID != keep) continue;
    kept = &row;
    there = there || wanted;
  }
  if (!there) {
    CategoryRow& own = rows.emplace_back();
    own.CatID = keep;
    own.AccountName = kept ? kept->AccountName : keep;
  }
  return rows;
}

void Prefill_Unemployment(PayItemForm& form) {
  const PayrollDefault* known = Unemployment_Default(form.at("SState"));
  if (form.at("TaxType") != unemployment || !known) return;
  form.fields["UnempTaxRate"] = known->rate;
  form.fields["DefaultLimit"] = known->limit ? known->limit->to_text() : "";
  form.fields["WFRate"] = known->workforce_fee ? store::Value(*known->workforce_fee).text() : "";
}

RowSave Save_Pay_Item(Session& session, ListRow& row, const PayItemForm& form) {
  if (auto fault = Pay_Item_Fault(session, row, form)) return {.fault = std::move(fault)};
  if (!Wants_Rate(session, row, form)) return {.stayed = true};
  return Save_Row(session, row, "payroll item " + trim(form.Name), [&](ListRow& fields) {
    auto fault = Name_Fault(session, fields, form);  // another user may have taken it just now
    if (fault) return fault;
    Write_Item(fields, form);
    fields.is_new() ? Write_New_Ticks(*session.dbCompany, form, trim(form.Name)) : Save_Ticks(*session.dbCompany, form);
    return fault;
  });
}

std::vector<PayItemListRow> Make_Pay_Item_List(Session& session) {
  std::vector<PayItemListRow> rows;
  session.dbCompany->each("SELECT Name, Type FROM PayrollItems ORDER BY Type, RowKey", {}, [&](const store::Row& row) {
    rows.push_back({std::string(row.text(0)), std::string(row.text(1))});
  });
  return rows;
}

bool Delete_Pay_Item(Session& session, const std::string& name) {
  if (!Wants_Deleted(session, name)) return false;
  Database& db = *session.dbCompany;
  store::Transaction tx(db, "Deleted payroll item " + name);
  Delete_Ticks(db, name);
  db.Execute("DELETE FROM PayrollItems WHERE Name = ?", {name});
  tx.commit();
  return true;
}

}  // namespace tallymere
