#include "core/company/preferences.h"
#include "entry/bank/sales_tax.h"
#include "reports/graph/graph.h"
#include "support/random_books.h"

namespace tallymere {
namespace {

using testing::Amount_Of;
using testing::Books;
using testing::D;
using testing::Posting;
using testing::RandomBooks;
using Strings = std::vector<std::string>;

std::string Number_Text(double value) { return store::Value(value).text(); }

/// The rules of the sales reports, item by item and name by name.
struct Plainly {
  const RandomBooks& books;
  Date start, end;
  Basis basis;
  Strings lines = {};

  bool counts(const Posting& row) const {
    return row.Type == "Invoice" && row.day >= start && row.day <= end && (basis == Basis::Accrual || row.Paid);
  }
  static Money signed_amount(const Posting& row, bool receivable) {
    const bool lowers = receivable ? !row.Credit.is_zero() : !row.Debit.is_zero();
    return lowers ? -Amount_Of(row) : Amount_Of(row);
  }

  std::vector<const Posting*> by_date(const std::function<bool(const Posting&)>& wanted) const {
    std::vector<const Posting*> found;
    for (const Posting& row : books.rows)
      if (wanted(row)) found.push_back(&row);
    std::stable_sort(found.begin(), found.end(),
                     [](auto* a, auto* b) { return std::pair(a->day, a->TransNum) < std::pair(b->day, b->TransNum); });
    return found;
  }

  /// Type and name, in the order of the report.
  std::vector<std::pair<std::string, std::string>> items() const {
    std::vector<std::pair<std::string, std::string>> all;
    for (const auto& item : books.items)
      if (item.ItemType != "Group") all.emplace_back(item.ItemType, item.ItemName);
    std::sort(all.begin(), all.end(),
              [](auto& a, auto& b) { return folded(a.first + "\n" + a.second) < folded(b.first + "\n" + b.second); });
    const bool strange =
        std::any_of(books.rows.begin(), books.rows.end(), [&](const Posting& row) { return of(row, "gone"); });
    if (strange) all.emplace_back("No longer listed", "gone");
    return all;
  }
  bool of(const Posting& row, const std::string& item) const {
    return counts(row) && row.Item == item && row.SourceName != "Inventory Part";
  }

  void item_summary() {
    struct Sum {
      double Qty = 0;
      Money Amount;
    };
    std::map<std::string, Sum> sums;
    Money grand;
    for (const auto& [type, name] : items())
      for (const Posting& row : books.rows)
        if (of(row, name)) {
          if (type != "Discount") sums[name].Qty -= row.Qty.value_or(0);
          sums[name].Amount += signed_amount(row, false);
          grand += signed_amount(row, false);
        }
    const auto add = [&](const std::string& label, const Sum& sum, bool with_price) {
      std::string line = label + "|" + Number_Text(sum.Qty + 0.0) + "|" + sum.Amount.to_text() + "|" +
                         Number_Text(grand.is_zero() ? 0 : sum.Amount.to_double() / grand.to_double());
      if (with_price && sum.Qty != 0)
        line += "|" + Money::from_double(sum.Amount.to_double() / sum.Qty).rounded_to_cents().to_text();
      lines.push_back(line);
    };
    std::string present;
    Sum of_type, all;
    const auto close = [&] {
      if (present.empty()) return;
      add("Total " + present, of_type, false);
      lines.emplace_back();
      all.Qty += of_type.Qty;
      of_type = {};
    };
    for (const auto& [type, name] : items()) {
      if (type != present) {
        close();
        lines.push_back(type);
        present = type;
      }
      add("     " + name, sums[name], true);
      of_type.Qty += sums[name].Qty;
      of_type.Amount += sums[name].Amount;
    }
    close();
    add("Total", {all.Qty, grand}, false);
  }

