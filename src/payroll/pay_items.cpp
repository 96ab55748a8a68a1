#include "payroll/pay_items.h"

#include <algorithm>
#include <array>

#include "core/values/text.h"

namespace tallymere {
namespace {

constexpr std::array<std::string_view, 8> type_texts = {
    "Wage", "Commision", "Addition", "Deduction", "Company Contribution", "Federal Tax", "State Tax", "Other Tax"};

PayItem Item_Of(const store::Row& row) {
  auto text = [&row](int column) { return std::string(row.text(column)); };
  PayItem item{text(0), text(1), text(2),  text(3),  text(4),  text(5),  text(6), text(7),
               text(8), text(9), text(10), text(11), text(12), text(13), text(14)};
  if (!row.is_null(15)) item.DefaultLimit = row.money(15);
  item.WFRate = row.number(16);
  item.QuantityBased = row.flag(17);
  item.FUTACredit = row.flag(18);
  return item;
}

struct KeptItems {
  store::ChangeStamp stamp;
  std::shared_ptr<const PayItems> items;
};

}  // namespace

ItemType Item_Type_Of(std::string_view text) {
  const auto found = std::ranges::find_if(type_texts, [text](auto known) { return same_text(known, text); });
  return found == type_texts.end() ? ItemType::Other : static_cast<ItemType>(found - type_texts.begin());
}

std::string_view Text_Of(ItemType type) {
  return type == ItemType::Other ? std::string_view() : type_texts[static_cast<size_t>(type)];
}

PayItems PayItems::Read(store::Database& company) {
  PayItems items;
  company.each(
      "SELECT Name, Type, TaxType, PayCal, PayStyle, PayType, TrackingType, SState, LiabilityAcct, ExpenseAcct,"
      " LiabilityAgency, LiabilityNumber, DefaultRate, UnempTaxRate, TaxPaid, DefaultLimit, WFRate, QuantityBased,"
      " FUTACredit FROM PayrollItems ORDER BY RowKey",
      {}, [&items](const store::Row& row) { items.add(Item_Of(row)); });
  company.each("SELECT Name, TaxName FROM PreTaxTable WHERE Selected <> 0 ORDER BY RowKey", {},
               [&items](const store::Row& row) { items.tick(row.text(0), row.text(1)); });
  return items;
}

std::shared_ptr<const PayItems> PayItems::Of(store::Database& company) {
  KeptItems& kept = company.kept<KeptItems>();
  const store::ChangeStamp now = company.change_stamp();
  if (!kept.items || kept.stamp != now) {
    kept.items = std::make_shared<const PayItems>(Read(company));
    kept.stamp = now;
  }
  return kept.items;
}

void PayItems::add(PayItem item) {
  by_name_.emplace(item.Name, items_.size());
  items_.push_back(std::move(item));
}

void PayItems::tick(std::string_view item, std::string_view tax) { ticked_[std::string(item)].emplace_back(tax); }

const PayItem* PayItems::find(std::string_view name) const {
  const auto found = by_name_.find(name);
  return found == by_name_.end() ? nullptr : &items_[found->second];
}

const PayItem& PayItems::item(std::string_view name) const {
  if (const PayItem* found = find(name)) return *found;
  throw store::Error(store::errors::no_current_record,
                     "No current record. There is no payroll item \"" + std::string(name) + "\".");
}

const PayItem* PayItems::state_withholding(std::string_view state) const {
  const auto found = std::ranges::find_if(items_, [state](const PayItem& item) {
    return same_text(item.SState, state) && item.TaxType == "State Withholding";
  });
  return found == items_.end() ? nullptr : &*found;
}

bool PayItems::moves_base(std::string_view item, std::string_view tax) const {
  const auto found = ticked_.find(item);
  return found != ticked_.end() &&
         std::ranges::any_of(found->second, [tax](const std::string& ticked) { return same_text(ticked, tax); });
}

}  // namespace tallymere
