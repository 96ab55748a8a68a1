#pragma once

#include <QApplication>

namespace tallymere {

/// The arrow while the program waits for an answer, whatever long pass it interrupts.
class ArrowPointer {
 public:
  ArrowPointer() { QApplication::setOverrideCursor(Qt::ArrowCursor); }
  ~ArrowPointer() { QApplication::restoreOverrideCursor(); }
  ArrowPointer(const ArrowPointer&) = delete;
  ArrowPointer& operator=(const ArrowPointer&) = delete;
};

}  // namespace tallymere