  void item_detail() {
    std::string present;
    Money total;
    for (const auto& [type, name] : items()) {
      if (type != present) lines.push_back(present = type);
      lines.push_back("     " + name);
      for (const Posting* row : by_date([&](const Posting& each) { return of(each, name); })) {
        lines.push_back("|Invoice|" + row->day.to_text() + "|" + row->Number + "|" + row->Name + "|" +
                        (row->Qty ? Number_Text(-*row->Qty + 0.0) : "") + "|" + row->SalePrice.to_text() + "|" +
                        signed_amount(*row, false).to_text());
        total += signed_amount(*row, false);
      }
    }
    lines.push_back("Total|||||||" + total.to_text());
  }

  void parties(bool by_rep, bool in_detail) {
    const auto name_of = [&](const Posting& row) { return by_rep ? row.Rep : row.Name; };
    const auto is_receivable = [&](const Posting& row) { return counts(row) && row.Account == "AR1"; };
    Strings in_rows;
    for (const Posting& row : books.rows)
      if (is_receivable(row)) in_rows.push_back(name_of(row));
    Money total;
    for (const std::string& name : books.walk(by_rep ? books.reps : books.customers, in_rows)) {
      const auto rows =
          by_date([&](const Posting& row) { return is_receivable(row) && folded(name_of(row)) == folded(name); });
      if (rows.empty()) continue;
      const std::string shown = !name.empty() ? name : by_rep ? "No Rep" : "No Name";
      if (in_detail) lines.push_back(shown);
      Money sum;
      for (const Posting* row : rows) {
        sum += signed_amount(*row, true);
        if (in_detail)
          lines.push_back("     Invoice|" + row->day.to_text() + "|" + row->Number + "|" + row->Name + "|" + row->Memo +
                          "|" + signed_amount(*row, true).to_text());
      }
      lines.push_back(shown + (in_detail ? "|||||" : "|") + sum.to_text());
      if (in_detail) lines.emplace_back();
      total += sum;
    }
    lines.push_back(std::string("Total") + (in_detail ? "|||||" : "|") + total.to_text());
  }

  // --- sales tax

  bool of_period(const Posting& row) const {
    if (row.Type == "Payment" || row.Category != "AR1" || row.day < start || row.day > end) return false;
    return basis == Basis::Accrual || row.Type != "Invoice" || row.Paid;
  }

