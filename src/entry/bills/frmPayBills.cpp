#include "entry/bills/frmPayBills.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QItemSelectionModel>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>
#include <set>

#include "core/values/format.h"
#include "shell/widgets/MoneyEdit.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/grid/SSDBCombo.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

namespace column {
enum { DueDate, Vendor, AmountDue, Number, Payment, RefNum };
}

constexpr const char* orders[] = {"Due Date", "Vendor", "Amount Due"};  // as BillOrder has them

}  // namespace

frmPayBills::frmPayBills(Shell& shell_of_frame) : EntryForm(shell_of_frame, "frmPayBills") {
  setWindowTitle(QStringLiteral("Pay Bills"));
  build();
  on(optPayBy, &QButtonGroup::idClicked, "optPayBy_Click", [this] { optPayBy_Click(); });
  on(cmbCat, &SSDBCombo::Changed, "cmbCat_Click", [this] { lblBankID->setText(qt(cmbCat->id())); });
  on(cmbCat, &SSDBCombo::Click, "cmbCat_Click", [this] { lblBankID->setText(qt(cmbCat->id())); });
  on(cmbSort, &SSDBCombo::Click, "cmbSort_Click", [this] { Load_List(); });
  on(cmbSort, &SSDBCombo::LostFocus, "cmbSort_LostFocus", [this] { Load_List(); });
  on(txtPart, &MoneyEdit::LostFocus, "txtPart_LostFocus", [this] { txtPart_LostFocus(); });
  connect(grdBills->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { show_selected(); });
}

void frmPayBills::build_fields() {
  dtePayDate = named("dtePayDate", new QuillbrookDatePick);
  dtePayDate->set_value(session.today());
  optPayBy = new QButtonGroup(this);
  optPayBy->setObjectName(QStringLiteral("optPayBy"));
  optPayBy->addButton(named("optPayBy_0", new QRadioButton(QStringLiteral("Credit Card"))), 0);
  optPayBy->addButton(named("optPayBy_1", new QRadioButton(QStringLiteral("Check"))), 1);
  optPayBy->button(1)->setChecked(true);
  cmbCat = named("cmbCat", new SSDBCombo);
  cmbCat->setMinimumContentsLength(24);
  lblBankID = named("lblBankID", new QLabel(this));
  lblBankID->hide();
  cmbSort = named("cmbSort", new SSDBCombo);
  for (const char* order : orders) cmbSort->AddItem(order);
  cmbSort->set_list_only(true);
  cmbSort->set_text(orders[0]);
  grdBills = named("grdBills", new SSDBGrid);
  grdBills->set_columns({{.name = QStringLiteral("Due Date"), .kind = Kind::date, .width = 12},
                         {.name = QStringLiteral("Vendor")},
                         {.name = QStringLiteral("Amount Due"), .kind = Kind::money, .width = 16, .mask = "#,##0.00"},
                         {.name = QStringLiteral("Number"), .width = 16},
                         {.name = QStringLiteral("Payment"), .kind = Kind::money, .width = 14, .mask = "#,##0.00"},
                         {.name = QStringLiteral("RefNum"), .kind = Kind::hidden}});
  grdBills->setAccessibleName(QStringLiteral("Unpaid bills"));
  grdBills->set_multi_select(true);
  grdBills->set_empty_hint(QStringLiteral("No bill is unpaid."));
  lblSelected = named("lblSelected", new QLabel);
  lblSelected->setFont(theme::tabular(lblSelected->font()));
  txtPart = named("txtPart", new MoneyEdit);
  txtPart->setToolTip(QStringLiteral("Empty: the selected bill is paid whole"));
  txtPart->setMaximumWidth(16 * theme::unit);
  SSDBCommand1 = cancel_button("SSDBCommand1");
}

