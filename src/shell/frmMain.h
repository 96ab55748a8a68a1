#pragma once

#include <QMainWindow>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "shell/company_commands.h"
#include "shell/shell.h"
#include "shell/start/start_panel.h"
#include "shell/window_table.h"

class QAction;
class QLabel;
class QMdiArea;
class QMenu;
class QTimer;
class QToolBar;

namespace tallymere {

class frmMenus;
struct MenuRow;

/// The one top-level window: a frame in which every other window stands, the menus and the toolbar. It holds
/// no business of its own; each command is a row of a table that names a window.
class frmMain : public QMainWindow, public Shell, public CompanyCommands {
  Q_OBJECT

 public:
  frmMain(Session& running, const WindowTable& windows);
  ~frmMain() override;

  /// What runs once for each company, from Timer1, and what mnuTaxCheck runs. Empty: not part of this
  /// version.
  std::function<void()> Check_Repeats;
  std::function<void()> Check_Updates;
  /// Set by the desktop program: the frame comes up where it was left.
  bool remembers_place = false;

  void Start();  ///< shows the frame and frmStart
  /// Shows the frame with this company, by the steps of opening one by hand. false: frmStart is up instead.
  bool Start_With(const std::string& path);

  // --- what windows ask of the frame
  Form* Show_Window(const Request& request) override;
  bool has_window(const std::string& name) const override { return windows_.contains(name); }
  Form* find_window(const std::string& name) const override;
  bool Run_Modal(Form& form) override;
  std::optional<std::string> Ask_Window(const Request& request) override;
  void Go_To_Transaction(const std::string& type, int64_t number) override;
  void Popup(const std::string& menu, QWidget& from, const std::vector<std::string>& disabled,
             std::function<void(const std::string&)> chosen) override;
  void say(const std::string& text) override;
  void changed(const std::string& table) override;

  // --- what frmStart and frmCreate ask of it
  bool Open_Company_At_Start() override;
  void Create_Company_At_Start() override;
  bool Restore_Company_At_Start() override;
  bool Open_Recent_At_Start(const std::string& path) override;
  bool Create_Company(const std::string& name) override;

  QAction* command(std::string_view name) const;   ///< a menu, a command or a button by its name; nullptr: none
  bool is_available(std::string_view name) const;  ///< shown and enabled, with all menus above it

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  using Work = std::function<void()>;
  bool guard(const std::string& procedure, const Work& work);

  // --- the frame
  void build_menus();
  void build_toolbar();
  void build_status_bar();
  QAction* add_to_menu(QMenu& menu, const MenuRow& row);
  void fill_window_menu();
  void set_enabled(std::string_view name, bool enabled);
  void set_visible(std::string_view name, bool visible);
  void refresh_commands();
  void refresh_command(const std::string& name, QAction* action);
  void Enable_Menus();
  void Disable_Menus();
  void show_title();
  void Timer1_Timer();
  void show_background();
  void restore_place();
  void keep_place();

  // --- routing
  bool exists(const MenuRow& row) const;
  bool has_usable_child(std::string_view menu) const;
  bool may_reach(std::string_view command) const;  ///< it and the menus it stands in
  bool may_show(const std::string& window);    ///< a box says so when the user's rights lead to no command that does
  bool may(const std::string& command) const;  ///< the user's rights and the company's state allow it
  std::vector<StartPanel::Figure> figures();
  void run_command(const std::string& name);
  void route(const MenuRow& row);
  void mnuDepositFunds_Click();
  void btnHelp_Click();
  Form* open_form(const std::string& name);
  bool run_loaded(Form& form);
  void stand_inside(Form& form);
  void stand_above(Form& form);
  void bring_up(Form& form);
  void forget(Form* form);
  bool Hide_All();

  // --- the company
  void mnuNewCompany_Click();
  void mnuOpenCompany_Click();
  void mnuSwitchMode_Click();
  void mnuBackup_Click();
  void mnuRestore_Click();
  void mnuTaxCheck_Click();
  void mnuExit_Click();
  void mnuUndo_Click();
  void mnuAbout_Click();
  void caption_undo();
  bool Open_Company(const std::string& path, bool at_start);
  bool Log_In();
  bool Ask_Password();
  bool Ask_User();
  void Company_Went(bool at_start);
  void company_came_up();
  void Apply_User_Rights();
  void Read_Rights_Again();  ///< the administrator may have changed them meanwhile
  void caption_switch_mode();
  bool Backup();
  bool may_exit();
  void show_start();

  const WindowTable& windows_;
  std::map<std::string, QAction*, std::less<>> commands_;
  std::map<std::string, bool, std::less<>> disabled_, hidden_;
  std::optional<store::ChangeStamp> rights_as_of_;
  std::vector<Form*> forms_;  ///< open ones, the newest last
  std::unique_ptr<frmMenus> menus_;
  QMdiArea* mdi_;
  StartPanel* panel_;
  QToolBar* Toolbar1;
  QTimer* Timer1;
  QLabel *company_label_, *user_label_, *date_label_;
};

}  // namespace tallymere
