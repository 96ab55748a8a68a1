#pragma once

#include <QLineEdit>

#include "core/company/passwords.h"

namespace tallymere {

/// What the two password boxes of a form say; nobody touched them: the password stays.
inline NewPassword Read_Password(const QLineEdit& once, const QLineEdit& again) {
  return {once.isModified() || again.isModified(), once.text().toStdString(), again.text().toStdString()};
}

/// Empty boxes that hide what is typed. What is kept is never shown; where there is something to keep they say so.
inline void Show_Password_Boxes(QLineEdit& once, QLineEdit& again, bool keeps_old) {
  for (QLineEdit* box : {&once, &again}) {
    box->setEchoMode(QLineEdit::Password);
    box->clear();
    box->setPlaceholderText(keeps_old ? QStringLiteral("unchanged") : QString());
    box->setModified(false);
  }
}

}  // namespace tallymere
