#pragma once

#include <QPageLayout>
#include <QPointF>
#include <QPrinter>
#include <functional>
#include <memory>

class QWidget;

namespace tallymere {

/// Shows the print dialog for pages of this layout; nullptr when it was cancelled. `pages`: how many there are to
/// choose from, 0 when there is no choice.
std::unique_ptr<QPrinter> Ask_Printer(QWidget* above, const QPageLayout& page, const QString& title, int pages = 0);

/// Something else answers in the dialog's place: false is cancelled. Nothing: the dialog again.
using Printer_Answer = std::function<bool(QPrinter& printer)>;
void Answer_For_Printer(Printer_Answer answer);

/// How far what is printed on forms must be moved on this printer to stand right, in twips; kept on this machine.
QPointF Paper_Offset(const QString& printer);
void Keep_Paper_Offset(const QString& printer, QPointF twips);

}  // namespace tallymere
