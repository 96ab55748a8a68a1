#pragma once

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "core/values/text.h"
#include "support/report_books.h"

namespace tallymere::testing {

/// A small company of chance that leaves no rule alone: odd sides, names that are in no list, categories without their
/// parents, documents that hardly make sense. What a builder makes of it is held against a second, plain reading.
struct RandomBooks {
  struct Account {
    std::string CatID, AccountType, ParentAccount;  ///< named like its CatID
  };
  struct Item {
    std::string ItemName, ItemType, ParentItem, ItemCat, InvAsset, InvVendor;
    double InitialQty = 0, ReorderQty = 0;
    Money PriceRate;
    bool Dormant = false;
  };
  struct Term {
    std::string name;
    int days;
  };

  std::vector<Account> accounts = {{"AR1", "Accounts Receivable", ""},
                                   {"AP1", "Accounts Payable", ""},
                                   {"RE1", "Equity", ""},
                                   {"UF1", "Current Asset", ""},
                                   {"Bank", "Bank", ""}};
  std::vector<Posting> rows;  ///< in the order of their entry
  std::vector<std::string> customers = {"Abel", "O'Hara", "Zoe"}, vendors = {"Landlord", "Zoe"}, reps = {"Ann", "Bob"};
  std::vector<Item> items;
  std::vector<Term> terms = {{"Net 15", 15}, {"Net 30", 30}};

  explicit RandomBooks(unsigned seed) : engine_(seed) {
    for (int at = 0, count = 6 + pick(14); at < count; ++at) add_account(at);
    add_items();
    for (int number = 1, count = 10 + pick(30); number <= count; ++number) add_transaction(number, count);
    std::shuffle(rows.begin(), rows.end(), engine_);
  }

  int pick(int below) { return static_cast<int>(engine_() % static_cast<unsigned>(below)); }
  bool chance(int percent) { return pick(100) < percent; }
  template <typename T>
  const T& any(const std::vector<T>& from) {
    return from[static_cast<size_t>(pick(static_cast<int>(from.size())))];
  }
  Date day() { return Date(2024, 11, 1).plus_days(pick(600)); }

  void write(Books& books) const {
    store::Transaction tx(books.db(), "A random company", store::Transaction::History::Summary);
    for (auto table : {"Accounts", "Transactions", "Customers", "Vendors", "Items", "RepNames", "Terms", "Budget"})
      books.db().Execute(std::string("DELETE FROM ") + table);
    for (const Account& account : accounts) books.add(account.CatID, account.AccountType, account.ParentAccount);
    for (const std::string& name : customers) books.add_customer(name);
    for (const std::string& name : vendors) books.add_vendor(name);
    for (const std::string& name : reps) books.run("INSERT INTO RepNames (Name) VALUES (?)", {name});
    for (const Term& term : terms) books.run("INSERT INTO Terms (Term, Days) VALUES (?, ?)", {term.name, term.days});
    for (const Item& item : items)
      books.run(
          "INSERT INTO Items (ItemName, ItemType, ParentItem, ItemCat, InvAsset, InvVendor, InitialQty, ReorderQty,"
          " PriceRate, Dormant) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
          {item.ItemName, item.ItemType, item.ParentItem, item.ItemCat, item.InvAsset, item.InvVendor, item.InitialQty,
           item.ReorderQty, item.PriceRate, item.Dormant});
    for (const Posting& row : rows) books.post(row);
    tx.commit();
  }

  /// The names of a list and after them those that only rows bear, "" last: as reports walk them.
  std::vector<std::string> walk(std::vector<std::string> list, const std::vector<std::string>& in_rows) const {
    std::vector<std::string> strangers;
    for (const std::string& name : in_rows) {
      const auto same = [&](const std::string& other) { return folded(other) == folded(name); };
      if (std::none_of(list.begin(), list.end(), same) && std::none_of(strangers.begin(), strangers.end(), same))
        strangers.push_back(name);
    }
    std::sort(strangers.begin(), strangers.end(),
              [](auto& a, auto& b) { return !a.empty() && (b.empty() || folded(a) < folded(b)); });
    list.insert(list.end(), strangers.begin(), strangers.end());
    return list;
  }

