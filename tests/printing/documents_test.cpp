#include "printing/documents.h"

#include <fstream>

#include "entry/sales/invoice.h"
#include "support/entry_company.h"
#include "support/pdf_text.h"

namespace tallymere {
namespace {

Money D(int64_t dollars) { return Money::dollars(dollars); }

struct PrintedPapers : ::testing::Test {
  testing::EntryCompany company;
  Session& session = *company.session;

  void SetUp() override {
    company.run("UPDATE CompanyInfo SET Name = 'Acme Widgets', Address = '9 Main St'");
    company.run(
        "INSERT INTO Customers (Name, BillingAddress, ShippingAddress) VALUES ('Ann Oak', 'Ann' || char(13, 10) || "
        "'1 Mill Rd', 'Dock 4')");
    for (const auto& [name, type] : {std::pair{"Bolt", "Inventory Part"},
                                     {"Work", "Service"},
                                     {"Sub", "Subtotal"},
                                     {"Rebate", "Discount"},
                                     {"Tax", "Sales Tax"}})
      company.run("INSERT INTO Items (ItemName, ItemType) VALUES (?, ?)", {name, type});
  }
  void set(const std::string& key, const std::string& state) {
    company.run("UPDATE GeneralPrefs SET State = ? WHERE Preference = ?", {state, key});
  }

