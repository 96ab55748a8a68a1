#pragma once

#include <optional>
#include <string>
#include <vector>

#include "entry/document/deletion.h"
#include "entry/document/lines.h"

/// The general journal: any number of debits and credits under one number. Registers, deposits and payments by card
/// write such entries too.
namespace tallymere {

/// A line of grdLedger.
struct LedgerLine {
  std::string Category = {};
  std::optional<Money> Credit = {};
  std::optional<Money> Debit = {};
  std::string Memo = {};
  std::string Name = {};
  std::string Class = {};
  std::string CatID = {};  ///< hidden, EntryNum
  bool Cleared = false;    ///< hidden
  KeptRow kept = {};

  bool blank() const { return Category.empty() && !Credit && !Debit; }
  auto shown() const { return std::tie(Category, Credit, Debit, Memo, Name, Class, CatID, Cleared); }
  friend bool operator==(const LedgerLine& a, const LedgerLine& b) { return a.shown() == b.shown(); }
};

/// What frmJournal shows.
struct LedgerEntry {
  int64_t TransNum = 0;    ///< txtIndex
  bool is_stored = false;  ///< else it is new
  tallymere::Date Date;
  std::string Number = {};  ///< txtEntryID
  std::vector<LedgerLine> lines = {};
  Probe probe = {};
};

extern const DocumentKind<LedgerEntry> Ledger_Kind;

LedgerEntry New_Ledger_Entry(Session& session);
/// Nothing when the number is none of a ledger entry, or it is gone.
std::optional<LedgerEntry> Load_Ledger_Entry(Session& session, int64_t TransNum);

/// Debits less credits of the first `count` lines; of all by default.
Money Off_Balance(const std::vector<LedgerLine>& lines, size_t count = SIZE_MAX);

/// Saves what frmJournal shows; what was only looked at is not written. A stored entry without lines is removed.
SaveResult Enter_Ledger(Session& session, LedgerEntry& entry);

/// Asks, and asks again about what is cleared, and deletes its rows; what the entry had paid is open again.
Deleted<LedgerEntry> Delete_Ledger_Entry(Session& session, const LedgerEntry& entry);

}  // namespace tallymere
