#include "reports/aging/open_documents.h"
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

const Date today(2026, 6, 15);

/// The rules of aging walked name by name and row by row.
struct Plainly {
  const RandomBooks& books;
  bool receivable;
  Date as_of = today, start = today;
  Strings lines = {};

  std::string control() const { return receivable ? "AR1" : "AP1"; }

  std::vector<const Posting*> of(const std::string& name, bool open) const {
    std::vector<const Posting*> found;
    for (const Posting& row : books.rows) {
      if (row.Account != control() || folded(row.Name) != folded(name)) continue;
      const bool is_document = row.Type == (receivable ? "Invoice" : "Bill") && !row.Paid;
      if (open ? is_document : row.day >= start && row.day <= as_of) found.push_back(&row);
    }
    std::stable_sort(found.begin(), found.end(),
                     [](auto* a, auto* b) { return std::pair(a->day, a->TransNum) < std::pair(b->day, b->TransNum); });
    return found;
  }

  Strings names(bool open) const {
    Strings in_rows;
    for (const Posting& row : books.rows)
      if (!of(row.Name, open).empty()) in_rows.push_back(row.Name);
    // where rows write a name differently, it is shown as the first of them in order of date has it
    return books.walk(receivable ? books.customers : books.vendors, in_rows);
  }

  int terms_days(const Posting& row) const {
    for (const auto& term : books.terms)
      if (term.name == row.Terms) return term.days;
    return 0;
  }

  static size_t bucket(int age) { return age < 1 ? 0 : age <= 30 ? 1 : age <= 60 ? 2 : age <= 90 ? 3 : 4; }

  static std::string shown(const std::string& name) { return name.empty() ? "No Name" : name; }

  void line(const std::string& label, const std::vector<Money>& amounts, int empty = 0) {
    std::string text = label + std::string(static_cast<size_t>(empty), '|');
    for (Money amount : amounts) text += "|" + amount.to_text();
    lines.push_back(text);
  }

  void summary() {
    std::vector<Money> all(6);
    for (const std::string& name : names(true)) {
      std::vector<Money> sums(6);
      for (const Posting* row : of(name, true)) {
        const int age = days_between(row->day.plus_days(terms_days(*row)), as_of);
        sums[bucket(age)] += Amount_Of(*row);
        sums[5] += Amount_Of(*row);
      }
      if (of(name, true).empty()) continue;
      line(shown(name), sums);
      for (size_t at = 0; at < 6; ++at) all[at] += sums[at];
    }
    line("Total", all);
  }

  void document(const Posting& row) {
    const Date due = row.DueDate.value_or(row.day.plus_days(terms_days(row)));
    lines.push_back("     " + row.Type + "|" + row.day.to_text() + "|" + row.Number + "|" + row.Name + "|" + row.Terms +
                    "|" + due.to_text() + "|" + row.Class + "|" + std::to_string(days_between(due, as_of)) + "|" +
                    Amount_Of(row).to_text());
  }

  int age(const Posting& row) const {
    return days_between(row.DueDate.value_or(row.day.plus_days(terms_days(row))), as_of);
  }

  void detail() {
    Money total;
    for (size_t pass = 0; pass < 5; ++pass) {
      lines.emplace_back(Bucket_Names[pass]);
      Money sum;
      for (const std::string& name : names(true))
        for (const Posting* row : of(name, true)) {
          if (bucket(age(*row)) != pass) continue;
          document(*row);
          sum += Amount_Of(*row);
        }
      line(std::string(Bucket_Names[pass]), {sum}, 7);
      lines.emplace_back();
      total += sum;
    }
    line("Total", {total}, 7);
  }

  void by_name() {
    Money total;
    for (const std::string& name : names(true)) {
      Money sum;
      if (of(name, true).empty()) continue;
      lines.push_back(shown(name));
      for (const Posting* row : of(name, true)) {
        document(*row);
        sum += Amount_Of(*row);
      }
      line(shown(name), {sum}, 7);
      lines.emplace_back();
      total += sum;
    }
    line("Total", {total}, 7);
  }

  std::string name_of(const std::string& id) const {
    for (const auto& account : books.accounts)
      if (account.CatID == id) return id;
    return id == "<-Break Down->" ? id : "";
  }

  void balances(bool in_detail) {
    Money total;
    for (const std::string& name : names(false)) {
      const auto found = of(name, false);
      if (found.empty()) continue;
      if (in_detail) lines.push_back(shown(name));
      Money sum;
      for (const Posting* row : found) {
        bool lowers = false;
        if (row->Debit.is_zero()) {
          sum += receivable ? -row->Credit : row->Credit;
          lowers = receivable;
        } else {
          sum += receivable ? row->Debit : -row->Debit;
          lowers = !receivable;
        }
        const Money amount = lowers ? -Amount_Of(*row) : Amount_Of(*row);
        if (in_detail)
          line("     " + row->Type + "|" + row->day.to_text() + "|" + row->Number + "|" + name_of(row->Account) + "|" +
                   name_of(row->Category),
               {amount});
      }
      if (in_detail) line(shown(name), {sum}, 4);
      if (in_detail) lines.emplace_back();
      if (!in_detail && !sum.is_zero()) line(shown(name), {sum});
      total += sum;
    }
    line("Total", {total}, in_detail ? 4 : 0);
  }
};

