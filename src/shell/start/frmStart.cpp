#include "shell/start/frmStart.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include "core/company/recent.h"
#include "shell/widgets/line_icon.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

struct OptionRow {
  frmStart::Option index;
  const char* name;
  const char* caption;
};
constexpr OptionRow option_rows[] = {{frmStart::Open, "optStart_1", "&Open Company"},
                                     {frmStart::Create, "optStart_0", "Create &New Company"},
                                     {frmStart::Restore, "optStart_2", "&Restore Company"}};

QHBoxLayout* heading() {
  auto* mark = new QLabel;
  mark->setPixmap(Program_Icon().pixmap(QSize(40, 40)));
  auto* name = new QLabel(QStringLiteral("Tallymere"));
  QFont font = name->font();
  font.setPointSizeF(font.pointSizeF() * 1.6);
  font.setBold(true);
  name->setFont(font);
  auto* row = row_layout();
  row->setSpacing(2 * theme::gap);
  row->addWidget(mark);
  row->addWidget(name, 1);
  return row;
}

}  // namespace

frmStart::frmStart(Shell& shell_of_frame, CompanyCommands& commands)
    : Form(shell_of_frame, "frmStart", Place::Above), commands_(commands) {
  setWindowTitle(QStringLiteral("Start"));
  build();
  on(cmdOK, "cmdOk_AfterClick", [this] { cmdOk_AfterClick(); });
  on(lstRecent, &QListWidget::itemActivated, "lstRecent_DblClick", [this] { lstRecent_DblClick(); });
  fill_recent();
}

void frmStart::fill_recent() {
  for (const auto& path : Recent_Companies(session.folder)) {
    auto* item = new QListWidgetItem(qt(path.stem().string()), lstRecent);
    item->setToolTip(qt(path.string()));
    item->setData(Qt::UserRole, qt(path.string()));
  }
  const bool any = lstRecent->count() > 0;
  lstRecent->setVisible(any);
  if (!any) return;
  lstRecent->setCurrentRow(0);
  lstRecent->setFocus();
}

void frmStart::lstRecent_DblClick() {
  const QListWidgetItem* chosen = lstRecent->currentItem();
  if (chosen && commands_.Open_Recent_At_Start(utf8(chosen->data(Qt::UserRole).toString()))) finish(true);
}

void frmStart::build() {
  optStart = named("optStart", new QButtonGroup(this));
  cmdOK = named("cmdOK", new QPushButton(QStringLiteral("OK")));
  auto* column = column_layout(this);
  column->addLayout(heading());
  column->addSpacing(theme::gap);
  lstRecent = named("lstRecent", new QListWidget);
  lstRecent->setAccessibleName(QStringLiteral("Companies opened last"));
  lstRecent->setMaximumHeight(6 * (fontMetrics().height() + theme::unit));
  column->addWidget(lstRecent);
  for (const OptionRow& row : option_rows) {
    auto* option = named(row.name, new QRadioButton(QString::fromLatin1(row.caption)));
    optStart->addButton(option, row.index);
    column->addWidget(option);
  }
  optStart->button(Open)->setChecked(true);
  column->addSpacing(theme::gap);
  column->addStretch(1);
  column->addLayout(button_row({}, {cmdOK}));
  setMinimumWidth(40 * theme::unit);
}

void frmStart::cmdOk_AfterClick() {
  if (optStart->checkedId() == Create) {
    commands_.Create_Company_At_Start();
    return finish(true);
  }
  const bool came_up =
      optStart->checkedId() == Open ? commands_.Open_Company_At_Start() : commands_.Restore_Company_At_Start();
  if (came_up) finish(true);
}

}  // namespace tallymere
