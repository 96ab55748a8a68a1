// How a register looks: the sheet of lines, the date control and the break down that float over it, the
// commands.
#include <QCoreApplication>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>

#include "entry/document/EntryForm.h"
#include "entry/register/frmRegister.h"
#include "shell/drop_downs.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/company_color.h"
#include "shell/widgets/grid/SSDBGrid.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace column = register_column;
namespace line = break_down_column;

namespace {

/// A grid whose Date cells are written in with the date control that floats over them.
class RegisterGrid : public SSDBGrid {
 public:
  void set_date_control(QuillbrookDatePick* control) { date_ = control; }
  QSize sizeHint() const override { return {134 * theme::unit, 60 * theme::unit}; }

 protected:
  bool edit(const QModelIndex& cell, EditTrigger trigger, QEvent* event) override {
    if (!date_ || cell.column() != column::Date) return SSDBGrid::edit(cell, trigger, event);
    if (trigger == NoEditTriggers || !(editTriggers() & trigger || trigger == AllEditTriggers)) return false;
    date_->setFocus();
    date_->selectAll();
    if (event && event->type() == QEvent::KeyPress) QCoreApplication::sendEvent(date_, event);
    return true;
  }

 private:
  QuillbrookDatePick* date_ = nullptr;
};

GridColumn text(const char* name, int width = 0) { return {.name = QString::fromLatin1(name), .width = width}; }
GridColumn money(const char* name) { return {.name = QString::fromLatin1(name), .kind = Kind::money, .width = 14}; }
GridColumn choice(const char* name, SSDBDropDown* list, int width = 0, int id = -1) {
  return {.name = QString::fromLatin1(name), .width = width, .list = list, .id_column = id};
}
GridColumn hidden(const char* name) { return {.name = QString::fromLatin1(name), .kind = Kind::hidden}; }

}  // namespace

frmRegister::frmRegister(Shell& shell_of_frame)
    : Form(shell_of_frame, "frmRegister"),
      lists_(new DropDowns(session, this)),
      SSDBDropDown1(lists_->drpExpenseList),
      drpVendor(lists_->drpCustomers),
      drpCustomers(lists_->drpCustomers) {
  setWindowTitle(QStringLiteral("reg"));
  build_register();
  build_break_down();
  build_commands();
  build();
  connect_register();
  connect_floats();
  connect_commands();
}

frmRegister::~frmRegister() = default;

// --- controls --------------------------------------------------------------------------------------------

void frmRegister::build_register() {
  auto* grid = new RegisterGrid;
  grdRegister = named("grdRegister", grid);
  grdRegister->setAccessibleName(QStringLiteral("Register"));
  GridColumn balance = money("Balance");
  balance.locked = true;
  balance.width = 15;
  grdRegister->set_columns({{.name = QStringLiteral("Date"), .kind = Kind::date, .width = 15},
                            text("Num", 7),
                            choice("Payee", drpVendor),
                            choice("Category", SSDBDropDown1, 20, column::CatID),
                            text("Memo"),
                            choice("Class", lists_->drpClass, 10),
                            money("Payment"),
                            {.name = QStringLiteral("Clear"), .kind = Kind::check, .width = 5},
                            money("Deposit"),
                            balance,
                            hidden("TransNum"),
                            hidden("CatID")});
  grdRegister->set_read_only(false);
  datReg = named("datReg", new QuillbrookDatePick(grdRegister->viewport()));
  datReg->setAccessibleName(QStringLiteral("Date"));
  datReg->setMinimumWidth(0);
  datReg->setFrame(false);
  datReg->setTextMargins(theme::unit * 3 / 4, 0, 0, 0);  // the date does not jump when its line is gone to
  datReg->allow_blank(true);
  datReg->setFocusPolicy(Qt::ClickFocus);  // Tab comes to it through the grid's Date cell
  datReg->hide();
  grid->set_date_control(datReg);
}

