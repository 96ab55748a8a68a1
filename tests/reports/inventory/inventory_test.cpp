#include <cmath>

#include "support/random_books.h"

namespace tallymere {
namespace {

using testing::Books;
using testing::D;
using testing::Posting;
using testing::RandomBooks;
using Strings = std::vector<std::string>;
using Item = RandomBooks::Item;

std::string Number_Text(double value) { return store::Value(value + 0.0).text(); }

struct Plainly {
  const RandomBooks& books;
  Date as_of;
  Strings lines = {};

  bool moves(const Posting& row, const Item& item) const {
    return row.Item == item.ItemName && row.SourceName != "Inventory Part" && row.day <= as_of;
  }
  double stock(const Item& item) const {
    double qty = item.InitialQty;
    for (const Posting& row : books.rows)
      if (moves(row, item)) qty += row.Qty.value_or(0);
    return qty;
  }
  Money cost(const Item& item) const {
    Money amount;
    double qty = 0;
    for (const Posting& row : books.rows)
      if (row.Item == item.ItemName && row.day <= as_of &&
          (row.Type == "Inv Adjust" || row.Type == "Check" || row.Type == "Bill")) {
        amount += row.Debit - row.Credit;
        qty += row.Qty.value_or(0);
      }
    return std::abs(qty) < 1e-9 ? Money() : Money::from_double(amount.to_double() / qty);
  }
  double per_week(const Item& item) const {
    double sold = 0;
    std::optional<Date> first;
    for (const Posting& row : books.rows) {
      if (row.Item != item.ItemName || row.day > as_of) continue;
      if (!first || row.day < *first) first = row.day;
      if (moves(row, item) && row.Qty.value_or(0) < 0) sold -= *row.Qty;
    }
    if (!first) return 0;
    int weeks = 0;
    for (Date day = first->plus_days(1); day <= as_of; day = day.plus_days(1)) weeks += day.weekday() == 1;
    return std::round(sold / std::max(weeks, 1) * 100) / 100;
  }

  /// Every part in use that is reached from the top, with its depth.
  void walk(const std::function<void(const Item&, int)>& fn) const {
    std::vector<const Item*> sorted;
    for (const Item& item : books.items) sorted.push_back(&item);
    std::sort(sorted.begin(), sorted.end(), [](auto* a, auto* b) { return folded(a->ItemName) < folded(b->ItemName); });
    const std::function<void(const Item&, int)> visit = [&](const Item& item, int level) {
      if (item.Dormant || item.ItemType != "Inventory Part") return;
      fn(item, level);
      for (const Item* child : sorted)
        if (!child->ParentItem.empty() && child->ParentItem == replace_all(item.ItemName, ".", ""))
          visit(*child, level + 1);
    };
    for (const Item* item : sorted) {
      const bool has_parent = std::any_of(sorted.begin(), sorted.end(), [&](const Item* other) {
        return replace_all(other->ItemName, ".", "") == item->ParentItem;
      });
      if (!has_parent) visit(*item, 0);
    }
  }

