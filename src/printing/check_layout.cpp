#include "printing/check_layout.h"

#include <algorithm>
#include <span>

#include "core/company/preferences.h"
#include "core/ledger/ledger.h"
#include "core/store/recordset.h"
#include "core/values/amount_in_words.h"
#include "core/values/format.h"
#include "printing/bank_line.h"
#include "printing/company_head.h"
#include "printing/paper_text.h"
#include "printing/stub_lines.h"

namespace tallymere {
namespace {

constexpr std::string_view face_mask = "###,###,###.00";

/// A row of numbered objects on a stub: where its numbers begin and how many lines there are.
struct StubRows {
  int first;
  size_t lines;
};
constexpr StubRows bill_rows[] = {{24, 21}, {112, 20}};  // three objects a line
constexpr StubRows pay_rows[] = {{1, 20}, {21, 20}};     // a number a line

std::string Place_Line(store::Recordset& row, const char* city, const char* state, const char* zip) {
  return row[city].text() + ", " + row[state].text() + " " + row[zip].text();
}

/// On a text of each stub.
void Set_Both(Layout& layout, const std::string& object, const std::string& text) {
  for (const char* stub : {"1", "2"}) layout.SetText(object + stub, text);
}

// --- the face

/// What pre-printed stock has on it already, where the bank's numbers are known.
void Fill_Blank_Stock(Session& session, Layout& layout, const std::string& bank, const std::string& number) {
  const BankLine line = Read_Bank_Line(*session.dbCompany, bank);
  if (!line.is_set()) return layout.Suppress("BlankStock");
  layout.SetText("BankLine", Bank_Line_Text(line, number));
  layout.SetText("BankName", Category_Name(session, bank));
  layout.SetText("Number", number);
  Fill_Company_Head(session, layout, "PayerName", "PayerAddress");
}

void Fill_Face(Session& session, Layout& layout, store::Recordset& head, const std::string& number) {
  const Money amount = head["Amount"].money();
  const std::string sign = layout.name() == "crpCusCheck" ? "$" : "";
  const std::string payee = Check_Payee(session, head["Type"].text(), head["Name"].text());
  for (const char* place : {"", "2", "3"}) {
    layout.SetText(std::string("Date") + place, head["Date"].text());
    layout.SetText(std::string("Amount") + place, sign + Format(amount, face_mask));
    layout.SetText(std::string("Payee") + place, payee);
    layout.SetText(std::string("Memo") + place, head["Memo"].text());
  }
  for (const char* stub : {"Number2", "Number3"}) layout.SetText(stub, number);  // the face has it as a rule already
  layout.SetText("AmountInWords", Amount_In_Words(session.words, amount));
  layout.SetText("Address", head["Address"].text());
  Fill_Blank_Stock(session, layout, head["Account"].text(), number);
}

/// A sheet that only goes on with the stubs of the one before.
Layout Further_Sheet(const Layout& check, const std::string& number) {
  Layout sheet = check;
  sheet.Suppress("Face");
  sheet.SetText("Continued", "Check " + number + ", continued");
  return sheet;
}

// --- stubs

void Put_Stub(Layout& layout, const StubRows& rows, std::span<const StubLine> lines) {
  int object = rows.first;
  const auto next = [&](const std::string& text) { layout.SetText("Text" + std::to_string(object++), text); };
  for (size_t at = 0; at < rows.lines; ++at) {
    const StubLine line = at < lines.size() ? lines[at] : StubLine{};
    next(line.first);
    next(line.second);
    next(at < lines.size() ? Format(line.Amount, face_mask) : "");
  }
}

void Put_Stub(Layout& layout, const StubRows& rows, std::span<const PayLine> lines) {
  for (size_t at = 0; at < rows.lines; ++at) {
    const std::string number = std::to_string(static_cast<size_t>(rows.first) + at);
    const bool used = at < lines.size();
    if (used) {
      layout.SetText("PayItem" + number, lines[at].PayrollItem);
      layout.SetText("PayAmount" + number, Money_Text(lines[at].Amount));
      layout.SetText("PayYTD" + number, Money_Text(lines[at].year_to_date));
    }
    if (used && lines[at].Hours)
      layout.SetText("PayHours" + number, Number_Text(*lines[at].Hours));
    else
      layout.Suppress("PayHours" + number);
    if (used) continue;
    for (const char* object : {"PayItem", "PayAmount", "PayYTD"}) layout.Suppress(object + number);
  }
}

/// Lines that one stub holds stand on both, or with `once` on the first; more go on from stub to stub.
template <typename Line>
std::vector<Layout> Fill_Stubs(const Layout& check, const StubRows (&rows)[2], std::span<const Line> lines, bool once,
                               const std::string& number) {
  std::vector<Layout> sheets{check};
  if (lines.size() <= rows[1].lines && !once) {
    for (const StubRows& stub : rows) Put_Stub(sheets.back(), stub, lines);
    return sheets;
  }
  for (bool first = true; first || !lines.empty(); first = false) {
    if (!first) sheets.push_back(Further_Sheet(check, number));
    for (const StubRows& stub : rows) {
      const auto part = lines.first(std::min(stub.lines, lines.size()));
      Put_Stub(sheets.back(), stub, part);
      lines = lines.subspan(part.size());
    }
  }
  return sheets;
}

// --- the pay stub

void Fill_Employee(Session& session, Layout& layout, const std::string& name) {
  auto employee = session.dbCompany->OpenRecordset("SELECT * FROM Employees WHERE Name = ?", {name});
  Set_Both(layout, "EmployeeName", name);
  if (!employee.has_row()) return;
  Set_Both(layout, "AddressOne", employee["AddressOne"].text());
  Set_Both(layout, "City", Place_Line(employee, "City", "State", "Zip"));
  Set_Both(layout, "SSNum", employee["SSNum"].text());
  Set_Both(layout, "SickHours", Number_Text(employee["SickHoursStart"].number()));
  Set_Both(layout, "VacHours", Number_Text(employee["VacHoursStart"].number()));
}

void Fill_Company(Session& session, Layout& layout) {
  auto company = session.dbCompany->OpenRecordset("SELECT * FROM CompanyInfo");
  if (!company.has_row()) return;
  const bool legal = !company["LegalAddress"].blank();
  Set_Both(layout, "CompanyName", company["Name"].text());
  Set_Both(layout, "CompanyAddress", company[legal ? "LegalAddress" : "Address"].text());
  const bool city = !company["LegalCity"].blank();
  Set_Both(layout, "CompanyCity", city ? Place_Line(company, "LegalCity", "LegalState", "LegalZip") : "");
}

struct PaySums {
  Money earnings, deductions, ytd_earnings, ytd_deductions;
  double hours = 0;
};

void Fill_Totals(Layout& layout, const std::vector<PayLine>& lines) {
  PaySums sums;
  for (const PayLine& line : lines) {
    (line.earns ? sums.earnings : sums.deductions) += line.Amount;
    (line.earns ? sums.ytd_earnings : sums.ytd_deductions) += line.year_to_date;
    sums.hours += line.Hours.value_or(0);
  }
  Set_Both(layout, "TotalEarnings", Money_Text(sums.earnings));
  Set_Both(layout, "TotalDeductions", Money_Text(sums.deductions));
  Set_Both(layout, "YTDEarnings", Money_Text(sums.ytd_earnings));
  Set_Both(layout, "YTDDeductions", Money_Text(sums.ytd_deductions));
  Set_Both(layout, "TotalHours", Number_Text(sums.hours));
}

std::string Pay_Period(Session& session, store::Recordset& head) {
  if (!head["PayPeriod"].blank()) return head["PayPeriod"].text();
  return session.dbCompany
      ->value("SELECT PayPeriod FROM Transactions WHERE TransNum = ? AND PayPeriod <> ''", {head["TransNum"].value()})
      .text();
}

std::vector<Layout> Pay_Check(Session& session, Layout check, store::Recordset& head, const std::string& number) {
  check.Suppress("Stub1");
  check.Suppress("Stub2");
  Fill_Employee(session, check, head["Name"].text());
  Fill_Company(session, check);
  Set_Both(check, "PayPeriod", Pay_Period(session, head));
  Set_Both(check, "NetPay", Money_Text(head["Amount"].money()));
  const std::vector<PayLine> lines = Pay_Lines(session, head["TransNum"].integer());
  Fill_Totals(check, lines);
  return Fill_Stubs<PayLine>(check, pay_rows, lines, false, number);
}

/// On continuous sheets the first stub alone is filled, and only for the bills that a check pays.
std::vector<Layout> Other_Check(Session& session, Layout check, store::Recordset& head, const std::string& number) {
  check.Suppress("PayStub1");
  check.Suppress("PayStub2");
  const bool continuous = check.name() == "crpFeedCheck", bills = head["Type"].text() == "Billcheck";
  if (!continuous || bills) {
    const std::vector<StubLine> lines = Stub_Lines(session, head["TransNum"].integer(), head["Type"].text());
    return Fill_Stubs<StubLine>(check, bill_rows, lines, continuous, number);
  }
  check.Suppress("Stub1");
  check.Suppress("Stub2");
  return {check};
}

}  // namespace

std::string Check_Layout(Session& session) {
  store::Database& company = *session.dbCompany;
  if (Preference(company, preference::Style) == "Custom") return "crpCusCheck";
  return Preference(company, preference::Feed) == "Continuous Sheets" ? "crpFeedCheck" : "crpCheck";
}

std::string Check_Payee(Session& session, const std::string& Type, const std::string& name) {
  const char* sql = Type == "Paycheck" ? "SELECT PrintAs FROM Employees WHERE Name = ?"
                                       : "SELECT CheckPrint FROM Vendors WHERE Name = ?";
  const std::string printed = session.dbCompany->value(sql, {name}).text();
  return printed.empty() ? name : printed;
}

std::vector<Layout> Print_it(Session& session, int64_t TransNum, const std::string& number) {
  auto head = session.dbCompany->OpenRecordset(
      "SELECT * FROM Transactions WHERE TransNum = ? AND Type IN ('Check', 'Liabilitycheck', 'Paycheck', 'Billcheck') "
      "ORDER BY Item, PayrollItem, Debit < 0, Debit, RowKey",
      {TransNum});
  if (!head.has_row()) return {};
  Layout check(Check_Layout(session));
  Fill_Face(session, check, head, number);
  return head["Type"].text() == "Paycheck" ? Pay_Check(session, check, head, number)
                                           : Other_Check(session, check, head, number);
}

}  // namespace tallymere
