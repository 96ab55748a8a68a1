#include <QApplication>
#include <QCursor>
#include <QEventLoop>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QStatusBar>
#include <QToolButton>
#include <algorithm>

#include "core/ledger/reach.h"
#include "core/store/error.h"
#include "core/values/control_characters.h"
#include "entry/document/document.h"
#include "shell/frmMain.h"
#include "shell/frmMenus.h"
#include "shell/menus.h"
#include "shell/start/frmCreate.h"
#include "shell/start/frmStart.h"
#include "shell/widgets/Form.h"
#include "shell/widgets/grid/SSDBGrid.h"
#include "shell/widgets/grid/arrow_pointer.h"

/// From a command to its window.
namespace tallymere {

namespace {

/// Windows that belong to the frame itself and need no company.
bool is_own(const std::string& name) { return name == "frmStart" || name == "frmCreate"; }
bool needs_no_company(const std::string& name) { return is_own(name) || name == "frmKeys"; }

/// Whole in the room there is.
void fit_in(QMdiSubWindow& frame, QSize wanted, QSize room) {
  frame.resize(wanted.boundedTo(room));
  frame.move(std::min(frame.x(), room.width() - frame.width()), std::min(frame.y(), room.height() - frame.height()));
}

QMdiSubWindow* frame_of(const Form& form) { return qobject_cast<QMdiSubWindow*>(form.parentWidget()); }

}  // namespace

void frmMain::run_command(const std::string& name) {
  guard(name + "_Click", [this] { Read_Rights_Again(); });
  using Handler = void (frmMain::*)();
  static const std::map<std::string_view, Handler> handlers = {{"mnuNewCompany", &frmMain::mnuNewCompany_Click},
                                                               {"mnuOpenCommpany", &frmMain::mnuOpenCompany_Click},
                                                               {"mnuSwitchMode", &frmMain::mnuSwitchMode_Click},
                                                               {"mnuBackup", &frmMain::mnuBackup_Click},
                                                               {"mnuRestore", &frmMain::mnuRestore_Click},
                                                               {"mnuTaxCheck", &frmMain::mnuTaxCheck_Click},
                                                               {"mnuExit", &frmMain::mnuExit_Click},
                                                               {"mnuUndo", &frmMain::mnuUndo_Click},
                                                               {"mnuAbout", &frmMain::mnuAbout_Click},
                                                               {"mnuDepositFunds", &frmMain::mnuDepositFunds_Click},
                                                               {"btnHelp", &frmMain::btnHelp_Click},
                                                               {"frmStart", &frmMain::show_start}};
  for (const ToolRow& tool : Toolbar_Table())
    if (tool.name == name) {
      if (!tool.command.empty() && tool.command != name) return run_command(std::string(tool.command));
      if (!tool.window.empty()) return route({.parent = "", .name = tool.name, .caption = "", .window = tool.window});
    }
  if (const auto handler = handlers.find(name); handler != handlers.end()) {
    guard(name + "_Click", [&] { (this->*handler->second)(); });
    return;
  }
  for (const MenuRow& row : Menu_Table())
    if (row.name == name) return route(row);
}

void frmMain::route(const MenuRow& row) {
  guard(std::string(row.name) + "_Click", [&] {
    const Request request{.window = std::string(row.window), .key = std::string(row.key)};
    if (request.window == "frmPrintCustom")
      Show_Custom_Report(request);
    else
      Show_Window(request);
  });
}

/// Payments that wait in the customers' accounts are offered first; those picked go into the deposit.
void frmMain::mnuDepositFunds_Click() {
  if (!session.dbCompany) throw store::Error(store::errors::file_not_found, "No company is open.");
  const bool waiting = !session.dbCompany
                            ->OpenRecordset(
                                "SELECT * FROM Transactions WHERE Type = 'Payment' AND  Paid = 0 AND "
                                "Account = 'AR1'")
                            .empty();
  const auto picked = waiting ? Ask_Window({.window = "frmOpenPayments", .key = {}}) : std::string();
  if (picked) Show_Window({.window = "frmDeposits", .key = *picked});
}

void frmMain::btnHelp_Click() {
  session.prompts.box({"Please Contact Quillbrook Software for Help or Tech Support.", "Help", Icon::Information});
}

void frmMain::mnuAbout_Click() {
  const std::string version = "Tallymere " + utf8(QCoreApplication::applicationVersion());
  session.prompts.box({version + "\r\nQuillbrook Software Inc.", "About Tallymere", Icon::Information,
                       std::string("Built on Qt ") + qVersion() + ", SQLite, libsodium and libxlsxwriter."});
}

// --- undo ----------------------------------------------------------------------------------------

/// Undo "Check 1042, Acme Supply"
void frmMain::caption_undo() {
  std::optional<store::Action> last;
  if (session.company_open()) guard("mnuUndo", [&] { last = Last_To_Undo(session); });
  QString what = last ? qt(in_one_plain_line(last->what)) : QString();
  what.replace(QLatin1Char('&'), QStringLiteral("&&"));
  command("mnuUndo")->setText(last ? QStringLiteral("&Undo \"%1\"").arg(what) : QStringLiteral("&Undo"));
  command("mnuUndo")->setEnabled(last.has_value());
}

void frmMain::mnuUndo_Click() {
  const auto last = Last_To_Undo(session);
  if (!last) return say("There is nothing to undo.");
  if (!session.prompts.ask(Undo_Question(*last))) return;
  for (const std::string& table : Take_Back(session, last->number)) changed(table);
}

void frmMain::Go_To_Transaction(const std::string& type, int64_t number) {
  const std::string window(Entry_Window(type));
  if (window.empty()) return say("There is no window to go to for a transaction of type " + type + ".");
  Show_Window({.window = window, .key = {}, .number = number});
}

void frmMain::Popup(const std::string& menu, QWidget& from, const std::vector<std::string>& disabled,
                    std::function<void(const std::string&)> chosen) {
  const bool button = qobject_cast<QPushButton*>(&from) || qobject_cast<QToolButton*>(&from);
  const auto* grid = qobject_cast<SSDBGrid*>(&from);
  const QPoint at = button ? from.mapToGlobal(QPoint(0, from.height())) : grid ? grid->menu_place() : QCursor::pos();
  menus_->Popup(menu, at, disabled, std::move(chosen));
}

// --- rights --------------------------------------------------------------------------------------

/// A menu row is reached through all the menus above it.
bool frmMain::may_reach(std::string_view command) const {
  for (std::string_view name = command; !name.empty();) {
    if (!may(std::string(name))) return false;
    const auto rows = Menu_Table();
    const auto row = std::ranges::find(rows, name, &MenuRow::name);
    name = row == rows.end() ? std::string_view() : row->parent;
  }
  return true;
}

/// Whatever leads there, a window opens for those who have a command for it. What has no command of its own belongs to
/// the window that asks; a report leads on to reports.
bool frmMain::may_show(const std::string& window) {
  Read_Rights_Again();
  if (!session.MultiUser || window.starts_with("frmPrint")) return true;
  std::vector<std::string_view> commands;
  if (window == "frmRegister") commands = {"mnuAccounts"};
  if (window == "frmOpenPayments") commands = {"mnuDepositFunds"};
  for (const MenuRow& row : Menu_Table())
    if (row.window == window) commands.push_back(row.name);
  if (commands.empty() || std::ranges::any_of(commands, [this](auto name) { return may_reach(name); })) return true;
  session.prompts.box({"You do not have the right to open this window.", "Access Denied", Icon::Critical});
  return false;
}

// --- windows -------------------------------------------------------------------------------------

Form* frmMain::find_window(const std::string& name) const {
  for (auto form = forms_.rbegin(); form != forms_.rend(); ++form)
    if (utf8((*form)->objectName()) == name) return *form;
  return nullptr;
}

Form* frmMain::Show_Window(const Request& request) {
  if (!is_own(request.window) && !has_window(request.window)) {
    say(request.window + " is not part of this version yet.");
    return nullptr;
  }
  if (!needs_no_company(request.window) && !session.dbCompany)
    throw store::Error(store::errors::file_not_found, "No company is open.");
  if (!may_show(request.window)) return nullptr;
  Hourglass hourglass(session.prompts);
  Form* form = request.new_instance ? nullptr : find_window(request.window);
  if (!form) form = open_form(request.window);
  if (!form) return nullptr;
  form->guard("Form_Load", [&] { form->take(request); });
  if (std::find(forms_.begin(), forms_.end(), form) == forms_.end()) return nullptr;  // it closed itself again
  bring_up(*form);
  return form;
}

/// A window that cannot load says so itself and does not come up.
Form* frmMain::open_form(const std::string& name) {
  std::unique_ptr<Form> form;
  if (name == "frmStart")
    form = std::make_unique<frmStart>(*this, *this);
  else if (name == "frmCreate")
    form = std::make_unique<frmCreate>(*this, *this);
  else
    form.reset(windows_.at(name)(*this));
  if (!form->guard("Form_Load", [&] { form->load(); })) return nullptr;
  Form* opened = form.release();
  opened->place() == Form::Place::Inside ? stand_inside(*opened) : stand_above(*opened);
  forms_.push_back(opened);
  connect(opened, &Form::finished, this, [this, opened] { forget(opened); });
  return opened;
}

void frmMain::stand_inside(Form& form) {
  QMdiSubWindow* frame = mdi_->addSubWindow(&form);
  frame->setAttribute(Qt::WA_DeleteOnClose);
  frame->setWindowIcon(windowIcon());
}

void frmMain::stand_above(Form& form) {
  form.setParent(this, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint | Qt::WindowSystemMenuHint);
}

void frmMain::bring_up(Form& form) {
  QMdiSubWindow* frame = frame_of(form);
  if (!frame) {
    form.show();
    form.raise();
    return form.activateWindow();
  }
  const bool fresh = !frame->isVisible();
  const QSize least = frame->minimumSizeHint(), room = mdi_->viewport()->size();
  const QSize wanted = frame->sizeHint();  // as large as it wants to be now that it knows what it shows
  form.show();
  frame->isMinimized() ? frame->showNormal() : frame->show();
  // On a small screen a window whose controls would not all show gets all the room there is.
  const bool short_of_room = least.width() > room.width() || least.height() > room.height();
  if (fresh && short_of_room) frame->showMaximized();
  if (fresh && !frame->isMaximized()) fit_in(*frame, wanted, room);
  mdi_->setActiveSubWindow(frame);
}

void frmMain::forget(Form* form) {
  if (std::erase(forms_, form) == 0) return;
  if (QMdiSubWindow* frame = frame_of(*form)) {
    frame->hide();
    frame->deleteLater();
  } else {
    form->deleteLater();
  }
}

/// Closes every window but this one. false: one of them asked to stay.
bool frmMain::Hide_All() {
  for (Form* form : std::vector<Form*>(forms_)) {
    if (std::find(forms_.begin(), forms_.end(), form) == forms_.end()) continue;
    QMdiSubWindow* frame = frame_of(*form);
    if (!(frame ? frame->close() : form->close())) return false;
  }
  return true;
}

bool frmMain::Run_Modal(Form& form) {
  return form.guard("Form_Load", [&] { form.load(); }) && run_loaded(form);
}

std::optional<std::string> frmMain::Ask_Window(const Request& request) {
  if (!has_window(request.window)) {
    say(request.window + " is not part of this version yet.");
    return std::nullopt;
  }
  if (!may_show(request.window)) return std::nullopt;
  const std::unique_ptr<Form> form(windows_.find(request.window)->second(*this));
  const bool loaded = form->guard("Form_Load", [&] {
    form->load();
    form->take(request);
  });
  return loaded && run_loaded(*form) ? std::optional(form->answer()) : std::nullopt;
}

bool frmMain::run_loaded(Form& form) {
  QWidget* below = QApplication::activeModalWidget();
  form.setParent(below ? below : this,
                 Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint | Qt::WindowSystemMenuHint);
  form.setWindowModality(Qt::ApplicationModal);
  QEventLoop loop;
  connect(&form, &Form::finished, &loop, &QEventLoop::quit);
  forms_.push_back(&form);
  {
    const ArrowPointer arrow;
    form.show();
    form.activateWindow();
    loop.exec();
  }
  std::erase(forms_, &form);
  form.hide();
  form.setParent(nullptr);
  (below ? below : this)->activateWindow();
  return form.accepted();
}

}  // namespace tallymere
