#include "core/company/preference_form.h"

#include "core/company/logo.h"
#include "core/company/preferences.h"
#include "core/values/format.h"
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
    {preference::ClosingDate, &PreferenceForm::ClosingDate},
};

/// "18" or "18%", or nothing at all.
bool Is_Rate(std::string text) {
  text = trim(text);
  if (text.empty()) return true;
  if (text.ends_with('%')) text.pop_back();
  const auto rate = Money::parse(text);
  return rate && !rate->is_negative();
}

/// The history says when the books were closed and opened.
std::string What(const PreferenceForm& before, const PreferenceForm& now) {
  if (now.ClosingDate == before.ClosingDate) return "Preferences";
  if (now.ClosingDate.empty()) return "Preferences, closing date lifted";
  return "Preferences, books closed up to " + Format(*Date::from_iso(now.ClosingDate), "m/d/yyyy");
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
  if (!now.ClosingDate.empty() && !Date::from_iso(now.ClosingDate))
    return Fault{{"The closing date is a date, or nothing.", "No Value"}, "txtClosingDate"};
  store::Transaction tx(*session.dbCompany, What(before, now));
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
