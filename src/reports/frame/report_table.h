#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <variant>
#include <vector>

#include "core/store/value.h"

/// A report as a value: what a builder makes and every renderer (screen, print, spreadsheet, text) shows.
namespace tallymere {

struct ReportHeading {
  std::string title = {}, company = {}, period = {};
  std::string basis = {};  ///< "Cash basis"; empty on reports that know only one
  std::string note = {};   ///< below the report: how its columns count, where that is not plain to see

  /// The three lines above the report's columns, CR LF between them.
  std::string caption() const { return title + "\r\n" + company + "\r\n" + period; }
};

struct ReportColumn {
  /// Margin: room at the edge, always empty; renderers without a page leave it out.
  enum class Kind { Text, Money, Number, Date, Flag, Margin };

  std::string caption = {};
  Kind kind = Kind::Text;
  std::string mask = {};  ///< for the eye; empty: money as money_mask, others as they stand
  std::string name = {};  ///< what it is picked by, where its caption changes or is no field's
  bool may_go = false;    ///< one of many like it: it goes with the empty groups when it shows nothing but zeros

  const std::string& id() const { return name.empty() ? caption : name; }
  bool is_right() const { return kind == Kind::Money || kind == Kind::Number; }  ///< aligned to the right
};

/// A head of its own above some columns, such as a month. The report's heading is not one of them.
struct ReportGroup {
  std::string caption = {};
  int first = 0;
  int count = 1;
};

/// What a row is in its report; looks, rules and page breaks follow from it. A head stands over the rows below
/// it, down to its total: the first one indented as far as the head itself.
enum class Role {
  Detail,
  Head,
  Group,     ///< a head in the look of its rows
  Subtotal,  ///< a total in the look of its rows
  Total,
  Grand_Total,
  Spacer,
};

/// Statement: plain rows, heads and totals "sBold". List: "Small" rows, heads and totals "Bold".
enum class Looks { Statement, List };

/// What a row stands for, and so where "Go to" and a double click lead; the user never sees it.
struct RowKey {
  std::string_view report = {};  ///< the key of the report it opens
  std::string_view text = {};    ///< what that report is of (a CatID, a name); without one, a transaction's type
  int64_t number = 0;            ///< TransNum; 0: no row of the ledger

  bool leads() const { return !text.empty() && (!report.empty() || number != 0); }
};
inline RowKey To_Report(std::string_view report, std::string_view subject) { return {report, subject, 0}; }
inline RowKey To_Transaction(std::string_view Type, int64_t TransNum) { return {{}, Type, TransNum}; }

/// Rows of typed cells under columns. Rows and columns count from 0. Reading outside a row gives a null, so
/// that a row ends with its last filled cell. Texts are kept once, however often they stand in the table.
class ReportTable {
 public:
  ReportHeading heading;
  std::vector<ReportColumn> columns;
  std::vector<ReportGroup> groups;
  Looks looks = Looks::Statement;
  std::vector<ReportColumn> offered;  ///< what one may pick columns from; a builder that picks itself fills it
  std::string notice;                 ///< said in a box once the report is shown; usually empty

  /// Writes the cells of the row just added, from the left.
  class Line {
   public:
    explicit Line(ReportTable& table) : table_(table) {}
    Line& skip(int cells = 1);
    Line& text(std::string_view text);
    Line& money(Money amount);
    Line& value(const store::Value& value);

   private:
    ReportTable& table_;
  };

  Line add_row(Role role = Role::Detail, RowKey key = {});
  void add_spacer() { add_row(Role::Spacer).text(" "); }
  void set_cell_style(int row, int column, std::string_view style);  ///< "Underline" or another look of its own

  int rows() const { return static_cast<int>(rows_.size()); }
  store::Value value(int row, int column) const;
  /// The content as plain text: an amount without a mask, a date m/d/yyyy.
  std::string text(int row, int column) const;
  /// The content as the column's mask shows it.
  std::string for_the_eye(int row, int column) const;
  Role role(int row) const { return rows_[static_cast<size_t>(row)].role; }
  bool is_head(int row) const { return role(row) == Role::Head || role(row) == Role::Group; }
  bool is_total(int row) const;
  bool is_spacer(int row) const { return role(row) == Role::Spacer; }
  /// The name of a look: "Bold", "sBold", "Small", "Underline", or "" for the plain one.
  std::string_view style(int row) const;
  std::string_view style(int row, int column) const;                   ///< the cell's own, else the row's
  std::vector<std::pair<int, std::string>> own_styles(int row) const;  ///< the cells with one, by column
  RowKey key(int row) const;
  bool leads_on() const { return leads_on_; }  ///< "Go to" on some row leads somewhere

  /// The column in which labels stand: the first that is no margin. -1: none.
  int label_column() const;
  /// How deep a row's label is indented, in steps of Blanks_Per_Level.
  int level(int row) const;
  /// The column of that caption, or -1.
  int find_column(std::string_view caption) const;

 private:
  struct TextHash {
    using is_transparent = void;
    size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
  };
  using Texts = std::unordered_set<std::string, TextHash, std::equal_to<>>;
  using Cell = std::variant<std::monostate, const std::string*, int64_t, double, Money, Date, bool>;
  struct Row {
    size_t first_cell, first_mask;
    const std::string *report, *text;  // of its key
    int64_t number;
    Role role;
  };
  const std::string* keep(std::string_view text);
  void put(Cell content);  ///< in the next column of the last row
  const Cell& cell(int row, int column) const;

  std::shared_ptr<Texts> texts_ = std::make_shared<Texts>();  // copies of a table share them
  std::deque<Row> rows_;                                      // long reports grow without being copied
  std::deque<Cell> cells_;                                    // the filled ones
  std::deque<uint64_t> masks_;                                // which columns they stand in, 64 to a word
  size_t next_column_ = 0;
  bool leads_on_ = false;
  std::map<std::pair<int, int>, const std::string*> cell_styles_;
};

}  // namespace tallymere