void frmRegister::build_break_down() {
  fraBreakDown = named("fraBreakDown", new QFrame(this));
  fraBreakDown->setFrameShape(QFrame::StyledPanel);
  fraBreakDown->setAutoFillBackground(true);
  grdBreakDown = named("grdBreakDown", new SSDBGrid);
  grdBreakDown->setAccessibleName(QStringLiteral("Break Down"));
  grdBreakDown->set_columns({choice("Account", SSDBDropDown1, 0, line::CatID), money("Amount"), text("Memo"),
                             choice("Customer", drpCustomers), choice("Class", lists_->drpClass), hidden("CatID"),
                             hidden("Kept")});
  Take_Only_Amounts(shell, *grdBreakDown);
  grdBreakDown->set_read_only(false);
  grdBreakDown->set_new_line(true);
  grdBreakDown->set_delete(true);
  cmdClose = named("cmdClose", new QPushButton(QStringLiteral("Close")));
  cmdClose->setToolTip(QStringLiteral("Takes these lines into the entry (Ctrl+Enter)"));
  auto* column = column_layout(fraBreakDown);
  column->addWidget(grdBreakDown);
  column->addLayout(plain_button_row({}, {cmdClose}));
  fraBreakDown->hide();
}

void frmRegister::build_commands() {
  const auto button = [this](const char* name, const char* caption, const char* tip) {
    auto* made = named(name, new QPushButton(QString::fromLatin1(caption)));
    made->setToolTip(QString::fromLatin1(tip));
    return made;
  };
  cmdRecord = button("cmdRecord", "&Record", "Writes the line into the ledger (Ctrl+Enter)");
  cmdGoto = button("cmdGoto", "&Go to", "Opens the transaction in its own window");
  cmdBreakdown = button("cmdBreakdown", "&Break Down", "Spreads the amount over several categories");
  cmdRefresh = button("cmdRefresh", "Re&fresh", "Reads the register again");
  lblCatID = named("lblCatID", new QLabel(this));
  lblCatID->hide();
  lblTotal = named("lblTotal", new QLabel);
  QFont font = theme::tabular(lblTotal->font());
  font.setBold(true);
  lblTotal->setFont(font);
  Timer1 = new QTimer(this);
  Timer1->setObjectName(QStringLiteral("Timer1"));
  Timer1->setSingleShot(true);
  Timer1->setInterval(0);
}

void frmRegister::build() {
  auto* total = row_layout();
  total->addStretch(1);
  auto* caption = new QLabel(QStringLiteral("Balance"));
  total->addWidget(caption);
  total->addWidget(lblTotal);
  auto* column = column_layout(this);
  column->addWidget(grdRegister, 1);
  column->addLayout(total);
  column->addLayout(button_row({cmdGoto, cmdBreakdown, cmdRefresh}, {cmdRecord}));
  setMinimumSize(90 * theme::unit, 40 * theme::unit);
}

void frmRegister::show_category() {
  const Category& category = register_->category();
  lblCatID->setText(qt(category.CatID));
  setWindowTitle(QStringLiteral("reg - ") + qt(category.AccountName));
  const RegisterCaptions captions = Register_Captions(category.AccountType);
  grdRegister->set_caption(column::Out, std::string(captions.out));
  grdRegister->set_caption(column::In, std::string(captions.in));
  const bool writes = Takes_New_Lines(category.AccountType);
  grdRegister->set_new_line(writes);
  grdRegister->set_empty_hint(writes ? QStringLiteral("Type the first entry into the line above.")
                                     : QStringLiteral("Nothing has been entered here yet."));
}

void frmRegister::show_colors() { grdRegister->set_sheet_color(Company_Color(session, "RegBack")); }

// --- what floats over the grid ---------------------------------------------------------------------------

void frmRegister::place_floats() {
  const QModelIndex cell = grdRegister->model()->index(row_, column::Date);
  datReg->setVisible(cell.isValid());
  if (!cell.isValid()) return;
  datReg->setGeometry(grdRegister->visualRect(cell));
  if (fraBreakDown->isVisible()) place_break_down();
}

