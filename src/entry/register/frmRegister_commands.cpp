// What a register's buttons and its context menu do.
#include <QFrame>
#include <QPointer>
#include <QScopedValueRollback>
#include <QTimer>

#include "core/ledger/ledger.h"
#include "entry/document/EntryForm.h"
#include "entry/register/frmRegister.h"
#include "shell/widgets/QuillbrookDatePick.h"

namespace tallymere {

namespace column = register_column;
namespace line = break_down_column;

// --- recording -------------------------------------------------------------------------------------------

void frmRegister::settle() {
  const QScopedValueRollback staying(settling_, true);
  leave_date();
  grdRegister->commit();
  grdBreakDown->commit();
}

/// Writes the line. false: it stays on screen as it was typed.
bool frmRegister::record_line() {
  const CategoriesMade categories(session);
  const RecordResult result = Record(session, *register_, entry_);
  if (categories.any()) shell.changed("Accounts");
  const bool try_again = result.conflict && !result.conflict->reload;
  if (result.conflict) session.prompts.box(result.conflict->box);
  if (try_again) return false;
  if (result.fault && !result.reload) {
    show_mistake(*result.fault);
    return false;
  }
  if (result.fault) session.prompts.box(result.fault->box);
  if (result.notice) session.prompts.box(*result.notice);
  if (result.stapler) session.prompts.sound(stapler);
  changed_ = false;
  if (!result.fault && !result.conflict) tell();
  return true;
}

bool frmRegister::close_and_record() { return close_break_down() && record_line(); }

bool frmRegister::let_go() {
  if (!changed_) return true;
  const std::optional<bool> wanted = session.prompts.ask_or_stay(Save_Changes_Question());
  if (!wanted) return false;
  if (*wanted) return close_and_record();
  drop_changes();
  return true;
}

void frmRegister::drop_changes() {
  changed_ = payee_typed_ = false;
  hide_break_down();
}

bool frmRegister::may_close() {
  settle();
  return let_go();
}

void frmRegister::tell() {
  const QScopedValueRollback telling(telling_, true);
  shell.changed("Transactions");
}

/// The box, then the cell that is to be put right. The grid first finishes what it is doing.
void frmRegister::show_mistake(const Fault& fault) {
  session.prompts.box(fault.box);
  const bool in_break_down = fault.control == "grdBreakDown";
  QTimer::singleShot(0, this, [this, in_break_down] {
    guard("cmdRecord_Click", [&] {
      if (in_break_down) return show_break_down();
      grdRegister->set_cell(row_, mistaken_column());
      focus_line();
    });
  });
}

int frmRegister::mistaken_column() const {
  if (!entry_.Date) return column::Date;
  const bool known = !entry_.CatID.empty() || entry_.is_broken_down();
  if (!known || entry_.CatID == register_->category().CatID) return column::Category;
  return grdRegister->text(row_, column::In).empty() ? column::Out : column::In;
}

void frmRegister::cmdRecord_Click() {
  settle();
  const int64_t stay_on = entry_.TransNum;
  if (close_and_record()) Load_Register(stay_on);
}

bool frmRegister::control_enter() {
  fraBreakDown->isVisible() ? cmdClose_Click() : cmdRecord_Click();
  return true;
}

// --- other commands --------------------------------------------------------------------------------------

void frmRegister::cmdGoto_Click() {
  settle();
  if (entry_.TransNum == 0) return;
  const GoTo there = Go_To(session, entry_.TransNum);
  if (there.window.empty()) return shell.say("This transaction has no window to go to.");
  shell.Go_To_Transaction(there.Type, entry_.TransNum);
}

void frmRegister::cmdRefresh_Click() {
  settle();
  const int64_t stay_on = entry_.TransNum;
  if (let_go()) Load_Register(stay_on);
}

void frmRegister::grdRegister_MouseUp(int row) {
  if (row < 0) return;
  shell.Popup("mnuReg", *grdRegister, {}, [self = QPointer(this)](const std::string& item) {
    if (self && item == "mnuDelReg") self->guard("mnuDelReg_Click", [&] { self->mnuDelReg_Click(); });
  });
}

void frmRegister::mnuDelReg_Click() {
  const RegisterLine line{.Number = entry_.Number,
                          .Name = entry_.Name,
                          .Credit = entry_.Credit,
                          .Cleared = entry_.Cleared,
                          .Debit = entry_.Debit,
                          .TransNum = entry_.TransNum};
  const RegisterDeletion result = Delete_From_Register(session, line, entry_.probe);
  if (result.conflict) session.prompts.box(result.conflict->box);
  if (!result.deleted && !result.conflict) return;
  register_->Fill(row_ + 1, 1);
  const int64_t next = register_->line(row_ + 1).TransNum;
  drop_changes();
  if (result.deleted) tell();
  Load_Register(next);
}

// --- break down ------------------------------------------------------------------------------------------

void frmRegister::cmdBreakdown_Click() {
  settle();
  if (fraBreakDown->isVisible()) return cmdClose_Click();
  if (const auto fault = Break_Down(session, entry_)) return show_mistake(*fault);
  show_break_down();
}

void frmRegister::show_break_down() {
  grdBreakDown->RemoveAll();
  kept_lines_ = {nullptr};
  for (const BreakDownLine& each : entry_.breakdown) {
    grdBreakDown->AddValues({each.Account, each.Amount, each.Memo, each.Customer, each.Class, each.CatID,
                             static_cast<int64_t>(kept_lines_.size())});
    kept_lines_.push_back(each.kept);
  }
  fraBreakDown->show();
  fraBreakDown->raise();
  place_break_down();
  grdBreakDown->set_cell(0, line::Account);
  grdBreakDown->setFocus();
}

void frmRegister::read_break_down() {
  entry_.breakdown.clear();
  const auto text = [this](int row, int column) { return grdBreakDown->text(row, column); };
  for (int row = 0; row < grdBreakDown->rows(); ++row)
    entry_.breakdown.push_back(
        {.Account = text(row, line::Account),
         .Amount = Money_At(*grdBreakDown, row, line::Amount),
         .Memo = text(row, line::Memo),
         .Customer = text(row, line::Customer),
         .Class = text(row, line::Class),
         .CatID = text(row, line::CatID),
         .kept = kept_lines_[static_cast<size_t>(grdBreakDown->value(row, line::Kept).integer())]});
}

/// Takes the lines into the entry. false: they do not add up, and the frame stays.
bool frmRegister::close_break_down() {
  if (!fraBreakDown->isVisible()) return true;
  grdBreakDown->commit();
  read_break_down();
  if (const auto fault = Close_Break_Down(entry_)) {
    show_fault(*fault);
    return false;
  }
  const bool other = grdRegister->text(row_, column::Category) != entry_.Category ||
                     grdRegister->text(row_, column::CatID) != entry_.CatID;
  show_entry();
  if (other) set_changed();
  hide_break_down();
  return true;
}

void frmRegister::hide_break_down() {
  const bool inside = fraBreakDown->isAncestorOf(focusWidget());
  fraBreakDown->hide();
  if (inside) grdRegister->setFocus();
}

void frmRegister::cmdClose_Click() {
  if (close_break_down()) grdRegister->set_cell(row_, column::Memo);
}

void frmRegister::grdBreakDown_AfterColUpdate(int row, int column) {
  set_changed();
  if (column != line::Account || !grdBreakDown->text(row, line::CatID).empty()) return;
  QTimer::singleShot(0, this, [this, row] {
    guard("Check_New_Payee", [&] {
      const std::string name = grdBreakDown->text(row, line::Account);
      if (name.empty() || !grdBreakDown->text(row, line::CatID).empty()) return;
      const auto CatID = new_category(name, row);
      if (!CatID) return;
      grdBreakDown->set_text(row, line::Account, Category_Name(session, *CatID));
      grdBreakDown->set_text(row, line::CatID, *CatID);
    });
  });
}

}  // namespace tallymere
