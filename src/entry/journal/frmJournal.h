#pragma once

#include "entry/document/DocumentForm.h"
#include "entry/journal/journal.h"

class QLabel;
class QLineEdit;

namespace tallymere {

class DropDowns;
class LedgerGrid;
class QuillbrookDatePick;

/// The general journal: debits and credits of one entry.
class frmJournal : public DocumentForm<LedgerEntry> {
  Q_OBJECT

 public:
  explicit frmJournal(Shell& shell_of_frame);

  void load() override;
  void on_changed(const std::string& table) override;

 protected:
  void show_document(const LedgerEntry& entry) override;
  void shown() override;
  LedgerEntry read() const override;
  bool settle() override;

 private:
  void build();
  void show_totals();

  DropDowns* lists_;
  LedgerGrid* lines_;
  QuillbrookDatePick* dteDate;
  QLineEdit *txtEntryID, *txtIndex;
  QLabel* lblTotals;
  QPushButton *cmdCancel, *cmdDelete;
};

}  // namespace tallymere
