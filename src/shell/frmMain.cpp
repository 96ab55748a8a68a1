#include "shell/frmMain.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <utility>

#include "core/company/company.h"
#include "core/company/error_box.h"
#include "core/company/preferences.h"
#include "core/ledger/at_a_glance.h"
#include "core/ledger/balances.h"
#include "core/values/format.h"
#include "shell/frmMenus.h"
#include "shell/menus.h"
#include "shell/start/start_panel.h"
#include "shell/widgets/Form.h"
#include "shell/widgets/company_color.h"
#include "shell/widgets/line_icon.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

QString text_of(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

/// "Company &Info...." as a sentence names it.
QString plain(std::string_view caption) {
  QString text = text_of(caption).remove(QLatin1Char('&'));
  while (text.endsWith(QLatin1Char('.'))) text.chop(1);
  return text;
}

const MenuRow* menu_row(std::string_view name) {
  for (const MenuRow& row : Menu_Table())
    if (row.name == name) return &row;
  return nullptr;
}

const ToolRow* tool_row(std::string_view name) {
  for (const ToolRow& row : Toolbar_Table())
    if (row.name == name) return &row;
  return nullptr;
}

bool is_submenu(std::string_view name) {
  for (const MenuRow& row : Menu_Table())
    if (row.parent == name) return true;
  return name == "mnuWindow" || name == "mnuHelp";
}

constexpr std::string_view company_menus[] = {"mnuAction",  "mnuOptions", "mnuWindow", "mnuReports", "mnuBackup",
                                              "mnuRestore", "mnuCompany", "mnuImport", "mnuFile"};
constexpr std::string_view single_user_menus[] = {"mnuRestore", "mnuCompany"};

bool is_single_user_menu(std::string_view name) { return name == single_user_menus[0] || name == single_user_menus[1]; }

/// Windows that need no company.
bool is_own_window(std::string_view name) { return name == "frmKeys"; }

constexpr int low_screen = 640;  ///< pixels of height below which buttons show no words

const QString geometry_key = QStringLiteral("windows/frmMain/geometry");

}  // namespace

frmMain::frmMain(Session& running, const WindowTable& windows)
    : Shell(running), windows_(windows), menus_(std::make_unique<frmMenus>(running)) {
  setObjectName(QStringLiteral("frmMain"));
  setWindowIcon(Program_Icon());
  mdi_ = new QMdiArea;
  mdi_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  mdi_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setCentralWidget(mdi_);
  panel_ = new StartPanel(mdi_->viewport());
  connect(panel_, &StartPanel::chosen, this, [this](const QString& name) { run_command(utf8(name)); });
  mdi_->viewport()->installEventFilter(this);
  build_menus();
  build_toolbar();
  build_status_bar();
  Timer1 = new QTimer(this);
  Timer1->setObjectName(QStringLiteral("Timer1"));
  Timer1->setInterval(100);
  connect(Timer1, &QTimer::timeout, this, [this] { Timer1_Timer(); });
  resize(1180, 760);
  Disable_Menus();
  show_title();
}

frmMain::~frmMain() {
  for (Form* form : std::exchange(forms_, {})) disconnect(form, nullptr, this, nullptr);
}

bool frmMain::guard(const std::string& procedure, const Work& work) {
  try {
    work();
    return true;
  } catch (const std::exception& fault) {
    Error_Box(session, "frmMain", procedure, fault);
    return false;
  }
}

// --- menus, toolbar, status bar ------------------------------------------------------------------

void frmMain::build_menus() {
  std::map<std::string_view, QMenu*> menus;
  for (const MenuRow& row : Menu_Table()) {
    QAction* action = nullptr;
    if (is_submenu(row.name)) {
      QMenu* menu = row.parent.empty() ? menuBar()->addMenu(text_of(row.caption))
                                       : menus.at(row.parent)->addMenu(text_of(row.caption));
      menu->setObjectName(text_of(row.name));
      menus[row.name] = menu;
      action = menu->menuAction();
    } else {
      action = add_to_menu(*menus.at(row.parent), row);
    }
    action->setObjectName(text_of(row.name));
    commands_.emplace(row.name, action);
  }
  connect(menus.at("mnuWindow"), &QMenu::aboutToShow, this, [this] { fill_window_menu(); });
  connect(menus.at("mnuEditMenu"), &QMenu::aboutToShow, this, [this] { caption_undo(); });
}

QAction* frmMain::add_to_menu(QMenu& menu, const MenuRow& row) {
  if (row.caption == Separator) return menu.addSeparator();
  QAction* action = menu.addAction(text_of(row.caption));
  action->setShortcut(QKeySequence(QString::fromLatin1(row.shortcut)));
  connect(action, &QAction::triggered, this, [this, name = std::string(row.name)] { run_command(name); });
  return action;
}

