#pragma once

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/company/session.h"
#include "core/values/date_range.h"
#include "core/values/money.h"
#include "payroll/item_sums.h"
#include "payroll/pay_items.h"
#include "printing/layout.h"
#include "reports/frame/report_table.h"

/// Tax forms: values with named lines, reckoned from the ledger, corrected by the user, put on paper and into files.
/// Nothing of a form is kept in the books.
namespace tallymere {

/// Rows of the ledger that a figure is made of: the amounts of a payroll item, each counted with `share`.
struct FormSource {
  std::string item;
  DateRange days;
  double share = 1;        ///< -1 takes off; 0.5 counts each of two rows half
  bool payments = false;   ///< liability checks, by the day they pay through; else paychecks, by their date
  std::string SSNum = {};  ///< of one employee; empty: everybody's
};
using FormSources = std::vector<FormSource>;

/// A line as the form knows it.
struct FormLineDef {
  enum Kind { Reckoned, Entered, Result };  ///< may be corrected; begins at nothing; follows from others alone
  std::string_view control;                 ///< its field in the window and its object on paper
  std::string_view number, caption;
  std::string_view now = {};  ///< the line of the form in use today; empty: there is none
  Kind kind = Reckoned;
};

struct FormLine {
  FormLineDef def;
  Money reckoned = {}, amount = {};  ///< to the cent; they differ where the user corrected
  FormSources sources = {};          ///< empty where it follows from other lines
};

/// What the user typed into lines, by control.
using Corrections = std::map<std::string, Money, std::less<>>;

class TaxForm {
 public:
  TaxForm(std::span<const FormLineDef> lines, Corrections typed) : defs_(lines), typed_(std::move(typed)) {}

  /// The next figure that is known; a correction stands in its place for all that follow from it.
  void put(std::string_view control, Money reckoned, FormSources sources = {});
  const FormLine* find(std::string_view control) const;  ///< nullptr: not put yet
  Money operator[](std::string_view control) const;      ///< std::logic_error when it was not put yet
  std::vector<FormLine> lines() const;                   ///< in the order of the form

 private:
  std::span<const FormLineDef> defs_;
  Corrections typed_;
  std::map<std::string, FormLine, std::less<>> lines_;
};

/// Amounts as forms show them: "$1234.50".
std::string Form_Money(Money amount);

/// A filled form as it leaves the program.
struct FormPaper {
  std::string title;
  std::vector<Layout> layouts = {};
  ReportTable table = {};  ///< the same figures, for CSV and the terminal
};

/// The lines under a heading: number, caption, line of today's form, amount.
ReportTable Form_Table(Session& session, const TaxForm& form, const std::string& title, const std::string& period);
/// Each line into the object of its name.
void Set_Lines(Layout& layout, const TaxForm& form);
/// LegalName, FedID, LegalAddress and CityLine of the company.
void Set_Company(Layout& layout, Session& session);

/// All that a form adds up in a period of whole months, read in one pass.
class FormSums {
 public:
  FormSums(store::Database& company, DateRange days);
  /// To the ten-thousandth. A source may take some of the period's months and one employee; liability checks count for
  /// the whole period.
  Money of(const FormSource& source) const;
  Money of(const FormSources& sources) const;

 private:
  struct Month {
    Date first;
    Money amount;
  };
  CaselessMap<CaselessMap<std::vector<Month>>> paid_;  ///< by item, by SSNum
  CaselessMap<Money> payments_;                        ///< by item
};

/// What a tax is reckoned on: wages and commissions, and the additions and deductions of gross pay that are ticked for it.
FormSources Wage_Sources(const PayItems& items, std::string_view tax, DateRange days);

/// A row of the ledger that was counted in a figure.
struct TracedRow {
  int64_t TransNum = 0;
  std::string Type = {};
  Date date;
  std::string Name = {}, PayrollItem = {};
  Money counted = {};
};
/// The rows that made a figure, by date: their sum is the figure.
std::vector<TracedRow> Trace(store::Database& company, const FormSources& sources);

}  // namespace tallymere
