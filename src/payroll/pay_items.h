#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/store/database.h"
#include "core/values/caseless.h"
#include "payroll/calc/rates.h"

/// Everything that can stand on a paycheck, and which of it moves the base of which tax.
namespace tallymere {

namespace fixed_items {
inline constexpr std::string_view federal_withholding = "Federal Withholding",
                                  social_security_company = "Social Security Company",
                                  social_security_employee = "Social Security Employee",
                                  medicare_company = "Medicare Company", medicare_employee = "Medicare Employee",
                                  federal_unemployment = "Federal Unemployment";
}  // namespace fixed_items

enum class ItemType {
  Wage,
  Commision,
  Addition,
  Deduction,
  CompanyContribution,
  FederalTax,
  StateTax,
  OtherTax,
  Other
};
ItemType Item_Type_Of(std::string_view text);
std::string_view Text_Of(ItemType type);  ///< "Company Contribution"; "" for Other
/// Federal, state and other taxes.
constexpr bool Is_Tax(ItemType type) {
  return type == ItemType::FederalTax || type == ItemType::StateTax || type == ItemType::OtherTax;
}

/// One row of PayrollItems; texts that were never filled are "".
struct PayItem {
  std::string Name = {}, Type = {}, TaxType = {}, PayCal = {}, PayStyle = {}, PayType = {}, TrackingType = {},
              SState = {};
  std::string LiabilityAcct = {}, ExpenseAcct = {}, LiabilityAgency = {}, LiabilityNumber = {};
  std::string DefaultRate = {}, UnempTaxRate = {}, TaxPaid = {};
  std::optional<Money> DefaultLimit = {};
  double WFRate = 0;
  bool QuantityBased = false, FUTACredit = false;

  ItemType type() const { return Item_Type_Of(Type); }
  bool is_salary() const { return PayType == "Salary"; }
  bool is_net_based() const { return PayCal == "Net"; }
  bool paid_by_employer() const { return TaxPaid == "Employer Paid Tax"; }
  Money limit() const { return DefaultLimit.value_or(Money()); }
  /// How many rows of the ledger an amount of this item stands in: two, when it has both categories. A sum over those
  /// rows counts it as often.
  int rows_per_amount() const { return !LiabilityAcct.empty() && !ExpenseAcct.empty() ? 2 : 1; }
};

class PayItems {
 public:
  PayItems() = default;
  /// Reads PayrollItems and PreTaxTable in two passes.
  static PayItems Read(store::Database& company);
  /// The same, read again only once somebody has changed the company.
  static std::shared_ptr<const PayItems> Of(store::Database& company);

  void add(PayItem item);
  void tick(std::string_view item, std::string_view tax);  ///< the item moves the base of the tax

  const std::vector<PayItem>& all() const { return items_; }  ///< as they were entered
  const PayItem* find(std::string_view name) const;           ///< nullptr when there is none
  /// Error 3021, which names it, when there is none.
  const PayItem& item(std::string_view name) const;
  /// The first one entered, or nullptr.
  const PayItem* state_withholding(std::string_view state) const;
  bool moves_base(std::string_view item, std::string_view tax) const;

 private:
  std::vector<PayItem> items_;
  CaselessMap<size_t> by_name_;
  CaselessMap<std::vector<std::string>> ticked_;  ///< by item: taxes
};

}  // namespace tallymere
