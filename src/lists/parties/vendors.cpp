#include "lists/parties/vendors.h"

#include "core/values/text.h"
#include "lists/named_rows.h"

namespace tallymere {
namespace {

/// The texts of the form, and the fields they stand for.
constexpr std::pair<const char*, std::string VendorForm::*> texts[] = {
    {"Contact", &VendorForm::Contact},
    {"Phone", &VendorForm::Phone},
    {"AltPhone", &VendorForm::AltPhone},
    {"FaxPhone", &VendorForm::FaxPhone},
    {"EmailAddress", &VendorForm::EmailAddress},
    {"AccountNum", &VendorForm::AccountNum},
    {"CheckPrint", &VendorForm::CheckPrint},
    {"Terms", &VendorForm::Terms},
    {"ShippingAddress", &VendorForm::ShippingAddress},
    {"Notes", &VendorForm::Notes},
    {"TaxID", &VendorForm::TaxID},
};

Form1099 Form_Of(ListRow& row) { return row["1099MISC"].flag() ? Form1099::MISC : Form1099::INT; }

/// The text as it was, where it says the same.
std::string Boxes_To_Keep(ListRow& row, const VendorForm& form) {
  if (row.is_new()) return Boxes_Text(form.boxes);
  const std::string before = row["Boxes"].text();
  if (!form.chk1099) return before;
  const bool same = !before.empty() && Form_Of(row) == form.form && Selected_Boxes(before, form.form) == form.boxes;
  return same ? before : Boxes_Text(form.boxes);
}

std::optional<Fault> Write_Vendor(ListRow& row, const VendorForm& form) {
  for (const auto& [field, text] : texts) row.set_text(field, form.*text);
  row.set_text("Boxes", Boxes_To_Keep(row, form));
  if (form.chk1099 || row.is_new()) {
    row.set_text("1099Cat", form.lblCat);
    row.set_flag("1099MISC", form.form == Form1099::MISC);
  }
  row.set_flag("Eligible1099", form.chk1099);
  row.set_flag("Dormant", form.Dormant);
  if (row.is_new()) row["Balance"] = Money();
  return std::nullopt;
}

}  // namespace

std::vector<VendorRow> Make_Vendor_List(Session& session, bool show_dormant) {
  std::vector<VendorRow> rows;
  session.dbCompany->each("SELECT Name, Balance, Dormant FROM Vendors ORDER BY Name", {}, [&](const store::Row& row) {
    if (show_dormant || !row.flag(2)) rows.push_back({std::string(row.text(0)), row.money(1), row.flag(2)});
  });
  return rows;
}

VendorForm Vendor_Form(ListRow& row) {
  VendorForm form;
  if (row.is_new()) return form;
  form.Name = row.key();
  for (const auto& [field, text] : texts) form.*text = row[field].text();
  form.chk1099 = row["Eligible1099"].flag();
  form.lblCat = row["1099Cat"].text();
  form.form = Form_Of(row);
  form.boxes = Selected_Boxes(row["Boxes"].text(), form.form);
  form.Dormant = row["Dormant"].flag();
  return form;
}

RowSave Save_Vendor(Session& session, ListRow& row, const VendorForm& form) {
  if (trim(form.Name).empty())
    return {.fault = Fault{{"Please enter a Name", "No Name", Icon::Information}, "txtName"}};
  if (form.chk1099 && trim(form.TaxID).empty())
    return {.fault = Fault{{"Please Supply a Valid Tax ID", "No Value", Icon::Information}, "txtTaxID"}};
  return Save_Named_Row(session, row, {.list = NameList::Vendors, .name = form.Name, .carry = form.carry},
                        [&](ListRow& fields) { return Write_Vendor(fields, form); });
}

}  // namespace tallymere
