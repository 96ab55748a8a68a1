#include "payroll/pay_cases.h"

#include <chrono>
#include <set>

#include "core/values/text.h"
#include "payroll/defaults.h"
#include "payroll/periods.h"
#include "payroll/states.h"
#include "support/pay_case.h"

namespace tallymere {
namespace {

PayCaseBooks Books() {
  testing::TempFolder folder;
  Prepare_Folder(folder.path(), testing::data_folder);
  auto model = Open_Current(folder.path() / "Model.mdb", store::FileKind::Model);
  return {std::make_shared<const PayItems>(Standard_Items(*model)), testing::Shipped_Tables()};
}

TEST(PayCases, EveryRowOfEveryGridComesOut) {
  PayCaseBooks books = Books();
  PayItems items = *books.items;
  Add_Items(items, "Name\tType\tPayCal\tTicked\n401(k)\tDeduction\tGross\tFederal Withholding;WI Withholding\n",
            "items");
  books.items = std::make_shared<const PayItems>(items);
  const std::string out = Calculate_Cases(
      "case\tPayPeriod\tFedStatus\tFedAllow\tStateWorked\tStateAllow\tSUIHold\tYearEarnings\tEarnings\tOtherItems\n"
      "one\tBiWeekly\tMarried\t3\tWI\t3\tYes\t13999\tHourly=12.50x80\t\n"
      "two\tBiWeekly\tMarried\t3\tWI\t3\tYes\t14001\tSalary=1100;Hourly=10x1\t401(k)=10%\n"
      "three\tFortnightly\t\t\t\t\t\t\tSalary=1\t\n",
      "cases", books);
  const auto has = [&out](const std::string& line) { return contains(out, line + "\n"); };
  EXPECT_TRUE(out.starts_with("case\tgrid\tName\tRate\tHours\tType\tAmount\tYTD\n"));
  EXPECT_TRUE(has("one\tgrdEarnings\tHourly\t12.50\t80\t\t\t"));
  EXPECT_TRUE(has("one\tgrdEmployee\tWI Withholding\t\t\t\t-22.08\t-22.08")) << out;
  EXPECT_TRUE(has("one\tgrdCompany\tWI Unemployment\t\t\t\t-30.50\t-30.50")) << "3.05 %, below the limit before";
  EXPECT_FALSE(contains(out, "two\tgrdCompany\tWI Unemployment")) << "above it";
  EXPECT_TRUE(has("two\tgrdOtherItems\t401(k)\t10%\t\tDeduction\t\t"));
  EXPECT_TRUE(has("two\tlabel\tgross\t\t\t\t1110\t"));
  EXPECT_TRUE(has("two\tlabel\tlblNet\t\t\t\t999\t"));
  EXPECT_TRUE(contains(out, "three\tfault\tNo current record. FedWithholdAllowance has no row for the pay period"));
}

TEST(PayCases, AThousandPaychecksInASecond) {
  const PayCaseBooks books = Books();
  std::string cases = "PayPeriod\tStateWorked\tFedAllow\tEarnings\n";
  for (int number = 0; number < 1000; ++number)
    cases += std::string(pay_period_names[static_cast<size_t>(number % 8)]) + "\t" + (number % 2 ? "MN" : "MO") +
             "\t1\tSalary=" + std::to_string(500 + number) + "\n";
  const auto begun = std::chrono::steady_clock::now();
  const std::string out = Calculate_Cases(cases, "cases", books);
  EXPECT_LT(std::chrono::steady_clock::now() - begun, std::chrono::seconds(1));
  EXPECT_FALSE(contains(out, "\tfault\t"));
}

TEST(States, AreAllThereAndKnowTheirNumbers) {
  std::set<std::string_view> letters, numbers;
  for (const UsState& state : us_states) letters.insert(state.letters), numbers.insert(state.fips);
  EXPECT_EQ(letters.size(), 51U);
  EXPECT_EQ(numbers.size(), 51U);
  EXPECT_TRUE(std::ranges::is_sorted(us_states, {}, &UsState::letters));
  EXPECT_EQ(Find_State("minnesota")->fips, "27");
  EXPECT_EQ(Find_State("dc")->name, "District of Columbia");
  EXPECT_EQ(Find_State("PR"), nullptr);
  EXPECT_EQ(Unemployment_Default("MN")->rate, "1.696%");
  EXPECT_EQ(Unemployment_Default("MN")->limit, Money::dollars(44000));
  EXPECT_EQ(Unemployment_Default("MN")->workforce_fee, 0.001);
  EXPECT_EQ(Unemployment_Default("IA"), nullptr);
}

}  // namespace
}  // namespace tallymere
