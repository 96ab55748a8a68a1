#include "payroll/defaults.h"

#include "core/company/program_folder.h"
#include "core/values/text.h"
#include "core/values/tsv.h"
#include "payroll/calc/rates.h"

namespace tallymere {
namespace {

std::vector<PayrollDefault> Read_Defaults() {
  std::vector<PayrollDefault> defaults;
  const auto file = Shipped_Data() / "payroll" / "PayrollDefaults.tsv";
  if (!std::filesystem::exists(file)) return defaults;
  for (const auto& row : Read_Tsv(file).rows) {
    PayrollDefault& read = defaults.emplace_back();
    read.item = row[0];
    read.state = row[1];
    read.rate = row[2] + "%";
    read.limit = Money::parse(row[3]);
    if (!row[4].empty()) read.workforce_fee = std::stod((First_Number(row[4]) / 100).text());
  }
  return defaults;
}

}  // namespace

const std::vector<PayrollDefault>& Payroll_Defaults() {
  static const std::vector<PayrollDefault> defaults = Read_Defaults();
  return defaults;
}

const PayrollDefault* Unemployment_Default(std::string_view state) {
  for (const PayrollDefault& each : Payroll_Defaults())
    if (each.item == "State Unemployment" && same_text(each.state, state)) return &each;
  return nullptr;
}

}  // namespace tallymere