/// A little below the line, or over it where it would fall below the grid.
void frmRegister::place_break_down() {
  constexpr int apart = 2 * theme::unit;
  const QRect cell = grdRegister->visualRect(grdRegister->model()->index(row_, column::Date));
  const QRect sheet = grdRegister->geometry();
  const int top = grdRegister->viewport()->mapTo(this, cell.topLeft()).y();
  const int height = std::min(fraBreakDown->sizeHint().height(), 32 * theme::unit);
  const int below = top + cell.height() + apart;
  const int y = below + height <= sheet.bottom() ? below : std::max(0, top - apart - height);
  const int width = std::min(sheet.width() - 2 * apart, 110 * theme::unit);
  fraBreakDown->setGeometry(sheet.left() + apart, y, width, height);
}

void frmRegister::focus_line() {
  if (datReg->isHidden() || grdRegister->Col() != column::Date) return grdRegister->setFocus();
  datReg->setFocus();
  datReg->selectAll();
}

void frmRegister::leave_date() {
  if (datReg->hasFocus()) grdRegister->setFocus();
}

/// Keys that lead from cell to cell and from line to line belong to the grid.
bool frmRegister::eventFilter(QObject* watched, QEvent* event) {
  if (watched == datReg && event->type() == QEvent::FocusIn && row_ >= 0) grdRegister->set_cell(row_, column::Date);
  if (watched == datReg && event->type() == QEvent::KeyPress) {
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool plain = !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    switch (key->key()) {
      case Qt::Key_Tab:
      case Qt::Key_Backtab:
      case Qt::Key_Return:
      case Qt::Key_Enter:
      case Qt::Key_PageUp:
      case Qt::Key_PageDown:
        if (!plain) break;
        leave_date();
        QCoreApplication::sendEvent(grdRegister, event);
        return true;
      default:
        break;
    }
  }
  return Form::eventFilter(watched, event);
}

// --- signals ---------------------------------------------------------------------------------------------

void frmRegister::connect_register() {
  on(grdRegister, &SSDBGrid::RowColChange, "grdRegister_RowColChange",
     [this](int, int last_column) { grdRegister_RowColChange(last_column); });
  on(grdRegister, &SSDBGrid::AfterColUpdate, "grdRegister_AfterColUpdate",
     [this](int, int changed) { grdRegister_AfterColUpdate(changed); });
  on(grdRegister, &SSDBGrid::AfterInsert, "grdRegister_AfterInsert", [this] { grdRegister_AfterInsert(); });
  on(grdRegister, &SSDBGrid::BeforeUpdate, "grdRegister_RowColChange",
     [this](int, bool& cancel) { grdRegister_BeforeUpdate(cancel); });
  on(grdRegister, &SSDBGrid::MenuRequested, "grdRegister_MouseUp", [this](int row) { grdRegister_MouseUp(row); });
}

void frmRegister::connect_floats() {
  datReg->installEventFilter(this);
  on(datReg, &QuillbrookDatePick::Change, "datReg_Change", [this] { datReg_Change(); });
  const auto follow = [this] { place_floats(); };
  for (QScrollBar* bar : {grdRegister->verticalScrollBar(), grdRegister->horizontalScrollBar()}) {
    connect(bar, &QScrollBar::valueChanged, this, follow);
    connect(bar, &QScrollBar::rangeChanged, this, follow, Qt::QueuedConnection);
  }
  connect(grdRegister->horizontalHeader(), &QHeaderView::sectionResized, this, follow);
  on(grdBreakDown, &SSDBGrid::AfterColUpdate, "grdBreakDown_AfterColUpdate",
     [this](int row, int changed) { grdBreakDown_AfterColUpdate(row, changed); });
  on(grdBreakDown, &SSDBGrid::AfterDelete, "grdBreakDown_AfterDelete", [this] { set_changed(); });
}

void frmRegister::connect_commands() {
  on(cmdRecord, "cmdRecord_Click", [this] { cmdRecord_Click(); });
  on(cmdGoto, "cmdGoto_Click", [this] { cmdGoto_Click(); });
  on(cmdBreakdown, "cmdBreakdown_Click", [this] { cmdBreakdown_Click(); });
  on(cmdRefresh, "cmdRefresh_Click", [this] { cmdRefresh_Click(); });
  on(cmdClose, "cmdClose_Click", [this] { cmdClose_Click(); });
  on(Timer1, &QTimer::timeout, "Timer1_Timer", [this] { Timer1_Timer(); });
}

}  // namespace tallymere
