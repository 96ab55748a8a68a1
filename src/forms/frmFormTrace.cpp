#include "forms/frmFormTrace.h"

#include <QLabel>
#include <QPushButton>

#include "shell/widgets/grid/SSDBGrid.h"
#include "shell/widgets/theme.h"

namespace tallymere {

frmFormTrace::frmFormTrace(Shell& shell_of_frame, const FormLine& line)
    : Form(shell_of_frame, "frmFormTrace", Place::Above), line_(line) {
  setWindowTitle(qt("What made line " + std::string(line.def.number)));
  build();
  on(cmdGoto, "cmdGoto_AfterClick", [this] { cmdGoto_AfterClick(); });
  on(grdRows, &SSDBGrid::DblClick, "grdRows_DblClick", [this] { cmdGoto_AfterClick(); });
  on(cmdClose, "cmdClose_AfterClick", [this] { finish(false); });
}

void frmFormTrace::build() {
  auto* caption = new QLabel(qt(std::string(line_.def.caption)));
  caption->setWordWrap(true);
  grdRows = named("grdRows", new SSDBGrid);
  grdRows->setAccessibleName(QStringLiteral("Paychecks"));
  grdRows->set_columns({{.name = QStringLiteral("Date"), .kind = Kind::date, .width = 12},
                        {.name = QStringLiteral("Type"), .width = 14},
                        {.name = QStringLiteral("Name")},
                        {.name = QStringLiteral("Payroll Item")},
                        {.name = QStringLiteral("Counted"), .kind = Kind::money, .width = 14, .mask = "#,##0.00##"}});
  grdRows->set_sorting(false);  // rows stand as they were read, by date
  grdRows->set_empty_hint(QStringLiteral("No paycheck has anything for this line."));
  lblTotal = named("lblTotal", new QLabel);
  lblTotal->setFont(theme::tabular(lblTotal->font()));
  cmdGoto = named("cmdGoto", new QPushButton(QStringLiteral("&Go to")));
  cmdClose = named("cmdClose", new QPushButton(QStringLiteral("&Close")));
  auto* foot = row_layout();
  foot->addLayout(plain_button_row({cmdGoto}, {}));
  foot->addStretch(1);
  foot->addWidget(lblTotal);
  foot->addSpacing(theme::margin);
  foot->addWidget(cmdClose);
  auto* column = column_layout(this);
  column->addWidget(caption);
  column->addWidget(grdRows, 1);
  column->addLayout(foot);
  setMinimumSize(90 * theme::unit, 45 * theme::unit);
}

void frmFormTrace::load() {
  rows_ = Trace(*session.dbCompany, line_.sources);
  Money total;
  const SSDBGrid::Fill fill(*grdRows);
  for (const TracedRow& row : rows_) {
    grdRows->AddValues({row.date, row.Type, row.Name, row.PayrollItem, row.counted});
    total += row.counted;
  }
  std::string said = "Total " + Form_Money(total);
  if (line_.amount != line_.reckoned) said += ", corrected to " + Form_Money(line_.amount);
  lblTotal->setText(qt(said));
  cmdGoto->setEnabled(!rows_.empty());
}

void frmFormTrace::cmdGoto_AfterClick() {
  const int row = grdRows->Row();
  if (row < 0 || row >= grdRows->rows()) return;
  const TracedRow traced = rows_[static_cast<size_t>(row)];
  finish(true);
  shell.Go_To_Transaction(traced.Type, traced.TransNum);
}

}  // namespace tallymere
