#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "reports/frame/statement_rows.h"

namespace tallymere {

/// The amount columns of a statement and each category's own figures in them.
struct Statement_Columns {
  std::vector<ReportColumn> columns;
  /// Whether a section's total takes in the sub-categories' figures although their parents' hold them already.
  /// Columns of comparison do; a statement's own amount does not.
  std::vector<bool> counts_twice;
  ColumnFigures own;          ///< as income has them: credits add
  bool totals_apart = false;  ///< totals stand in a column of their own, right of the categories' one
};

/// Walks the categories of a statement: section by section, each category followed by those below it, figures
/// rolled up. Which sections there are, and what their totals come to, is the report's own matter.
class Statement {
 public:
  enum class Side { Credit, Debit };  ///< on which a figure is positive

  /// "Go to" on a category opens the report `go_to`. With `rows` each category lists its transactions between
  /// its name and its figure, and leads nowhere.
  Statement(ReportTable& table, const CategoryTree& tree, Statement_Columns columns, std::string_view go_to,
            const Statement_Rows* rows = nullptr);

  void add_head(std::string_view label) { table_.add_row(Role::Head).skip(label_column).text(label); }
  /// The top-level categories of a type, by name; their total. `level` is how deep they are indented,
  /// `level_below` the first of their sub-categories.
  Amounts add_section(std::string_view AccountType, Side side, int level = 1, int level_below = 2);
  /// One category with those below it; what it adds to its section.
  Amounts add_category(const Category& category, Side side, int level, int level_below);
  /// A row that is no category of the walk: of `CatID` where it stands for one, with these rows before it.
  void add_line(std::string_view label, const Amounts& amounts, const std::string& CatID = {},
                const Statement_Rows* rows = nullptr);
  void add_total(std::string_view label, const Amounts& amounts, Role role = Role::Total);
  void add_spacer() { table_.add_spacer(); }
  void add_gap();  ///< a detailed statement keeps its totals apart from its rows

 private:
  static constexpr int label_column = 1;  ///< column 0 is the margin

  struct Place {
    Side side;
    int level, level_below;
  };
  void add_family(const Category& category, const Place& place, bool is_top, Amounts& total);
  void Load_SubAccounts(const std::string& parent, const Place& place, Amounts& total);
  void add_amounts(ReportTable::Line line, std::string_view label, const Amounts& amounts);

  ReportTable& table_;
  const CategoryTree& tree_;
  Statement_Columns columns_;
  std::string go_to_;
  const Statement_Rows* rows_;
};

/// The columns of a statement's table: a margin, the labels, these.
std::vector<ReportColumn> Statement_Table_Columns(const Statement_Columns& columns);

}  // namespace tallymere
