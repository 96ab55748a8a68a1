#include "entry/repeats/frmModRepeat.h"

#include <QFormLayout>
#include <QLineEdit>

#include "core/values/text.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/grid/SSDBCombo.h"
#include "shell/widgets/theme.h"

namespace tallymere {

frmModRepeat::frmModRepeat(Shell& shell_of_frame)
    : RowForm(shell_of_frame, "frmModRepeat", Repeat_Rows, {"Repeat Transaction", "Repeat Transaction"}) {
  txtName = named("txtName", new QLineEdit);
  txtName->setMinimumWidth(30 * theme::unit);
  cmbFreq = named("cmbFreq", new SSDBCombo);
  cmbFreq->set_list_only(true);
  for (const std::string& frequency : Frequencies()) cmbFreq->AddItem(frequency);
  dteNextDate = named("dteNextDate", new QuillbrookDatePick);
  txtAdvDays = named("txtAdvDays", new QLineEdit);
  txtRepeat = named("txtRepeat", new QLineEdit);
  txtRepeat->setPlaceholderText(QStringLiteral("without end"));
  auto* fields = form_layout();
  add_field(fields, QStringLiteral("&Name:"), txtName);
  add_field(fields, QStringLiteral("&Frequency:"), cmbFreq);
  add_field(fields, QStringLiteral("Next &Date:"), dteNextDate);
  add_field(fields, QStringLiteral("Number of Days in &Advance to Enter:"), txtAdvDays);
  add_field(fields, QStringLiteral("&Repeat times remaining:"), txtRepeat);
  lay_out_dialog(this, fields, {cmdCancel, cmdOk});
}

void frmModRepeat::take(const Request& request) {
  if (isVisible() && !may_close()) return;
  form_ = {};
  if (request.number != 0) form_ = New_Repeat(session, request.key, request.number).value_or(RepeatForm{});
  RowForm::take({.window = request.window, .key = request.number != 0 ? "" : request.key});
}

void frmModRepeat::show_row() {
  if (!is_new()) form_ = Repeat_Form(row());
  if (!form_.Type.empty()) setWindowTitle(qt(is_new() ? "Repeat " + form_.Type : form_.Type + " Repeat"));
  txtName->setText(qt(form_.Name));
  cmbFreq->set_text(form_.Frequency);
  dteNextDate->set_value(form_.NextDate.value_or(session.today()));
  txtAdvDays->setText(qt(form_.AdvDays));
  txtRepeat->setText(qt(form_.NumRemain));
  go_to(txtName);
}

RepeatForm frmModRepeat::read() const {
  RepeatForm form = form_;
  form.Name = utf8(txtName->text());
  form.Frequency = cmbFreq->text();
  form.NextDate = dteNextDate->value();
  form.AdvDays = utf8(txtAdvDays->text());
  form.NumRemain = utf8(txtRepeat->text());
  return form;
}

RowSave frmModRepeat::save_row() { return Save_Repeat(session, row(), read()); }

std::string frmModRepeat::saved_key() const { return trim(utf8(txtName->text())); }

}  // namespace tallymere
