#pragma once

#include <QPlainTextEdit>
#include <string>

namespace tallymere {

/// The box for an address: Enter makes a new line until there are more than three, then it moves on as in any
/// field; going in selects the whole text, leaving drops a line end at the very end.
class AddressEdit : public QPlainTextEdit {
  Q_OBJECT

 public:
  explicit AddressEdit(QWidget* parent = nullptr);

  std::string text() const;  ///< lines parted by CR LF
  void set_text(const std::string& text);
  QSize sizeHint() const override;

 Q_SIGNALS:
  void LostFocus();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
};

}  // namespace tallymere
