#include "shell/widgets/MoneyEdit.h"

#include <QFocusEvent>

#include "core/values/format.h"
#include "core/values/reckon.h"
#include "shell/widgets/theme.h"

namespace tallymere {

MoneyEdit::MoneyEdit(QWidget* parent) : QLineEdit(parent) {
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  setFont(theme::tabular(font()));
  connect(this, &QLineEdit::textChanged, this, [this] { mark_faulty(this, false); });
}

std::optional<Money> MoneyEdit::amount() const { return Reckon(text().toStdString()); }

void MoneyEdit::set_amount(const std::optional<Money>& amount) {
  setText(amount ? QString::fromStdString(Format(*amount, mask_)) : QString());
}

void MoneyEdit::reckon() {
  if (amount() && !Money::parse(text().toStdString())) set_amount(amount());
}

void MoneyEdit::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  if (event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason) return;
  reckon();
  if (tidy_ && amount()) set_amount(amount());
  mark_faulty(this, !text().trimmed().isEmpty() && !amount());
  Q_EMIT LostFocus();
}

}  // namespace tallymere
