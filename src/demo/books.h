#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "demo/calendar.h"
#include "demo/items.h"
#include "demo/loader.h"
#include "demo/parties.h"

namespace tallymere::demo {

/// The desk that everybody works at: the lists, the day, the papers that wait, and the way into the ledger.
struct Books {
  Books(store::Database& database, const DemoOptions& options);

  store::Database& db;
  Random random;
  const Plan plan;
  const Chart chart;
  Parties parties;
  ItemList items;
  Loader loader;
  Date day;

  Document& Open(std::string_view type) { return loader.Add(day, type); }
  /// A check of any kind under the next number; the latest are still to be printed.
  Document& Open_Check(std::string_view type, std::string_view payee, std::string_view address);
  /// Tells the desk that a document's rows are complete. Keeps track of the bank and of the sales tax.
  void Close(Document& document);
  /// Two rows that mirror each other, as the register and the ledger write them.
  Document& Entry(std::string_view debited, std::string_view credited, Money amount, std::string_view memo,
                  std::string_view name = {});
  /// Runs something on a day to come, on the next workday if it is none; never, after the last day.
  void On(Date when, std::function<void()> work);
  void Run_Due();

  bool behind() const { return loader.count() < plan.due_by(day); }
  bool recent(int days) const { return days_between(day, plan.last) < days; }
  /// Cents between two whole dollar amounts.
  Money between(int low, int high);
  /// An amount for one business of many: the size of the overhead grows with the staff.
  Money sized(Money amount) const { return amount.times(size_); }
  Money bank() const { return bank_; }
  Money tax_owed(const Item* tax) const { return tax == items.state_tax ? state_tax_ : city_tax_; }

 private:
  std::map<int, std::vector<std::function<void()>>> due_;
  double size_;
  Money bank_, state_tax_, city_tax_;
  int next_check_ = 1001;
};

}  // namespace tallymere::demo
