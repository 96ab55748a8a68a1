#include "reports/balance/balance_sheet.h"

#include "core/ledger/ledger.h"
#include "core/ledger/tree_list.h"
#include "core/values/format.h"
#include "reports/balance/position.h"
#include "reports/frame/statement.h"

namespace tallymere {
namespace {

using Kind = ReportColumn::Kind;
using Side = Statement::Side;

constexpr std::string_view opened_by_a_category = "PrintAcctBal";
enum class Variant { Standard, Summary, Comparison, Detail };

/// The figures of the days a sheet shows, a column for each.
struct Sheet_Figures {
  Statement_Columns columns;
  Amounts receivable, payable, net_income, retained;

  void add(const Position& position, std::string caption, bool counts_twice) {
    const size_t at = columns.counts_twice.size();
    columns.counts_twice.push_back(counts_twice);
    columns.columns.push_back(
        {.caption = std::move(caption), .kind = Kind::Money, .name = at == 0 ? "Amount" : "Comparison"});
    for (const auto& [id, amount] : position.own) columns.own[id][at] += amount;
    receivable[at] = position.receivable;
    payable[at] = position.payable;
    net_income[at] = position.net_income;
    retained[at] = position.retained;
  }
};

/// Where a sheet lists its transactions, these.
struct Sheet_Rows {
  Statement_Rows receivable, others;
};

/// Writes the sheet from the top down. A summary is the same sheet, of which only the groups' totals are shown.
class Sheet {
 public:
  Sheet(ReportTable& table, const CategoryTree& tree, const Sheet_Figures& figures, Variant variant,
        const Sheet_Rows* rows)
      : variant_(variant),
        tree_(tree),
        figures_(figures),
        rows_(rows),
        whole_(variant == Variant::Summary ? unseen_ : table, tree, figures.columns, opened_by_a_category,
               rows ? &rows->others : nullptr),
        shown_(table, tree, figures.columns, opened_by_a_category) {}

  void write() {
    assets_ = add_assets();
    if (variant_ == Variant::Summary) shown_.add_spacer();
    claims_ = add_liabilities_and_equity();
  }
  /// How much the assets are more than what stands against them, on the first day shown.
  Money difference() { return assets_[0] - claims_[0]; }

 private:
  Statement& ends() { return variant_ == Variant::Summary ? shown_ : whole_; }

  Amounts add_assets() {
    ends().add_head("Assets");
    whole_.add_head(Indented("Current Assets", 1));
    Amounts current = add_group("Cash", "Bank", Side::Debit, 2);
    current += add_group("Current Assets", "Current Asset", Side::Debit, 2);
    current += add_control("Accounts Receivable", accounts_receivable, figures_.receivable,
                           rows_ ? &rows_->receivable : nullptr);
    end_group("Total Current Assets", "Current Assets", current);
    whole_.add_head(Indented("Fixed Assets", 1));
    const Amounts fixed = whole_.add_section("Fixed Asset", Side::Debit, 2, level_below);
    end_group("Total Fixed Assets", "Fixed Assets", fixed);
    current += fixed;
    ends().add_total("Total Assets", current, Role::Grand_Total);
    return current;
  }

  Amounts add_liabilities_and_equity() {
    ends().add_head("Liabilities & Equity");
    whole_.add_head(Indented("Current Liabilities", 1));
    Amounts sum = add_control("Accounts Payable", accounts_payable, figures_.payable, rows_ ? &rows_->others : nullptr);
    sum += add_group("Credit Cards", "Credit Card", Side::Credit, 2);
    sum += add_group("Other Current Liabilities", "Current Liability", Side::Credit, 2);
    end_group("Total Current Liabilities", "Total Current Liabilities", sum);
    whole_.add_head(Indented("Long Term Liabilities", 1));
    const Amounts long_term = whole_.add_section("Long Term Liability", Side::Credit, 2, level_below);
    end_group("Total Long Term Liabilities", "Long Term Liabilities", long_term);
    sum += long_term;
    sum += add_equity();
    ends().add_total("Total Liabilities & Equity", sum, Role::Grand_Total);
    return sum;
  }

  Amounts add_equity() {
    whole_.add_head(Indented("Equity", 1));
    Amounts equity;
    for (const Category* category : Top_Level_By_Name(tree_))
      if (category->AccountType == "Equity" && !same_text(category->CatID, retained_earnings))
        equity += whole_.add_category(*category, Side::Credit, 2, level_below);
    for (const auto& [label, amounts] :
         {std::pair{"Net Income", &figures_.net_income}, std::pair{"Retained Earnings", &figures_.retained}}) {
      whole_.add_line(Indented(label, 2), *amounts);
      equity += *amounts;
    }
    end_group(variant_ == Variant::Comparison ? "Total Cquity" : "Total Equity", "Equity", equity);
    return equity;
  }

  Amounts add_group(const std::string& head, std::string_view AccountType, Side side, int level) {
    whole_.add_head(Indented(head, level));
    const Amounts sum = whole_.add_section(AccountType, side, level + 1, level_below);
    whole_.add_total(Indented("Total " + head, level), sum);
    return sum;
  }

