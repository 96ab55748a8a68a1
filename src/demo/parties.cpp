#include "demo/parties.h"

#include <algorithm>
#include <array>

#include "demo/rows.h"
#include "demo/words.h"

namespace tallymere::demo {
namespace {

constexpr auto standing_vendors = std::to_array<std::string_view>(
    {treasury, state_revenue, state_employment, city_hall, retirement_plan, health_plan, landlord, bank_name, card_bank,
     electric_company, gas_company, water_company, telephone_company, insurer, bookkeeper});

constexpr int least_suppliers = 6;

std::string Person(Random& random) {
  return std::string(random.pick(words::first_names)) + " " + std::string(random.pick(words::last_names));
}

std::string Firm(Random& random) {
  std::string name(random.pick(words::last_names));
  return name + " " + std::string(random.pick(words::business_kinds));
}

/// The name itself, or with a town, or with a count behind it: no two parties share one.
std::string Unique(std::set<std::string>& taken, const std::string& name, Random& random) {
  if (taken.insert(name).second) return name;
  const std::string in_town = name + " of " + std::string(random.pick(words::places).city);
  std::string candidate = in_town;
  for (int count = 2; !taken.insert(candidate).second; ++count) candidate = in_town + " " + std::to_string(count);
  return candidate;
}

std::string Phone(std::string_view name) {
  const auto mixed = Random::Mix(name.size() * 131 + static_cast<unsigned char>(name.front()) * 7919u +
                                 static_cast<unsigned char>(name.back()));
  return "(815) 555-01" + std::to_string(10 + mixed % 90);
}

/// The tax number and box of a vendor that gets a 1099, or nothing.
struct Form1099 {
  std::string category, box;
};
Form1099 Form_Of(const Parties& parties, const Vendor& vendor, const Chart& chart) {
  if (vendor.name == landlord) return {chart.rent, "Rents:,;"};
  const bool sub = std::ranges::any_of(parties.subcontractors, [&](const Vendor* s) { return s == &vendor; });
  return sub ? Form1099{chart.subcontractors, "Nonemployee compensation,;"} : Form1099{"", ";"};
}

}  // namespace

std::string Street_And_Place(Random& random) {
  const auto& place = random.pick(words::places);
  std::string street = std::to_string(random.between(10, 4900)) + " " + std::string(random.pick(words::streets));
  return street + "\r\n" + std::string(place.city) + ", IL " + std::string(place.zip);
}

Parties::Parties(const Plan& plan, Random& random) {
  Make_Vendors(plan.vendors, random);
  Make_Customers(plan.customers, random);
}

void Parties::Make_Customers(int count, Random& random) {
  for (int index = 0; index < count; ++index) {
    Customer customer;
    const bool job = index > 5 && random.chance(15);
    if (job) {
      const Customer& parent = random.pick(customers);
      customer.parent = parent.name;
      customer.address = parent.address;
      customer.name = Unique(names_, parent.name + " - " + std::string(random.pick(words::job_names)), random);
    } else {
      customer.name = Unique(names_, random.chance(55) ? Firm(random) : Person(random), random);
      customer.address = customer.name + "\r\n" + Street_And_Place(random);
    }
    const auto& term = random.pick(words::terms);
    customer.term = term.name;
    customer.days = term.days;
    customer.habit = index % 11 == 5 ? random.between(45, 60) : random.between(-4, 14);
    customer.rep = random.pick(words::reps);
    customer.in_city = random.chance(70);
    customers.push_back(std::move(customer));
  }
}

void Parties::Make_Vendors(int count, Random& random) {
  const int made = std::max(count - static_cast<int>(standing_vendors.size()), least_suppliers);
  vendors.reserve(standing_vendors.size() + static_cast<size_t>(made));
  auto add = [&](const std::string& name, const words::Term& term) -> Vendor& {
    std::string address = name + "\r\n" + Street_And_Place(random);
    std::string account = std::to_string(random.between(10000, 99999));
    return vendors.emplace_back(Vendor{name, address, account, std::string(term.name), term.days});
  };
  for (std::string_view name : standing_vendors) add(*names_.emplace(name).first, words::terms[2]);
  for (int index = 0; index < made; ++index) {
    const bool supplier = index % 3 != 2;
    std::string name(random.pick(words::last_names));
    name += " " + std::string(supplier ? random.pick(words::supplier_kinds) : random.pick(words::subcontractor_kinds));
    Vendor& vendor = add(Unique(names_, name, random), random.pick(words::terms));
    (supplier ? suppliers : subcontractors).push_back(&vendor);
  }
}

const Vendor& Parties::vendor(std::string_view name) const { return *std::ranges::find(vendors, name, &Vendor::name); }

void Parties::Write(store::Database& db, const Chart& chart) const {
  for (const Customer& customer : customers)
    Add_Row(db, "Customers",
            {{"Name", customer.name},
             {"ParentName", customer.parent},
             {"BillingAddress", customer.address},
             {"ShippingAddress", customer.address},
             {"Phone", Phone(customer.name)},
             {"RepName", customer.rep},
             {"Balance", Money()},
             {"Dormant", false}});
  for (const Vendor& vendor : vendors) {
    const Form1099 form = Form_Of(*this, vendor, chart);
    const bool eligible = !form.category.empty();
    Add_Row(db, "Vendors",
            {{"Name", vendor.name},
             {"CheckPrint", vendor.name},
             {"ShippingAddress", vendor.address},
             {"Phone", Phone(vendor.name)},
             {"AccountNum", vendor.account_num},
             {"Terms", vendor.term},
             {"TaxID", eligible ? "36-55" + vendor.account_num : ""},
             {"Eligible1099", eligible},
             {"1099Cat", form.category},
             {"1099MISC", eligible},
             {"Boxes", form.box},
             {"Balance", Money()},
             {"Dormant", false}});
  }
}

void Write_Small_Lists(store::Database& db) {
  auto fill = [&db](std::string_view table, std::string_view field, const auto& names) {
    for (std::string_view name : names)
      if (db.value("SELECT 1 FROM " + std::string(table) + " WHERE " + std::string(field) + " = ?", {name}).is_null())
        Add_Row(db, table, {{field, name}});
  };
  fill("Class", "Class", words::classes);
  fill("PaymentMethod", "Method", words::payment_methods);
  fill("VIA", "Method", words::shipping_methods);
  fill("RepNames", "Name", words::reps);
  fill("OtherNames", "Name", words::other_names);
  fill("CustomerMessages", "Message", words::messages);
  for (const auto& term : words::terms)
    if (db.value("SELECT 1 FROM Terms WHERE Term = ?", {term.name}).is_null())
      Add_Row(db, "Terms", {{"Term", term.name}, {"Days", term.days}});
}

}  // namespace tallymere::demo
