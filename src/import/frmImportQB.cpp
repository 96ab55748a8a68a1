#include "import/frmImportQB.h"

#include <QCheckBox>
#include <QFile>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/ledger/balances.h"
#include "shell/widgets/grid/SSDBGrid.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

constexpr qint64 largest_file = 256 * 1024 * 1024;

const char* said(ImportDid did) {
  switch (did) {
    case ImportDid::Added:
      return "Add";
    case ImportDid::Changed:
      return "Change";
    case ImportDid::Same:
      return "Same";
    default:
      return "Skip";
  }
}

}  // namespace

frmImportQB::frmImportQB(Shell& shell_of_frame) : Form(shell_of_frame, "frmImportQB") {
  setWindowTitle(QStringLiteral("Import QuickBooks Data"));
  build();
  on(SSDBCommand1, "SSDBCommand1_AfterClick", [this] { SSDBCommand1_AfterClick(); });
  on(chk2003, &QCheckBox::clicked, "chk2003_Click", [this] { show_plan(); });
  on(cmdOk, "cmdOk_AfterClick", [this] { cmdOk_AfterClick(); });
  on(cmdCancel, "cmdCancel_AfterClick", [this] { finish(false); });
}

void frmImportQB::build() {
  Text1 = named("Text1", new QLineEdit);
  Text1->setReadOnly(true);
  SSDBCommand1 = named("SSDBCommand1", new QPushButton(QStringLiteral("&Browse")));
  chk2003 = named("chk2003", new QCheckBox(QStringLiteral("&QB 2003 Import File")));
  lblPlan = named("lblPlan", new QLabel);
  lblPlan->setWordWrap(true);
  grdPlan = named("grdPlan", new SSDBGrid);
  grdPlan->setAccessibleName(QStringLiteral("What the file would change"));
  grdPlan->set_columns({{.name = QStringLiteral("Line"), .width = 7},
                        {.name = QStringLiteral("List"), .width = 18},
                        {.name = QStringLiteral("Name")},
                        {.name = QStringLiteral("Action"), .width = 9},
                        {.name = QStringLiteral("Note")}});
  grdPlan->set_sorting(true);
  cmdOk = named("cmdOk", new QPushButton(QStringLiteral("&Ok")));
  cmdCancel = named("cmdCancel", new QPushButton(QStringLiteral("&Cancel")));

  auto* file = row_layout();
  file->addWidget(Text1, 1);
  file->addWidget(SSDBCommand1);
  auto* head = form_layout();
  head->addRow(label_for(Text1, QStringLiteral("Import Filename:")), file);
  head->addRow(QString(), chk2003);
  auto* column = column_layout(this);
  column->addLayout(head);
  column->addWidget(lblPlan);
  column->addWidget(grdPlan, 1);
  column->addLayout(button_row({}, {cmdCancel, cmdOk}));
  setMinimumSize(80 * theme::unit, 50 * theme::unit);
}

void frmImportQB::load() {
  lblPlan->setText(QStringLiteral("Choose a file to see what it would add and change. Nothing is written before Ok."));
  cmdOk->setEnabled(false);
  SSDBCommand1->setFocus();
}

void frmImportQB::SSDBCommand1_AfterClick() {
  const std::string path = session.prompts.open_file("QuickBooks Export Files (*.IIF)|*.IIF", session.folder.string());
  if (path.empty()) return;
  Text1->setText(qt(path));
  show_plan();
}

std::optional<IifFile> frmImportQB::read() {
  QFile file(Text1->text());
  if (!file.open(QIODevice::ReadOnly) || file.size() > largest_file) {
    session.prompts.box({"This file cannot be read.", "Import", Icon::Critical, utf8(Text1->text())});
    return std::nullopt;
  }
  try {
    return Read_Iif(file.readAll().toStdString());
  } catch (const ImportError& refused) {
    session.prompts.box({refused.what(), "Import", Icon::Information, utf8(Text1->text())});
    return std::nullopt;
  }
}

void frmImportQB::show_plan() {
  if (Text1->text().isEmpty()) return;
  const auto file = read();
  cmdOk->setEnabled(false);
  grdPlan->RemoveAll();
  if (!file) return;
  ProgressBar bar(session.prompts, "Reading " + utf8(Text1->text()));
  const auto progress = [&](int64_t done, int64_t total) { return bar.at(done, total); };
  show_report(Import_Lists(session, *file, {.release_2003 = chk2003->isChecked(), .progress = progress}));
}

void frmImportQB::show_report(const ImportReport& report) {
  if (report.stopped) return lblPlan->setText(QStringLiteral("Stopped; choose the file again to go on."));
  grdPlan->RemoveAll();
  const SSDBGrid::Fill fill(*grdPlan);
  for (const ImportLine& line : report.lines)
    grdPlan->AddValues({line.line, Name_Of(line.kind), line.name, said(line.did), line.why});
  int64_t unknown = 0;
  for (const auto& [key, count] : report.unknown) unknown += count;
  lblPlan->setText(
      QStringLiteral("%1 to add, %2 to change, %3 the same, %4 skipped, %5 lines of other kinds. Read as %6.")
          .arg(report.count(ImportDid::Added))
          .arg(report.count(ImportDid::Changed))
          .arg(report.count(ImportDid::Same))
          .arg(report.count(ImportDid::Skipped))
          .arg(unknown)
          .arg(qt(report.encoding)));
  cmdOk->setEnabled(true);
}

void frmImportQB::cmdOk_AfterClick() {
  const auto file = read();
  if (!file) return;
  ImportReport report;
  {
    ProgressBar bar(session.prompts, "Import of lists");
    const auto progress = [&](int64_t done, int64_t total) { return bar.at(done, total); };
    report = Import_Lists(session, *file, {.release_2003 = chk2003->isChecked(), .keep = true, .progress = progress});
  }
  if (report.stopped) return lblPlan->setText(QStringLiteral("Stopped; nothing was written."));
  for (const Box& told : report.told) session.prompts.box(told);
  Update_Accounts(session);
  for (const char* table : {"Accounts", "Items", "PayrollItems", "Class", "Customers", "Vendors", "Employees", "VIA",
                            "PaymentMethod", "Terms", "OtherNames", "CustomerMessages", "RepNames", "Budget"})
    shell.changed(table);
  session.prompts.box(Import_Summary(report));
  finish(true);
}

}  // namespace tallymere