  /// A control category on one row, under the name of its group.
  Amounts add_control(const char* label, const std::string& CatID, const Amounts& amounts, const Statement_Rows* rows) {
    whole_.add_line(Indented(label, 2), amounts, CatID, rows);
    return amounts;
  }

  void end_group(const std::string& total, const std::string& in_summary, const Amounts& amounts) {
    if (variant_ == Variant::Summary)
      shown_.add_line(Indented(in_summary, 1), amounts);
    else
      whole_.add_total(Indented(total, 1), amounts);
  }

  static constexpr int level_below = 4;  ///< where sub-categories begin, however deep their parents stand

  Variant variant_;
  const CategoryTree& tree_;
  const Sheet_Figures& figures_;
  const Sheet_Rows* rows_;
  ReportTable unseen_;
  Statement whole_, shown_;
  Amounts assets_, claims_;
};

bool Sells_Stock_At_Sale_Amounts(store::Database& db) {
  return !db.value(
                "SELECT 1 FROM Items CROSS JOIN Transactions INDEXED BY Transactions_Item ON Item = ItemName WHERE"
                " ItemType = 'Inventory Part' AND SourceName = 'Inventory Part' LIMIT 1")
              .is_null();
}

/// Why a sheet does not balance, where it does not.
std::string Why_Different(store::Database& db, Basis basis, Money difference) {
  if (difference.is_zero()) return "";
  std::string why = "Total Assets are " + Money_Text(difference.abs()) +
                    (difference.is_negative() ? " less" : " more") + " than Total Liabilities & Equity.";
  if (Sells_Stock_At_Sale_Amounts(db))
    why += " Sold inventory parts are posted at sale amounts to stock, cost and income alike.";
  if (basis == Basis::Cash)
    why +=
        " Banks hold all that was paid, sales tax and what pays no document yet too; the rest only what was settled.";
  return why;
}

std::string Note_On(store::Database& db, const CategoryTree& tree, Variant variant, Basis basis, Money difference) {
  std::string note = Why_Different(db, basis, difference);
  const auto has_parent = [&](const Category& category) { return tree.parent(category) != nullptr; };
  if (variant == Variant::Comparison && std::any_of(tree.all().begin(), tree.all().end(), has_parent))
    note += std::string(note.empty() ? "" : " ") + "Totals of the second column hold sub-categories twice.";
  return note;
}

Sheet_Figures Load_Figures(store::Database& db, const CategoryTree& tree, const ReportRequest& request,
                           Variant variant) {
  Sheet_Figures figures;
  const bool compares = variant == Variant::Comparison;
  Positions positions(db, tree, request.basis, request.to);
  figures.add(positions.at(request.to), compares ? request.to.to_text() : "", false);
  const Date year_ago = request.to.add_months(-12);
  if (compares) figures.add(positions.at(year_ago), year_ago.to_text(), true);
  figures.columns.totals_apart = variant == Variant::Standard;
  return figures;
}

Sheet_Rows Load_Rows(store::Database& db, const CategoryTree& tree, const ReportRequest& request) {
  const DateRange days{First_Day, request.to};
  CatIDs others = Family_Of(tree, accounts_payable);
  for (const std::string_view section : Position_Sections)
    for (std::string& id : Section_Categories(tree, section)) others.push_back(std::move(id));
  const auto rows = [&](const CatIDs& categories, Counted_As counted) {
    return Statement_Rows(db, tree, categories, days, Counted_By(request.basis, counted, request.to));
  };
  return {rows(Family_Of(tree, accounts_receivable), Counted_As::Receivable), rows(others, Counted_As::Other)};
}

ReportTable Build(Session& session, const ReportRequest& request, Variant variant) {
  store::Database& db = *session.dbCompany;
  const CategoryTree tree = CategoryTree::Load(db);
  const Sheet_Figures figures = Load_Figures(db, tree, request, variant);
  std::optional<Sheet_Rows> rows;
  if (variant == Variant::Detail) rows.emplace(Load_Rows(db, tree, request));
  ReportTable table;
  table.heading = Make_Heading(session, request);
  table.columns = rows ? Statement_Rows::Columns("<-Break Down->") : Statement_Table_Columns(figures.columns);
  Sheet sheet(table, tree, figures, variant, rows ? &*rows : nullptr);
  sheet.write();
  table.heading.note = Note_On(db, tree, variant, request.basis, sheet.difference());
  return table;
}

}  // namespace

ReportTable Build_BalStand(Session& session, const ReportRequest& request) {
  return Build(session, request, Variant::Standard);
}
ReportTable Build_BalSum(Session& session, const ReportRequest& request) {
  return Build(session, request, Variant::Summary);
}
ReportTable Build_BalCmp(Session& session, const ReportRequest& request) {
  return Build(session, request, Variant::Comparison);
}
ReportTable Build_BalDetail(Session& session, const ReportRequest& request) {
  return Build(session, request, Variant::Detail);
}

}  // namespace tallymere
