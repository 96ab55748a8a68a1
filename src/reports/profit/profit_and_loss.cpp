#include "reports/profit/profit_and_loss.h"

#include <algorithm>

#include "core/ledger/ledger.h"
#include "core/ledger/tree_list.h"
#include "reports/profit/pl_figures.h"
#include "reports/profit/pl_rows.h"

namespace tallymere {
namespace {

constexpr int label_column = 1;  // column 0 is the margin

bool Is_Head_Or_Total(std::string_view label) {
  if (label == "Gross Profit" || label == "Net Income") return true;
  if (label.starts_with("Total ")) label.remove_prefix(6);
  return std::find(PL_Sections.begin(), PL_Sections.end(), label) != PL_Sections.end();
}

/// Builds the statement, whatever amounts it shows.
class Statement {
 public:
  Statement(ReportTable& table, const CategoryTree& tree, PL_Columns columns, PL_Rows* rows)
      : table_(table), tree_(tree), columns_(std::move(columns)), rows_(rows) {
    before_amounts_ = rows_ ? PL_Rows::amount_column - label_column - 1 : 0;
  }

  void build() {
    for (std::string_view section : PL_Sections) {
      add_section(section);
      if (section == "Cost of Goods Sold") {
        if (rows_) table_.add_row();
        add("Gross Profit", net_);
      }
    }
    add("Net Income", net_);
  }

 private:
  void add_section(std::string_view section) {
    sign_ = Is_Expense_Side(section) ? -1 : 1;
    total_ = {};
    add(section);
    for (const Category* category : Top_Level_By_Name(tree_))
      if (category->AccountType == section) add_category(*category, 1);
    if (rows_) table_.add_row();
    add("Total " + std::string(section), total_);
    table_.add_spacer();
    for (size_t at = 0; at < columns_.captions.size(); ++at) net_[at] += signed_amount(total_[at]);
  }

  void add_category(const Category& category, int level) {
    const std::string label = Indented(category.AccountName, level);
    if (rows_) {
      add(label);
      rows_->add_to(table_, category.CatID);
    }
    Amounts amounts = tree_.sum_family(category.CatID, columns_.own);
    for (size_t at = 0; at < columns_.captions.size(); ++at) {
      amounts[at] = signed_amount(amounts[at]);
      if (level == 1 || columns_.counts_twice[at]) total_[at] += amounts[at];
    }
    add(label, amounts, category.CatID);
    Load_SubAccounts(category.CatID, level + 1);
  }

  void Load_SubAccounts(std::string_view parent, int level) {
    if (level > Deepest_Level) return;
    for (const Category* child : tree_.children(parent)) add_category(*child, level);
  }

  /// Income's figures are kept as they are; those of the expense side turn round, on their way in and out.
  Money signed_amount(Money amount) const { return sign_ < 0 ? -amount : amount; }

  void add(std::string_view label) { line(label, {}); }
  void add(std::string_view label, Amounts& amounts, std::string_view CatID = {}) {
    auto row = line(label, CatID);
    row.skip(before_amounts_);
    for (size_t at = 0; at < columns_.captions.size(); ++at) row.money(amounts[at]);
  }
  ReportTable::Line line(std::string_view label, std::string_view CatID) {
    auto row = table_.add_row(Is_Head_Or_Total(label) ? "sBold" : "", {CatID, 0});
    row.skip(label_column).text(label);
    return row;
  }

  ReportTable& table_;
  const CategoryTree& tree_;
  PL_Columns columns_;
  PL_Rows* rows_;  ///< the transactions, for the report that lists them
  int before_amounts_ = 0;
  int sign_ = 1;
  Amounts total_, net_;
};

using Loader = PL_Columns(store::Database&, const CategoryTree&, const ReportRequest&);

ReportTable Build(Session& session, const ReportRequest& request, Loader& load) {
  ReportTable table;
  const CategoryTree tree = CategoryTree::Load(*session.dbCompany);
  PL_Columns columns = load(*session.dbCompany, tree, request);
  table.heading = Make_Heading(session, request);
  table.go_to = ReportTable::GoTo::Category;
  table.go_to_report = "PrintAcctRep";
  table.columns = {{.kind = ReportColumn::Kind::Margin, .width = 1}, {.width = 30}};
  for (const std::string& caption : columns.captions)
    table.columns.push_back({.caption = caption, .kind = ReportColumn::Kind::Money, .right = true});
  Statement(table, tree, std::move(columns), nullptr).build();
  return table;
}

}  // namespace

bool Is_Expense_Side(std::string_view type) { return contains(type, "Expense") || type == "Cost of Goods Sold"; }

std::vector<const Category*> Top_Level_By_Name(const CategoryTree& tree) {
  std::vector<const Category*> top;
  for (const Category& category : tree.all())
    if (category.ParentAccount.empty()) top.push_back(&category);
  std::stable_sort(top.begin(), top.end(),
                   [](auto* a, auto* b) { return lower(a->AccountName) < lower(b->AccountName); });
  return top;
}

CatIDs Section_Categories(const CategoryTree& tree, std::string_view section) {
  CatIDs ids;
  for (const Category& category : tree.all()) {
    if (!category.ParentAccount.empty() || category.AccountType != section) continue;
    ids.push_back(category.CatID);
    for (const Category* below : tree.descendants(category.CatID)) ids.push_back(below->CatID);
  }
  return ids;
}

ReportTable Build_PL(Session& session, const ReportRequest& request) { return Build(session, request, Load_PL); }
ReportTable Build_PLYTD(Session& session, const ReportRequest& request) { return Build(session, request, Load_PLYTD); }
ReportTable Build_PLPrev(Session& session, const ReportRequest& request) {
  return Build(session, request, Load_PLPrev);
}
ReportTable Build_PLCus(Session& session, const ReportRequest& request) { return Build(session, request, Load_PLCus); }
ReportTable Build_PLClass(Session& session, const ReportRequest& request) {
  return Build(session, request, Load_PLClass);
}

ReportTable Build_PLDetail(Session& session, const ReportRequest& request) {
  ReportTable table;
  const CategoryTree tree = CategoryTree::Load(*session.dbCompany);
  table.heading = Make_Heading(session, request);
  table.columns = PL_Rows::Columns();
  PL_Rows rows(*session.dbCompany, tree, request);
  Statement(table, tree, Load_PL(*session.dbCompany, tree, request), &rows).build();
  return table;
}

}  // namespace tallymere
