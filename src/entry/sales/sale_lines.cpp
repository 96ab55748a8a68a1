#include "entry/sales/sale_lines.h"

#include "core/store/recordset.h"

namespace tallymere {

const ItemFacts& SaleItems::of(const std::string& ItemName) {
  const auto found = facts_.find(ItemName);
  if (found != facts_.end()) return found->second;
  return facts_.emplace(ItemName, Item_Facts(session_, ItemName)).first->second;
}

namespace {

constexpr Money half_cent_nudge = Money::from_units(10);

/// Items keep "10%" as a tenth of a dollar: less than one of either sign is a rate.
bool Is_Rate(const std::optional<Money>& price) {
  return price && !price->is_zero() && price->abs() < Money::dollars(1);
}

bool Lowers(std::string_view ItemType) { return ItemType == "Discount" || ItemType == "Payment"; }

bool Is_Percent(std::string_view ItemType, const ItemLine& line) {
  return ItemType == "Discount" && Is_Rate(line.Cost);
}

}  // namespace

ItemLine Chosen_Line(const ItemFacts& item, ItemLine line) {
  line.Item = item.ItemName;
  line.Description = item.Description;
  line.CatID = item.posts_to();
  line.Cost = item.PriceRate;
  line.Tax = item.InvTaxable;
  line.Amount = item.ItemType == "Payment" ? Money() : Item_Amount(line, item.ItemType);
  Lower_Total(item.ItemType, line);
  return line;
}

void Lower_Total(std::string_view ItemType, ItemLine& line) {
  const bool back = line.Quantity && *line.Quantity < 0;  // it is taken back, as in a credit
  if (Lowers(ItemType) && !back && line.Amount) line.Amount = -line.Amount->abs();
}

void Reckon_Lines(SaleItems& items, std::vector<ItemLine>& lines) {
  Money sum, taxable;
  for (ItemLine& line : lines) {
    const std::string& type = items.type(line.Item);
    if (type == "Subtotal") line.Amount = sum;
    if (type == "Sales Tax")
      line.Amount = (taxable.times(Line_Rate(line, items.of(line.Item)).factor()) + half_cent_nudge).rounded_to_cents();
    if (Is_Percent(type, line)) {
      const Money part = Line_Rate(line, items.of(line.Item)).of(sum);
      line.Amount = line.Cost->is_negative() ? part : -part;
    }
    if (type != "Subtotal") sum += line.Amount.value_or(Money());
    if (line.Tax && type != "Sales Tax" && type != "Subtotal") taxable += line.Amount.value_or(Money());
  }
}

Money Total_Of(SaleItems& items, const std::vector<ItemLine>& lines) {
  Money total;
  for (const ItemLine& line : lines)
    if (items.type(line.Item) != "Subtotal") total += line.Amount.value_or(Money());
  return total;
}

std::vector<ItemLine> Group_Members(Session& session, SaleItems& items, const std::string& GroupName) {
  std::vector<ItemLine> members;
  auto rows =
      session.dbCompany->OpenRecordset("SELECT * FROM ItemGroups WHERE GroupName = ? ORDER BY RowKey", {GroupName});
  for (; !rows.Eof(); rows.MoveNext()) {
    const ItemFacts& item = items.of(rows["Item"].text());
    if (!item.known) continue;
    ItemLine line;
    if (!rows["Qty"].blank()) line.Quantity = rows["Qty"].number();
    line = Chosen_Line(item, std::move(line));
    if (!rows["Description"].blank()) line.Description = rows["Description"].text();
    if (!line.Quantity) line.Amount.reset();
    members.push_back(std::move(line));
  }
  return members;
}

}  // namespace tallymere
