#include "forms/form_941.h"

#include <set>

#include "core/values/format.h"
#include "core/values/text.h"
#include "payroll/calc/rates.h"
#include "payroll/periods.h"

namespace tallymere {
namespace {

using enum FormLineDef::Kind;

constexpr FormLineDef lines_941[] = {
    {"txtWages", "2", "Total Wages, Tips, and other compensation", "2"},
    {"txtWithheld", "3", "Total income tax withheld from wages, tips, and sick pay", "3"},
    {"txtAsjustPreced", "4", "Adjustment of withheld income tax for preceding quarters of calender year", "", Entered},
    {"txtTotalWithheld", "5", "Adjusted total income tax withheld (line 3 as adjusted by line 4)", "3"},
    {"txtSocWage", "6a", "Taxable social security wages", "5a"},
    {"lblTotSocTaxWage", "6b", "Social security tax on wages", "5a", Result},
    {"txtSocTip", "6c", "Taxable social security Tips", "5b"},
    {"lblTotSocTaxTip", "6d", "Social security tax on tips", "5b", Result},
    {"txtMedWT", "7a", "Taxable Medicare wages and tips", "5c"},
    {"lblMedTax", "7b", "Medicare tax", "5c", Result},
    {"lblTotalTax", "8", "Total social security and Medicare taxes", "5e", Result},
    {"txtAdjustTaxes", "9", "Adjustment of social security and Medicare taxes", "7-9", Entered},
    {"txtTotalAdjust", "10", "Adjusted total of social security and Medicare taxes"},
    {"txtTax", "11", "Total Taxes", "10"},
    {"txtEIC", "12", "Advance Earned Income Credit (EIC) payments made to employees", "", Entered},
    {"txtNetTaxes", "13", "Net taxes", "12"},
    {"txtDeposits", "14", "Total deposits for quarter, including overpayments from previous quarters", "13"},
    {"txtBalance", "15", "Balance due", "14"},
    {"txtOverpay", "16", "Overpayment", "15"},
    {"txtFirst", "17", "1st Month", "16"},
    {"txtSecond", "17", "2nd Month", "16"},
    {"txtThird", "17", "3rd Month", "16"},
    {"lblTotalLia", "17", "Total", "16", Result},
};

/// Both halves: what the employee pays, twice.
Exact Doubled_Rate(const PayItems& items, std::string_view employee_item) {
  return Read_Rate(items.item(employee_item).DefaultRate).fraction() * 2;
}

Money Tax_Of(Money wages, Exact rate) { return (Exact(wages) * rate).cents(); }

bool Is_941_Tax(const PayItem& item) {
  return item.type() == ItemType::FederalTax && item.Name != fixed_items::federal_unemployment;
}

/// The reckoning, step by step in the order of the lines.
class Reckoning {
 public:
  Reckoning(Session& session, const Entry941& entry)
      : db_(*session.dbCompany),
        days_(Quarter_Of(entry.dteEnd)),
        items_(PayItems::Of(db_)),
        sums_(db_, days_),
        form_(lines_941, entry.typed) {}

  TaxForm run() {
    wages();
    taxes();
    deposits();
    monthly_liability();
    return std::move(form_);
  }

 private:
  void from_ledger(std::string_view control, FormSources sources) {
    const Money sum = sums_.of(sources);
    form_.put(control, sum, std::move(sources));
  }
  void wages() {
    from_ledger("txtWages", Wage_Sources(*items_, fixed_items::federal_withholding, days_));
    FormSources wages, tips;
    for (FormSource& source : Wage_Sources(*items_, fixed_items::social_security_company, days_)) {
      const PayItem& item = items_->item(source.item);
      const bool adjusts = item.type() == ItemType::Addition || item.type() == ItemType::Deduction;
      (adjusts && item.TrackingType == "Reported Tips" ? tips : wages).push_back(std::move(source));
    }
    from_ledger("txtSocWage", std::move(wages));
    from_ledger("txtSocTip", std::move(tips));
    from_ledger("txtMedWT", Wage_Sources(*items_, fixed_items::medicare_company, days_));
    from_ledger("txtWithheld", {{std::string(fixed_items::federal_withholding), days_}});
    form_.put("txtAsjustPreced", {});
    form_.put("txtTotalWithheld", form_["txtWithheld"] + form_["txtAsjustPreced"]);
  }
  /// The advance credit of line 12 has never lowered the net taxes.
  void taxes() {
    const Exact social = Doubled_Rate(*items_, fixed_items::social_security_employee);
    const Exact medicare = Doubled_Rate(*items_, fixed_items::medicare_employee);
    form_.put("lblTotSocTaxWage", Tax_Of(form_["txtSocWage"], social));
    form_.put("lblTotSocTaxTip", Tax_Of(form_["txtSocTip"], social));
    form_.put("lblMedTax", Tax_Of(form_["txtMedWT"], medicare));
    form_.put("lblTotalTax", form_["lblTotSocTaxWage"] + form_["lblTotSocTaxTip"] + form_["lblMedTax"]);
    form_.put("txtAdjustTaxes", {});
    form_.put("txtTotalAdjust", form_["lblTotalTax"] + form_["txtAdjustTaxes"]);
    form_.put("txtTax", form_["txtTotalAdjust"] + form_["txtTotalWithheld"]);
    form_.put("txtEIC", {});
    form_.put("txtNetTaxes", form_["txtTotalAdjust"] + form_["txtTotalWithheld"]);
  }
  void deposits() {
    FormSources paid;
    for (const PayItem& item : items_->all())
      if (Is_941_Tax(item)) paid.push_back({.item = item.Name, .days = days_, .payments = true});
    from_ledger("txtDeposits", std::move(paid));
    const Money due = form_["txtNetTaxes"] - form_["txtDeposits"];
    form_.put("txtBalance", due > Money() ? due : Money());
    form_.put("txtOverpay", due > Money() ? Money() : -due);
  }
  /// A tax of the employer's stands in two rows, which count half each.
  void monthly_liability() {
    Money total;
    int month = 0;
    for (const char* control : {"txtFirst", "txtSecond", "txtThird"}) {
      const Date first = days_.start.add_months(month++);
      FormSources sources;
      for (const PayItem& item : items_->all())
        if (Is_941_Tax(item))
          sources.push_back(
              {item.Name, {first, first.end_of_month()}, item.TaxPaid == "Employee Paid Tax" ? 1.0 : 0.5});
      from_ledger(control, std::move(sources));
      total += form_[control];
    }
    form_.put("lblTotalLia", total);
  }

