#pragma once

#include <algorithm>
#include <memory>

#include "reports/graph/graph.h"
#include "reports/reports.h"
#include "shell/widgets/Form.h"
#include "shell/widgets/printed_pages.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QStackedLayout;
class QVBoxLayout;

namespace tallymere {

class GraphSheet;
class QuillbrookDatePick;
class SSDBGrid;

/// The window of every report: grdPL shows any ReportTable under its heading; dates, basis, title, printing,
/// export and the jump from a row. What a report is stands in its row of the table of reports; a window of
/// its own is needed only by a report that can do more.
class ReportForm : public Form {
  Q_OBJECT

 public:
  ReportForm(Shell& shell_of_frame, const char* name);

  void load() override;
  void take(const Request& asked) override;
  QSize sizeHint() const override;

 protected:
  /// Empties and rebuilds the grid from the dates and options now set.
  void Load_Standard();

  // --- what a report with more to it adds
  virtual void after_load() {}
  void changeEvent(QEvent* event) override;
  void add_button(QPushButton* button);  ///< above "E&xport"
  void add_to_bar(QWidget* choice);      ///< beside the dates

  const ReportTable& table() const { return table_; }
  ReportRequest& report_request() { return request_; }
  const ReportDef& report() const { return *report_; }

  SSDBGrid* grdPL;
  QComboBox* cmbDate;

 private:
  // --- the window: ReportForm.cpp
  QWidget* build_bar();
  QWidget* build_sheet();
  QVBoxLayout* build_buttons();
  QPushButton* button(const char* name, const char* caption);
  void connect_controls();
  void fit_sheet();

  // --- the request: ReportForm_request.cpp
  void begin_report(const Request& asked);
  void take_option(std::string_view option, const std::string& value);
  void show_request();
  void show_preset();
  void read_controls();
  void changed_by_user();
  void cmbDate_Click();
  void cmdPick_AfterClick();
  bool is_shown(const ReportColumn& column) const;
  void cmdLabel_AfterClick();

  // --- the table: ReportForm_table.cpp
  void build();
  void show_table();
  void show_columns();
  void show_labels();
  void show_widths();
  void show_heading();
  void show_note();
  std::string row_text(int row) const;

  // --- the graph: ReportForm_graph.cpp
  void build_graph();
  void begin_graph(bool another_report);
  void cmdGraph_AfterClick();
  void draw_graph();
  void show_instead_of_grid(QWidget* other);  ///< nullptr: the grid again

  // --- what becomes of it: ReportForm_output.cpp
  Lay_Out pages_to_print();
  QPageLayout page_to_print();
  void cmdGoto_AfterClick();
  void cmdPrint_AfterClick();
  void cmdExport_AfterClick();
  void chosen(const std::string& item);
  std::string ask_file(const char* kind, const char* suffix);
  void export_pdf();
  void export_sheet();
  void export_csv();
  void copy();

  const ReportDef* report_ = nullptr;
  ReportRequest request_;
  ReportTable table_;
  Graph graph_;
  bool building_ = false;

  QLabel *Label4, *Label5, *Label6, *lblStart, *lblEnd, *lblBasis, *lblNote;
  QuillbrookDatePick *dteStart, *dteEnd;
  QButtonGroup* optBasis;
  QCheckBox* chkEmpty;
  QWidget *bar_ = nullptr, *sheet_ = nullptr;
  QStackedLayout* shown_;
  QVBoxLayout* buttons_;
  int extra_button_at_ = 0;
  QPushButton *cmdRefresh, *cmdPrint, *cmdLabel, *cmdGoto, *cmdPick, *cmdExport, *cmdGraph, *cmdClose;
  GraphSheet* grfPL;
};

/// A window's name as a template's argument.
template <size_t size>
struct WindowName {
  constexpr WindowName(const char (&text)[size]) { std::copy_n(text, size, name); }
  char name[size];
};

/// A report window that is nothing but its rows in the table of reports: {"frmPrintPLName",
/// Make_Report<"frmPrintPLName">}.
template <WindowName window>
Form* Make_Report(Shell& shell) {
  return new ReportForm(shell, window.name);
}

}  // namespace tallymere
