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

  /// The three lines above the report's columns, CR LF between them.
  std::string caption() const { return title + "\r\n" + company + "\r\n" + period; }
};

struct ReportColumn {
  /// Margin: room at the edge, always empty; renderers without a page leave it out.
  enum class Kind { Text, Money, Number, Date, Flag, Margin };

  std::string caption = {};
  Kind kind = Kind::Text;
  bool right = false;     ///< aligned to the right
  int width = 0;          ///< in characters; 0: an equal share of the room that is left
  std::string mask = {};  ///< for the eye; empty: money as "#,##0.00##", others as they stand
};

/// A head of its own above some columns, such as a month. The report's heading is not one of them.
struct ReportGroup {
  std::string caption = {};
  int first = 0;
  int count = 1;
};

/// What a row stands for; the user never sees it.
struct RowKey {
  std::string_view text = {};  ///< CatID, or the type of a transaction, or a name
  int64_t number = 0;          ///< TransNum; 0: none
};

/// Rows of typed cells under columns. Rows and columns count from 0. Reading outside a row gives a null, so
/// that a row ends with its last filled cell. Texts are kept once, however often they stand in the table.
class ReportTable {
 public:
  /// Where "Go to" and a double click lead: nowhere, to the report of the row's category, to its transaction.
  enum class GoTo { Nowhere, Category, Transaction };

  ReportHeading heading;
  std::vector<ReportColumn> columns;
  std::vector<ReportGroup> groups;
  GoTo go_to = GoTo::Nowhere;
  std::string go_to_report;  ///< for GoTo::Category: the key of the report to open
  std::string notice;        ///< said in a box once the report is shown; usually empty

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

  /// `style` is the name of a look: "Bold", "sBold", "Small", "Underline", or "" for the plain one.
  Line add_row(std::string_view style = {}, RowKey key = {});
  void add_spacer() { add_row().text(" "); }
  void set_cell_style(int row, int column, std::string_view style);

  int rows() const { return static_cast<int>(rows_.size()); }
  store::Value value(int row, int column) const;
  /// The content as plain text: an amount without a mask, a date m/d/yyyy.
  std::string text(int row, int column) const;
  /// The content as the column's mask shows it.
  std::string for_the_eye(int row, int column) const;
  std::string_view style(int row) const { return *rows_[static_cast<size_t>(row)].style; }
  std::string_view style(int row, int column) const;  ///< the cell's own, else the row's
  RowKey key(int row) const;
  /// Nothing but blanks stands in it.
  bool is_spacer(int row) const;

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
    const std::string* style;
    const std::string* key;
    int64_t number;
  };
  const std::string* keep(std::string_view text);
  void put(Cell content);  ///< in the next column of the last row
  const Cell& cell(int row, int column) const;

  std::shared_ptr<Texts> texts_ = std::make_shared<Texts>();  // copies of a table share them
  std::deque<Row> rows_;                                      // long reports grow without being copied
  std::deque<Cell> cells_;                                    // the filled ones
  std::deque<uint64_t> masks_;                                // which columns they stand in, 64 to a word
  size_t next_column_ = 0;
  std::map<std::pair<int, int>, const std::string*> cell_styles_;
};

}  // namespace tallymere
