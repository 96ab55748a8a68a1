#include "entry/bank/reconcile_report.h"

#include "core/ledger/ledger.h"
#include "core/values/format.h"

namespace tallymere {
namespace {

enum class State { Cleared, Uncleared, New };

State State_Of(const ReconcileLine& line, Date closing) {
  if (line.Cleared) return State::Cleared;
  return line.Date && *line.Date > closing ? State::New : State::Uncleared;
}

LineSum Sum_Of(const Reconciled& reconciled, Side side, State state, Date closing) {
  LineSum sum;
  for (const ReconcileLine& line : reconciled.lines[static_cast<size_t>(side)])
    if (State_Of(line, closing) == state) sum = {sum.count + 1, sum.total + line.Amount};
  return sum;
}

ReportHeading Heading(const Reconciled& reconciled, const char* title, Date closing) {
  return {.title = reconciled.bank + " - " + title,
          .company = reconciled.company,
          .period = "As of " + Format(closing, long_date_mask)};
}

struct Section {
  State state;
  const char* title;
};
constexpr Section sections[] = {{State::Cleared, "Cleared Transactions"},
                                {State::Uncleared, "Uncleared Transactions"},
                                {State::New, "New Transactions"}};
struct Half {
  Side side;
  const char* title;
};
constexpr Half halves[] = {{Side::Deposits, "Deposits and Other Credits"},
                           {Side::Payments, "Checks and Other Payments"}};

}  // namespace

Reconciled Record_Of(Session& session, const Reconciliation& reconciliation) {
  return {.company = session.dbCompany->value("SELECT Name FROM CompanyInfo").text(),
          .bank = Category_Name(session, reconciliation.CatID()),
          .opening = reconciliation.opening(),
          .cleared = reconciliation.cleared(),
          .ending = reconciliation.ending(),
          .lines = {reconciliation.lines(Side::Deposits), reconciliation.lines(Side::Payments)}};
}

ReportTable Reconcile_Summary(const Reconciled& reconciled, Date closing) {
  ReportTable table;
  table.heading = Heading(reconciled, "Reconciliation Summary", closing);
  table.columns = {{.kind = ReportColumn::Kind::Margin},
                   {.caption = ""},
                   {.caption = "Transactions", .kind = ReportColumn::Kind::Number},
                   {.caption = "Amount", .kind = ReportColumn::Kind::Money, .mask = std::string(dollar_mask)}};
  const auto balance = [&](const char* label, Money amount) {
    table.add_row(Role::Total).skip().text(label).skip().money(amount);
  };
  const auto moved = [&](State state, const char* deposits, const char* payments) {
    for (const auto& [side, label] : {std::pair{Side::Deposits, deposits}, {Side::Payments, payments}}) {
      const LineSum sum = Sum_Of(reconciled, side, state, closing);
      table.add_row().skip().text(label).value(int64_t{sum.count}).money(sum.total);
    }
    return Sum_Of(reconciled, Side::Deposits, state, closing).total -
           Sum_Of(reconciled, Side::Payments, state, closing).total;
  };
  balance("Opening Balance", reconciled.opening);
  moved(State::Cleared, "Cleared Deposits", "Cleared Payments");
  balance("Cleared Balance", reconciled.cleared);
  balance("Ending Statement Balance", reconciled.ending);
  table.add_spacer();
  const Money at_closing = reconciled.ending + moved(State::Uncleared, "Uncleared Deposits", "Uncleared Payments");
  balance("Register Balance at Closing", at_closing);
  const Money after = at_closing + moved(State::New, "New Deposits", "New Payments");
  balance("Register Balance after Closing", after);
  return table;
}

ReportTable Reconcile_Full(const Reconciled& reconciled, Date closing) {
  ReportTable table;
  table.heading = Heading(reconciled, "Reconciliation", closing);
  table.looks = Looks::List;
  table.columns = {{.kind = ReportColumn::Kind::Margin},
                   {.caption = "Type"},
                   {.caption = "Date", .kind = ReportColumn::Kind::Date},
                   {.caption = "Number"},
                   {.caption = "Name"},
                   {.caption = "Memo"},
                   {.caption = "Amount", .kind = ReportColumn::Kind::Money}};
  for (const Section& section : sections) {
    table.add_row(Role::Head).skip().text(section.title);
    for (const Half& half : halves) {
      const LineSum sum = Sum_Of(reconciled, half.side, section.state, closing);
      if (sum.count == 0) continue;
      table.add_row(Role::Group).skip().text(std::string("     ") + half.title);
      for (const ReconcileLine& line : reconciled.lines[static_cast<size_t>(half.side)])
        if (State_Of(line, closing) == section.state)
          table.add_row(Role::Detail, To_Transaction(line.Type, line.TransNum))
              .skip()
              .text("          " + line.Type)
              .value(line.Date ? store::Value(*line.Date) : store::Value())
              .text(line.Number)
              .text(line.Name)
              .text(line.Memo)
              .money(line.Amount);
      table.add_row(Role::Subtotal).skip().text(std::string("     Total ") + half.title).skip(4).money(sum.total);
    }
    table.add_spacer();
  }
  return table;
}

}  // namespace tallymere
