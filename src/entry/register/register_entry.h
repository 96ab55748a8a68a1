#pragma once

#include <optional>
#include <string>
#include <vector>

#include "entry/document/document.h"
#include "entry/document/lines.h"
#include "entry/register/register.h"

/// A simple two-sided entry typed straight into a register, or broken down over several categories.
namespace tallymere {

/// A line of grdBreakDown. Positive amounts stand opposite the register's row, negative ones on its side.
struct BreakDownLine {
  std::string Account = {};  ///< AccountName
  std::optional<Money> Amount = {};
  std::string Memo = {};
  std::string Customer = {};
  std::string Class = {};
  std::string CatID = {};
  KeptRow kept = {};  ///< as it was loaded
};

/// The current line as the user types it.
struct RegisterEntry {
  std::optional<tallymere::Date> Date = {};
  std::string Number = {};
  std::string Name = {};
  std::string Category = {};
  std::string Memo = {};
  std::string Class = {};
  std::optional<Money> Credit = {};
  bool Cleared = false;
  std::optional<Money> Debit = {};
  int64_t TransNum = 0;    ///< 0: a new line
  std::string CatID = {};  ///< empty when broken down
  std::vector<BreakDownLine> breakdown = {};
  int64_t key = 0;
  KeptRow kept = {};   ///< the register's row as it was loaded
  bool below = false;  ///< it stands below the other side's: the check of another bank
  Probe probe = {};

  bool is_new() const { return TransNum == 0; }
  bool is_broken_down() const;
  std::optional<Money> amount() const { return Credit ? Credit : Debit; }
};

/// The entry behind a line, read anew, with the rows of the other side for a later break down; nothing when
/// it is gone.
std::optional<RegisterEntry> Open_Entry(Session& session, const Register& reg, const RegisterLine& line);
/// What a line shows, where another user has deleted it meanwhile: Record tells of the conflict.
RegisterEntry Entry_As_Shown(const RegisterLine& line);
/// Whether a line still shows what its entry says.
bool Shows(const RegisterLine& line, const RegisterEntry& entry);
/// A blank new line.
RegisterEntry New_Entry(const Register& reg);

/// Memorised filling: the payee's last outgoing row fills the empty cells of a new line, and its break-down what the
/// break-down shows. Nothing else of that transaction comes along.
void Fill_Memorised(Session& session, RegisterEntry& entry);

/// The question when a changed line is left. Yes: Record.
Box Save_Changes_Question();

/// What Record did. Without a fault the grid reloads.
struct RecordResult {
  std::optional<Fault> fault = {};
  std::optional<Conflict> conflict = {};
  std::optional<Box> notice = {};  ///< what was not taken, where the rest was recorded
  bool reload = false;             ///< fill the grid again, whatever was typed
  int64_t TransNum = 0;            ///< of what was recorded
  bool stapler = false;            ///< play stapler.wav
};
RecordResult Record(Session& session, const Register& reg, RegisterEntry& entry);

/// Whether the register may rewrite a transaction: a ledger entry or a check without items.
bool Can_Edit_In_Register(Session& session, int64_t TransNum);

/// Prepares grdBreakDown for the entry, or tells why it cannot be broken down.
std::optional<Fault> Break_Down(Session& session, RegisterEntry& entry);
/// Closes the frame: the lines must add up to the entry's amount, whose category they become.
std::optional<Fault> Close_Break_Down(RegisterEntry& entry);

}  // namespace tallymere
