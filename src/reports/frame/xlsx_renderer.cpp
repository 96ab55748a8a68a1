#include <xlsxwriter.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <regex>

#include "core/backup/whole_file.h"
#include "core/store/error.h"
#include "core/values/format.h"
#include "core/values/text.h"
#include "reports/frame/renderers.h"

namespace tallymere {
namespace {

namespace fs = std::filesystem;
using Kind = ReportColumn::Kind;

constexpr lxw_row_t rows_of_a_sheet = LXW_ROW_MAX;
constexpr int measured_rows = 300;
constexpr size_t longest_text = 32767;  // of a cell, in characters
constexpr size_t longest_header = 255;  // of a page
constexpr double heading_height = 60;   // points: three lines of 14
constexpr std::string_view plain_date = "m/d/yyyy";

enum class Align { Left, Right, Centre };

struct Look {
  std::string_view style;
  bool bold, underline;
  double size;
};
constexpr Look looks[] = {{"heading", true, false, 14},
                          {"Bold", true, false, 10},
                          {"sBold", true, false, 0},
                          {"Small", false, false, 9},
                          {"Underline", false, true, 0}};

/// A spreadsheet's own day count begins on 1/1/1900.
bool Has_Spreadsheet_Date(Date day) { return day.year() >= 1900; }

std::string_view Cut(std::string_view text, size_t longest) {
  if (text.size() <= longest) return text;
  size_t end = longest;
  while (end > 0 && (text[end] & 0xC0) == 0x80) --end;
  return text.substr(0, end);
}

/// The format reads "_x0041_" as an "A"; a text that has it says so.
std::string As_It_Stands(std::string_view text) {
  if (text.find("_x") == std::string_view::npos) return std::string(text);
  static const std::regex code("_(?=x[0-9A-Fa-f]{4}_)");
  return std::regex_replace(std::string(text), code, "_x005F_");
}

/// For each text at most so many bytes; an "&" is written twice.
std::string Page_Header(const ReportHeading& heading, size_t longest) {
  std::string header = "&C";
  for (const std::string& text : {heading.title, heading.company, heading.period})
    header += (header.size() > 2 ? "   " : "") + replace_all(Cut(text, longest), "&", "&&");
  return header;
}

class Workbook {
 public:
  Workbook(const ReportTable& table, const fs::path& file) : table_(table) {
    for (int column = 0; column < static_cast<int>(table_.columns.size()); ++column)
      if (table_.columns[static_cast<size_t>(column)].kind != Kind::Margin) shown_.push_back(column);
    if (shown_.size() > LXW_COL_MAX)
      throw store::Error(store::errors::conversion,
                         "A spreadsheet has no room for more than " + std::to_string(LXW_COL_MAX) + " columns.");
    lxw_workbook_options options{};
    options.constant_memory = LXW_TRUE;  // rows go to disk as they come
    book_ = workbook_new_opt(file.c_str(), &options);
    if (!book_) throw store::Error(store::errors::disk_full, "The workbook could not be begun.");
  }

  void write() {
    start_sheet();
    for (int row = 0; row < table_.rows(); ++row) {
      if (at_ == rows_of_a_sheet) start_sheet();
      write_row(row);
    }
    write_note();
    if (lxw_error fault = workbook_close(book_))
      throw store::Error(store::errors::bad_path, std::string("The workbook was not written: ") + lxw_strerror(fault));
  }

 private:
  void start_sheet() {
    sheet_ = workbook_add_worksheet(book_, nullptr);
    if (!sheet_) throw store::Error(store::errors::disk_full, "The workbook has no room for another sheet.");
    at_ = 0;
    for (size_t at = 0; at < shown_.size(); ++at)
      worksheet_set_column(sheet_, column_number(at), column_number(at), width_of(shown_[at]), nullptr);
    write_groups();
    for (size_t at = 0; at < shown_.size(); ++at)
      write_text(at_, column_number(at), table_.columns[static_cast<size_t>(shown_[at])].caption,
                 format("sBold", "", is_right(shown_[at]) ? Align::Right : Align::Left));
    worksheet_freeze_panes(sheet_, ++at_, shown_.size() > 6 ? 1 : 0);
    worksheet_repeat_rows(sheet_, table_.groups.empty() ? at_ - 1 : 0, at_ - 1);
    set_up_page();
  }

  /// The heading is what groups all columns of a report that has no groups of its own.
  void write_groups() {
    std::vector<ReportGroup> groups = table_.groups;
    if (groups.empty()) groups.push_back({table_.heading.caption(), 0, static_cast<int>(table_.columns.size())});
    const bool is_heading = table_.groups.empty();
    lxw_format* look = format(is_heading ? "heading" : "sBold", "", Align::Centre);
    if (is_heading) worksheet_set_row(sheet_, at_, heading_height, nullptr);
    for (const ReportGroup& group : groups) {
      const auto below = [&](int column) { return column >= group.first && column < group.first + group.count; };
      const auto first = std::find_if(shown_.begin(), shown_.end(), below);
      const auto last = std::find_if_not(first, shown_.end(), below);
      if (first == last) continue;
      const auto from = static_cast<size_t>(first - shown_.begin()),
                 to = static_cast<size_t>(last - shown_.begin()) - 1;
      const std::string caption = replace_all(group.caption, "\r\n", "\n");
      if (from == to)
        write_text(at_, column_number(from), caption, look);
      else
        worksheet_merge_range(sheet_, at_, column_number(from), at_, column_number(to), caption.c_str(), look);
    }
    ++at_;
  }

