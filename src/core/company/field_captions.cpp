#include "core/company/field_captions.h"

#include <cctype>

namespace tallymere {
namespace {

struct Caption {
  std::string_view field, words;
};
constexpr Caption captions[] = {
    {"1099Cat", "1099 Category"},
    {"1099MISC", "1099-MISC"},
    {"Account", "Category"},
    {"AccountName", "Category"},
    {"AccountNum", "Acct #"},
    {"AccountType", "Type"},
    {"AcctNum", "Acct #"},
    {"AdvDays", "Days Ahead"},
    {"CatID", "Category"},
    {"Category", "<-Break Down->"},
    {"COGScat", "Cost of Goods Category"},
    {"DefaultLimit", "Limit"},
    {"DefaultRate", "Amount"},
    {"ExpenseAcct", "Expense Category"},
    {"FedAllow", "Fed Allowances"},
    {"FedStatus", "Federal Filing Status"},
    {"FedWithHolding", "Fed Extra Amt"},
    {"InvVendor", "Prefered Vendor"},
    {"ItemCat", "Category"},
    {"ItemDescription", "Description"},
    {"ItemName", "Item"},
    {"ItemType", "Type"},
    {"LiabilityAcct", "Liability Category"},
    {"NumRemain", "Remaining"},
    {"ParentAccount", "Parent Category"},
    {"PONum", "PO #"},
    {"PriceRate", "Price"},
    {"ReorderQty", "Reorder Pt"},
    {"ShippingAddress", "Ship To"},
    {"SourceCat", "Source Account"},
    {"SourceName", "Source"},
    {"SSNum", "SS #"},
    {"StateAllow", "State Allowances"},
    {"StateStatus", "State Filing Status"},
    {"StateWithHolding", "State Extra Amt"},
    {"TransactionID", "Trans #"},
    {"TransNum", "Trans #"},
    {"Via", "Ship Via"},
    {"VIA", "Ship Via"},
};

bool Is_Upper(char c) { return std::isupper(static_cast<unsigned char>(c)) != 0; }
bool Is_Lower(char c) { return std::islower(static_cast<unsigned char>(c)) != 0; }

/// "PaidThrough" is "Paid Through", "FUTAHold" "FUTA Hold".
std::string In_Words(std::string_view field) {
  std::string words;
  for (size_t at = 0; at < field.size(); ++at) {
    const bool ends_capitals = at + 1 < field.size() && at > 0 && Is_Upper(field[at - 1]) && Is_Lower(field[at + 1]);
    if (at > 0 && Is_Upper(field[at]) && (Is_Lower(field[at - 1]) || ends_capitals)) words += ' ';
    words += field[at];
  }
  return words;
}

}  // namespace

std::string Field_Caption(std::string_view field) {
  for (const Caption& caption : captions)
    if (caption.field == field) return std::string(caption.words);
  return In_Words(field);
}

}  // namespace tallymere