  struct Line {
    std::string item;
    Money amount;  ///< negative: on the other side
    double sold = 1;
    std::string source = {};
  };
  int64_t invoice(const std::string& style, const std::vector<Line>& lines, bool credit_memo = false) {
    Money total;
    for (const Line& line : lines)
      if (line.source.empty()) total += line.amount;
    Transaction_Writer rows(session,
                            {.Type = "Invoice", .Date = Date(2026, 6, 1), .Number = "1042", .Name = "Ann Oak"});
    LedgerRow head{.Account = "AR1",
                   .Category = "<-Break Down->",
                   .Debit = total,
                   .Amount = total,
                   .Memo = "Thanks",
                   .SourceName = style,
                   .AmountReceived = Money(),
                   .Terms = "Net 30",
                   .PONum = "P-7"};
    head.ShipDate = Date(2026, 6, 9);
    if (credit_memo) std::swap(head.Debit, head.Credit);
    rows.add(head);
    for (const Line& line : lines) {
      const bool back = line.amount.is_negative() != credit_memo;
      LedgerRow row{.Account = "66SS",
                    .Category = "AR1",
                    .Amount = line.amount.abs(),
                    .SourceName = line.source.empty() ? style : line.source,
                    .Item = line.item,
                    .ItemDescription = "of steel",
                    .Qty = -line.sold,
                    .SalePrice = line.item == "Tax" ? Money::from_units(650) : D(5)};
      (back ? row.Debit : row.Credit) = line.amount.abs();
      rows.add(row);
    }
    rows.commit();
    return rows.number();
  }
  static std::string lines(const Layout& layout) {
    std::string text;
    for (const Layout::Row& row : layout.details())
      text += row.at("Item") + "|" + row.at("Qty") + "|" + row.at("Rate") + "|" + row.at("Amount") + "\n";
    return text;
  }
};

TEST_F(PrintedPapers, AnInvoicesLinesAddUpToItsTotalAndShowWhatWasSold) {
  const int64_t number = invoice("Product", {{"Work", D(20), 4},
                                             {"Bolt", D(10), 2},
                                             {"Bolt", D(10), 2, "Inventory Part"},
                                             {"Bolt", D(10), 2, "Inventory Part"},
                                             {"Sub", Money(), 0},
                                             {"Rebate", D(-3), 1},
                                             {"Sub", Money(), 0},
                                             {"Tax", Money::from_units(19500), 0}});
  const PrintedDocument document = Print_Invoice(session, number);
  ASSERT_EQ(document.layouts.size(), 1u);
  const Layout& paper = document.layouts[0];
  EXPECT_EQ(document.title, "Invoice 1042");
  EXPECT_EQ(paper.name(), "crpInvoice");
  EXPECT_EQ(lines(paper),
            "Work|4|5.00|20.00\nBolt|2|5.00|10.00\nSub||5.00|30.00\nRebate|1|5.00|-3.00\nSub||5.00|27.00\n"
            "Tax||6.5%|1.95\n");
  EXPECT_EQ(paper.text("Total"), "$28.95");
  EXPECT_EQ(paper.text("Balance"), "$28.95");
  EXPECT_EQ(paper.text("CompanyName"), "Acme Widgets");
  EXPECT_EQ(paper.text("BillingAddress"), "Ann\r\n1 Mill Rd");
  EXPECT_EQ(paper.text("ShippingAddress"), "Dock 4");
  EXPECT_EQ(paper.text("ShipDate"), "6/9/2026");
  EXPECT_EQ(paper.text("Message"), "Thanks");
  company.run("UPDATE Transactions SET AmountReceived = ? WHERE TransNum = ?", {D(8), number});
  EXPECT_EQ(Print_Invoice(session, number).layouts[0].text("Balance"), "$20.95");
  // On letterhead each of the three rows of the part stands; subtotals stay right.
  const Layout letter = Print_Invoice_Letter(session, number).layouts[0];
  EXPECT_EQ(letter.name(), "crpInvoiceLetter");
  EXPECT_EQ(lines(letter),
            "Work|4|5.00|20.00\nBolt|2|5.00|10.00\nBolt|2|5.00|10.00\nBolt|2|5.00|10.00\nSub||5.00|30.00\n"
            "Rebate|1|5.00|-3.00\nSub||5.00|27.00\nTax||6.5%|1.95\n");
}

/// A part is posted at what it cost; what is printed is what it is sold for.
TEST_F(PrintedPapers, WhatAPartCostIsNeverOnTheInvoice) {
  company.run(
      "UPDATE Items SET ItemCat = '66SS', COGScat = '66SS', InvAsset = '3SS', PriceRate = ?, Cost = ? WHERE ItemName = 'Bolt'",
      {D(5), D(2)});
  company.run("INSERT INTO Items (ItemName, ItemType, Description) VALUES ('Kit', 'Group', 'All you need')");
  for (const char* rule : {"Cost", "Sale"}) {
    set("InventoryPosting", rule);
    for (const double sold : {4.0, -4.0}) {
      Invoice made = New_Invoice(session);
      made.Name = "Ann Oak";
      made.lines = {{.Item = "Kit"}, Chosen_Line(Item_Facts(session, "Bolt"), {.Quantity = sold})};
      made.lines[1].Amount = D(sold > 0 ? 20 : -20);
      ASSERT_TRUE(Enter_Invoice(session, made).written);
      const Layout paper = Print_Invoice(session, made.TransNum).layouts.at(0);
      EXPECT_EQ(paper.text("Title"), sold > 0 ? "Invoice" : "Credit Memo");
      EXPECT_EQ(lines(paper), sold > 0 ? "Kit|||\nBolt|4|5.00|20.00\n" : "Kit|||\nBolt|-4|5.00|20.00\n") << rule;
      EXPECT_EQ(paper.text("Total"), "$20.00");
      EXPECT_EQ(Print_Invoice_Letter(session, made.TransNum).layouts.at(0).details().size(), 4u);
    }
  }
}

TEST_F(PrintedPapers, ACreditMemoPrintsWhatItGivesBack) {
  const int64_t number = invoice("Service", {{"Work", D(20), 4}, {"Rebate", D(-3)}}, true);
  const PrintedDocument document = Print_Invoice(session, number);
  EXPECT_EQ(document.title, "Credit Memo 1042");
  EXPECT_EQ(document.layouts.at(0).text("Total"), "$17.00");
  EXPECT_EQ(lines(document.layouts[0]), "Work|4|5.00|20.00\nRebate|1|5.00|-3.00\n");
}

TEST_F(PrintedPapers, StyleAndPaperDecideWhatShows) {
  struct Case {
    const char *style, *paper, *layout;
    std::string hidden;
  };
  const Case cases[] = {
      {"Product", "BlankBox", "crpInvoice", ""},
      {"Service", "BlankBox", "crpInvoice", "FOBField RepField ShipDateField ShipToField ViaField "},
      {"Professional", "BlankBox", "crpInvoice", "FOBField PONumField RepField ShipDateField ShipToField ViaField "},
      {"Product", "BlankNoBox", "crpInvoice",
       "Boxes FOBFrame PONumFrame RepFrame ShipDateField ShipDateFrame TermsFrame ViaFrame "},
      {"Product", "PrePrinted", "crpInvoicePre", ""},
  };
  for (const Case& c : cases) {
    set("PrintInvoice", c.paper);
    const Layout paper = Print_Invoice(session, invoice(c.style, {{"Work", D(20)}})).layouts.at(0);
    std::string hidden;
    for (const std::string& object : paper.hidden()) hidden += object + " ";
    EXPECT_EQ(paper.name(), c.layout);
    EXPECT_EQ(hidden, c.hidden) << c.style << " " << c.paper;
    EXPECT_EQ(paper.text("ShippingAddress"), std::string(c.style) == "Product" ? "Dock 4" : "");
  }
  EXPECT_EQ(Invoice_Viewer(session), "frmPrintInvoice");
  set("PrintInvoice", "Letterhead");
  EXPECT_EQ(Invoice_Viewer(session), "frmPrintInvoiceLetter");
}

TEST_F(PrintedPapers, AStatementListsWhatIsOpenWithWhatWasReceived) {
  const int64_t one = invoice("Service", {{"Work", D(100)}});
  const int64_t two = invoice("Service", {{"Work", D(30)}}, true);
  invoice("Service", {{"Work", D(500)}});
  company.run("UPDATE Transactions SET Paid = -1 WHERE TransNum NOT IN (?, ?)", {one, two});
  company.run("UPDATE Transactions SET AmountReceived = ? WHERE TransNum = ?", {D(40), one});
  const Layout statement = Print_Statement(session, {"Ann Oak"}, Date(2026, 6, 15)).layouts.at(0);
  ASSERT_EQ(statement.details().size(), 2u);
  EXPECT_EQ(statement.details()[0].at("Amount"), "$100.00");
  EXPECT_EQ(statement.details()[0].at("Received"), "$40.00");
  EXPECT_EQ(statement.details()[0].at("Balance"), "$60.00");
  EXPECT_EQ(statement.details()[1].at("Balance"), "-$30.00");
  EXPECT_EQ(statement.text("Total"), "$30.00");
  EXPECT_EQ(Print_Statement(session, {"Nobody"}, Date(2026, 6, 15)).layouts.at(0).details().size(), 0u);
  EXPECT_EQ(Print_Statements(session, Date(2026, 6, 15)).layouts.size(), 1u);
  company.run("UPDATE Transactions SET AmountReceived = ? WHERE TransNum = ?", {D(70), one});
  EXPECT_TRUE(Print_Statements(session, Date(2026, 6, 15)).layouts.empty());  // what is open makes up for itself
}

TEST_F(PrintedPapers, FinanceChargesStandBelowTheInvoices) {
  const int64_t one = invoice("Service", {{"Work", D(100)}});
  const Layout plain = Print_Statement(session, {"Ann Oak"}, Date(2026, 6, 15)).layouts.at(0);
  EXPECT_TRUE(plain.is_hidden("ChargesField"));
  Transaction_Writer charge(session, {.Type = "Statement", .Date = Date(2026, 5, 15), .Name = "Ann Oak"});
  charge.add({.Account = "AR1", .Category = "66SS", .Debit = D(9), .Amount = D(9), .AmountReceived = D(4)});
  charge.add({.Account = "66SS", .Category = "AR1", .Credit = D(9), .Amount = D(9)});
  charge.commit();
  const Layout statement = Print_Statement(session, {"Ann Oak", D(2)}, Date(2026, 6, 15)).layouts.at(0);
  EXPECT_FALSE(statement.is_hidden("ChargesField"));
  EXPECT_EQ(statement.text("Total"), "$100.00");
  EXPECT_EQ(statement.text("Charges"), "$7.00");
  EXPECT_EQ(statement.text("Due"), "$107.00");
  company.run("UPDATE Transactions SET Paid = -1 WHERE TransNum <> ?", {one});
  EXPECT_TRUE(Print_Statement(session, {"Ann Oak"}, Date(2026, 6, 15)).layouts.at(0).is_hidden("ChargesField"));
}

TEST_F(PrintedPapers, APdfIsNamedByItsDocumentAndReplacesNone) {
  const auto first = Document_File(session, "Invoice 10/42");
  EXPECT_EQ(first.filename(), "Invoice 10_42.pdf");
  EXPECT_EQ(first.parent_path(), company.folder / "Acme PDF");
  std::ofstream(first) << "kept";
  EXPECT_EQ(Document_File(session, "Invoice 10/42").filename(), "Invoice 10_42 (2).pdf");
  for (const std::string& title : {std::string("../../x"), std::string("a\nb:c\\d"), std::string(300, 'x'),
                                   std::string(99, 'x') + "\xC3\xA9", std::string()}) {
    const auto file = Document_File(session, title);
    EXPECT_EQ(file.parent_path(), company.folder / "Acme PDF") << title;
    std::ofstream out(file);
    EXPECT_TRUE(out << "x") << title;
  }
}

TEST_F(PrintedPapers, OrdersEstimatesAndSlipsShowTheirOwnLines) {
  company.run(
      "INSERT INTO POs (Index, Vendor, VendorAddress, PONumber, Date, Total, Memo) VALUES (3, 'Mill', 'Mill Rd', "
      "'P3', '2026-06-01', ?, 'soon')",
      {D(15)});
  company.run("INSERT INTO Estimates (Index, Customer, EstimateNumber, Total) VALUES (3, 'Ann Oak', 'E3', ?)", {D(7)});
  company.run("INSERT INTO PSlips (Index, Vendor, PONumber, Total) VALUES (3, 'Ann Oak', 'S3', ?)", {D(9)});
  for (const auto& [table, link] :
       {std::pair{"POItems", "POIndex"}, {"EstItems", "EstimateIndex"}, {"PSlipItems", "POIndex"}})
    for (const int64_t index : {3, 4})
      company.run(
          "INSERT INTO " + std::string(table) + " (" + link + ", Item, Qty, Rate, Amount) VALUES (?, ?, 3, ?, ?)",
          {index, index == 3 ? table : "other", D(5), D(15)});
  const PrintedDocument order = Print_Purchase_Order(session, 3);
  EXPECT_EQ(order.title, "Purchase Order P3");
  EXPECT_EQ(order.layouts.at(0).text("PartyAddress"), "Mill Rd");
  EXPECT_EQ(lines(order.layouts[0]), "POItems|3|5.00|15.00\n");
  const PrintedDocument estimate = Print_Estimate(session, 3);
  EXPECT_EQ(estimate.layouts.at(0).text("Title"), "Estimate");
  EXPECT_EQ(estimate.layouts[0].text("Total"), "$7.00");
  EXPECT_EQ(lines(estimate.layouts[0]), "EstItems|3|5.00|15.00\n");
  const Layout slip = Print_Slip(session, 3).layouts.at(0);
  EXPECT_EQ(slip.details(), (std::vector<Layout::Row>{{{"Item", "PSlipItems"}, {"Description", ""}, {"Qty", "3"}}}));
  EXPECT_EQ(slip.text("Total"), "");
  EXPECT_TRUE(Print_Slip(session, 9).layouts.empty());
}

}  // namespace
}  // namespace tallymere