  void set_up_page() {
    size_t longest = 80;
    while (Page_Header(table_.heading, longest).size() > longest_header) longest /= 2;
    worksheet_set_header(sheet_, Page_Header(table_.heading, longest).c_str());
    worksheet_set_footer(sheet_, ("&L" + table_.heading.basis + "&RPage &P of &N").c_str());
    worksheet_fit_to_pages(sheet_, 1, 0);
    if (shown_.size() > 6) worksheet_set_landscape(sheet_);
  }

  void write_row(int row) {
    for (size_t at = 0; at < shown_.size(); ++at)
      write_cell(column_number(at), table_.value(row, shown_[at]), table_.style(row, shown_[at]), shown_[at]);
    ++at_;
  }

  /// Below the rows, a blank one between; a sheet that is full has no room for it.
  void write_note() {
    if (!table_.heading.note.empty() && at_ + 1 < rows_of_a_sheet)
      write_text(at_ + 1, 0, table_.heading.note, format("Small", ""));
  }

  void write_cell(lxw_col_t to, const store::Value& value, std::string_view style, int column) {
    const std::string& mask = table_.columns[static_cast<size_t>(column)].mask;
    auto mask_or = [&](std::string_view plain) { return mask.empty() ? plain : std::string_view(mask); };
    const auto& content = value.content();
    if (auto amount = std::get_if<Money>(&content)) {
      worksheet_write_number(sheet_, at_, to, amount->to_double(), format(style, mask_or(money_mask)));
    } else if (std::holds_alternative<int64_t>(content) || std::holds_alternative<double>(content)) {
      worksheet_write_number(sheet_, at_, to, value.number(), format(style, mask));
    } else if (auto flag = std::get_if<bool>(&content)) {
      worksheet_write_boolean(sheet_, at_, to, *flag, format(style, ""));
    } else if (auto day = std::get_if<Date>(&content); day && Has_Spreadsheet_Date(*day)) {
      lxw_datetime date{day->year(), static_cast<int>(day->month()), static_cast<int>(day->day()), 0, 0, 0};
      worksheet_write_datetime(sheet_, at_, to, &date, format(style, mask_or(plain_date)));
    } else if (!value.blank()) {
      write_text(at_, to, value.text(), format(style, "", is_right(column) ? Align::Right : Align::Left));
    }
  }

  void write_text(lxw_row_t row, lxw_col_t column, const std::string& text, lxw_format* look) {
    if (!text.empty()) worksheet_write_string(sheet_, row, column, As_It_Stands(Cut(text, longest_text)).c_str(), look);
  }

  lxw_format* format(std::string_view style, std::string_view mask, Align align = Align::Left) {
    std::string name = std::string(style) + '\t' + std::string(mask) + "LRC"[static_cast<int>(align)];
    auto [known, is_new] = formats_.try_emplace(name, nullptr);
    if (!is_new) return known->second;
    lxw_format* made = known->second = workbook_add_format(book_);
    for (const Look& look : looks) {
      if (look.style != style) continue;
      if (look.bold) format_set_bold(made);
      if (look.underline) format_set_underline(made, LXW_UNDERLINE_SINGLE);
      if (look.size > 0) format_set_font_size(made, look.size);
    }
    if (!mask.empty()) format_set_num_format(made, std::string(mask).c_str());
    if (align == Align::Right) format_set_align(made, LXW_ALIGN_RIGHT);
    if (align == Align::Centre) {
      format_set_align(made, LXW_ALIGN_CENTER);
      format_set_align(made, LXW_ALIGN_VERTICAL_CENTER);
      format_set_text_wrap(made);
    }
    return made;
  }

  bool is_right(int column) const { return table_.columns[static_cast<size_t>(column)].is_right(); }

  double width_of(int column) const {
    size_t widest = std::max<size_t>(8, table_.columns[static_cast<size_t>(column)].caption.size());
    for (int row = 0; row < std::min(table_.rows(), measured_rows); ++row)
      widest = std::max(widest, table_.for_the_eye(row, column).size());
    return static_cast<double>(std::min<size_t>(widest, 50)) + 2;
  }

  static lxw_col_t column_number(size_t at) { return static_cast<lxw_col_t>(at); }

  const ReportTable& table_;
  lxw_workbook* book_;  // freed by workbook_close, which ends every way out but a fault
  lxw_worksheet* sheet_ = nullptr;
  lxw_row_t at_ = 0;
  std::vector<int> shown_;
  std::map<std::string, lxw_format*, std::less<>> formats_;
};

}  // namespace

void Write_Xlsx(const ReportTable& table, const fs::path& file) {
  Write_Whole_By_Name(file, [&](const fs::path& aside) {
    if (!std::ofstream(aside))
      throw store::Error(store::errors::bad_path, "'" + file.string() + "' cannot be written.");
    Workbook(table, aside).write();
  });
}

}  // namespace tallymere
