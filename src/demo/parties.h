#pragma once

#include <set>
#include <string>
#include <vector>

#include "core/store/database.h"
#include "demo/calendar.h"
#include "demo/chart.h"
#include "demo/document.h"
#include "demo/random.h"

namespace tallymere::demo {

struct Customer {
  std::string name, parent, address, rep, term;
  int days = 30;
  int habit = 0;        ///< days after the due date that payments usually come; may be negative
  bool in_city = true;  ///< pays the city's sales tax too
  std::vector<Document*> open;
};

struct Vendor {
  std::string name, address, account_num, term;
  int days = 30;
};

inline constexpr std::string_view federal_id = "36-5550142";

inline constexpr std::string_view treasury = "United States Treasury";
inline constexpr std::string_view state_revenue = "Illinois Department of Revenue";
inline constexpr std::string_view state_employment = "Illinois Department of Employment Security";
inline constexpr std::string_view city_hall = "City of Rockford";
inline constexpr std::string_view retirement_plan = "Prairie Retirement Services";
inline constexpr std::string_view health_plan = "Heartland Health Plan";
inline constexpr std::string_view landlord = "Lakeside Properties LLC";
inline constexpr std::string_view bank_name = "First Valley Bank";
inline constexpr std::string_view card_bank = "Prairie Card Services";
inline constexpr std::string_view electric_company = "Prairie Power & Light";
inline constexpr std::string_view gas_company = "Northern Plains Gas";
inline constexpr std::string_view water_company = "Rock River Water District";
inline constexpr std::string_view telephone_company = "Midway Telephone Co-op";
inline constexpr std::string_view insurer = "Fox Valley Insurance Agency";
inline constexpr std::string_view bookkeeper = "O'Malley & Léger, Accountants";

/// Whom the company deals with. Nothing is added or removed once it is built: documents point into it.
struct Parties {
  std::vector<Customer> customers;
  std::vector<Vendor> vendors;  ///< agencies and overhead first
  std::vector<Vendor*> suppliers, subcontractors;

  Parties(const Plan& plan, Random& random);
  const Vendor& vendor(std::string_view name) const;
  void Write(store::Database& db, const Chart& chart) const;

 private:
  void Make_Customers(int count, Random& random);
  void Make_Vendors(int count, Random& random);
  std::set<std::string> names_;
};

/// The small lists that combos offer: classes, terms, reps, methods, other names and messages.
void Write_Small_Lists(store::Database& db);

/// "12 Oak Avenue", CR LF, "Elgin, IL 60120".
std::string Street_And_Place(Random& random);

}  // namespace tallymere::demo
