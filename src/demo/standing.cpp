#include "demo/standing.h"

#include <array>

#include "demo/rows.h"

namespace tallymere::demo {
namespace {

struct Planned {
  std::string Chart::*category;
  int monthly;  // dollars
};
constexpr std::array budget = {Planned{&Chart::rent, 1850},        Planned{&Chart::advertising, 300},
                               Planned{&Chart::materials, 2600},   Planned{&Chart::subcontractors, 2900},
                               Planned{&Chart::office, 120},       Planned{&Chart::telephone, 180},
                               Planned{&Chart::accounting, 300},   Planned{&Chart::sales, 9000},
                               Planned{&Chart::depreciation, 730}, Planned{&Chart::shipping, 150}};

void Write_Budget(Books& books) {
  for (const Planned& planned : budget)
    for (int month = 1; month <= 12; ++month)
      Add_Row(books.db, "Budget",
              {{"Category", books.chart.*planned.category},
               {"Year", books.plan.last.year()},
               {"Month", month},
               {"Amount", books.sized(Money::dollars(planned.monthly)).rounded_to_cents()}});
}

void Write_Repeat(Books& books, std::string_view name, std::string_view type, int64_t number, std::string_view category,
                  Money amount, std::string_view frequency, store::Value remaining) {
  if (number == 0) return;
  Add_Row(books.db, "RepeatTrans",
          {{"Name", name},
           {"TransactionID", number},
           {"Type", type},
           {"SourceCat", category},
           {"Amount", amount},
           {"Frequency", frequency},
           {"NextDate", books.plan.last.first_of_month().add_months(1)},
           {"AdvDays", 0},
           {"NumRemain", remaining}});
}

void Write_Saved_Reports(store::Database& db) {
  struct Report {
    std::string_view name, parent, range, fields, item;
  };
  constexpr std::string_view columns = "Type,Date,Number,Name,Memo,Category,Amount,";
  for (const Report& report :
       {Report{"Transactions of the month", "Date", "This Month", columns, ""},
        Report{"Customers this quarter", "Customer", "This Quarter", "Type,Date,Number,Amount,", ""},
        Report{"Landlord last year", "VendorRep", "Last Year", columns, landlord}})
    Add_Row(db, "SavedReports",
            {{"ReportName", report.name},
             {"Parent", report.parent},
             {"DateRange", report.range},
             {"Fields", report.fields},
             {"Item", report.item},
             {"Class", ""}});
}

}  // namespace

void Write_Company_Info(store::Database& db, const std::string& name) {
  db.Execute(
      "UPDATE CompanyInfo SET Name = ?, Address = ?, LegalName = ?, LegalAddress = ?, LegalCity = ?, "
      "LegalState = ?,"
      " LegalZip = ?, FedID = ?, FiscalMonth = ?, TaxMonth = ?",
      {name, name + "\r\n2100 Harrison Avenue\r\nRockford, IL 61104", name + ", Inc.", "2100 Harrison Avenue",
       "Rockford", "IL", "61104", federal_id, "January", "January"});
  db.Execute("UPDATE GeneralPrefs SET State = ? WHERE Preference = ?", {"18%", "FinanceAPR"});
}

void Write_Standing_Work(Books& books, const Sales& sales, const Purchases& purchases) {
  Write_Repeat(books, "Rent", "Check", purchases.check_template(), books.chart.checking, purchases.check_amount(),
               "Monthly", {});
  Write_Repeat(books, "Telephone", "Bill", purchases.bill_template(), payable, purchases.bill_amount(), "Monthly", {});
  Write_Repeat(books, "Maintenance contract", "Invoice", sales.repeat_template(), receivable, sales.repeat_amount(),
               "Monthly", 6);
  Write_Saved_Reports(books.db);
  Write_Budget(books);
}

}  // namespace tallymere::demo