Strings Before_Steps(const ReportTable& table) {
  Strings lines = testing::Lines(table);
  const auto total = std::find_if(lines.rbegin(), lines.rend(), [](auto& line) { return line.starts_with("Total|"); });
  lines.erase(total.base(), lines.end());
  return lines;
}

Money Last_Amount(const ReportTable& table, int row) {
  for (int column = static_cast<int>(table.columns.size()) - 1; column >= 0; --column)
    if (std::holds_alternative<Money>(table.value(row, column).content())) return table.value(row, column).money();
  return {};
}

/// What leads from the total down adds up to what the category stands at, reckoned here by the rows.
void Expect_Steps_To_Add_Up(const ReportTable& table, const RandomBooks& random, bool receivable) {
  Money sum, balance;
  int row = table.rows() - 1;
  EXPECT_TRUE(table.text(row, 1).starts_with("Balance of "));
  const Money shown = Last_Amount(table, row);
  for (--row; table.text(row, 1) != "Total"; --row) sum += Last_Amount(table, row);
  sum += Last_Amount(table, row);
  Strings family = {receivable ? "AR1" : "AP1"};
  for (size_t at = 0; at < family.size(); ++at)
    for (const auto& account : random.accounts)
      if (account.ParentAccount == family[at]) family.push_back(account.CatID);
  for (const Posting& posted : random.rows)
    if (std::find(family.begin(), family.end(), posted.Account) != family.end()) {
      const Money value = posted.Debit.is_zero() ? -posted.Credit : posted.Debit;
      balance += receivable ? value : -value;
    }
  EXPECT_EQ(sum, balance);
  EXPECT_EQ(shown, balance);
}

TEST(Aging, EveryReportAgreesWithAPlainReadingOnRandomBooks) {
  Books books;
  int figures = 0;
  for (unsigned seed = 1; seed <= 60 && !HasFailure(); ++seed) {
    RandomBooks random(seed);
    random.write(books);
    const Date as_of = random.day(), start = as_of.plus_days(-random.pick(400));
    const auto check = [&](const char* key, bool receivable, auto&& read, bool has_steps) {
      Plainly plainly{random, receivable, as_of, start};
      read(plainly);
      const ReportTable table = books.report(key, start, as_of);
      EXPECT_EQ(has_steps ? Before_Steps(table) : testing::Lines(table), plainly.lines) << key << ", seed " << seed;
      if (has_steps) Expect_Steps_To_Add_Up(table, random, receivable);
      for (const std::string& line : plainly.lines) figures += line.find_first_of("123456789") != std::string::npos;
    };
    check(
        "AR", true, [](Plainly& plainly) { plainly.summary(); }, true);
    check(
        "AP", false, [](Plainly& plainly) { plainly.summary(); }, true);
    check(
        "ARDetail", true, [](Plainly& plainly) { plainly.detail(); }, true);
    check(
        "APDetail", false, [](Plainly& plainly) { plainly.detail(); }, true);
    check(
        "OpenInvoices", true, [](Plainly& plainly) { plainly.by_name(); }, true);
    check(
        "OpenBills", false, [](Plainly& plainly) { plainly.by_name(); }, true);
    check(
        "CR", true, [](Plainly& plainly) { plainly.by_name(); }, true);
    check(
        "ARCusSum", true, [](Plainly& plainly) { plainly.balances(false); }, false);
    check(
        "APVenSum", false, [](Plainly& plainly) { plainly.balances(false); }, false);
    check(
        "ARCusDetail", true, [](Plainly& plainly) { plainly.balances(true); }, false);
    check(
        "APVenDetail", false, [](Plainly& plainly) { plainly.balances(true); }, false);
  }
  EXPECT_GT(figures, 3000);
}

Posting Invoice(int64_t number, Date day, const std::string& name, Money amount) {
  return {.TransNum = number, .Type = "Invoice", .day = day, .Account = "AR1", .Debit = amount, .Name = name};
}

TEST(Aging, TheSummaryGoesByTermsTheDetailByTheDueDate) {
  Books books;
  books.add("AR1", "Accounts Receivable");
  books.add_customer("Ann");
  books.run("INSERT INTO Terms (Term, Days) VALUES ('Net 30', 30)");
  const struct {
    Date day;
    std::string terms;
    int bucket;
  } cases[] = {{today, "", 0},
               {today.plus_days(-1), "", 1},
               {today.plus_days(-30), "", 1},
               {today.plus_days(-31), "", 2},
               {today.plus_days(-60), "", 2},
               {today.plus_days(-90), "", 3},
               {today.plus_days(-91), "", 4},
               {today.plus_days(-31), "net 30", 1},
               {today.plus_days(-31), "Net 45", 2},  // terms that are in no list: none
               {today.plus_days(9), "", 0}};
  for (int64_t number = 1; const auto& c : cases) {
    books.run("DELETE FROM Transactions");
    Posting invoice = Invoice(number++, c.day, "Ann", D(100));
    invoice.Terms = c.terms;
    invoice.DueDate = today.plus_days(-75);
    books.post(invoice);
    std::string line = "Ann";
    for (int bucket = 0; bucket < 5; ++bucket) line += bucket == c.bucket ? "|100" : "|0";
    EXPECT_EQ(testing::Lines(books.report("AR", today, today))[0], line + "|100") << c.day.to_text() << c.terms;
    EXPECT_EQ(testing::Line_Of(books.report("ARDetail", today, today), "61 - 90"), "61 - 90||||||||100");
  }
}

