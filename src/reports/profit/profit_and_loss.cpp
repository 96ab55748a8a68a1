#include "reports/profit/profit_and_loss.h"

#include "reports/profit/pl_figures.h"

namespace tallymere {
namespace {

constexpr std::string_view opened_by_a_category = "PrintAcctRep";

/// The sections with their totals; what they come to so far stands below the costs, and at the end.
void Add_Sections(Statement& statement) {
  Amounts net;
  for (std::string_view section : PL_Sections) {
    const bool costs = Is_Expense_Side(section);
    statement.add_head(section);
    const Amounts total = statement.add_section(section, costs ? Statement::Side::Debit : Statement::Side::Credit);
    statement.add_gap();
    statement.add_total("Total " + std::string(section), total);
    statement.add_spacer();
    net += costs ? -total : total;
    if (section != "Cost of Goods Sold") continue;
    statement.add_gap();
    statement.add_total("Gross Profit", net);
  }
  statement.add_total("Net Income", net, Role::Grand_Total);
}

bool Has_Sub_Categories(const CategoryTree& tree) {
  for (const std::string& id : Result_Categories(tree))
    if (tree.has_children(id)) return true;
  return false;
}

/// How the columns count, where one would take it to be otherwise.
std::string Note_On(const Statement_Columns& columns, const CategoryTree& tree, Basis basis, bool by_payment) {
  const bool cash = basis == Basis::Cash;
  const bool compares = columns.counts_twice.size() > 1;
  std::vector<std::string> notes;
  if (cash && by_payment) {
    notes.emplace_back("Income counts when invoices are paid, as far as they are; bills count once they are paid.");
    if (compares) notes.emplace_back("The other column takes paid invoices in by their own date.");
  } else if (cash) {
    notes.emplace_back("Invoices and bills count by their own date once they are paid.");
  }
  if (compares && Has_Sub_Categories(tree))
    notes.emplace_back(by_payment
                           ? "Totals of the other column hold sub-categories twice: in their parents' figures too."
                           : "Totals but the last column's hold sub-categories twice: in their parents' figures too.");
  return join(notes, " ");
}

using Loader = Statement_Columns(store::Database&, const CategoryTree&, const ReportRequest&);

/// `by_payment`: on cash basis the first amount of income counts by its payments.
ReportTable Build(Session& session, const ReportRequest& request, Loader& load, bool by_payment = true) {
  const CategoryTree tree = CategoryTree::Load(*session.dbCompany);
  Statement_Columns columns = load(*session.dbCompany, tree, request);
  ReportTable table;
  table.heading = Make_Heading(session, request);
  table.heading.note = Note_On(columns, tree, request.basis, by_payment);
  table.columns = Statement_Table_Columns(columns);
  Statement statement(table, tree, std::move(columns), opened_by_a_category);
  Add_Sections(statement);
  return table;
}

/// On cash basis income has no rows of its own to list: it counts by its payments.
CatIDs Listed_Categories(const CategoryTree& tree, Basis basis) {
  CatIDs listed;
  for (std::string_view section : PL_Sections) {
    if (section == "Income" && basis == Basis::Cash) continue;
    for (std::string& id : Section_Categories(tree, section)) listed.push_back(std::move(id));
  }
  return listed;
}

}  // namespace

ReportTable Build_PL(Session& session, const ReportRequest& request) { return Build(session, request, Load_PL); }
ReportTable Build_PLYTD(Session& session, const ReportRequest& request) { return Build(session, request, Load_PLYTD); }
ReportTable Build_PLPrev(Session& session, const ReportRequest& request) {
  return Build(session, request, Load_PLPrev);
}
ReportTable Build_PLCus(Session& session, const ReportRequest& request) {
  return Build(session, request, Load_PLCus, false);
}
ReportTable Build_PLClass(Session& session, const ReportRequest& request) {
  return Build(session, request, Load_PLClass, false);
}

ReportTable Build_PLDetail(Session& session, const ReportRequest& request) {
  store::Database& db = *session.dbCompany;
  const CategoryTree tree = CategoryTree::Load(db);
  const Statement_Rows rows(db, tree, Listed_Categories(tree, request.basis), request.days());
  ReportTable table;
  table.heading = Make_Heading(session, request);
  table.columns = Statement_Rows::Columns("Break Down");
  if (request.basis == Basis::Cash)
    table.heading.note =
        "Income counts when invoices are paid and lists no rows here. Below the other categories stand all rows of the "
        "period, also bills that are not paid yet; the figures hold only what counts.";
  Statement statement(table, tree, Load_PL(db, tree, request), opened_by_a_category, &rows);
  Add_Sections(statement);
  return table;
}

}  // namespace tallymere