void frmMain::build_toolbar() {
  Toolbar1 = addToolBar(QStringLiteral("Short Cut Bar"));
  Toolbar1->setObjectName(QStringLiteral("Toolbar1"));
  Toolbar1->setMovable(false);
  Toolbar1->setContextMenuPolicy(Qt::PreventContextMenu);
  Toolbar1->setIconSize(QSize(24, 24));
  Toolbar1->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  for (const ToolRow& row : Toolbar_Table()) {
    if (row.caption == Separator) {
      Toolbar1->addSeparator()->setObjectName(text_of(row.name));
      continue;
    }
    QAction* action = Toolbar1->addAction(Line_Icon(QString::fromLatin1(row.icon)), text_of(row.caption));
    action->setObjectName(text_of(row.name));
    connect(action, &QAction::triggered, this, [this, name = std::string(row.name)] { run_command(name); });
    if (QWidget* button = Toolbar1->widgetForAction(action)) {
      button->setObjectName(text_of(row.name));
      button->setMinimumWidth(9 * theme::unit);
    }
    commands_.emplace(row.name, action);
  }
  Toolbar1->setEnabled(false);
}

void frmMain::build_status_bar() {
  company_label_ = new QLabel;
  user_label_ = new QLabel;
  date_label_ = new QLabel;
  for (QLabel* label : {company_label_, user_label_, date_label_}) {
    label->setContentsMargins(theme::gap, 0, theme::gap, 0);
    statusBar()->addPermanentWidget(label);
  }
}

void frmMain::fill_window_menu() {
  QMenu* menu = commands_.at("mnuWindow")->menu();
  menu->clear();
  menu->addAction(QStringLiteral("&Cascade"), mdi_, &QMdiArea::cascadeSubWindows);
  menu->addAction(QStringLiteral("&Tile"), mdi_, &QMdiArea::tileSubWindows);
  menu->addSeparator();
  auto* group = new QActionGroup(menu);
  int number = 0;
  for (Form* form : forms_) {
    const QString mnemonic = ++number < 10 ? QStringLiteral("&%1 ").arg(number) : QString();
    QAction* action = menu->addAction(mnemonic + form->caption().replace(QLatin1Char('&'), QStringLiteral("&&")));
    action->setCheckable(true);
    action->setChecked(form->isActiveWindow() || form->parentWidget() == mdi_->activeSubWindow());
    group->addAction(action);
    connect(action, &QAction::triggered, form, [this, form] { bring_up(*form); });
  }
}

// --- which commands can be used ------------------------------------------------------------------

QAction* frmMain::command(std::string_view name) const {
  const auto found = commands_.find(name);
  return found == commands_.end() ? nullptr : found->second;
}

bool frmMain::is_available(std::string_view name) const {
  for (const MenuRow* row = menu_row(name); row; row = menu_row(row->parent)) {
    const QAction* action = command(row->name);
    if (!action->isVisible() || !action->isEnabled()) return false;
  }
  const QAction* action = command(name);
  return action && action->isVisible() && action->isEnabled();
}

void frmMain::set_enabled(std::string_view name, bool enabled) {
  disabled_[std::string(name)] = !enabled;
  refresh_commands();
}

void frmMain::set_visible(std::string_view name, bool visible) {
  hidden_[std::string(name)] = !visible;
  refresh_commands();
}

bool frmMain::exists(const MenuRow& row) const {
  if (row.name == "mnuTaxCheck") return static_cast<bool>(Check_Updates);
  return row.window.empty() || has_window(std::string(row.window));
}

void frmMain::refresh_commands() {
  for (const auto& [name, action] : commands_) refresh_command(name, action);
  const auto rows = Menu_Table();
  for (auto row = rows.rbegin(); row != rows.rend(); ++row)  // children before their parents
    if (is_submenu(row->name) && row->name != "mnuWindow" && !has_usable_child(row->name))
      command(row->name)->setEnabled(false);
}

/// A menu all of whose commands are greyed is greyed itself.
bool frmMain::has_usable_child(std::string_view menu) const {
  for (const MenuRow& row : Menu_Table())
    if (row.parent == menu && row.caption != Separator)
      if (const QAction* action = command(row.name); action->isVisible() && action->isEnabled()) return true;
  return false;
}

void frmMain::refresh_command(const std::string& name, QAction* action) {
  bool there = true, wants_company = false;
  if (const MenuRow* row = menu_row(name)) {
    there = exists(*row);
    wants_company = (!row->window.empty() && !is_own_window(row->window)) || row->name == "mnuUndo";
  } else if (const ToolRow* tool = tool_row(name)) {
    there = tool->window.empty() || has_window(std::string(tool->window));
    wants_company = true;
  }
  const QString missing = QStringLiteral("%1 is not part of this version yet.").arg(plain(utf8(action->text())));
  action->setStatusTip(there ? QString() : missing);
  action->setToolTip(there ? QString(action->text()).remove(QLatin1Char('&')) : missing);
  action->setVisible(!hidden_[name]);
  action->setEnabled(there && !disabled_[name] && (!wants_company || session.company_open()));
}