  store::Database& db_;
  DateRange days_;
  std::shared_ptr<const PayItems> items_;
  FormSums sums_;
  TaxForm form_;
};

std::string Mark(bool on) { return on ? "X" : ""; }

std::string Period_941(const Entry941& entry) { return "Quarter ended " + Quarter_Of(entry.dteEnd).end.to_text(); }

void Set_Marks(Layout& layout, const Entry941& entry) {
  layout.SetText("State1", entry.cmbState.substr(0, 1));
  layout.SetText("State2", entry.cmbState.size() > 1 ? entry.cmbState.substr(1, 1) : "");
  layout.SetText("txtEmpCount", entry.txtEmpCount);
  layout.SetText("AddDif", Mark(entry.chkAddDif));
  layout.SetText("Season", Mark(entry.chkSeason));
  layout.SetText("NotSubject", Mark(entry.chkApplyTaxableWage));
  layout.SetText("FutReturn", Mark(entry.dteFinalWage.has_value()));
  layout.SetText("FinalWage", entry.dteFinalWage ? entry.dteFinalWage->to_text() : "");
  layout.SetText("Semiweekly", Mark(entry.optDeposit == Entry941::Semiweekly));
  layout.SetText("Monthly", Mark(entry.optDeposit == Entry941::Monthly));
  layout.SetText("Refund", Mark(entry.optOver == Entry941::Refund));
  layout.SetText("Apply", Mark(entry.optOver == Entry941::Apply));
}

}  // namespace

std::span<const FormLineDef> Lines_941() { return lines_941; }

DateRange Quarter_Of(Date day) { return Get_Date_Range("This Quarter", day); }

DateRange Quarter_Of(int year, int quarter) { return Quarter_Of(Date(year, static_cast<unsigned>(3 * quarter), 1)); }

TaxForm Reckon_941(Session& session, const Entry941& entry) {
  const store::Snapshot moment(*session.dbCompany);
  return Reckoning(session, entry).run();
}

std::string Rate_Label(const PayItems& items, std::string_view employee_item) {
  return "x " + Format(std::stod(Doubled_Rate(items, employee_item).text()), "0.0%") + " =";
}

int Employees_On_The_12th(store::Database& company, Date quarter_end) {
  const Date twelfth(quarter_end.year(), quarter_end.month(), 12);
  std::set<std::string> employees;
  company.each(
      "SELECT DISTINCT SSNum, PayPeriod, Date FROM Transactions WHERE Type = 'Paycheck' AND PayPeriod IS NOT NULL"
      " AND Date >= ? AND Date <= ?",
      {twelfth.add_months(-1), twelfth.add_months(3)}, [&](const store::Row& row) {
        const PayPeriod period = Read_Pay_Period(row.text(1), row.date(2).value_or(twelfth));
        if (period.first && period.last && *period.first <= twelfth && twelfth <= *period.last)
          employees.insert(folded(row.text(0)));
      });
  return static_cast<int>(employees.size());
}

std::optional<Fault> Print_Fault(const Entry941& entry) {
  if (trim(entry.cmbState).empty()) return Fault{{"Please Enter a State for this 941.", "No State"}, "cmbState"};
  if (trim(entry.txtEmpCount).empty())
    return Fault{{"Please Enter an Employee Count for this 941.", "No Count"}, "txtEmpCount"};
  return {};
}

// --- Schedule B

ScheduleB Reckon_Schedule_B(store::Database& company, Date quarter_end) {
  ScheduleB schedule;
  const auto before = [&](int months) { return quarter_end.add_months(-months); };
  company.each(
      "SELECT Date, SUM(CASE WHEN PayrollItem LIKE '*Company*' THEN Amount ELSE 2 * Amount END) FROM Transactions"
      " WHERE Type = 'Paycheck' AND PayrollItem IN ('Federal Withholding', 'Medicare Company', 'Medicare Employee',"
      " 'Social Security Employee', 'Social Security Company') AND Date > ? AND Date <= ? GROUP BY Date ORDER BY Date",
      {before(3), quarter_end}, [&](const store::Row& row) {
        const Date day = *row.date(0);
        const size_t month = day <= before(2) ? 0 : day <= before(1) ? 1 : 2;
        const Money owed = row.money(1).times(0.5).rounded_to_cents();
        schedule.days[month][day.day() - 1] += owed;
        schedule.months[month] += owed;
        schedule.total += owed;
      });
  return schedule;
}

std::string Schedule_B_Words(const ScheduleB& schedule, Money line_13) {
  const Money more = schedule.total - line_13;
  const std::string sum = "Schedule B: " + Form_Money(schedule.total) + ", ";
  if (more.is_zero()) return sum + "as line 13.";
  return sum + "which is " + Form_Money(more.abs()) + (more > Money() ? " more" : " less") + " than line 13.";
}

// --- paper

FormPaper Paper_941(Session& session, const Entry941& entry) {
  const TaxForm form = Reckon_941(session, entry);
  const auto items = PayItems::Of(*session.dbCompany);
  Layout layout("crp941");
  Set_Company(layout, session);
  Set_Lines(layout, form);
  Set_Marks(layout, entry);
  layout.SetText("dteEnd", Quarter_Of(entry.dteEnd).end.to_text());
  layout.SetText("SocRate", Rate_Label(*items, fixed_items::social_security_employee));
  layout.SetText("TipRate", Rate_Label(*items, fixed_items::social_security_employee));
  layout.SetText("MedRate", Rate_Label(*items, fixed_items::medicare_employee));
  FormPaper paper{"Form 941", {std::move(layout)}, {}};
  paper.table = Form_Table(session, form, paper.title, Period_941(entry));
  return paper;
}

namespace {

/// The cells of each month on paper, then the three totals and the quarter's.
constexpr int first_cells[] = {122, 155, 187}, first_total = 219;

std::string Cell(int number) { return "Text" + std::to_string(number); }

void Add_Month(FormPaper& paper, Layout& layout, const ScheduleB& schedule, size_t month, const std::string& name) {
  layout.SetText("Month" + std::to_string(month + 1), name);
  for (size_t day = 0; day < 31; ++day) {
    const Money owed = schedule.days[month][day];
    if (owed.is_zero()) continue;
    layout.SetText(Cell(first_cells[month] + static_cast<int>(day)), Form_Money(owed));
    paper.table.add_row().text(name).text(std::to_string(day + 1)).money(owed);
  }
  layout.SetText(Cell(first_total + static_cast<int>(month)), Form_Money(schedule.months[month]));
  paper.table.add_row(Role::Subtotal).text("Total " + name).skip().money(schedule.months[month]);
}

}  // namespace

FormPaper Paper_Schedule_B(Session& session, const Entry941& entry) {
  const Date end = Quarter_Of(entry.dteEnd).end;
  const store::Snapshot moment(*session.dbCompany);
  const ScheduleB schedule = Reckon_Schedule_B(*session.dbCompany, end);
  const Money line_13 = Reckon_941(session, entry)["txtNetTaxes"];
  Layout layout("crpSchedB");
  Set_Company(layout, session);
  layout.SetText("dteEnd", end.to_text());
  FormPaper paper{"Schedule B (Form 941)", {}, {}};
  ReportTable& table = paper.table;
  table.heading = {.title = paper.title, .company = layout.text("LegalName"), .period = Period_941(entry)};
  table.columns = {
      {.caption = "Month"}, {.caption = "Day"}, {.caption = "Liability", .kind = ReportColumn::Kind::Money}};
  for (size_t month = 0; month < 3; ++month)
    Add_Month(paper, layout, schedule, month, Format(end.add_months(static_cast<int>(month) - 2), "mmmm"));
  layout.SetText(Cell(first_total + 3), Form_Money(schedule.total));
  layout.SetText("NetTaxes", Form_Money(line_13));
  layout.SetText("Difference", Schedule_B_Words(schedule, line_13));
  table.add_row(Role::Total).text("Total for the quarter").skip().money(schedule.total);
  table.add_row().text("Line 13 of Form 941").skip().money(line_13);
  table.heading.note = layout.text("Difference");
  paper.layouts.push_back(std::move(layout));
  return paper;
}

}  // namespace tallymere
