#include "printing/frmLayouts.h"

#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/company/preferences.h"
#include "entry/checks/check.h"
#include "printing/PrintedForm.h"
#include "printing/bank_line.h"
#include "printing/bank_line_paint.h"
#include "shell/widgets/ask_printer.h"
#include "shell/widgets/grid/SSDBCombo.h"
#include "shell/widgets/grid/SSDBGrid.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

namespace column {
enum { Layout, Drawing, Name };
}

QDoubleSpinBox* Inches_Box() {
  auto* box = new QDoubleSpinBox;
  box->setRange(-2, 2);
  box->setDecimals(2);
  box->setSingleStep(0.01);
  box->setSuffix(QStringLiteral(" in"));
  return box;
}

}  // namespace

frmLayouts::frmLayouts(Shell& shell_of_frame) : Form(shell_of_frame, "frmLayouts") {
  setWindowTitle(QStringLiteral("Print Layouts"));
  build();
  on(cmdWrite, "cmdWrite_AfterClick", [this] { cmdWrite_AfterClick(); });
  on(cmdTest, "cmdTest_AfterClick", [this] { cmdTest_AfterClick(); });
  on(cmdBankLine, "cmdBankLine_AfterClick", [this] { cmdBankLine_AfterClick(); });
  on(cmbBank, &SSDBCombo::CloseUp, "cmbBank_CloseUp", [this] { show_bank_line(); });
  on(cmbBank, &SSDBCombo::LostFocus, "cmbBank_CloseUp", [this] { show_bank_line(); });
  on(cmdClose, "cmdClose_AfterClick", [this] { finish(false); });
}

void frmLayouts::build() {
  grdLayouts = named("grdLayouts", new SSDBGrid);
  grdLayouts->setAccessibleName(QStringLiteral("Layouts"));
  grdLayouts->set_columns({{.name = QStringLiteral("Layout")},
                           {.name = QStringLiteral("Drawing")},
                           {.name = QStringLiteral("Name"), .kind = Kind::hidden}});
  txtRight = named("txtRight", Inches_Box());
  txtDown = named("txtDown", Inches_Box());
  cmdWrite = named("cmdWrite", new QPushButton(QStringLiteral("&Write Out to Change")));
  cmdTest = named("cmdTest", new QPushButton(QStringLiteral("&Test Page...")));
  cmdClose = named("cmdClose", new QPushButton(QStringLiteral("&Close")));

  auto* text = new QLabel(QStringLiteral(
      "A layout that is written out can be changed with any drawing program and is used from then on. The test page shows "
      "the fields of a layout: printed on a pre-printed form it tells how far the printer is off."));
  text->setWordWrap(true);
  auto* offset = new QGroupBox(QStringLiteral("Offset, kept for the printer of the test page"));
  auto* offset_fields = form_layout();
  add_field(offset_fields, QStringLiteral("Move &right by:"), txtRight);
  add_field(offset_fields, QStringLiteral("Move &down by:"), txtDown);
  offset_fields->setContentsMargins(theme::gap, theme::gap, theme::gap, theme::gap);
  offset->setLayout(offset_fields);
  auto* beside = row_layout();
  beside->addWidget(offset);
  beside->addWidget(build_bank_line(), 1);
  auto* column = column_layout(this);
  column->addWidget(text);
  column->addWidget(grdLayouts, 1);
  column->addLayout(beside);
  column->addLayout(plain_button_row({cmdWrite, cmdTest}, {cmdClose}));
  setMinimumSize(72 * theme::unit, 52 * theme::unit);
}