TEST(Aging, StepsNameWhatTheTotalLeavesOut) {
  Books books;
  books.add("AR1", "Accounts Receivable");
  books.add("AP1", "Accounts Payable");
  books.add_customer("Ann");
  Posting partly = Invoice(1, Date(2026, 5, 1), "Ann", D(100));
  partly.AmountReceived = D(30);
  books.post(partly);
  books.post({.TransNum = 2, .Type = "Payment", .day = today, .Account = "AR1", .Credit = D(30), .Name = "Ann"});
  books.post({.TransNum = 3, .Type = "Invoice", .day = today, .Account = "AR1", .Credit = D(20), .Name = "renamed"});
  books.post({.TransNum = 4, .Type = "Statement", .day = today, .Account = "AR1", .Debit = D(5), .Name = "Ann"});
  books.post({.TransNum = 5, .Type = "Bill", .day = today, .Account = "AP1", .Credit = D(9), .Name = "V"});
  books.post({.TransNum = 6, .Type = "Credit", .day = today, .Account = "AP1", .Debit = D(2), .Name = "V"});
  EXPECT_EQ(testing::Lines(books.report("AR", today, today)),
            (Strings{"Ann|0|0|100|0|0|100", "renamed|20|0|0|0|0|20", "Total|20|0|100|0|0|120", "Less received||||||-30",
                     "Less credit memos, counted above as owed||||||-40", "Plus statements||||||5",
                     "Balance of Accounts Receivable||||||55"}));
  EXPECT_EQ(testing::Lines(books.report("OpenBills", today, today)),
            (Strings{"V", "     Bill|6/15/2026||V||6/15/2026||0|9", "V||||||||9", "", "Total||||||||9",
                     "Less vendor credits||||||||-2", "Balance of Accounts Payable||||||||7"}));
  EXPECT_EQ(books.report("AR", today, today).heading.period, "As of 6/15/2026");
  EXPECT_EQ(books.report("AR", today, today.plus_days(-1)).heading.period,
            "As of 6/14/2026, of what is unpaid today, 6/15/2026");
}

TEST(Aging, AnEmptyCompanyShowsHeadsAndZeroFeetAndCollectionsHowToReachPeople) {
  Books books;
  const ReportTable empty = books.report("ARDetail", today, today);
  EXPECT_EQ(testing::Lines(empty).size(), 5u * 3 + 2);
  EXPECT_EQ(testing::Lines(empty)[0], "Current");
  EXPECT_EQ(testing::Lines(empty)[1], "Current||||||||0");
  EXPECT_EQ(testing::Lines(books.report("CR", today, today)),
            (Strings{"Total||||||||0", "Balance of Accounts Receivable||||||||0"}));

  books.run("INSERT INTO Customers (Name, Contact, Phone, AltPhone) VALUES ('Ann', 'Mrs. Ann', '', '555-1')");
  books.post(Invoice(1, today, "Ann", D(7)));
  const Strings lines = testing::Lines(books.report("CR", today, today));
  EXPECT_EQ(Strings(lines.begin(), lines.begin() + 3), (Strings{"Ann", "     Mrs. Ann", "     555-1"}));
}

Money Sum_Of_Bars(const Graph& graph, size_t part) {
  Money sum;
  for (const auto& bar : std::get<Graph_Bars>(graph.parts.at(part)).bars) sum += bar.amount;
  return sum;
}

TEST(Aging, BothPartsOfTheGraphComeToTheTotalOfTheSummary) {
  Books books;
  for (unsigned seed = 1; seed <= 12; ++seed) {
    RandomBooks random(seed);
    random.write(books);
    for (const char* key : {"AR", "AP"}) {
      const Graph graph = Build_Graph(*books.session, books.request(key, today, today));
      const auto& ages = std::get<Graph_Bars>(graph.parts.at(0)).bars;
      ASSERT_EQ(ages.size(), Bucket_Names.size());
      const std::string total = testing::Line_Of(books.report(key, today, today), "Total");
      std::string line = "Total";
      for (const auto& bar : ages) line += "|" + bar.amount.to_text();
      EXPECT_EQ(line + "|" + Sum_Of_Bars(graph, 1).to_text(), total) << key << ", seed " << seed;
    }
  }
}

}  // namespace
}  // namespace tallymere
