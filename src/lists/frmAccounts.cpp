#include "lists/frmAccounts.h"

#include <QCheckBox>
#include <map>

#include "core/ledger/balances.h"
#include "core/ledger/ledger.h"
#include "core/values/text.h"

namespace tallymere {

namespace {

enum { Name, Type, Balance, CatID };

}  // namespace

frmAccounts::frmAccounts(Shell& shell_of_frame)
    : ListForm(shell_of_frame, "frmAccounts", "grdAccounts", {"mnuAccount", "cmdNew", "mnuDelete"}) {
  setWindowTitle(QStringLiteral("Categories"));
  chkDormant = named("chkDormant", new QCheckBox(QStringLiteral("&Show Dormant Categories")));
  build({{.name = QStringLiteral("Name")},
         {.name = QStringLiteral("Type"), .width = 22},
         {.name = QStringLiteral("Balance"), .kind = Kind::money, .width = 16},
         {.name = QStringLiteral("CatID"), .kind = Kind::hidden}},
        CatID, chkDormant);
  on(chkDormant, "chkDormant_Click", [this] { make_list_again(); });
  on(grdAccounts, &SSDBGrid::DblClick, "grdAccounts_DblClick", [this] {
    if (Opens_Register(row().Type)) mnuRegister_Click();
  });
}

void frmAccounts::load() {
  Update_Accounts(session);
  ListForm::load();
}

void frmAccounts::on_changed(const std::string& table) {
  if (table != "Accounts" && table != "Transactions") return;
  Update_Accounts(session, Categories::All, Progress::Silent);
  make_list_again();
}

void frmAccounts::Make_List() {
  const SSDBGrid::Fill fill(*grdAccounts);
  grdAccounts->RemoveAll();
  for (const AccountRow& row : tallymere::Make_List(session, chkDormant->isChecked()))
    grdAccounts->AddValues({row.Name, row.Type, row.Balance, row.CatID});
}

AccountRow frmAccounts::row() const {
  const int here = grid_->Row();
  return {grid_->text(here, Name), grid_->text(here, Type), grid_->value(here, Balance).money(),
          grid_->text(here, CatID)};
}

std::vector<std::string> frmAccounts::disabled() const {
  if (!has_row()) return {"mnuEdit", "mnuDelete", "mnuRegister", "mnuReconcile", "mnuCatReport"};
  const AccountCommands may = Account_Commands(row());
  std::vector<std::string> off;
  if (!may.mnuRegister || !shell.has_window("frmRegister")) off.push_back("mnuRegister");
  if (!may.mnuReconcile || !shell.has_window("frmReconcile")) off.push_back("mnuReconcile");
  if (!may.mnuDelete) off.push_back("mnuDelete");
  if (!shell.has_window("frmPrintCustom")) off.push_back("mnuCatReport");
  return off;
}

void frmAccounts::chosen(const std::string& item) {
  static const std::map<std::string, void (frmAccounts::*)()> handlers = {
      {"cmdNew", &frmAccounts::cmdNew_Click},
      {"mnuEdit", &frmAccounts::mnuEdit_Click},
      {"mnuDelete", &frmAccounts::mnuDelete_Click},
      {"mnuRegister", &frmAccounts::mnuRegister_Click},
      {"mnuReconcile", &frmAccounts::mnuReconcile_Click},
      {"mnuCatReport", &frmAccounts::mnuCatReport_Click}};
  (this->*handlers.at(item))();
}

// --- mnuAccount ----------------------------------------------------------------------------------

void frmAccounts::cmdNew_Click() {
  shell.Ask_Window({.window = "frmModAccount", .key = {}, .number = static_cast<int64_t>(AccountMode::New)});
}

void frmAccounts::mnuEdit_Click() {
  if (Category_Name(session, row().CatID).empty()) {
    make_list_again();
    return shell.say("Another user has deleted this category.");
  }
  shell.Ask_Window({.window = "frmModAccount", .key = row().CatID, .number = static_cast<int64_t>(AccountMode::Edit)});
}

void frmAccounts::mnuDelete_Click() {
  const bool deleted = Delete_Category(session, row());
  deleted ? shell.changed("Accounts") : make_list_again();
}

void frmAccounts::mnuRegister_Click() {
  shell.Show_Window({.window = "frmRegister", .key = row().CatID, .new_instance = true});
}

void frmAccounts::mnuReconcile_Click() {
  const AccountRow category = row();
  Form* reconcile = shell.Show_Window({.window = "frmReconcile", .key = category.CatID});
  if (reconcile) reconcile->setWindowTitle(qt("Reconcile - " + ltrim(category.Name)));
}

void frmAccounts::mnuCatReport_Click() {
  shell.Show_Custom_Report({.window = "frmPrintCustom", .key = "AcctRep", .parent = row().CatID});
}

}  // namespace tallymere
