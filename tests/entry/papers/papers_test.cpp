#include <gtest/gtest.h>

#include "core/ledger/paper_faults.h"
#include "core/ledger/transaction_writer.h"
#include "entry/papers/paper.h"
#include "entry/papers/pulled_orders.h"
#include "support/test_company.h"

namespace tallymere {
namespace {

using testing::TestCompany;

struct PaperBooks : ::testing::Test {
  TestCompany company;
  Session& session = *company.session;
  std::string value(const std::string& sql) { return company.db().value(sql).text(); }
  static PaperLine line(const char* item, double qty, int dollars) {
    PaperLine made{.Item = item, .Qty = qty, .Rate = Money::dollars(dollars)};
    Reckon(made);
    return made;
  }
  PaperDocument enter(PaperKind kind, const char* party, std::vector<PaperLine> lines) {
    PaperDocument paper = New_Paper(session, kind);
    paper.Party = party;
    paper.lines = std::move(lines);
    EXPECT_TRUE(Enter_PO(session, kind, paper).written);
    return paper;
  }
  /// A document that takes papers up.
  std::optional<Conflict> save_bill(const PulledOrders& pulled, int64_t number, const std::string& party) {
    return Save_Or_Conflict([&] {
      Transaction_Writer writer(session, {.TransNum = number, .Type = "Bill", .Date = session.today(), .Name = party});
      writer.add({.Account = "AP1"});
      pulled.close(session, writer.number(), party);
      writer.commit();
    });
  }
};

struct Papers : PaperBooks, ::testing::WithParamInterface<PaperKind> {};

TEST_P(Papers, EveryKindKeepsItsDocumentInItsTables) {
  const PaperKind kind = GetParam();
  const PaperTable& table = Table_Of(kind);
  PaperDocument first = New_Paper(session, kind);
  EXPECT_EQ(first.Index, 1);
  EXPECT_EQ(first.Number, "1");
  EXPECT_FALSE(Enter_PO(session, kind, first).written) << "neither party nor amount";
  EXPECT_FALSE(Paper_Beside(session, kind, 1, false));

  PaperDocument paper = enter(kind, "O'Brien", {line("Hose", 2.5, 10), {}, line("Rake", 1, 7)});
  EXPECT_EQ(paper.total(), Money::dollars(32));
  EXPECT_EQ(value(std::string("SELECT \"Open\" || Total || ") + table.party + " FROM " + table.header),
            "-1320000O'Brien");
  const auto loaded = Load_Paper(session, kind, 1);
  EXPECT_TRUE(loaded->says_the_same(paper));
  EXPECT_EQ(loaded->lines.size(), 2u);

  PaperDocument second = enter(kind, "Baker", {line("Hose", 1, 10)});
  EXPECT_EQ(second.Index, 2);
  EXPECT_EQ(second.Number, "2");
  EXPECT_EQ(Paper_Beside(session, kind, 2, false)->Index, 1);
  EXPECT_TRUE(Paper_Beside(session, kind, 2, true)->is_new());

  company.run(std::string("UPDATE ") + table.header + " SET \"Open\" = 0 WHERE \"Index\" = 1");
  PaperDocument edited = *Load_Paper(session, kind, 1);
  edited.lines.pop_back();
  ASSERT_TRUE(Enter_PO(session, kind, edited).written);
  EXPECT_EQ(value(std::string("SELECT COUNT(*) FROM ") + table.lines), "2");
  EXPECT_EQ(value(std::string("SELECT \"Open\" FROM ") + table.header + " WHERE \"Index\" = 1"), "False")
      << "closed it stays";
}

TEST_P(Papers, TwoUsersNeverShareAnIndexNorOverwriteEachOther) {
  const PaperKind kind = GetParam();
  PaperDocument mine = New_Paper(session, kind);
  const auto colleague = company.another_user();
  PaperDocument theirs = New_Paper(*colleague, kind);
  theirs.Party = "Baker";
  ASSERT_TRUE(Enter_PO(*colleague, kind, theirs).written);
  mine.Party = "Ann";
  ASSERT_TRUE(Enter_PO(session, kind, mine).written);
  EXPECT_EQ(mine.Index, 2);
  EXPECT_EQ(mine.Number, "2");

  PaperDocument open = *Load_Paper(session, kind, 1);
  theirs.lines = {line("Hose", 1, 10)};  // lines alone
  ASSERT_TRUE(Enter_PO(*colleague, kind, theirs).written);
  open.Memo = "mine";
  const SaveResult refused = Enter_PO(session, kind, open);
  ASSERT_TRUE(refused.conflict && refused.conflict->reload);
  EXPECT_EQ(Load_Paper(session, kind, 1)->lines.size(), 1u);
}

INSTANTIATE_TEST_SUITE_P(Kinds, Papers, ::testing::Values(PaperKind::Estimate, PaperKind::PO, PaperKind::Slip));

using PulledUp = PaperBooks;
TEST_F(PulledUp, ClosesWithTheDocumentAndOpensWithItsDeletion) {
  const PaperKind kind = PaperKind::PO;
  enter(kind, "Acme", {line("Hose", 2, 10)});
  enter(kind, "Acme", {line("Rake", 1, 7)});
  enter(kind, "Baker", {line("Saw", 1, 9)});
  ASSERT_EQ(Open_Orders(session, "acme").size(), 2u);
  PulledOrders pulled;
  EXPECT_EQ(pulled.add(session, {1, 2}).size(), 2u);
  EXPECT_TRUE(pulled.add(session, {1}).empty()) << "its lines stand there already";
  pulled.add(session, {3, 99});
  EXPECT_EQ(Open_Orders(session, "Acme").size(), 2u) << "nothing is closed before it is saved";
  ASSERT_FALSE(save_bill(pulled, 0, "ACME"));
  EXPECT_TRUE(Open_Orders(session, "Acme").empty());
  EXPECT_EQ(Open_Orders(session, "Baker").size(), 1u) << "another party's stays open";
  EXPECT_EQ(value("SELECT COUNT(*) FROM POs WHERE TakenBy = 1"), "2");
  EXPECT_TRUE(Paper_Faults(company.db()).empty());

  PulledOrders late;  // a colleague who took up the same order a moment before
  late.add(session, {1});
  EXPECT_TRUE(save_bill(late, 0, "Acme")->reload);
  EXPECT_EQ(value("SELECT COUNT(DISTINCT TransNum) FROM Transactions"), "1") << "the whole save is refused";
  Delete_Transaction(session, 1);
  EXPECT_EQ(Open_Orders(session, "Acme").size(), 2u);

  late.clear();
  late.add(session, {1});
  PaperDocument changed = *Load_Paper(session, kind, 1);
  changed.lines.push_back(line("Nozzle", 1, 3));
  ASSERT_TRUE(Enter_PO(session, kind, changed).written);
  EXPECT_TRUE(save_bill(late, 0, "Acme")) << "its lines are not those that were taken up";

  company.run("UPDATE POs SET Total = 1, TakenBy = 77 WHERE \"Index\" = 2");
  EXPECT_EQ(Paper_Faults(company.db()).size(), 3u);
}

TEST_F(PulledUp, LinesComeFromItsItems) {
  company.run(
      "INSERT INTO Items (ItemName, ItemType, Description, InvPurchaseDesc, PriceRate, Cost, ParentItem) VALUES "
      "('Hose', 'Inventory Part', 'Hose', 'HOSE 50', 199500, 110000, ''), ('Long', 'Inventory Part', '', '', 0, 0, "
      "'Hose'), ('Mowing', 'Service', 'Lawn', '', 350000, NULL, '')");
  EXPECT_EQ(Paper_Line(session, PaperKind::Estimate, "   hose").Rate, Money::dollars(19, 95));
  const PaperLine bought = Paper_Line(session, PaperKind::PO, "Hose");
  EXPECT_EQ(bought.Description, "HOSE 50");
  EXPECT_EQ(bought.Amount, Money::dollars(11));
  EXPECT_EQ(Paper_Items(session, PaperKind::Slip).size(), 2u);
  EXPECT_EQ(Paper_Items(session, PaperKind::Estimate).size(), 3u);
  PaperLine typed{.Qty = 3, .Amount = Money::dollars(5)};
  Reckon(typed);
  EXPECT_EQ(typed.Amount, Money::dollars(5)) << "without a rate it stays";
}

}  // namespace
}  // namespace tallymere
