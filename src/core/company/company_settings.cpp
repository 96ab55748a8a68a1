#include "core/company/company_settings.h"

#include "core/company/preferences.h"
#include "core/store/recordset.h"

namespace tallymere {
namespace {

struct InfoField {
  const char* name;
  std::string CompanyInfo::*text;
};
constexpr InfoField info_fields[] = {
    {"Name", &CompanyInfo::Name},
    {"Address", &CompanyInfo::Address},
    {"LegalAddress", &CompanyInfo::LegalAddress},
    {"LegalCity", &CompanyInfo::LegalCity},
    {"LegalState", &CompanyInfo::LegalState},
    {"LegalZip", &CompanyInfo::LegalZip},
    {"LegalName", &CompanyInfo::LegalName},
    {"FiscalMonth", &CompanyInfo::FiscalMonth},
    {"TaxMonth", &CompanyInfo::TaxMonth},
    {"FedID", &CompanyInfo::FedID},
};
constexpr std::array<const char*, 4> custom_fields = {"Cust1", "Cust2", "Cust3", "Cust4"};
constexpr int64_t white = 0xFFFFFF;

store::Table& Info(Session& session) {
  session.sets.CompanyInfo->MoveFirst();
  return *session.sets.CompanyInfo;
}

}  // namespace

CompanyInfo Read_Company_Info(Session& session) {
  CompanyInfo info;
  store::Table& row = Info(session);
  for (const InfoField& field : info_fields) info.*field.text = row[field.name].text();
  return info;
}

std::optional<Fault> Save_Company_Info(Session& session, const CompanyInfo& before, const CompanyInfo& now,
                                       const NewPassword& password) {
  if (password.once != password.again)
    return Fault{{"Your password and password confirmation does not match", "No Match"}, "txtPassword"};
  store::Transaction tx(*session.dbCompany, "Company Info");
  if (Read_Company_Info(session) != before)
    throw store::Error(store::errors::data_changed, "Another user has changed the company's data.");
  store::Table& row = Info(session);
  row.Edit();
  for (const InfoField& field : info_fields) row[field.name] = now.*field.text;
  if (password.touched) row["Password"] = Hash_Password(password.once);
  row.Update();
  tx.commit();
  return {};
}

CustomFields Read_Custom_Fields(Session& session) {
  CustomFields captions;
  for (size_t at = 0; at < captions.size(); ++at) captions[at] = Info(session)[custom_fields[at]].text();
  return captions;
}

void Save_Custom_Fields(Session& session, const CustomFields& captions) {
  store::Transaction tx(*session.dbCompany, "Customize Fields");
  store::Table& row = Info(session);
  row.Edit();
  for (size_t at = 0; at < captions.size(); ++at) row[custom_fields[at]] = captions[at];
  row.Update();
  tx.commit();
}

WindowColors Read_Colors(Session& session) {
  WindowColors colors;
  for (size_t at = 0; at < colors.size(); ++at)
    colors[at] = Background(*session.dbCompany, Colored_Windows[at].key).value_or(white);
  return colors;
}

void Save_Colors(Session& session, const WindowColors& colors) {
  store::Transaction tx(*session.dbCompany, "Colors");
  for (size_t at = 0; at < colors.size(); ++at) Set_Background(*session.dbCompany, Colored_Windows[at].key, colors[at]);
  tx.commit();
}

}  // namespace tallymere
