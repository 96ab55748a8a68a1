#include "entry/bank/frmRecReport.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "reports/frame/report_paint.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/frmPreview.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {
enum { Full, Summary };
}

frmRecReport::frmRecReport(Shell& shell_of_frame, const Reconciled& reconciled)
    : Form(shell_of_frame, "frmRecReport", Place::Above), reconciled_(reconciled) {
  setWindowTitle(QStringLiteral("Print Report"));
  build();
  on(cmdOk, "cmdOk_AfterClick", [this] { cmdOk_AfterClick(); });
  on(cmdCancel, "cmdCancel_AfterClick", [this] { finish(true); });
}

void frmRecReport::build() {
  auto* balanced = new QLabel(QStringLiteral("Bank is Balanced!!!"));
  QFont bold = balanced->font();
  bold.setBold(true);
  balanced->setFont(bold);
  optType = new QButtonGroup(this);
  optType->setObjectName(QStringLiteral("optType"));
  auto* frame = new QGroupBox(QStringLiteral("Report"));
  auto* options = column_layout(frame);
  const auto option = [&](int id, const char* name, const char* caption) {
    auto* made = named(name, new QRadioButton(QLatin1String(caption)));
    optType->addButton(made, id);
    options->addWidget(made);
  };
  option(Full, "optType_0", "&Full");
  option(Summary, "optType_1", "&Summary");
  optType->button(Full)->setChecked(true);
  dteCloseDate = named("dteCloseDate", new QuillbrookDatePick);
  dteCloseDate->set_value(session.today());
  cmdOk = named("cmdOk", new QPushButton(QStringLiteral("&Print")));
  cmdCancel = named("cmdCancel", new QPushButton(QStringLiteral("&Close")));
  auto* fields = form_layout();
  fields->addRow(balanced);
  fields->addRow(frame);
  add_field(fields, QStringLiteral("Closing &Date:"), dteCloseDate);
  lay_out_dialog(this, fields, {cmdCancel, cmdOk});
}

void frmRecReport::cmdOk_AfterClick() {
  const Date closing = dteCloseDate->value();
  const ReportTable table =
      optType->checkedId() == Summary ? Reconcile_Summary(reconciled_, closing) : Reconcile_Full(reconciled_, closing);
  do {
    frmPreview preview(
        shell, qt(table.heading.title),
        [&](const QPageLayout& page) { return std::make_unique<Report_Pages>(table, page); }, Page_For(table));
    shell.Run_Modal(preview);
  } while (session.prompts.ask({"Print Report Again?", "Print", Icon::Question}));
  finish(true);
}

}  // namespace tallymere
