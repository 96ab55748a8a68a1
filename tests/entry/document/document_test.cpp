#include "entry/document/deletion.h"
#include "entry/document/lines.h"
#include "entry/document/next_number.h"
#include "lists/terms.h"
#include "support/entry_company.h"

namespace tallymere {
namespace {

using testing::Dollars;
using testing::EntryCompany;
using testing::Rows_Of;

TEST(Documents, AWalkWithoutABandReachesTheWholeLedger) {
  EntryCompany company;
  Session& session = *company.session;
  constexpr std::string_view types[] = {"Bill", "Credit", "Item Receipt"};
  const Walk bills{.types = types, .account = "AP1"};
  EXPECT_TRUE(Walk_From(session, bills, 1, false).bounce) << "nothing to walk through";
  company.write("Bill", Date(2026, 5, 1), "AP1", "40SS", Dollars(1), "", "", 7);
  company.write("Check", Date(2026, 4, 15), "0SS", "AP1", Dollars(1), "", "", 8);
  company.write("Credit", Date(2026, 4, 1), "40SS", "AP1", Dollars(1), "", "", 9000);
  EXPECT_EQ(Walk_From(session, bills, 7, false).TransNum, 9000);
  EXPECT_EQ(Walk_From(session, bills, 9000, true).TransNum, 7);
  EXPECT_EQ(Walk_From(session, bills, 7, true).arrival, Arrival::New);
  EXPECT_EQ(Walk_From(session, bills, 9001, false).TransNum, 7);
}

TEST(Documents, TheRestOfTheAmountIsProposed) {
  std::vector<ExpenseLine> lines = {{.Category = "a", .Amount = Dollars(10)}, {.Category = "b"}};
  EXPECT_EQ(Expense_Remainder(lines, Dollars(25)), Dollars(15));
  EXPECT_EQ(lines.size(), 1u);
  EXPECT_EQ(Expense_Remainder(lines, Dollars(4)), -Dollars(6));
  EXPECT_EQ(Expense_Remainder(lines, Dollars(10)), std::nullopt);
}

TEST(Documents, AnItemLineAmountsToQuantityTimesCost) {
  ItemLine line{.Quantity = 1.5, .Cost = Dollars(10), .Amount = Dollars(7)};
  EXPECT_EQ(Item_Amount(line, "Service"), Dollars(15));
  EXPECT_EQ(Item_Amount(line, "Subtotal"), Dollars(7));
  EXPECT_EQ(Item_Amount(line, "Sales Tax"), Dollars(7));
  line.Quantity.reset();
  EXPECT_EQ(Item_Amount(line, "Service"), Dollars(10));
  line = {.Quantity = 3, .Amount = Dollars(7)};
  EXPECT_EQ(Item_Amount(line, "Service"), std::nullopt);
}

TEST(Documents, OnlyStockPostsToItsAsset) {
  EntryCompany company;
  company.run(
      "INSERT INTO Items (ItemName, ItemType, ItemCat, InvAsset) VALUES ('Bolt', 'Inventory Part', '29SS', "
      "'3SS'), ('Work', 'Service', '30SS', '3SS')");
  EXPECT_EQ(Item_Facts(*company.session, "Bolt").posts_to(), "3SS");
  EXPECT_EQ(Item_Facts(*company.session, "work").posts_to(), "30SS");
  EXPECT_EQ(Item_Facts(*company.session, "Nut").posts_to(), "");
}

TEST(Documents, ANegativeLineStandsOnTheOtherSideWithoutASign) {
  for (const LineSide side : {LineSide::Debit, LineSide::Credit})
    for (const Money amount : {Dollars(7), -Dollars(7), Money()}) {
      LedgerRow row;
      Post(row, side, amount);
      EXPECT_FALSE(row.Debit.is_negative() || row.Credit.is_negative() || row.Amount->is_negative());
      EXPECT_EQ(row.Debit - row.Credit, side == LineSide::Debit ? amount : -amount);
      EXPECT_EQ(Posted(row, side), amount);
    }
  LedgerRow none;
  Post(none, LineSide::Debit, std::nullopt);
  EXPECT_EQ(Posted(none, LineSide::Debit), std::nullopt) << "an empty cell is no zero";
}

TEST(Documents, NoNumberInUseIsProposed) {
  EntryCompany company;
  store::Database& db = company.db();
  EXPECT_EQ(Next_Invoice_Number(db), "1");
  const auto invoice = [&](Date date, const char* number) {
    company.write("Invoice", date, "29SS", "AR1", Dollars(1), "", number);
  };
  invoice(Date(2026, 5, 1), "10");
  invoice(Date(2026, 2, 1), "11");
  invoice(Date(2026, 2, 1), "12A");
  EXPECT_EQ(Next_Invoice_Number(db), "12") << "the last by date is 10, and 11 is in use";
  EXPECT_EQ(After_Highest_Number(db, Invoice_Numbers), "12");
  invoice(Date(2026, 6, 1), "A7");
  EXPECT_EQ(Next_Invoice_Number(db), "9") << "one more than there are rows, where the last is no number";
  company.run("INSERT INTO POs (\"Index\", PONumber) VALUES (4, '2'), (9, '3')");
  EXPECT_EQ(Next_Paper_Number(db, PO_Numbers), "4");
  EXPECT_EQ(Next_Paper_Number(db, Slip_Numbers), "1");
}

TEST(Documents, ATermIsAddedOnlyWithADayAmount) {
  EntryCompany company;
  Session& session = *company.session;
  company.prompts.inputs = {"abc", "", "99999999", "45.5"};
  for (int refused = 0; refused < 3; ++refused) EXPECT_FALSE(Add_Term(session, "Net 45", "?"));
  EXPECT_EQ(Due_Date(session, "Net 45", Date(2026, 1, 31)), std::nullopt);
  EXPECT_TRUE(Add_Term(session, "Net 45", "?"));
  EXPECT_EQ(Due_Date(session, "net 45", Date(2026, 1, 31)), Date(2026, 3, 17));
}

// --- deleting, and saves that change other documents ---------------------------------------------------------

/// The least that is a document.
struct Note {
  int64_t TransNum = 0;
  Probe probe = {};
};
constexpr std::string_view note_types[] = {"Ledger Entry"};
const DocumentKind<Note> Notes = {"note",
                                  {note_types},
                                  [](Session&) { return Note{}; },
                                  [](Session& session, int64_t number) {
                                    return std::optional(Note{number, Probe::Of(*session.dbCompany, number)});
                                  },
                                  nullptr};

TEST(Documents, DeletingIsRefusedOrAskedAboutAndTakesWhatItFreesWithIt) {
  EntryCompany company;
  Session& session = *company.session;
  const int64_t number = company.write("Ledger Entry", Date(2026, 1, 1), "0SS", "40SS", Dollars(5));
  const Note note = *Notes.load(session, number);
  Deletion deletion{.question = "Go?", .spoken = "the note", .more = {{"Paid. Go?", "Paid"}}};
  deletion.refusal = [] { return std::optional(Box{"Held by a deposit.", "No Deletion"}); };
  EXPECT_FALSE(Delete_Document(session, Notes, note, deletion).deleted);
  EXPECT_EQ(company.prompts.boxes.size(), 1u) << "nothing is asked about what cannot go";

  deletion.refusal = nullptr;
  company.prompts.answers = {true, false};
  EXPECT_FALSE(Delete_Document(session, Notes, note, deletion).deleted);

  deletion.frees = [&] { company.db().Execute("UPDATE Accounts SET Description = 'free' WHERE CatID = '40SS'"); };
  deletion.refusal = [&, asked = 0]() mutable {  // true by the time the save looks again
    return asked++ == 0 ? std::nullopt : std::optional(Box{"Held by a deposit.", "No Deletion"});
  };
  EXPECT_FALSE(Delete_Document(session, Notes, note, deletion).deleted);
  EXPECT_EQ(Rows_Of(company.db(), number, "Account"), "0SS\n40SS\n");

  deletion.refusal = nullptr;
  EXPECT_TRUE(Delete_Document(session, Notes, note, deletion).deleted);
  EXPECT_EQ(Rows_Of(company.db(), number, "Account"), "");
  EXPECT_EQ(company.db().value("SELECT Description FROM Accounts WHERE CatID = '40SS'").text(), "free");
}

TEST(Documents, WhatAnotherUserClearedMeanwhileIsNotDeleted) {
  EntryCompany company;
  Session& session = *company.session;
  const int64_t number = company.write("Ledger Entry", Date(2026, 1, 1), "0SS", "40SS", Dollars(5));
  const Note note = *Notes.load(session, number);
  company.run("UPDATE Transactions SET Cleared = True");
  const auto result = Delete_Document(session, Notes, note, {.question = "Go?", .spoken = "the note"});
  EXPECT_TRUE(result.conflict && result.conflict->reload);
  EXPECT_FALSE(result.deleted || result.show);
  EXPECT_EQ(Rows_Of(company.db(), number, "Cleared"), "True\nTrue\n");
}

TEST(Documents, ASaveNoticesAnyOfTheDocumentsItChanges) {
  EntryCompany company;
  const int64_t bill = company.write("Bill", Date(2026, 1, 1), "AP1", "40SS", Dollars(5));
  company.run("INSERT INTO POs (\"Index\", \"Open\") VALUES (4, True)");
  Probes probes;
  probes.add(company.db(), bill);
  probes.add(company.db(), "POs", "Index", 4);
  EXPECT_NO_THROW(probes.check(company.db()));
  company.run("UPDATE POs SET \"Open\" = False");
  probes.add(company.db(), "POs", "Index", 4);  // what was remembered first holds
  EXPECT_THROW(probes.check(company.db()), store::Error);
  Probes gone;
  gone.add(company.db(), 99);
  EXPECT_THROW(gone.check(company.db()), store::Error) << "a bill that is not there cannot be paid";
}

}  // namespace
}  // namespace tallymere