/// With a bank's numbers its checks are printed whole on blank stock.
QWidget* frmLayouts::build_bank_line() {
  cmbBank = named("cmbBank", new SSDBCombo);
  cmbBank->set_list_only(true);
  txtRouting = named("txtRouting", new QLineEdit);
  txtAccount = named("txtAccount", new QLineEdit);
  cmdBankLine = named("cmdBankLine", new QPushButton(QStringLiteral("&Keep")));
  auto* box = new QGroupBox(QStringLiteral("Checks on blank stock, with the line for the bank's machines"));
  auto* fields = form_layout();
  add_field(fields, QStringLiteral("&Bank:"), cmbBank);
  add_field(fields, QStringLiteral("R&outing number:"), txtRouting);
  add_field(fields, QStringLiteral("&Account number:"), txtAccount);
  auto* row = row_layout();
  row->addLayout(fields, 1);
  row->addWidget(cmdBankLine, 0, Qt::AlignBottom);
  auto* note =
      new QLabel(Bank_Font().isEmpty()
                     ? QStringLiteral("No MICR font is installed: the line is drawn in shapes of our own. Have your "
                                      "bank read a sample before you send such checks.")
                     : QStringLiteral("Printed in the font %1.").arg(Bank_Font()));
  note->setWordWrap(true);
  auto* column = column_layout();
  column->addLayout(row);
  column->addWidget(note);
  column->setContentsMargins(theme::gap, theme::gap, theme::gap, theme::gap);
  box->setLayout(column);
  return box;
}

void frmLayouts::load() {
  const QPointF offset = Paper_Offset(QPrinter().printerName()) / Pages::twips;
  txtRight->setValue(offset.x());
  txtDown->setValue(offset.y());
  show_list();
  on_changed("Accounts");
  cmbBank->set_id(Preference(*session.dbCompany, preference::DefaultBank));
  show_bank_line();
}

void frmLayouts::on_changed(const std::string& table) {
  if (table != "Accounts") return;
  std::vector<SSDBDropDown::Item> banks;
  for (const Bank& bank : Banks(session)) banks.push_back({bank.AccountName, bank.CatID});
  cmbBank->list().set_items(banks);
}

void frmLayouts::show_bank_line() {
  const BankLine line = Read_Bank_Line(*session.dbCompany, cmbBank->id());
  txtRouting->setText(qt(line.routing));
  txtAccount->setText(qt(line.account));
}

void frmLayouts::cmdBankLine_AfterClick() {
  const BankLine line{utf8(txtRouting->text().trimmed()), utf8(txtAccount->text().trimmed())};
  if (cmbBank->id().empty()) return go_to(cmbBank);
  if (const auto fault = Bank_Line_Fault(line)) return show_fault(*fault);
  Keep_Bank_Line(session, cmbBank->id(), line);
  shell.say(line.is_set() ? "This bank's checks are printed on blank stock."
                          : "This bank's checks are printed on its own stock.");
}

void frmLayouts::show_list() {
  const LayoutPlaces places = Layout_Places(session.folder);
  const int row = std::max(grdLayouts->Row(), 0);
  grdLayouts->RemoveAll();
  for (const LayoutDef& layout : Layout_Defs()) {
    const bool own = std::filesystem::exists(places.own_file(layout.name));
    grdLayouts->AddValues({layout.caption, own ? places.own_file(layout.name).string() : "as it ships", layout.name});
  }
  grdLayouts->set_Row(row);
}

std::string frmLayouts::chosen() const { return grdLayouts->text(grdLayouts->Row(), column::Name); }

void frmLayouts::cmdWrite_AfterClick() {
  if (chosen().empty()) return;
  const auto places = Layout_Places(session.folder);
  if (std::filesystem::exists(places.own_file(chosen())))
    return session.prompts.box({"This layout has been written out already. Move your own away to begin again.",
                                "Layout", Icon::Information, places.own_file(chosen()).string()});
  shell.say("Written to " + Write_Out_Layout(places, chosen()).string() + ".");
  show_list();
}

void frmLayouts::cmdTest_AfterClick() {
  if (chosen().empty()) return;
  const auto shelf = Open_Shelf(session);
  const Layout_Sheet& drawing = shelf->sheet(chosen());
  const auto printer = Ask_Printer(this, Page_Of(drawing), QStringLiteral("Test Page"));
  if (!printer) return;
  const QPointF offset = QPointF(txtRight->value(), txtDown->value()) * Pages::twips;
  Keep_Paper_Offset(printer->printerName(), offset);
  if (Print_Pages(Test_Sheet(drawing), *printer, 0, 0, {}, offset) != Printed::Whole)
    session.prompts.box({"The printer did not take the pages.", "Print", Icon::Critical});
}

}  // namespace tallymere