void frmMain::Enable_Menus() {
  for (const std::string_view name : company_menus)
    disabled_[std::string(name)] = is_single_user_menu(name) && session.MultiUser;
  refresh_commands();
  show_background();
}

void frmMain::Disable_Menus() {
  for (const std::string_view name : company_menus) disabled_[std::string(name)] = true;
  refresh_commands();
}

// --- how the frame looks -------------------------------------------------------------------------

void frmMain::show_title() {
  setWindowTitle(qt(Main_Title(session)));
  QString name = windowTitle();
  name.chop(QStringLiteral(" - Main Display").size());
  company_label_->setText(session.company_open() ? name : QStringLiteral("No company"));
  user_label_->setText(session.MultiUser ? qt(session.CurrentUser) : QStringLiteral("Single user"));
  user_label_->setVisible(session.company_open());
  date_label_->setText(qt(session.today().to_text()));
}

void frmMain::show_background() {
  QColor color = palette().color(QPalette::Window).darker(theme::is_dark() ? 80 : 104);
  if (const QColor chosen = Company_Color(session, "MainBack"); chosen.isValid()) color = chosen;
  mdi_->setBackground(color);
  std::vector<StartPanel::Shortcut> usable;
  for (const auto& shortcut : session.company_open() ? Company_Shortcuts() : Start_Shortcuts())
    if (is_available(shortcut.command) || !session.company_open()) usable.push_back(shortcut);
  const QString name = session.company_open() ? company_label_->text() : QStringLiteral("Tallymere");
  const QString line = session.company_open()
                           ? QLocale(QLocale::English)
                                 .toString(QDate::fromString(qt(session.today().to_iso()), Qt::ISODate),
                                           QStringLiteral("dddd, MMMM d, yyyy"))
                           : QStringLiteral("No company is open.");
  panel_->show_company(name, line, figures(), usable);
}

bool frmMain::may(const std::string& command) const {
  const auto refused = [&](const auto& marks) {
    const auto found = marks.find(command);
    return found != marks.end() && found->second;
  };
  return !refused(hidden_) && !refused(disabled_);
}

/// What a person asks first in the morning, as far as these are his to see.
std::vector<StartPanel::Figure> frmMain::figures() {
  constexpr size_t most_banks = 4;
  std::vector<StartPanel::Figure> shown;
  if (!session.company_open()) return shown;
  guard("StartPanel", [&] {
    if (may("mnuAccounts"))
      for (const BankBalance& bank : Bank_Balances(session))
        if (shown.size() < most_banks) shown.push_back({qt(bank.AccountName), qt(Dollar_Text(bank.Balance))});
    if (may("mnuCustomers"))
      shown.push_back({QStringLiteral("Customers owe"), qt(Dollar_Text(Customers_Owe(session)))});
    if (may("mnuBill")) {
      const Due due = Due_This_Week(session);
      const QString bills = due.bills == 1 ? QStringLiteral("1 bill") : QStringLiteral("%1 bills").arg(due.bills);
      shown.push_back({QStringLiteral("Due this week (%1)").arg(bills), qt(Dollar_Text(due.Amount))});
    }
  });
  return shown;
}

/// Once per company, a moment after it came up; never in the middle of what a box or a progress window is
/// about.
void frmMain::Timer1_Timer() {
  if (QApplication::activeModalWidget()) return;
  Timer1->stop();
  if (!session.sets.Colors) return;
  guard("Timer1_Timer", [this] {
    if (may("mnuAccounts")) Update_Accounts(session);
    show_background();
    Toolbar1->setVisible(Preference(*session.dbCompany, preference::ToolBarVisible) == "Yes");
    if (Check_Repeats) Check_Repeats();
  });
}

void frmMain::changed(const std::string& table) {
  for (Form* form : std::vector<Form*>(forms_)) form->on_changed(table);
  if (!session.dbCompany) return;
  if (table == "Colors" || table == "Transactions" || table == "Accounts") show_background();
  if (table == "Users") Apply_User_Rights();
  if (table == "GeneralPrefs")
    Toolbar1->setVisible(Preference(*session.dbCompany, preference::ToolBarVisible) == "Yes");
}

void frmMain::say(const std::string& text) { statusBar()->showMessage(qt(text), 6000); }

bool frmMain::eventFilter(QObject* watched, QEvent* event) {
  if (watched == mdi_->viewport() && event->type() == QEvent::Resize) panel_->centre();
  return QMainWindow::eventFilter(watched, event);
}

/// Where there is little height, it is the windows'.
void frmMain::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  const bool low = height() < low_screen;
  Toolbar1->setToolButtonStyle(low ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextUnderIcon);
}

void frmMain::restore_place() {
  if (remembers_place) restoreGeometry(QSettings().value(geometry_key).toByteArray());
}

void frmMain::keep_place() {
  if (remembers_place) QSettings().setValue(geometry_key, saveGeometry());
}

}  // namespace tallymere
