#include <fstream>

#include "payroll/taxtables/replies.h"
#include "payroll/taxtables/update.h"
#include "support/test_company.h"

namespace tallymere {
namespace {

using testing::TestCompany;

/// A shipped table as the endpoint would send it.
std::string Reply_Of(std::string_view table) {
  std::ifstream file(testing::data_folder / "accounts" / (std::string(table) + ".tsv"));
  std::string text{std::istreambuf_iterator<char>(file), {}};
  text.erase(0, text.find('\n') + 1);
  return table == "FedUnRates" ? "6.0\n0.6\n" : text;
}

struct Endpoint : TestCompany {
  Endpoint() {
    store::Transaction tx(accounts(), "set");
    accounts().Execute("UPDATE Settings SET UpdateHost = 'tables.example', Updated = '2026-05-01'");
    tx.commit();
  }
  store::Database& accounts() { return *session->dbAccounts; }
  std::string dump(const std::string& table) {
    std::string text;
    auto rows = accounts().query("SELECT * FROM " + table + " ORDER BY RowKey", {});
    while (rows.step())
      for (int column = 1; column < rows.columns(); ++column) text += std::string(rows.text(column)) + "|";
    return text;
  }
  std::string updated() { return accounts().value("SELECT Updated FROM Settings").text(); }
  Fetch fetch() {
    return [this](const std::string& url, const std::function<bool()>&) -> Fetched {
      asked.push_back(url);
      for (const auto& [path, body] : pages)
        if (url == "http://tables.example/" + path) return {Fetched::End::Whole, body, ""};
      return {Fetched::End::NoConnection, "", "not found"};
    };
  }
  void serve_all() {
    for (const TaxTablePath& path : tax_table_paths) pages[std::string(path.path)] = Reply_Of(path.table);
  }

  std::map<std::string, std::string> pages;
  std::vector<std::string> asked;
};

TEST(TaxTables, AnyCutReplyLeavesTheOldTable) {
  Endpoint endpoint;
  for (const TaxTablePath& path : tax_table_paths) {
    const std::string whole = Reply_Of(path.table);
    EXPECT_NO_THROW(Read_Reply(endpoint.accounts(), path.table, whole)) << path.table;
    for (size_t cut = 0; cut < whole.size(); ++cut)
      ASSERT_THROW(Read_Reply(endpoint.accounts(), path.table, whole.substr(0, cut)), Tax_Reply_Error)
          << path.table << " cut at " << cut;
  }
}

TEST(TaxTables, RepliesAreCheckedFieldByField) {
  Endpoint endpoint;
  const std::string good = Reply_Of("FedWeekly");
  auto changed = [&](const std::string& from, const std::string& to) {
    std::string text = good;
    text.replace(text.find(from), from.size(), to);
    return text;
  };
  for (const std::string& bad :
       {changed("144.00", "144.00x"), changed("0.10", "10"), changed("0.10", ""), changed("0.10", "0.10\t1"),
        changed("383.00\t1113.00", "1383.00\t1113.00"), changed("1113.00", "1114.00"), changed("Single", "Head"),
        changed("144.00", "1,44.00"), changed("0.10", "1e-1"), std::string("<html>404</html>\n")})
    EXPECT_THROW(Read_Reply(endpoint.accounts(), "FedWeekly", bad), Tax_Reply_Error) << bad.substr(0, 60);
}

TEST(TaxTables, AllOfACodeOrNothing) {
  Endpoint endpoint;
  endpoint.serve_all();
  endpoint.pages["AutoUpdate/index.php"] = "9";
  std::string& weekly = endpoint.pages["AutoUpdate/GetFedWeekly.php"];
  weekly.replace(weekly.find("0.12"), 4, "0.13");
  const std::string before = endpoint.dump("FedWeekly"), daily = endpoint.dump("FedDaily");
  const std::string minnesota = endpoint.pages["AutoUpdate/GetMNWithHold.php"];
  endpoint.pages["AutoUpdate/GetMNWithHold.php"].resize(minnesota.size() / 2);  // the last one asked for
  Update_Tax_Tables(*endpoint.session, endpoint.fetch());
  EXPECT_EQ(endpoint.dump("FedWeekly"), before);
  EXPECT_EQ(endpoint.updated(), "5/1/2026");
  EXPECT_EQ(endpoint.prompts.boxes.back().icon, Icon::Critical);

  endpoint.pages["AutoUpdate/GetMNWithHold.php"] = minnesota;
  endpoint.asked.clear();
  Update_Tax_Tables(*endpoint.session, endpoint.fetch());
  EXPECT_EQ(endpoint.asked.size(), 13U) << "index, eleven federal replies, of which one twice, and Minnesota";
  EXPECT_NE(endpoint.dump("FedWeekly"), before);
  EXPECT_EQ(endpoint.dump("FedDaily"), daily);
  EXPECT_EQ(endpoint.updated(), "6/15/2026");
  EXPECT_EQ(endpoint.prompts.boxes.back().text, "Your Tax Tables Have been Updated.");
  EXPECT_EQ(endpoint.dump("FedUnRates"), "0.06|0.006|");

  // An emptied table is filled again.
  store::Transaction tx(endpoint.accounts(), "empty");
  endpoint.accounts().Execute("DELETE FROM WIWithhold");
  tx.commit();
  endpoint.pages["AutoUpdate/index.php"] = " 6";
  Update_Tax_Tables(*endpoint.session, endpoint.fetch());
  EXPECT_EQ(endpoint.accounts().value("SELECT COUNT(*) FROM WIWithhold").integer(), 20);
}

TEST(TaxTables, WhatTheIndexSaysAndWhenItIsAsked) {
  EXPECT_EQ(Code_Of_Index(""), -2);
  EXPECT_EQ(Code_Of_Index("<html>5"), 0);
  EXPECT_EQ(Code_Of_Index("-2"), -2);
  using enum TaxGroup;
  EXPECT_EQ(Groups_Of_Code(8), (std::vector{Federal, Indiana}));
  EXPECT_EQ(Groups_Of_Code(12), (std::vector{Federal, Illinois, Indiana}));
  EXPECT_EQ(Groups_Of_Code(17), (std::vector{Federal, Indiana, Missouri}));
  EXPECT_EQ(Groups_Of_Code(21), (std::vector{Federal, Missouri, Wisconsin}));
  EXPECT_EQ(Groups_Of_Code(22).size(), 6U);
  EXPECT_TRUE(Groups_Of_Code(23).empty());

  Endpoint endpoint;
  Check_Updates(*endpoint.session, endpoint.fetch());  // due, and nobody answers
  EXPECT_EQ(endpoint.asked, std::vector<std::string>{"http://tables.example/AutoUpdate/index.php"});
  EXPECT_EQ(endpoint.prompts.boxes.back().title, "No Connection");
  EXPECT_EQ(endpoint.updated(), "5/1/2026");
  endpoint.pages["AutoUpdate/index.php"] = "0\n";
  Check_Updates(*endpoint.session, endpoint.fetch());
  EXPECT_EQ(endpoint.prompts.boxes.back().text, "Your Tax Tables are up to date.");
  EXPECT_EQ(endpoint.updated(), "6/15/2026");
  Check_Updates(*endpoint.session, endpoint.fetch());  // not twice a month
  EXPECT_EQ(endpoint.asked.size(), 2U);
  endpoint.pages["AutoUpdate/index.php"] = "23";
  Update_Tax_Tables(*endpoint.session, endpoint.fetch());
  EXPECT_EQ(endpoint.prompts.boxes.back().text, "Your Tax Tables Have been Updated.");
}

}  // namespace
}  // namespace tallymere
