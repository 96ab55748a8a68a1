#include "entry/document/document.h"

#include "core/values/format.h"

namespace tallymere {

// --- saving ----------------------------------------------------------------------------------------------

Fault Mistake(std::string text, std::string title, std::string control) {
  return {{std::move(text), std::move(title), Icon::Information}, std::move(control)};
}

std::optional<Fault> Balance_Fault(Money lines, Money amount, std::string control) {
  if (lines == amount) return std::nullopt;
  return Mistake("Transaction does not Balance", "No Balance", std::move(control));
}

std::string Spoken(const std::string& Type, const std::string& Number, const std::string& Name,
                   std::optional<Money> amount) {
  std::string words = Type;
  if (!Number.empty() && Number != "Print") words += " " + Number;
  if (!Name.empty()) words += (Type.ends_with("heck") ? " to " : ", ") + Name;
  if (amount) words += " for " + Dollar_Text(*amount);
  return words;
}

int64_t CategoriesMade::Newest() const {
  return session_.dbCompany->value("SELECT MAX(RowKey) FROM Accounts").integer();
}

bool Confirm_Delete(Prompts& prompts, const std::string& question, bool cleared, const std::string& spoken,
                    const std::string& title) {
  const std::string what = "Delete " + spoken + "?";
  if (!prompts.ask({question, title, Icon::Question, what}, Buttons::YesNoDefaultNo)) return false;
  return !cleared || prompts.ask({"This Transaction has been cleared by your bank, are you sure you want to "
                                  "delete this transaction?",
                                  "Transaction Cleared", Icon::Critical, what},
                                 Buttons::YesNoDefaultNo);
}

// --- windows ---------------------------------------------------------------------------------------------

std::string_view Entry_Window(std::string_view Type) {
  constexpr struct {
    std::string_view Type, window;
  } rows[] = {
      {"Payment", "frmPayments"},     {"Check", "frmCheck"},    {"Billcheck", "frmCheck"},
      {"Liabilitycheck", "frmCheck"}, {"Paycheck", "frmCheck"}, {"Bill", "frmBills"},
      {"Item Receipt", "frmBills"},   {"Credit", "frmBills"},   {"Invoice", "frmInvoice"},
      {"Ledger Entry", "frmJournal"},
  };
  for (const auto& row : rows)
    if (row.Type == Type) return row.window;
  return "";
}

}  // namespace tallymere
