#include "reports/frame/ReportForm.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QStackedLayout>

#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/grid/SSDBGrid.h"
#include "shell/widgets/theme.h"
#include "shell/widgets/window_memory.h"

/// The window itself. ReportForm_request.cpp has what it is asked for, ReportForm_table.cpp how the report comes
/// on show, ReportForm_graph.cpp how as a picture, ReportForm_output.cpp what becomes of it then.
namespace tallymere {

namespace {

QLabel* heading_label(double size, bool bold) {
  auto* label = new QLabel;
  label->setTextFormat(Qt::PlainText);
  label->setAlignment(Qt::AlignHCenter);
  label->setWordWrap(true);
  QFont font = label->font();
  font.setPointSizeF(font.pointSizeF() * size);
  font.setBold(bold);
  label->setFont(font);
  return label;
}

QLabel* note_label() {
  auto* label = new QLabel;
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setForegroundRole(QPalette::PlaceholderText);
  label->setContentsMargins(theme::margin, theme::gap / 2, theme::margin, theme::gap);
  label->hide();
  return label;
}

QPalette paper_of(const QWidget& widget) {
  QPalette palette = widget.palette();
  palette.setColor(QPalette::Window, palette.color(QPalette::Base));
  return palette;
}

}  // namespace

ReportForm::ReportForm(Shell& shell_of_frame, const char* name)
    : Form(shell_of_frame, name), request_{.key = {}, .from = session.today(), .to = session.today()} {
  auto* left = column_layout();
  left->addWidget(build_bar());
  left->addWidget(build_sheet(), 1);
  auto* all = row_layout();
  all->addLayout(left, 1);
  all->addSpacing(theme::gap);
  all->addLayout(build_buttons());
  column_layout(this)->addLayout(all);
  build_graph();
  connect_controls();
}

// --- building the window

QWidget* ReportForm::build_bar() {
  bar_ = new QWidget;
  auto* row = row_layout();
  bar_->setLayout(row);
  cmbDate = named("cmbDate", new QComboBox);
  cmbDate->setAccessibleName(QStringLiteral("Dates to Show"));
  dteStart = named("dteStart", new QuillbrookDatePick);
  dteEnd = named("dteEnd", new QuillbrookDatePick);
  lblStart = label_for(dteStart, QStringLiteral("Start Date"));
  lblEnd = label_for(dteEnd, QStringLiteral("End Date"));
  lblBasis = new QLabel(QStringLiteral("Basis:"));
  optBasis = new QButtonGroup(this);
  optBasis->setObjectName(QStringLiteral("optBasis"));
  for (QWidget* control : std::initializer_list<QWidget*>{cmbDate, lblStart, dteStart, lblEnd, dteEnd})
    row->addWidget(control);
  row->addSpacing(theme::margin);
  row->addWidget(lblBasis);
  int index = 0;
  for (const char* caption : {"Cash", "Accrual"}) {
    auto* option = new QRadioButton(QLatin1String(caption));
    option->setObjectName(QStringLiteral("optBasis_%1").arg(index));
    optBasis->addButton(option, index++);
    row->addWidget(option);
  }
  row->addStretch(1);
  return bar_;
}

/// Heading and columns stand on one sheet of paper, no wider than they need.
QWidget* ReportForm::build_sheet() {
  sheet_ = new QFrame;
  static_cast<QFrame*>(sheet_)->setFrameShape(QFrame::StyledPanel);
  sheet_->setAutoFillBackground(true);
  sheet_->setPalette(paper_of(*sheet_));
  Label6 = named("Label6", heading_label(1.5, true));
  Label5 = named("Label5", heading_label(1.1, false));
  Label4 = named("Label4", heading_label(1, false));
  grdPL = named("grdPL", new SSDBGrid);
  grdPL->setAccessibleName(QStringLiteral("Report"));
  grdPL->setFrameShape(QFrame::NoFrame);
  grdPL->setShowGrid(false);
  grdPL->set_multi_select(true);
  grdPL->define_style("sBold", {.bold = true, .rule = true});
  grdPL->define_style("Bold", {.bold = true, .rule = true});
  auto* column = column_layout();
  column->setContentsMargins(0, theme::margin, 0, 0);
  column->setSpacing(theme::gap / 4);
  for (QLabel* label : {Label6, Label5, Label4}) column->addWidget(label);
  column->addSpacing(theme::gap);
  shown_ = new QStackedLayout;
  shown_->addWidget(grdPL);
  column->addLayout(shown_, 1);
  column->addWidget(lblNote = named("lblNote", note_label()));
  sheet_->setLayout(column);
  auto* middle = new QWidget;
  auto* centred = row_layout();
  centred->addStretch(1);
  centred->addWidget(sheet_, 1000);
  centred->addStretch(1);
  middle->setLayout(centred);
  return middle;
}

QPushButton* ReportForm::button(const char* name, const char* caption) {
  auto* made = named(name, new QPushButton(QLatin1String(caption)));
  buttons_->addWidget(made);
  return made;
}

QVBoxLayout* ReportForm::build_buttons() {
  buttons_ = column_layout();
  cmdRefresh = button("cmdRefresh", "&Refresh");
  cmdPrint = button("cmdPrint", "&Print");
  cmdLabel = button("cmdLabel", "&Change Title");
  cmdGoto = button("cmdGoto", "&Go to");
  cmdPick = button("cmdPick", "Pick &Fields");
  extra_button_at_ = buttons_->count();
  cmdExport = button("cmdExport", "E&xport");
  chkEmpty = named("chkEmpty", new QCheckBox(QStringLiteral("Hide &empty")));
  chkEmpty->setToolTip(QStringLiteral("Leaves out names, categories and groups that show nothing."));
  buttons_->addSpacing(theme::gap);
  buttons_->addWidget(chkEmpty);
  buttons_->addStretch(1);
  cmdClose = button("cmdClose", "&Close");
  cmdRefresh->setToolTip(QStringLiteral("F5"));
  return buttons_;
}

void ReportForm::add_button(QPushButton* added) {
  QWidget* before = buttons_->itemAt(extra_button_at_ - 1)->widget();
  buttons_->insertWidget(extra_button_at_++, added);
  setTabOrder(before, added);
}

void ReportForm::add_to_bar(QWidget* choice) {
  auto* row = static_cast<QBoxLayout*>(bar_->layout());
  row->insertWidget(row->count() - 1, choice);  // before the stretch
}

void ReportForm::connect_controls() {
  on(cmdRefresh, "cmdRefresh_AfterClick", [this] {
    read_controls();
    Load_Standard();
  });
  on(cmdPrint, "cmdPrint_AfterClick", [this] { cmdPrint_AfterClick(); });
  on(cmdLabel, "cmdLabel_AfterClick", [this] { cmdLabel_AfterClick(); });
  on(cmdGoto, "cmdGoto_AfterClick", [this] { cmdGoto_AfterClick(); });
  on(cmdPick, "cmdPick_AfterClick", [this] { cmdPick_AfterClick(); });
  on(cmdExport, "cmdExport_AfterClick", [this] { cmdExport_AfterClick(); });
  on(cmdClose, "cmdClose_AfterClick", [this] { finish(false); });
  on(grdPL, &SSDBGrid::DblClick, "grdPL_DblClick", [this] { cmdGoto_AfterClick(); });
  on(cmbDate, &QComboBox::activated, "cmbDate_Click", [this] { cmbDate_Click(); });
  for (QuillbrookDatePick* date : {dteStart, dteEnd})
    on(date, &QuillbrookDatePick::Change, "dteStart_Change", [this] { changed_by_user(); });
  on(optBasis, &QButtonGroup::idClicked, "optBasis_Click", [this] { changed_by_user(); });
  on(chkEmpty, "chkEmpty_Click", [this] { changed_by_user(); });
  auto* refresh = new QShortcut(QKeySequence::Refresh, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
  connect(refresh, &QShortcut::activated, cmdRefresh, &QPushButton::click);
  auto* copies = new QShortcut(QKeySequence::Copy, grdPL, nullptr, nullptr, Qt::WidgetShortcut);
  on(copies, &QShortcut::activated, "grdPL_KeyDown", [this] { copy(); });
}

/// A report of many columns comes up as wide as they are, where the frame has that room.
QSize ReportForm::sizeHint() const {
  if (const auto left = window_memory::size_of(objectName())) return *left;
  const int wanted = grdPL->natural_width() + buttons_->sizeHint().width() + 7 * theme::unit;
  return Form::sizeHint().expandedTo({std::clamp(wanted, 120 * theme::unit, 180 * theme::unit), 76 * theme::unit});
}

/// Light paper turns dark with the desktop.
void ReportForm::changeEvent(QEvent* event) {
  Form::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && sheet_) sheet_->setPalette(paper_of(*this));
}

void ReportForm::fit_sheet() {
  const bool grid = shown_->currentWidget() == grdPL;
  const int least = 64 * theme::unit;
  sheet_->setMaximumWidth(grid ? std::max(grdPL->natural_width() * 3 / 2, least) : QWIDGETSIZE_MAX);
}

}  // namespace tallymere