  void sales_tax() {
    Money taxable, other, all_collected, all_tax;
    for (const Posting& row : books.rows) {
      if (!of_period(row)) continue;
      for (const auto& item : books.items) {
        if (item.ItemName != row.Item) continue;
        const std::string& type = item.ItemType;
        if (type == "Service" || type == "Non-Inventory Part" || type == "Other Charge" ||
            (type == "Inventory Part" && row.Account == item.ItemCat))
          (row.Taxable ? taxable : other) += signed_amount(row, false);
      }
    }
    for (const auto& item : books.items) {
      if (item.ItemType != "Sales Tax") continue;
      Money collected, tax;
      for (const Posting& row : books.rows) {
        if (row.Item != item.ItemName) continue;
        if (of_period(row)) collected += signed_amount(row, false);
        if (row.day > end || row.Type == "Payment") continue;
        if (!row.Debit.is_zero())
          tax -= row.Debit;
        else if (basis == Basis::Accrual || row.Paid)
          tax += row.Credit;
      }
      lines.push_back("     " + item.ItemName + "|" + (taxable + other).to_text() + "|" + other.to_text() + "|" +
                      taxable.to_text() + "|" + Number_Text(item.PriceRate.to_double()) + "|" + collected.to_text() +
                      "|" + tax.to_text());
      all_collected += collected;
      all_tax += tax;
    }
    lines.push_back("Total|||||" + all_collected.to_text() + "|" + all_tax.to_text());
  }
};

/// Quantities are sums of doubles, in whatever order.
Strings Rounded(Strings lines) {
  for (std::string& line : lines) {
    Strings cells = split(line, "|");
    for (std::string& cell : cells)
      if (contains(cell, ".") && cell.size() > 9 && is_numeric(cell)) cell = cell.substr(0, 9);
    line = join(cells, "|");
  }
  return lines;
}

TEST(SalesReports, EveryReportAgreesWithAPlainReadingOnRandomBooks) {
  Books books;
  int figures = 0;
  for (unsigned seed = 1; seed <= 60 && !HasFailure(); ++seed) {
    RandomBooks random(seed);
    random.write(books);
    Date start = random.day(), end = random.day();
    if (end < start) std::swap(start, end);
    for (const Basis basis : {Basis::Cash, Basis::Accrual}) {
      {
        store::Transaction tx(books.db(), "Basis");
        Set_Preference(books.db(), preference::SalesBase, basis == Basis::Cash ? "Cash" : "Accural");
        tx.commit();
      }
      const auto check = [&](const char* key, auto&& read) {
        Plainly plainly{random, start, end, basis};
        read(plainly);
        EXPECT_EQ(Rounded(testing::Lines(books.report(key, start, end, basis))), Rounded(plainly.lines))
            << key << (basis == Basis::Cash ? " cash" : " accrual") << ", seed " << seed;
        for (const std::string& line : plainly.lines) figures += line.find_first_of("123456789") != std::string::npos;
      };
      check("SaleSum", [](Plainly& plainly) { plainly.item_summary(); });
      check("SaleDetail", [](Plainly& plainly) { plainly.item_detail(); });
      check("SaleCusSum", [](Plainly& plainly) { plainly.parties(false, false); });
      check("SaleCusDetail", [](Plainly& plainly) { plainly.parties(false, true); });
      check("RepSum", [](Plainly& plainly) { plainly.parties(true, false); });
      check("RepDetail", [](Plainly& plainly) { plainly.parties(true, true); });
      check("SalesTax", [](Plainly& plainly) { plainly.sales_tax(); });
    }
  }
  EXPECT_GT(figures, 2500);
}

/// An invoice of a part, a service and tax, and a credit memo: what the invoice window writes.
void Post_Sales(Books& books) {
  books.run(
      "INSERT INTO Items (ItemName, ItemType, ItemCat, InvAsset, COGScat, PriceRate) VALUES"
      " ('Rake', 'Inventory Part', 'Sales', 'Stock', 'Goods', ?), ('Work', 'Service', 'Sales', '', '', ?),"
      " ('Tax', 'Sales Tax', 'TaxDue', '', '', ?), ('Rebate', 'Discount', 'Sales', '', '', ?)",
      {D(20), D(50), Money::from_units(650), D(-5)});
  const Date day(2026, 6, 2);
  const auto post = [&](int64_t number, const char* account, Money credit, const char* item, double qty,
                        const char* source, bool taxable, const char* rep) {
    Posting row{.TransNum = number, .Type = "Invoice", .day = day, .Account = account};
    (credit.is_negative() ? row.Debit : row.Credit) = credit.abs();
    row.Category = std::string(account) == "AR1" ? "<-Break Down->" : "AR1";
    row.Name = "Ann";
    row.Rep = rep;
    row.Item = item;
    row.SourceName = source;
    row.Taxable = taxable;
    if (*item) row.Qty = -qty;
    books.post(row);
  };
  post(1, "AR1", -Money::dollars(87, 60), "", 0, "Product", false, "Bob");
  for (const char* account : {"Stock", "Goods", "Sales"})
    post(1, account, D(40), "Rake", 2, std::string(account) == "Stock" ? "Product" : "Inventory Part", true, "Bob");
  post(1, "Sales", D(50), "Work", 1, "Product", false, "Bob");
  post(1, "Sales", D(-5), "Rebate", 1, "Product", true, "Bob");
  post(1, "TaxDue", Money::dollars(2, 60), "Tax", 0, "Product", false, "Bob");
  post(2, "AR1", D(20), "", 0, "Product", false, "Left");
  for (const char* account : {"Stock", "Goods", "Sales"})
    post(2, account, D(-20), "Rake", -1, std::string(account) == "Stock" ? "Product" : "Inventory Part", false, "Left");
}

TEST(SalesReports, ItemsCustomersAndRepsComeToTheSameTotalAndASoldPartCountsOnce) {
  Books books;
  for (const char* account : {"AR1", "Stock", "Goods", "Sales", "TaxDue"}) books.add(account, "Income");
  books.add_customer("Ann");
  Post_Sales(books);
  const Date from(2026, 6, 1), to(2026, 6, 30);
  const ReportTable items = books.report("SaleSum", from, to);
  EXPECT_EQ(testing::Line_Of(items, "Rake").substr(0, 16), "Rake|1|20|0.2958");
  EXPECT_EQ(items.for_the_eye(1, 4), "-7.4%");
  EXPECT_EQ(testing::Line_Of(items, "Rebate").substr(0, 12), "Rebate|0|-5|");
  const std::string total = Money::dollars(67, 60).to_text();
  EXPECT_TRUE(testing::Line_Of(items, "Total").starts_with("Total|2|" + total)) << testing::Line_Of(items, "Total");
  EXPECT_EQ(testing::Lines(books.report("SaleCusSum", from, to)), (Strings{"Ann|" + total, "Total|" + total}));
  EXPECT_EQ(testing::Lines(books.report("RepSum", from, to)), (Strings{"Bob|87.6", "Left|-20", "Total|" + total}));
  EXPECT_EQ(testing::Lines(books.report("RepSum", from, to, Basis::Cash)), (Strings{"Total|0"}));
}

TEST(SalesReports, TheTaxOwedIsWhatAPaymentWouldPay) {
  Books books;
  for (const char* account : {"AR1", "Stock", "Goods", "Sales", "TaxDue"}) books.add(account, "Income");
  Post_Sales(books);
  books.post({.TransNum = 3,
              .Type = "Liabilitycheck",
              .day = Date(2026, 6, 10),
              .Account = "TaxDue",
              .Debit = D(1),
              .Item = "Tax"});
  for (const char* base : {"Cash", "Accural"}) {
    store::Transaction tx(books.db(), "Basis");
    Set_Preference(books.db(), preference::SalesBase, base);
    tx.commit();
    const Date end(2026, 6, 30);
    const auto owed = Sales_Tax_Owed(*books.session, end);
    ASSERT_EQ(owed.size(), 1u);
    const ReportTable table = books.report("SalesTax", Date(2026, 6, 1), end);
    EXPECT_EQ(table.value(0, 7).money(), owed[0].Amount) << base;
    EXPECT_EQ(table.heading.basis, std::string(base) == "Cash" ? "Cash basis" : "Accrual basis");
  }
  EXPECT_EQ(testing::Lines(books.report("SalesTax", Date(2026, 6, 1), Date(2026, 6, 30)))[0],
            "     Tax|70|30|40|0.065|2.6|1.6");
  EXPECT_EQ(testing::Lines(books.report("SalesTax", Date(2030, 1, 1), Date(2030, 1, 31))),
            (Strings{"     Tax|0|0|0|0.065|0|1.6", "Total|||||0|1.6"}));
}

TEST(SalesReports, BothPartsOfTheGraphComeToTheTotalOfTheSummary) {
  Books books;
  for (unsigned seed = 1; seed <= 12; ++seed) {
    RandomBooks random(seed);
    random.write(books);
    const ReportRequest request = books.request("SaleSum", Date(2025, 1, 1), Date(2026, 1, 1));
    const ReportTable table = Build_Report(*books.session, request);
    const Graph graph = Build_Graph(*books.session, request);
    for (const Graph::Part& part : graph.parts) {
      Money sum;
      for (const auto& bar : std::get<Graph_Bars>(part).bars) sum += bar.amount;
      EXPECT_EQ(sum, table.value(table.rows() - 1, 3).money()) << "seed " << seed;
    }
  }
}

}  // namespace
}  // namespace tallymere
