#include "core/company/preference_form.h"

#include "core/company/logo.h"
#include "core/company/preferences.h"
#include "core/values/money.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

struct Key {
  std::string_view name;
  std::string PreferenceForm::*State;
  bool keeps_when_empty = false;
};
constexpr Key keys[] = {
    {preference::ToolBarVisible, &PreferenceForm::ToolBarVisible},
    {preference::InvoiceStyle, &PreferenceForm::InvoiceStyle},
    {preference::FirstDay, &PreferenceForm::FirstDay},
    {preference::PayrollPosting, &PreferenceForm::PayrollPosting, true},
    {preference::PrintInvoice, &PreferenceForm::PrintInvoice},
    {preference::LogoPath, &PreferenceForm::LogoPath},
    {preference::DefaultBank, &PreferenceForm::DefaultBank, true},
    {preference::FinanceAPR, &PreferenceForm::FinanceAPR},
    {preference::FinanceCat, &PreferenceForm::FinanceCat, true},
    {preference::Feed, &PreferenceForm::Feed},
    {preference::Style, &PreferenceForm::Style},
    {preference::SalesBase, &PreferenceForm::SalesBase},
    {preference::ItemSort, &PreferenceForm::ItemSort, true},
};

/// "18" or "18%", or nothing at all.
bool Is_Rate(std::string text) {
  text = trim(text);
  if (text.empty()) return true;
  if (text.ends_with('%')) text.pop_back();
  const auto rate = Money::parse(text);
  return rate && !rate->is_negative();
}

}  // namespace

PreferenceForm Read_Preferences(Session& session) {
  PreferenceForm form;
  for (const Key& key : keys) form.*key.State = Preference(*session.dbCompany, key.name);
  return form;
}

std::optional<Fault> Save_Preferences(Session& session, const PreferenceForm& before, const PreferenceForm& now) {
  if (!Is_Rate(now.FinanceAPR))
    return Fault{{"The annual finance rate is a number, with or without \"%\".", "No Value"}, "txtAPR"};
  if (now.logo && now.logo->size() > Largest_Logo)
    return Fault{{"This picture is too large for a logo: 2 MB at most.", "Company Logo"}, "txtLogo"};
  store::Transaction tx(*session.dbCompany, "Preferences");
  for (const Key& key : keys) {
    const std::string& State = now.*key.State;
    if (State == before.*key.State || (State.empty() && key.keeps_when_empty)) continue;
    Set_Preference(*session.dbCompany, key.name, State);
  }
  if (now.logo) Set_Company_Logo(*session.dbCompany, *now.logo);
  tx.commit();
  return {};
}

}  // namespace tallymere