 private:
  void add_account(int at) {
    static const std::vector<std::string> types = {
        "Bank",   "Current Asset", "Fixed Asset",  "Credit Card",        "Current Liability", "Long Term Liability",
        "Equity", "Income",        "Other Income", "Cost of Goods Sold", "Expense",           "Other Expense"};
    std::string parent = chance(35) ? any(accounts).CatID : chance(8) ? "gone" : "";
    accounts.push_back({std::string(1, static_cast<char>('a' + (at * 7) % 26)) + "cat", any(types), parent});
  }

  void add_items() {
    static const std::vector<std::string> types = {"Service",  "Inventory Part", "Inventory Part", "Non-Inventory Part",
                                                   "Discount", "Sales Tax",      "Payment",        "Group"};
    for (int at = 0, count = 4 + pick(9); at < count; ++at) {
      Item item;
      item.ItemName = "Item." + std::to_string(at);
      item.ItemType = any(types);
      item.ItemCat = any(accounts).CatID;
      item.InvAsset = any(accounts).CatID;
      item.InvVendor = chance(40) ? "" : any(vendors);
      if (chance(40) && at > 0) item.ParentItem = replace_all(any(items).ItemName, ".", "");
      item.InitialQty = pick(20);
      item.ReorderQty = pick(5);
      item.PriceRate = Money::from_units(pick(300000));
      item.Dormant = chance(15);
      items.push_back(item);
    }
  }

  std::string paid_by(int numbers) {
    std::string text;
    for (int at = pick(3); at > 0; --at) text += std::to_string(1 + pick(numbers + 3)) + ";";
    return text;
  }

  void add_transaction(int number, int numbers) {
    static const std::vector<std::string> types = {"Invoice", "Invoice", "Bill",      "Bill",       "Payment",
                                                   "Check",   "Credit",  "Statement", "Inv Adjust", "Item Receipt"};
    static const std::vector<std::string> names = {"Abel", "O'HARA", "Zoe", "Landlord", "stranger", "another", ""};
    Posting head{.TransNum = number, .Type = any(types), .day = day(), .Account = ""};
    head.Name = any(names);
    head.Paid = chance(45);
    head.PaidBy = paid_by(numbers);
    head.Number = std::to_string(1000 + number);
    head.Terms = chance(30) ? "" : chance(10) ? "gone" : any(terms).name;
    head.Rep = chance(40) ? "" : chance(20) ? "former" : any(reps);
    if (chance(50)) head.DueDate = day();
    for (int at = 1 + pick(5); at > 0; --at) rows.push_back(row_of(head));
  }

  Posting row_of(const Posting& head) {
    static const std::vector<std::string> sources = {"", "", "Product", "Inventory Part"};
    Posting row = head;
    row.Account = chance(25) ? "AR1" : chance(15) ? "AP1" : any(accounts).CatID;
    row.Category = chance(50) ? "AR1" : chance(30) ? "<-Break Down->" : chance(50) ? any(accounts).CatID : "gone";
    const Money amount = Money::from_units(pick(3) * 10000 + pick(40000));
    (chance(50) ? row.Debit : row.Credit) = amount;
    if (chance(5)) row.Debit = row.Credit = amount;
    if (chance(5)) row.Amount = Money::from_units(pick(90000) - 20000);
    if (chance(30)) row.AmountReceived = Money::from_units(pick(20000));
    if (chance(5)) row.day = day();
    if (chance(5)) row.Paid = !row.Paid;
    if (chance(60)) row.Item = chance(5) ? "gone" : any(items).ItemName;
    if (chance(70)) row.Qty = pick(13) - 8;
    row.SalePrice = Money::from_units(pick(90000));
    row.SourceName = any(sources);
    row.Taxable = chance(50);
    row.Memo = chance(20) ? "a memo" : "";
    row.Class = chance(20) ? "East" : "";
    return row;
  }

  std::mt19937 engine_;
};

}  // namespace tallymere::testing
