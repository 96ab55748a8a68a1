#include "reports/budget/budget.h"

#include "core/store/error.h"
#include "reports/budget/monthly_amounts.h"

namespace tallymere {

Budget_Amounts Load_Budget(store::Database& db, const std::string& CatID, int year) {
  Budget_Amounts amounts;
  db.each("SELECT Month, Amount FROM Budget WHERE Category = ? AND Year = ? AND Month BETWEEN 1 AND 12 ORDER BY RowKey",
          {CatID, year}, [&](const store::Row& row) {
            auto& amount = amounts[static_cast<size_t>(row.integer(0) - 1)];
            if (!amount) amount = row.money(1);
          });
  return amounts;
}

void Save_Budget(Session& session, const std::string& CatID, int year, const Budget_Amounts& loaded,
                 const Budget_Amounts& amounts) {
  store::Database& db = *session.dbCompany;
  store::Transaction tx(db, "Budget " + std::to_string(year) + ", " + CategoryTree::Load(db).name(CatID));
  const Budget_Amounts now = Load_Budget(db, CatID, year);
  if (now != loaded)
    throw store::Error(store::errors::data_changed, "Another user has changed this budget since it was shown.");
  for (int month = 1; month <= months_of_a_year; ++month) {
    const auto at = static_cast<size_t>(month - 1);
    const Money amount = amounts[at].value_or(Money());
    if (!now[at])
      db.Execute("INSERT INTO Budget (Category, Year, Month, Amount) VALUES (?, ?, ?, ?)",
                 {CatID, year, month, amount});
    else if (*now[at] != amount)
      db.Execute("UPDATE Budget SET Amount = ? WHERE Category = ? AND Year = ? AND Month = ?",
                 {amount, CatID, year, month});
  }
  db.Execute(
      "DELETE FROM Budget WHERE Category = ?1 AND Year = ?2 AND RowKey NOT IN"
      " (SELECT MIN(RowKey) FROM Budget WHERE Category = ?1 AND Year = ?2 GROUP BY Month)",
      {CatID, year});
  tx.commit();
}

Monthly_Amounts Get_Actual(store::Database& db, const CatIDs& categories, DateRange days) {
  const Date first = days.start.first_of_month();
  Monthly_Amounts actual{first, static_cast<size_t>(std::max(months_between(first, days.end) + 1, 0)), {}};
  db.each(
      "SELECT Account, SUBSTR(Date, 1, 7) AS month, SUM(Amount) FROM json_each(?3) AS wanted CROSS JOIN Transactions"
      " INDEXED BY Transactions_Account WHERE Account = wanted.value AND Date >= ?1 AND Date <= ?2"
      " GROUP BY wanted.key, month",
      {first, days.end.end_of_month(), Id_List(categories)}, [&](const store::Row& row) {
        const Date month = *Date::from_iso(std::string(row.text(1)) + "-01");
        actual.own[std::string(row.text(0))][static_cast<size_t>(months_between(first, month))] += row.money(2);
      });
  return actual;
}

Budget_Amounts Budget_From_Actual(store::Database& db, const std::string& CatID, int year, double percent) {
  const CategoryTree tree = CategoryTree::Load(db);
  const DateRange last_year{Date(year - 1, 1, 1), Date(year - 1, 12, 31)};
  Amounts months = tree.sum_family(CatID, Get_Actual(db, Family_Of(tree, CatID), last_year).own);
  Budget_Amounts amounts;
  for (size_t at = 0; at < amounts.size(); ++at) amounts[at] = months[at].times(1 + percent / 100).rounded_to_cents();
  return amounts;
}

}  // namespace tallymere
