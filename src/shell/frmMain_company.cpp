#include <QAction>
#include <QCloseEvent>
#include <QMdiArea>
#include <QTimer>
#include <QToolBar>

#include "core/backup/restore.h"
#include "core/company/company.h"
#include "core/company/company_name.h"
#include "core/company/login.h"
#include "core/company/recent.h"
#include "core/company/rights.h"
#include "core/company/users.h"
#include "core/store/recordset.h"
#include "shell/frmMain.h"
#include "shell/frmMenus.h"
#include "shell/start/frmLogin.h"
#include "shell/start/frmPassword.h"

/// How a company comes up, changes and goes.
namespace tallymere {

namespace {

constexpr const char* company_filter = "Company Files (*.cmf)|*.cmf";

}  // namespace

// --- start ---------------------------------------------------------------------------------------

void frmMain::Start() {
  restore_place();
  show_background();
  show();
  show_start();
}

bool frmMain::Start_With(const std::string& path) {
  restore_place();
  show_background();
  show();
  bool opened = false;
  guard("mnuOpenCompany_Click", [&] { opened = Open_Company(path, true); });
  if (!opened) show_start();
  return opened;
}

void frmMain::show_start() { Show_Window({.window = "frmStart", .key = {}}); }

void frmMain::company_came_up() {
  Note_Recent_Company(session.folder, session.CompanyPath);
  show_title();
  Enable_Menus();
  Timer1->start();
  Toolbar1->setEnabled(true);
}

// --- open ----------------------------------------------------------------------------------------

bool frmMain::Open_Company_At_Start() {
  const std::string path = session.prompts.open_file(company_filter, session.folder.string());
  return !path.empty() && Open_Company(path, true);
}

bool frmMain::Open_Recent_At_Start(const std::string& path) { return Open_Company(path, true); }

void frmMain::mnuOpenCompany_Click() {
  const std::string path = session.prompts.open_file(company_filter, session.folder.string());
  if (!path.empty() && Hide_All()) Open_Company(path, false);
}

bool frmMain::Open_Company(const std::string& path, bool at_start) {
  Open_Company_File(session, path);
  try {
    if (!Log_In()) return Company_Went(at_start), false;
    Hide_All();
    Set_Recordsets(session);
  } catch (...) {
    Company_Went(at_start);  // never half open
    throw;
  }
  company_came_up();
  return true;
}

bool frmMain::Log_In() {
  const Entrance entrance = Entrance_Of(*session.dbCompany);
  if (entrance == Entrance::User) {
    if (!Ask_User()) return false;
  } else {
    if (entrance == Entrance::Password && !Ask_Password()) return false;
    Enter_As(session, std::nullopt);
  }
  Apply_User_Rights();
  caption_switch_mode();
  return true;
}

bool frmMain::Ask_Password() {
  frmPassword asking(*this);
  return Run_Modal(asking);
}

bool frmMain::Ask_User() {
  frmLogin asking(*this);
  return Run_Modal(asking);
}

/// No company is open any more: one that nobody was let in to, or that could not be opened again. Where frmStart is
/// not up already it comes, for there is no other way on.
void frmMain::Company_Went(bool at_start) {
  Timer1->stop();
  Leave_Company(session);
  Apply_User_Rights();
  caption_switch_mode();
  Disable_Menus();
  Toolbar1->setEnabled(false);
  show_title();
  show_background();
  if (!at_start) show_start();
}

void frmMain::Apply_User_Rights() {
  const UserFlags flags = session.MultiUser ? Flags_Of(*session.dbCompany, session.CurrentUser) : UserFlags{};
  for (const CommandRight& right : tallymere::Apply_User_Rights(session.MultiUser, session.CurrentUser, flags)) {
    Q_ASSERT(command(right.name));
    auto& refused = right.property == CommandRight::Property::Visible ? hidden_ : disabled_;
    refused[std::string(right.name)] = !right.granted;
  }
  refresh_commands();
}

void frmMain::Read_Rights_Again() {
  if (!session.MultiUser || !session.dbCompany || session.dbCompany->change_stamp() == rights_as_of_) return;
  rights_as_of_ = session.dbCompany->change_stamp();
  Apply_User_Rights();
}

void frmMain::caption_switch_mode() {
  command("mnuSwitchMode")
      ->setText(session.MultiUser ? QStringLiteral("Switch to Single-User Mode")
                                  : QStringLiteral("Switch to Multi-User Mode"));
}

void frmMain::mnuSwitchMode_Click() {
  if (session.MultiUser && session.CurrentUser != Administrator)
    return session.prompts.box(
        {"Only \"Admin\" User can switch Compnay file to Single-User Mode", "Access Denied", Icon::Critical});
  const bool multi = !session.MultiUser;
  store::Transaction tx(*session.dbCompany, multi ? "Switch to Multi-User Mode" : "Switch to Single-User Mode");
  auto& info = *session.sets.CompanyInfo;
  info.MoveFirst();
  info.Edit();
  info["UserMode"] = multi ? "Multi" : "Single";
  info.Update();
  tx.commit();
  session.MultiUser = multi;
  session.CurrentUser = multi ? std::string(Administrator) : std::string();
  caption_switch_mode();
  Apply_User_Rights();
  Enable_Menus();
  show_title();
}

// --- new -----------------------------------------------------------------------------------------

void frmMain::mnuNewCompany_Click() {
  Hourglass hourglass(session.prompts);
  if (Hide_All()) Create_Company_At_Start();
}

void frmMain::Create_Company_At_Start() { Show_Window({.window = "frmCreate", .key = {}}); }

bool frmMain::Create_Company(const std::string& name) {
  Hourglass hourglass(session.prompts);
  New_Company(session, name);
  if (session.LastCompanyError == store::errors::database_exists) return false;
  Open_Company_File(session, Company_Path(session, name));
  Set_Recordsets(session);
  Enter_As(session, std::nullopt);
  Apply_User_Rights();
  caption_switch_mode();
  company_came_up();
  return true;
}

// --- backup and restore --------------------------------------------------------------------------

bool frmMain::Backup() {
  if (!session.dbCompany) throw store::Error(store::errors::file_not_found, "No company is open.");
  const std::string file = session.prompts.save_file(Backup_Filter, Proposed_Backup_Name(session));
  return !file.empty() && Backup_Company(session, file);
}

void frmMain::mnuBackup_Click() { Backup(); }

bool frmMain::Restore_Company_At_Start() {
  const auto name = session.prompts.input("Restore Name", "Please Enter the File Name for the Company to restore to.");
  if (!name || name->empty()) return false;
  if (const auto fault = Company_Name_Fault(*name)) return session.prompts.box(*fault), false;
  const auto target = Company_Path(session, *name);
  const std::string file = session.prompts.open_file(Backup_Filter, session.folder.string());
  if (file.empty() || !Restore_Company(session, {.backup = file, .target = target})) return false;
  Hourglass hourglass(session.prompts);
  Set_Recordsets(session);
  Apply_User_Rights();
  caption_switch_mode();
  company_came_up();
  return true;
}

void frmMain::mnuRestore_Click() {
  const std::string file = session.prompts.open_file(Backup_Filter, session.folder.string());
  if (file.empty()) return;
  try {
    if (!Restore_Company(session,
                         {.backup = file, .target = session.CompanyPath, .let_go = [this] { return Hide_All(); }}))
      return;
  } catch (...) {
    if (!session.company_open()) Company_Went(false);
    throw;
  }
  Hourglass hourglass(session.prompts);
  Set_Recordsets(session);
  Timer1->start();
}

void frmMain::mnuTaxCheck_Click() {
  if (Check_Updates) Check_Updates();
}

// --- exit ----------------------------------------------------------------------------------------

void frmMain::mnuExit_Click() { close(); }

/// Whether the program may end: with a backup, without one, or not at all. Who asked for a backup and did not get it
/// is not sent away without one.
bool frmMain::may_exit() {
  if (!session.company_open()) return true;
  const auto wanted = session.prompts.ask_or_stay({"Do you want to Back up your data?", "Back Up", Icon::Question});
  if (!wanted) return false;
  bool kept = !*wanted;
  guard("MDIForm_Unload", [&] { kept = kept || Backup(); });
  return kept;
}

void frmMain::closeEvent(QCloseEvent* event) {
  if (!Hide_All() || !may_exit()) return event->ignore();
  Timer1->stop();
  if (session.company_open()) Close_Sets(session);
  session.log.close();
  menus_.reset();
  keep_place();
  event->accept();
}

}  // namespace tallymere
