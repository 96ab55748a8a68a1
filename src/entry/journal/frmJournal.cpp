#include "entry/journal/frmJournal.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/values/format.h"
#include "entry/journal/LedgerGrid.h"
#include "shell/drop_downs.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/theme.h"

namespace tallymere {

frmJournal::frmJournal(Shell& shell_of_frame)
    : DocumentForm(shell_of_frame, "frmJournal", Ledger_Kind), lists_(new DropDowns(session, this)) {
  setWindowTitle(QStringLiteral("Ledger"));
  build();
  lines_->when_changed([this] { show_totals(); });
  on(cmdDelete, "cmdDelete_AfterClick", [this] { show_deleted(Delete_Ledger_Entry(session, document_)); });
}

void frmJournal::build() {
  txtIndex = named("txtIndex", new QLineEdit(this));
  txtIndex->setFocusPolicy(Qt::NoFocus);
  txtIndex->hide();
  dteDate = named("dteDate", new QuillbrookDatePick);
  txtEntryID = named("txtEntryID", new QLineEdit);
  lines_ = new LedgerGrid(*this, shell, *lists_);
  lblTotals = named("lblTotals", new QLabel);
  lblTotals->setFont(theme::tabular(lblTotals->font()));
  cmdPrev->setText(QStringLiteral("&Previous"));
  cmdCancel = cancel_button();
  cmdDelete = named("cmdDelete", new QPushButton(QStringLiteral("&Delete")));
  auto* head = row_layout();
  head->addWidget(label_for(dteDate, QStringLiteral("D&ate:")));
  head->addWidget(dteDate);
  head->addSpacing(2 * theme::gap);
  head->addWidget(label_for(txtEntryID, QStringLiteral("&Entry ID")));
  head->addWidget(txtEntryID);
  head->addStretch(1);
  head->addWidget(lblTotals);
  auto* column = column_layout(this);
  column->addLayout(head);
  column->addWidget(lines_->grid, 1);
  column->addLayout(button_row({cmdDelete}, {cmdPrev, cmdNext, cmdCancel, cmdSaveNew, cmdOk}));
  setMinimumSize(96 * theme::unit, 44 * theme::unit);
  QWidget* const order[] = {dteDate,   txtEntryID, lines_->grid, cmdSaveNew, cmdOk,
                            cmdCancel, cmdPrev,    cmdNext,      cmdDelete};
  for (size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
}

void frmJournal::load() {
  lists_->fill();
  show(New_Ledger_Entry(session));
  dteDate->setFocus();
}

void frmJournal::on_changed(const std::string& table) { lists_->changed(table); }

void frmJournal::show_document(const LedgerEntry& entry) {
  txtIndex->setText(QString::number(entry.TransNum));
  dteDate->set_value(entry.Date);
  txtEntryID->setText(qt(entry.Number));
  lines_->show(entry.lines);
}

void frmJournal::shown() {
  if (!document_.is_stored) go_to(dteDate);
}

LedgerEntry frmJournal::read() const {
  LedgerEntry entry = document_;
  entry.Date = dteDate->value();
  entry.Number = utf8(txtEntryID->text());
  entry.lines = lines_->read();
  return entry;
}

bool frmJournal::settle() { return lines_->settle(); }

void frmJournal::show_totals() {
  Money debits, credits;
  for (const LedgerLine& line : lines_->read()) {
    debits += line.Debit.value_or(Money());
    credits += line.Credit.value_or(Money());
  }
  std::string text = "Credits " + Money_Text(credits) + ", Debits " + Money_Text(debits);
  if (debits != credits) text += ", off by " + Money_Text((debits - credits).abs());
  lblTotals->setText(qt(text));
}

}  // namespace tallymere
