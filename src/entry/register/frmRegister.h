#pragma once

#include <memory>

#include "entry/register/register.h"
#include "entry/register/register_entry.h"
#include "shell/widgets/Form.h"

class QFrame;
class QLabel;
class QPushButton;
class QTimer;

namespace tallymere {

class DropDowns;
class QuillbrookDatePick;
class SSDBDropDown;
class SSDBGrid;

/// The register of one category: its rows with a running balance, and a line to type simple entries into.
/// Several may stand side by side.
class frmRegister : public Form {
  Q_OBJECT

 public:
  explicit frmRegister(Shell& shell_of_frame);
  ~frmRegister() override;

  void load() override;
  void take(const Request& request) override;  ///< `key`: the CatID
  bool may_close() override;
  void unloading() override;
  void on_changed(const std::string& table) override;
  bool control_enter() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // --- the screen (frmRegister_build.cpp)
  void build();
  void build_register();
  void build_break_down();
  void build_commands();
  void connect_register();
  void connect_floats();
  void connect_commands();
  void place_floats();  ///< datReg over the line's Date cell, fraBreakDown below the line
  void place_break_down();
  void focus_line();  ///< the current cell, or the date control over it
  void leave_date();
  void show_category();
  void show_colors();

  // --- lines (frmRegister.cpp)
  /// Fills the grid anew and goes to the line of a transaction, else to the end.
  void Load_Register(int64_t return_to);
  void show_lines(int64_t return_to);
  void reload_later();  ///< once nothing typed would be lost by it
  void Timer1_Timer();
  bool is_typing() const;
  std::string cells_of(int row);  ///< fills the line when it comes into view
  void arrive(int row);
  void open_line(int row);
  void show_entry();
  void show_cell(int column, const std::string& text);
  void set_changed();
  void grdRegister_RowColChange(int last_column);
  void grdRegister_AfterColUpdate(int column);
  void grdRegister_AfterInsert();
  void grdRegister_BeforeUpdate(bool& cancel);
  void datReg_Change();
  void take_cell(int column);
  void take_amount(int column);
  void fill_memorised();
  void Check_New_Payee();     ///< the payee that was typed
  void Check_New_Category();  ///< the category that was typed
  std::optional<std::string> new_category(const std::string& name, int row);

  // --- commands (frmRegister_commands.cpp)
  void settle();  ///< takes what is being typed into the entry
  bool record_line();
  bool close_and_record();
  bool let_go();  ///< a changed line is to leave the screen. false: it could not be recorded
  void drop_changes();
  void show_mistake(const Fault& fault);
  int mistaken_column() const;
  void cmdRecord_Click();
  void cmdGoto_Click();
  void cmdRefresh_Click();
  void grdRegister_MouseUp(int row);
  void mnuDelReg_Click();
  void tell();  ///< the other windows

  // --- break down (frmRegister_commands.cpp)
  void cmdBreakdown_Click();
  void cmdClose_Click();
  void show_break_down();
  void read_break_down();
  bool close_break_down();
  void hide_break_down();
  void grdBreakDown_AfterColUpdate(int row, int column);

  std::unique_ptr<Register> register_;
  RegisterEntry entry_;       ///< the current line as it is typed
  int row_ = -1;              ///< its row of the grid
  bool changed_ = false;      ///< something was typed into it
  bool filling_ = false;      ///< the grid is being filled by code
  bool settling_ = false;     ///< what is typed is taken, the line is not being left
  bool reload_due_ = false;   ///< the ledger changed elsewhere
  bool payee_typed_ = false;  ///< of a new line, whose memorised transaction was not looked up yet
  bool telling_ = false;
  std::vector<KeptRow> kept_lines_;  ///< the rows that lines of the break down were loaded from

  DropDowns* lists_;
  SSDBDropDown *SSDBDropDown1, *drpVendor, *drpCustomers;
  SSDBGrid *grdRegister, *grdBreakDown;
  QuillbrookDatePick* datReg;
  QFrame* fraBreakDown;
  QLabel *lblCatID, *lblTotal;
  QPushButton *cmdRecord, *cmdGoto, *cmdBreakdown, *cmdRefresh, *cmdClose;
  QTimer* Timer1;
};

/// The columns of grdRegister and grdBreakDown.
namespace register_column {
enum { Date, Num, Payee, Category, Memo, Class, Out, Clear, In, Balance, TransNum, CatID };
}
namespace break_down_column {
enum { Account, Amount, Memo, Customer, Class, CatID, Kept };
}

}  // namespace tallymere
