#include "shell/widgets/ask_printer.h"

#include <QPrintDialog>
#include <QSettings>

namespace tallymere {

namespace {

Printer_Answer& Answer() {
  static Printer_Answer answer;
  return answer;
}

QString Offset_Key(const QString& printer) {
  return QStringLiteral("printers/%1/offset").arg(QString(printer).replace(QLatin1Char('/'), QLatin1Char('_')));
}

bool Ask(QPrinter& printer, QWidget* above, int pages) {
  if (Answer()) return Answer()(printer);
  QPrintDialog dialog(&printer, above);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, pages > 0);
  if (pages > 0) dialog.setMinMax(1, pages);
  return dialog.exec() == QDialog::Accepted;
}

}  // namespace

std::unique_ptr<QPrinter> Ask_Printer(QWidget* above, const QPageLayout& page, const QString& title, int pages) {
  auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  printer->setFullPage(true);
  printer->setPageSize(page.pageSize());
  printer->setPageOrientation(page.orientation());
  printer->setDocName(title);
  return Ask(*printer, above, pages) ? std::move(printer) : nullptr;
}

void Answer_For_Printer(Printer_Answer answer) { Answer() = std::move(answer); }

QPointF Paper_Offset(const QString& printer) {
  return printer.isEmpty() ? QPointF() : QSettings().value(Offset_Key(printer)).toPointF();
}

void Keep_Paper_Offset(const QString& printer, QPointF twips) {
  if (!printer.isEmpty()) QSettings().setValue(Offset_Key(printer), twips);
}

}  // namespace tallymere
