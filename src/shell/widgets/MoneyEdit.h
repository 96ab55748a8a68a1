#pragma once

#include <QLineEdit>
#include <optional>

#include "core/values/money.h"

namespace tallymere {

/// A line for an amount: right-aligned, tabular figures. On leaving, what reads as an amount is tidied to
/// "1,234.50", "12+8" is reckoned; the rest stays as typed and is marked.
class MoneyEdit : public QLineEdit {
  Q_OBJECT

 public:
  explicit MoneyEdit(QWidget* parent = nullptr);

  std::optional<Money> amount() const;  ///< nothing when empty or no amount
  void set_amount(const std::optional<Money>& amount);
  void reckon();                                            ///< "12+8" becomes "20.00"; leaving does it
  void set_mask(const std::string& mask) { mask_ = mask; }  ///< "#,##0.00" at first
  void set_tidy(bool tidy) { tidy_ = tidy; }                ///< false: the window tidies itself

 Q_SIGNALS:
  void LostFocus();  ///< left, already tidied

 protected:
  void focusOutEvent(QFocusEvent* event) override;

 private:
  std::string mask_ = "#,##0.00";
  bool tidy_ = true;
};

}  // namespace tallymere
