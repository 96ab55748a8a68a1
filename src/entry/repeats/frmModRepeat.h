#pragma once

#include "entry/repeats/repeat.h"
#include "lists/RowForm.h"

class QLineEdit;

namespace tallymere {

class QuillbrookDatePick;
class SSDBCombo;

/// When a transaction is entered again. Asked with the type as key and the TransNum as number for a new repeat, with the
/// repeat's name as key to change one.
class frmModRepeat : public RowForm {
  Q_OBJECT

 public:
  explicit frmModRepeat(Shell& shell_of_frame);

  void take(const Request& request) override;

 protected:
  void show_row() override;
  RowSave save_row() override;
  std::string saved_key() const override;

 private:
  RepeatForm read() const;

  RepeatForm form_;
  QLineEdit *txtName, *txtAdvDays, *txtRepeat;
  SSDBCombo* cmbFreq;
  QuillbrookDatePick* dteNextDate;
};

}  // namespace tallymere