void frmPayBills::build() {
  build_fields();
  auto* ways = row_layout();
  for (int id : {0, 1}) ways->addWidget(optPayBy->button(id));
  ways->addStretch(1);
  auto* head = new QGridLayout;
  head->setSpacing(theme::gap);
  head->addWidget(label_for(dtePayDate, QStringLiteral("Payment &Date")), 0, 0);
  head->addWidget(dtePayDate, 0, 1);
  head->addWidget(new QLabel(QStringLiteral("Pay By")), 0, 3, Qt::AlignRight | Qt::AlignVCenter);
  head->addLayout(ways, 0, 4);
  head->addWidget(label_for(cmbSort, QStringLiteral("&Sort Bills By")), 1, 0);
  head->addWidget(cmbSort, 1, 1);
  head->addWidget(label_for(cmbCat, QStringLiteral("&Withdrawl From")), 1, 3);
  head->addWidget(cmbCat, 1, 4);
  head->setColumnStretch(2, 1);
  auto* foot = row_layout();
  foot->addWidget(lblSelected, 1);
  foot->addWidget(label_for(txtPart, QStringLiteral("&Pay only $")));
  foot->addWidget(txtPart);
  foot->addLayout(button_row({}, {SSDBCommand1, cmdOk}));
  auto* column = column_layout(this);
  column->addLayout(head);
  column->addWidget(grdBills, 1);
  column->addLayout(foot);
  setMinimumSize(84 * theme::unit, 48 * theme::unit);
}

void frmPayBills::load() {
  fill_categories();
  Load_List();
}

void frmPayBills::on_changed(const std::string& table) {
  if (table == "Accounts") fill_categories();
  if (table == "Transactions") Load_List();
}

PayBy frmPayBills::way() const { return static_cast<PayBy>(optPayBy->checkedId()); }

void frmPayBills::fill_categories() {
  std::vector<SSDBDropDown::Item> items;
  for (const PayingCategory& category : Paying_Categories(session, way()))
    items.push_back({category.AccountName, category.CatID});
  cmbCat->list().set_items(items);
}

void frmPayBills::optPayBy_Click() {
  fill_categories();
  cmbCat->set_text("");
  lblBankID->clear();
}

/// What is unpaid, in the order chosen; what was selected stays so.
void frmPayBills::Load_List() {
  std::set<int64_t> chosen;
  for (const UnpaidBill& bill : read().bills) chosen.insert(bill.RefNum);
  std::vector<int> rows;
  {
    const SSDBGrid::Fill fill(*grdBills);
    grdBills->RemoveAll();
    bills_ = Unpaid_Bills(session, static_cast<BillOrder>(std::max(0, cmbSort->row())));
    for (const UnpaidBill& bill : bills_) {
      if (chosen.contains(bill.RefNum)) rows.push_back(grdBills->rows());
      grdBills->AddValues({bill.DueDate, bill.Vendor, bill.AmountDue, bill.Number, part_of(bill), bill.RefNum});
    }
  }
  grdBills->select_rows(rows);
  show_selected();
}

BillPayment frmPayBills::read() const {
  BillPayment payment{.PayDate = dtePayDate->value(), .way = way(), .CatID = cmbCat->id(), .parts = parts_};
  for (const int row : grdBills->selected_rows()) payment.bills.push_back(bills_[static_cast<size_t>(row)]);
  return payment;
}

void frmPayBills::show_selected() {
  const BillPayment payment = read();
  const size_t count = payment.bills.size();
  const QString many = count == 1 ? QStringLiteral("1 bill") : QStringLiteral("%1 bills").arg(count);
  lblSelected->setText(many + QStringLiteral(" selected, ") + qt(Dollar_Text(payment.total())));
  txtPart->setEnabled(count == 1);
  txtPart->set_amount(count == 1 ? part_of(payment.bills.front()) : std::nullopt);
}

std::optional<Money> frmPayBills::part_of(const UnpaidBill& bill) const {
  const auto part = parts_.find(bill.RefNum);
  return part == parts_.end() ? std::nullopt : std::optional(part->second);
}

/// The selected bill is paid in part; empty, or as much as is due: whole.
void frmPayBills::txtPart_LostFocus() {
  const auto rows = grdBills->selected_rows();
  if (rows.size() != 1) return;
  const UnpaidBill& bill = bills_[static_cast<size_t>(rows.front())];
  const auto part = txtPart->amount();
  if (part && *part != bill.AmountDue)
    parts_[bill.RefNum] = *part;
  else
    parts_.erase(bill.RefNum);
  grdBills->set_value(rows.front(), column::Payment, part_of(bill));
  show_selected();
}

bool frmPayBills::enter() {
  const Hourglass hourglass(session.prompts);
  txtPart_LostFocus();
  const SaveResult result = Pay_Bills(session, read());
  if (result.written) session.prompts.sound(stapler);
  const bool paid = conclude(result);
  if (result.fault && result.fault->control == "cmbCat") cmbCat->showPopup();
  return paid;
}

}  // namespace tallymere
