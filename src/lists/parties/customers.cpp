#include "lists/parties/customers.h"

#include "core/ledger/tree_list.h"
#include "core/values/caseless.h"
#include "lists/named_rows.h"

namespace tallymere {
namespace {

/// The texts of the form, and the fields they stand for.
constexpr std::pair<const char*, std::string CustomerForm::*> texts[] = {
    {"Contact", &CustomerForm::Contact},
    {"Phone", &CustomerForm::Phone},
    {"AltPhone", &CustomerForm::AltPhone},
    {"AltContact", &CustomerForm::AltContact},
    {"FaxPhone", &CustomerForm::FaxPhone},
    {"EmailAddress", &CustomerForm::EmailAddress},
    {"AccountNum", &CustomerForm::AccountNum},
    {"RepName", &CustomerForm::RepName},
    {"BillingAddress", &CustomerForm::BillingAddress},
    {"ShippingAddress", &CustomerForm::ShippingAddress},
    {"Notes", &CustomerForm::Notes},
};

std::vector<CustomerRow> Read_Customers(store::Database& db) {
  std::vector<CustomerRow> rows;
  db.each("SELECT Name, ParentName, Balance, Dormant FROM Customers ORDER BY Name", {}, [&](const store::Row& row) {
    rows.push_back({std::string(row.text(0)), std::string(row.text(1)), row.money(2), row.flag(3)});
  });
  Raise_Lost_Rows(rows, &CustomerRow::ParentName);
  return rows;
}

std::optional<Fault> Write_Customer(Session& session, ListRow& row, const CustomerForm& form) {
  const std::string parent = form.chkSubJob ? form.ParentName : "";
  if (Is_Below_Itself(session, NameList::Customers, row.key(), parent))
    return Fault{{"\"" + parent + "\" is a job of this customer itself.", "No Parent", Icon::Information},
                 "cmbCustomers"};
  for (const auto& [field, text] : texts) row.set_text(field, form.*text);
  row.set_text("ParentName", parent);
  row.set_flag("Dormant", form.Dormant);
  if (row.is_new()) row["Balance"] = Money();
  return std::nullopt;
}

}  // namespace

std::vector<CustomerRow> Make_Customer_List(Session& session, bool show_dormant) {
  const auto rows = Read_Customers(*session.dbCompany);
  TreeList<CustomerRow> tree(rows);
  for (const CustomerRow& row : rows)
    if (row.ParentName.empty() && (show_dormant || !row.Dormant)) tree.add(row);
  return std::move(tree.list);
}

CustomerForm Customer_Form(ListRow& row) {
  CustomerForm form;
  if (row.is_new()) return form;
  form.Name = row.key();
  for (const auto& [field, text] : texts) form.*text = row[field].text();
  form.ParentName = row["ParentName"].text();
  form.chkSubJob = !form.ParentName.empty();
  form.Dormant = row["Dormant"].flag();
  return form;
}

std::vector<std::string> Customers_To_Be_Job_Of(Session& session, const std::string& name) {
  const auto rows = Read_Customers(*session.dbCompany);
  TreeList<CustomerRow> below(rows);
  for (const CustomerRow& row : rows)
    if (!name.empty() && same_text(row.Name, name)) below.add(row);
  CaselessMap<bool> left_out;
  for (const CustomerRow& row : below.list) left_out[row.Name] = true;
  std::vector<std::string> names;
  for (const CustomerRow& row : rows)
    if (!left_out.contains(row.Name)) names.push_back(row.Name);
  return names;
}

RowSave Save_Customer(Session& session, ListRow& row, const CustomerForm& form) {
  return Save_Named_Row(session, row, {.list = NameList::Customers, .name = form.Name, .carry = form.carry},
                        [&](ListRow& fields) { return Write_Customer(session, fields, form); });
}

}  // namespace tallymere
