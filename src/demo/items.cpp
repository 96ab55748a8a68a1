#include "demo/items.h"

#include <algorithm>
#include <array>

#include "demo/rows.h"

namespace tallymere::demo {
namespace {

struct Work {
  std::string_view name, parent;
  std::string Chart::*category;
  int price;  // dollars an hour or a unit
  std::string_view description;
};
constexpr std::array services = {
    Work{"Design", "", &Chart::design, 95, "Garden design, per hour"},
    Work{"Consultation", "", &Chart::services, 80, "Consultation on site, per hour"},
    Work{"Installation", "", &Chart::installation, 65, "Installation crew, per hour"},
    Work{"Lighting Installation", "Installation", &Chart::installation, 72, "Lighting installation, per hour"},
    Work{"Paving", "Installation", &Chart::installation, 78, "Paving crew, per hour"},
    Work{"Maintenance", "", &Chart::upkeep, 58, "Maintenance visit, per hour"},
    Work{"Mowing", "Maintenance", &Chart::upkeep, 52, "Mowing and edging, per hour"},
    Work{"Pruning", "Maintenance", &Chart::upkeep, 66, "Pruning of trees and shrubs, per hour"},
    Work{"Snow Removal", "", &Chart::upkeep, 90, "Snow removal, per hour"},
};
constexpr std::array goods = {
    Work{"Mulch", "", &Chart::sales, 42, "Hardwood mulch, cubic yard"},
    Work{"Topsoil", "", &Chart::sales, 38, "Screened topsoil, cubic yard"},
    Work{"Gravel", "", &Chart::sales, 55, "River gravel, cubic yard"},
    Work{"Sod", "", &Chart::sales, 4, "Bluegrass sod, roll"},
    Work{"Shrubs", "", &Chart::sales, 28, "Shrub, 3 gallon"},
    Work{"Shade Tree", "", &Chart::sales, 185, "Shade tree, 2 inch"},
};
struct Ware {
  std::string_view name;
  int price, cost;  // cents
  std::string_view description;
};
constexpr std::array wares = {
    Ware{"Path Light", 4450, 2610, "Path light, bronze"},
    Ware{"Sprinkler Head", 1295, 640, "Pop-up sprinkler head"},
    Ware{"Drip Kit", 5900, 3325, "Drip irrigation kit"},
    Ware{"Irrigation Timer", 8975, 5210, "Irrigation timer, 6 zones"},
    Ware{"Garden Hose", 3450, 1890, "Garden hose, 50 feet"},
    Ware{"Hand Pruner", 2725, 1480, "Hand pruner"},
    Ware{"Leaf Rake", 2195, 1105, "Leaf rake"},
    Ware{"Wheelbarrow", 12950, 7840, "Wheelbarrow, 6 cubic feet"},
    Ware{"Stone Planter", 7600, 4025, "Cast stone planter"},
    Ware{"Bird Bath", 9850, 5575, "Bird bath, granite"},
    Ware{"Rain Barrel", 11900, 6990, "Rain barrel, 55 gallons"},
    Ware{"Fertilizer", 3275, 1760, "Lawn fertilizer, 40 pounds"},
};

Money Cents(int64_t cents) { return Money::from_units(cents * 100); }

}  // namespace

Item& ItemList::Add(std::string_view name, std::string_view type, std::string_view category, Money price,
                    std::string_view description, bool taxable) {
  Item& item = all.emplace_back();
  item.name = name;
  item.type = type;
  item.category = category;
  item.price = price;
  item.description = description;
  item.taxable = taxable;
  return item;
}

Item* ItemList::find(std::string_view name) { return &*std::ranges::find(all, name, &Item::name); }

ItemList::ItemList(const Plan& plan, const Chart& chart, const Parties& parties, Random& random) {
  all.reserve(services.size() + goods.size() + static_cast<size_t>(plan.parts) + 10);
  for (const Work& work : demo::services) {
    Add(work.name, "Service", chart.*work.category, Money::dollars(work.price), work.description);
    all.back().parent = work.parent;
  }
  for (const Work& work : demo::goods)
    Add(work.name, "Non-Inventory Part", chart.*work.category, Money::dollars(work.price), work.description, true);
  Make_Parts(plan.parts, chart, parties, random);
  Add("Delivery", "Other Charge", chart.shipping, Money::dollars(45), "Delivery to the site");
  Add("Loyalty Discount", "Discount", chart.discounts, Money::dollars(-25), "For long-standing customers", true);
  Add("Subtotal", "Subtotal", "", Money(), "Subtotal");
  Add("Path Lighting Package", "Group", "", Money(), "Six path lights, installed");
  Add("Payment on Account", "Payment", "", Money(), "Payment received with the order");
  Add("State Sales Tax", "Sales Tax", chart.sales_tax, Money::from_units(625), "Sales tax, State of Illinois");
  Add("City Sales Tax", "Sales Tax", chart.sales_tax, Money::from_units(100), "Sales tax, City of Rockford");
  for (Item& item : all) {
    if (item.type == "Service") services.push_back(&item);
    if (item.type == "Non-Inventory Part") goods.push_back(&item);
    if (item.is_part()) parts.push_back(&item);
  }
  delivery = find("Delivery"), discount = find("Loyalty Discount"), subtotal = find("Subtotal");
  group = find("Path Lighting Package"), state_tax = find("State Sales Tax"), city_tax = find("City Sales Tax");
  light = find("Path Light"), lighting_work = find("Lighting Installation");
}

void ItemList::Make_Parts(int count, const Chart& chart, const Parties& parties, Random& random) {
  for (int index = 0; index < count; ++index) {
    const Ware& ware = wares[static_cast<size_t>(index) % wares.size()];
    const int model = index / static_cast<int>(wares.size());
    const std::string name = std::string(ware.name) + (model ? " " + std::to_string(model + 1) : "");
    Item& part = Add(name, "Inventory Part", chart.sales, Cents(ware.price + model * 175), ware.description, true);
    part.cost = Cents(ware.cost + model * 95);
    part.purchase_description = ware.description;
    part.cost_category = chart.cost_of_goods;
    part.asset = chart.inventory;
    part.vendor = random.pick(parties.suppliers)->name;
    part.initial = part.stock = random.between(12, 40);
    part.reorder = random.between(8, 15);
  }
}

Money ItemList::opening_value() const {
  Money value;
  for (const Item* part : parts) value += part->cost.times(part->initial);
  return value;
}

void ItemList::Write(store::Database& db, Date opening) const {
  for (const Item& item : all) {
    if (!item.is_part()) {
      const bool tax = item.type == "Sales Tax", payment = item.type == "Payment";
      Add_Row(db, "Items",
              {{"ItemName", item.name},
               {"ItemType", item.type},
               {"ParentItem", item.parent},
               {"Description", item.description},
               {"ItemCat", item.category},
               {"PriceRate", item.price},
               {"TaxVendor", tax ? (&item == city_tax ? city_hall : state_revenue) : ""},
               {"PayTo", payment ? undeposited : ""},
               {"PayMethod", payment ? "Check" : ""},
               {"InvTaxable", item.taxable},
               {"Dormant", false}});
      continue;
    }
    Add_Row(db, "Items",
            {{"ItemName", item.name},
             {"ItemType", item.type},
             {"ParentItem", item.parent},
             {"Description", item.description},
             {"InvPurchaseDesc", item.purchase_description},
             {"ItemCat", item.category},
             {"COGScat", item.cost_category},
             {"InvAsset", item.asset},
             {"InvVendor", item.vendor},
             {"PriceRate", item.price},
             {"Cost", item.cost},
             {"TotalValue", item.cost.times(item.initial)},
             {"InitialQty", item.initial},
             {"StockQty", item.initial},
             {"ReorderQty", item.reorder},
             {"InvTaxable", item.taxable},
             {"Dormant", false},
             {"InvDate", opening}});
  }
  for (const auto& [member, qty] : {std::pair{light, lights_in_group}, {lighting_work, hours_in_group}})
    Add_Row(db, "ItemGroups",
            {{"GroupName", group->name}, {"Item", member->name}, {"Description", member->description}, {"Qty", qty}});
  Add_Row(db, "ItemGroups",
          {{"GroupName", group->name}, {"Item", subtotal->name}, {"Description", subtotal->description}});
}

}  // namespace tallymere::demo
