#include <gtest/gtest.h>

#include "payroll/items/pay_item_form.h"
#include "payroll/time_sheet.h"
#include "support/test_company.h"

namespace tallymere {
namespace {

using testing::TestCompany;

struct PayItemForms : ::testing::Test {
  TestCompany company;
  Session& session = *company.session;

  std::string text(const char* sql) { return company.db().value(sql).text(); }
  RowSave make(const PayItemForm& form) {
    ListRow row(session, PayItem_Rows);
    return Save_Pay_Item(session, row, form);
  }
  PayItemForm named(const char* type, const char* name) {
    PayItemForm form = New_Pay_Item(session, type);
    form.Name = name;
    return form;
  }
  PayItemForm unemployment(const char* state) {
    PayItemForm form = named("State Tax", "Unemployment");
    form.fields["SState"] = state;
    form.fields["TaxType"] = "State Unemployment";
    form.fields["ExpenseAcct"] = "69SS";
    form.fields["LiabilityAcct"] = "18SS";
    return form;
  }
  template <typename Change>
  RowSave edit(const char* name, Change change) {
    ListRow row(session, PayItem_Rows, name);
    PayItemForm form = Pay_Item_Form(session, row);
    change(form);
    return Save_Pay_Item(session, row, form);
  }
  std::string ticked(const PayItemForm& form) {
    std::string names;
    for (const TickRow& row : form.ticks.front())
      if (row.selected) names += row.name + ";";
    return names;
  }
};

TEST_F(PayItemForms, NewItemsTakeTheirPlaceAmongTheTicksOfAllOthers) {
  ASSERT_TRUE(make(named("Wage", " Hourly ")).ok());
  EXPECT_EQ(text("SELECT Name || PayType || PayStyle || TaxPaid FROM PayrollItems WHERE Type = 'Wage'"),
            "HourlyHourlyRegularEmployee Paid Tax");
  EXPECT_EQ(text("SELECT COUNT(*) FROM PreWageTable WHERE WageName = 'Hourly' AND Selected = True"), "6");
  PayItemForm plan = named("Deduction", "Plan");
  plan.fields["TrackingType"] = "401(k)";
  plan.fields["DefaultRate"] = "-4%";
  plan.fields["DefaultLimit"] = "24,500";
  Tick_By_Tracking_Type(session, plan);
  ASSERT_TRUE(make(plan).ok());
  EXPECT_EQ(text("SELECT DefaultRate || DefaultLimit || PayCal FROM PayrollItems WHERE Name = 'Plan'"),
            "4%245000000Gross");
  EXPECT_EQ(text("SELECT GROUP_CONCAT(TaxName) FROM PreTaxTable WHERE Name = 'Plan' AND Selected = True"),
            "Federal Withholding");
  EXPECT_EQ(text("SELECT COUNT(*) FROM PreTaxTable WHERE Name = 'Plan'"), "6");
  EXPECT_EQ(text("SELECT COUNT(*) FROM PreDeducTable WHERE DeducName = 'Plan'"), "6");
  ASSERT_TRUE(make(named("Addition", "Bonus")).ok());
  PayItemForm state = named("State Tax", "IL");
  state.fields["SState"] = "IL";
  state.fields["LiabilityAcct"] = "15SS";
  ASSERT_TRUE(make(state).ok());
  EXPECT_EQ(text("SELECT TaxType || TaxPaid FROM PayrollItems WHERE Name = 'IL'"),
            "State WithholdingEmployee Paid Tax");
  EXPECT_EQ(text("SELECT GROUP_CONCAT(WageName) FROM PreWageTable WHERE Name = 'IL'"), "Hourly,Bonus");
  EXPECT_EQ(text("SELECT GROUP_CONCAT(Name || Selected) FROM PreTaxTable WHERE TaxName = 'IL'"), "Plan0,Bonus0");
  EXPECT_EQ(text("SELECT COUNT(*) FROM PreTaxSet WHERE PreTax = 'IL'"), "1");
  EXPECT_EQ(text("SELECT COUNT(*) FROM PreWageSet"), "2");

  const std::string actions = text("SELECT COUNT(*) FROM History");
  for (const char* name : {"Hourly", "Plan", "Bonus", "IL", "Federal Unemployment", "Social Security Company"})
    ASSERT_TRUE(edit(name, [](PayItemForm&) {}).ok()) << name;
  EXPECT_EQ(text("SELECT COUNT(*) FROM History"), actions) << "viewing and saving is no action";
  ASSERT_TRUE(edit("Plan", [](PayItemForm& form) { form.ticks[0][6].selected = true; }).ok());
  EXPECT_EQ(text("SELECT GROUP_CONCAT(TaxName) FROM PreTaxTable WHERE Name = 'Plan' AND Selected = True"),
            "Federal Withholding,IL");
}

TEST_F(PayItemForms, ATrackingTypeTicksTheTaxesItsLawNames) {
  ASSERT_TRUE(make(unemployment("IL")).fault) << "no rate";
  PayItemForm tax = unemployment("IL");
  tax.fields["UnempTaxRate"] = "3.35%";
  ASSERT_TRUE(make(tax).ok());
  PayItemForm form = named("Addition", "Any");
  const auto of = [&](const char* tracking) {
    form.fields["TrackingType"] = tracking;
    Tick_By_Tracking_Type(session, form);
    return ticked(form);
  };
  const std::string insurance = "Social Security Company;Social Security Employee;Medicare Company;Medicare Employee;";
  const std::string federal = "Federal Withholding;" + insurance + "Federal Unemployment;";
  EXPECT_EQ(of("403(b)"), "Federal Withholding;");
  EXPECT_EQ(of("Non-Qual. Plan Distribution"), "Federal Withholding;" + insurance + "Unemployment;");
  EXPECT_EQ(of("Dependant Care"), federal);
  EXPECT_EQ(of("Taxable Group Trm Life"), insurance);
  EXPECT_EQ(of("Adoption Benefits"), insurance + "Federal Unemployment;");
  EXPECT_EQ(of("Fringe Benefits"), federal + "Unemployment;");
}

TEST_F(PayItemForms, MistakesAreFoundInTheScreensOrder) {
  const auto fault = [&](const PayItemForm& form) {
    const RowSave save = make(form);
    return save.fault ? save.fault->control + ": " + save.fault->box.text : "";
  };
  PayItemForm form = named("State Tax", "");
  EXPECT_EQ(fault(form), "txtName: Please enter a Name");
  form.Name = "medicare company";
  EXPECT_EQ(fault(form), "txtName: There is already a payroll item named \"medicare company\".");
  EXPECT_EQ(fault(named("", "X")), "cmbType: Please select a type for this Payroll Item");
  form = unemployment("");
  form.fields["ExpenseAcct"] = form.fields["LiabilityAcct"] = "";
  EXPECT_EQ(fault(form), "cmbSState: Please Enter a State");
  form.fields["SState"] = "MN";
  EXPECT_EQ(fault(form), "txtStateRate: Please Enter a Unemployment Rate");
  Prefill_Unemployment(form);
  EXPECT_EQ(form.at("UnempTaxRate") + " " + form.at("DefaultLimit") + " " + form.at("WFRate"), "1.696% 44000 0.001");
  EXPECT_EQ(fault(form), "cmbStateExpense: Please Enter a Expense Category");
  form.fields["ExpenseAcct"] = "69SS";
  EXPECT_EQ(fault(form), "cmbStateLiability: Please Enter a Liability Category");
  form.fields["LiabilityAcct"] = "18SS";
  form.fields["DefaultLimit"] = "all";
  EXPECT_EQ(fault(form), "txtLimit: This needs to be a numeric value");
  form.fields["DefaultLimit"] = "44000";
  form.fields["UnempTaxRate"] = "3.35";
  company.prompts.answers = {false};
  EXPECT_TRUE(make(form).stayed);
  form.fields["UnempTaxRate"] = "3.35%";
  form.fields["WFRate"] = "0.1%";
  ASSERT_TRUE(make(form).ok());
  EXPECT_EQ(text("SELECT TaxPaid || WFRate FROM PayrollItems WHERE SState = 'MN'"), "Employer Paid Tax0.001");
  form = named("Other Tax", "Training");
  EXPECT_EQ(fault(form), "txtOtherRate: Please Enter a Rate or an Amount");
  EXPECT_EQ(edit("Medicare Company", [](PayItemForm& seen) { seen.fields["ExpenseAcct"] = ""; }).fault->control,
            "cmbFedExpense");
  EXPECT_EQ(edit("Medicare Employee", [](PayItemForm& seen) { seen.fields["LiabilityAcct"] = ""; }).fault->box.text,
            "Please Enter a Liability Category");
}

TEST_F(PayItemForms, DeletingSaysWhatUsesTheItemAndTakesItsTicksAlong) {
  ASSERT_TRUE(make(named("Wage", "Hourly")).ok());
  ASSERT_TRUE(make(named("Addition", "Bonus")).ok());
  company.run("INSERT INTO Transactions (TransNum, PayrollItem) VALUES (1, 'Bonus'), (1, 'Bonus'), (2, 'Bonus')");
  company.run("INSERT INTO EmployeeAdjustments (SSNum, Adjustment) VALUES ('111', 'Bonus'), ('000', 'Bonus')");
  company.prompts.answers = {false};
  EXPECT_FALSE(Delete_Pay_Item(session, "Bonus"));
  EXPECT_EQ(company.prompts.boxes.back().text, "Are you sure you want to delete \"Bonus\"");
  EXPECT_EQ(company.prompts.boxes.back().detail, "It is used in 2 transactions and 1 employee.");
  EXPECT_TRUE(Delete_Pay_Item(session, "Bonus"));
  EXPECT_EQ(text("SELECT COUNT(*) FROM PreTaxTable") + text("SELECT COUNT(*) FROM PreWageTable") +
                text("SELECT COUNT(*) FROM PreWageSet") + text("SELECT COUNT(*) FROM Transactions"),
            "0613");
  EXPECT_TRUE(Delete_Pay_Item(session, "Hourly"));
  EXPECT_EQ(company.prompts.boxes.back().detail, "");
}

TEST_F(PayItemForms, TwoUsersOnOneItem) {
  ASSERT_TRUE(make(named("Addition", "Bonus")).ok());
  const auto refused = edit("Bonus", [&](PayItemForm& form) {
    form.ticks[0][0].selected = true;
    company.run("UPDATE PreTaxTable SET Selected = True WHERE TaxName = 'Medicare Company'");
  });
  EXPECT_TRUE(refused.conflict && refused.conflict->reload);
  EXPECT_EQ(text("SELECT GROUP_CONCAT(TaxName) FROM PreTaxTable WHERE Selected = True"), "Medicare Company");
  ListRow beside(session, PayItem_Rows, "Bonus");
  PayItemForm form = Pay_Item_Form(session, beside);
  EXPECT_TRUE(Delete_Pay_Item(session, "Bonus"));
  EXPECT_TRUE(Save_Pay_Item(session, beside, form).conflict);
  ListRow anew(session, PayItem_Rows);  // what the window does next: as a new one
  ASSERT_TRUE(Save_Pay_Item(session, anew, form).ok());
  EXPECT_EQ(text("SELECT COUNT(*) || MAX(TaxName) FROM PreTaxTable WHERE Selected = True"), "1Medicare Company");
}

}  // namespace
}  // namespace tallymere