  static std::string label(const Item& item, int level) {
    return std::string(static_cast<size_t>(level) * 5, ' ') + item.ItemName;
  }
  void status(const Item& item, int level) {
    lines.push_back(label(item, level) + "||" + item.InvVendor + "|" + Number_Text(item.ReorderQty) + "|" +
                    Number_Text(stock(item)) + "|" + Number_Text(per_week(item)));
  }
  void value(const Item& item, int level) {
    const double qty = stock(item);
    lines.push_back(label(item, level) + "||" + Number_Text(qty) + "|" + cost(item).to_text() + "|" +
                    cost(item).times(qty).to_text() + "|" + item.PriceRate.to_text() + "|" +
                    item.PriceRate.times(qty).to_text());
  }
};

TEST(InventoryReports, AgreeWithAPlainReadingOnRandomBooks) {
  Books books;
  int figures = 0;
  for (unsigned seed = 1; seed <= 80 && !HasFailure(); ++seed) {
    RandomBooks random(seed);
    random.write(books);
    const Date as_of = random.day();
    const auto report = [&](const char* key) { return testing::Lines(books.report(key, as_of, as_of)); };
    Plainly status{random, as_of}, value{random, as_of}, count{random, Date(2100, 1, 1)};
    status.walk([&](const Item& item, int level) { status.status(item, level); });
    EXPECT_EQ(report("InvItem"), status.lines) << "seed " << seed;

    Money worth, retail;
    double all = 0;
    value.walk([&](const Item& item, int level) {
      value.value(item, level);
      all += value.stock(item);
      worth += value.cost(item).times(value.stock(item));
      retail += item.PriceRate.times(value.stock(item));
    });
    value.lines.push_back("Total||" + Number_Text(all) + "||" + worth.to_text() + "||" + retail.to_text());
    EXPECT_EQ(report("InvValSum"), value.lines) << "seed " << seed;

    count.walk([&](const Item& item, int level) {
      count.lines.push_back(Plainly::label(item, level) + "||" + Number_Text(count.stock(item)) + "|___________");
    });
    EXPECT_EQ(report("InvCount"), count.lines) << "seed " << seed;

    const Strings detail = report("InvValDetail");
    EXPECT_EQ(detail.back(), "Total|||" + Number_Text(all) + "||" + worth.to_text()) << "seed " << seed;
    for (const std::string& line : value.lines) figures += line.find_first_of("123456789") != std::string::npos;
  }
  EXPECT_GT(figures, 100);
}

TEST(InventoryReports, RowsOfTheDetailAddUpToTheirFeet) {
  Books books;
  int feet = 0;
  for (unsigned seed = 1; seed <= 20; ++seed) {
    RandomBooks(seed).write(books);
    const ReportTable table = books.report("InvValDetail", Date(2026, 6, 15), Date(2026, 6, 15));
    double qty = 0;
    Money value;
    for (int row = 0; row < table.rows(); ++row) {
      if (table.role(row) == Role::Head) qty = 0, value = {};
      if (table.role(row) == Role::Detail) qty += table.value(row, 4).number(), value += table.value(row, 6).money();
      if (table.role(row) != Role::Total) continue;
      EXPECT_DOUBLE_EQ(table.value(row, 4).number(), qty);
      EXPECT_EQ(table.value(row, 6).money(), value);
      ++feet;
    }
  }
  EXPECT_GT(feet, 10);
}

TEST(InventoryReports, AnInvoiceLineMovesStockOnceAndTheSameWeekDividesByOne) {
  Books books;
  books.run(
      "INSERT INTO Items (ItemName, ItemType, InitialQty, InvVendor, Dormant) VALUES ('Rake', 'Inventory Part', 10,"
      " 'Toolworks', 0), ('Rake.s', 'Inventory Part', 1, '', 0), ('Old', 'Inventory Part', 1, '', -1)");
  books.run(
      "INSERT INTO Items (ItemName, ItemType, ParentItem, InitialQty, Dormant) VALUES"
      " ('Steel', 'Inventory Part', 'Rakes', 2, 0), ('Part of Old', 'Inventory Part', 'Old', 3, 0)");
  const Date monday(2026, 6, 8), saturday(2026, 6, 13), sunday(2026, 6, 14);
  const auto post = [&](int64_t number, const char* type, Date day, double qty, const char* source) {
    Posting row{.TransNum = number, .Type = type, .day = day, .Account = "Stock", .Debit = D(12)};
    row.Item = "Rake";
    row.Qty = qty;
    row.SourceName = source;
    books.post(row);
  };
  post(1, "Bill", monday, 5, "");
  for (int line = 0; line < 2; ++line)
    for (const char* source : {"Product", "Inventory Part", "Inventory Part"}) post(2, "Invoice", monday, -3, source);
  const auto rake = [&](const char* key, Date day) { return testing::Line_Of(books.report(key, day, day), "Rake"); };
  EXPECT_EQ(rake("InvItem", saturday), "Rake||Toolworks|0|9|6");
  EXPECT_EQ(rake("InvItem", sunday), "Rake||Toolworks|0|9|6") << "one Sunday since";
  EXPECT_EQ(rake("InvItem", Date(2026, 6, 21)), "Rake||Toolworks|0|9|3");
  EXPECT_EQ(rake("InvItem", Date(2026, 6, 1)), "Rake||Toolworks|0|10|0");
  EXPECT_EQ(testing::Lines(books.report("InvVendor", sunday, sunday)),
            (Strings{"No Vendor", "Part of Old|||0|3|0", "Rake.s|||0|1|0", "Steel|||0|2|0", "Toolworks",
                     "Rake||Toolworks|0|9|6"}));
  EXPECT_EQ(testing::Lines(books.report("InvCount", sunday, sunday)),
            (Strings{"Rake||9|___________", "Rake.s||1|___________", "     Steel||2|___________"}));
  EXPECT_EQ(books.report("InvCount", sunday, sunday).heading.period, "All Transactions");
}

}  // namespace
}  // namespace tallymere
