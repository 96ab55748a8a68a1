#include "entry/stock/frmInvAdjust.h"

#include <QLabel>
#include <QPushButton>

#include "core/values/format.h"
#include "shell/drop_downs.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/grid/SSDBCombo.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

namespace column {
enum { Item, Description, Current, New, Difference, Price, InvAsset };
}

}  // namespace

frmInvAdjust::frmInvAdjust(Shell& shell_of_frame)
    : EntryForm(shell_of_frame, "frmInvAdjust"), lists_(new DropDowns(session, this)) {
  setWindowTitle(QStringLiteral("Adjust Quantity in Stock"));
  build();
  const auto chosen = [this] { lblCatID->setText(qt(cmbCat->id())); };
  on(cmbCat, &SSDBCombo::Click, "cmbCat_Click", chosen);
  on(cmbCat, &SSDBCombo::LostFocus, "cmbCat_LostFocus", chosen);
  on(grdInventory, &SSDBGrid::AfterColUpdate, "grdInventory_AfterColUpdate", [this](int row) { New_Qty_Changed(row); });
}

void frmInvAdjust::build() {
  DTPicker1 = named("DTPicker1", new QuillbrookDatePick);
  DTPicker1->set_value(session.today());
  cmbCat = named("cmbCat", new SSDBCombo);
  cmbCat->set_list(lists_->drpExpenseList);
  cmbCat->setMinimumContentsLength(24);
  lblCatID = named("lblCatID", new QLabel(this));
  lblCatID->hide();
  lblValue = named("lblValue", new QLabel);
  lblValue->setFont(theme::tabular(lblValue->font()));
  grdInventory = named("grdInventory", new SSDBGrid);
  const auto quantity = [](const char* caption, bool locked) {
    return GridColumn{.name = QString::fromLatin1(caption), .kind = Kind::number, .width = 14, .locked = locked};
  };
  grdInventory->set_columns(
      {{.name = QStringLiteral("Item"), .locked = true},
       {.name = QStringLiteral("Description"), .locked = true},
       quantity("Current Quantity", true),
       quantity("New Qty", false),
       quantity("Difference", true),
       {.name = QStringLiteral("Price"), .kind = Kind::money, .width = 12, .locked = true, .mask = "#,##0.00##"},
       {.name = QStringLiteral("InvAsset"), .kind = Kind::hidden}});
  grdInventory->setAccessibleName(QStringLiteral("Parts in stock"));
  grdInventory->set_read_only(false);
  grdInventory->set_empty_hint(QStringLiteral("No item is an inventory part."));
  Take_Only_Amounts(shell, *grdInventory);
  cmdCancel = cancel_button();

  auto* head = row_layout();
  head->addWidget(label_for(DTPicker1, QStringLiteral("&Date:")));
  head->addWidget(DTPicker1);
  head->addSpacing(2 * theme::gap);
  head->addWidget(label_for(cmbCat, QStringLiteral("&Adjustment Category:")));
  head->addWidget(cmbCat);
  head->addStretch(1);
  head->addWidget(new QLabel(QStringLiteral("Adjustment Value:")));
  head->addWidget(lblValue);
  auto* column = column_layout(this);
  column->addLayout(head);
  column->addWidget(grdInventory, 1);
  column->addLayout(button_row({}, {cmdCancel, cmdOk}));
  setMinimumSize(96 * theme::unit, 48 * theme::unit);
}

void frmInvAdjust::load() {
  lists_->fill();
  show_parts(Stock_Counts(session));
  keep();
}

/// Stock that moves while the list is open shows as it is; what was counted stays.
void frmInvAdjust::on_changed(const std::string& table) {
  lists_->changed(table);
  if (table != "Transactions" && table != "Items") return;
  const bool touched = changed();
  load_again();
  if (!touched) keep();
}

void frmInvAdjust::load_again() {
  Adjustment now = read();
  Read_Stock_Again(session, now);
  show_parts(now.parts);
}

void frmInvAdjust::show_parts(const std::vector<StockCount>& parts) {
  const int row = grdInventory->Row();
  parts_ = parts;
  {
    const SSDBGrid::Fill fill(*grdInventory);
    grdInventory->RemoveAll();
    for (const StockCount& part : parts_)
      grdInventory->AddValues(
          {part.Item, part.Description, part.Current, part.New, part.Difference(), part.Price, part.InvAsset});
  }
  grdInventory->set_cell(row < 0 ? 0 : row, column::New);
  show_value();
}

Adjustment frmInvAdjust::read() const {
  Adjustment adjustment{.Date = DTPicker1->value(), .CatID = cmbCat->id(), .parts = parts_};
  for (int row = 0; row < grdInventory->rows(); ++row)
    adjustment.parts[static_cast<size_t>(row)].New = Number_At(*grdInventory, row, column::New);
  return adjustment;
}

void frmInvAdjust::New_Qty_Changed(int row) {
  StockCount& part = parts_[static_cast<size_t>(row)];
  part.New = Number_At(*grdInventory, row, column::New);
  grdInventory->set_value(row, column::Difference, part.Difference());
  show_value();
}

void frmInvAdjust::show_value() { lblValue->setText(qt(Format(read().Value(), "$0.00"))); }

bool frmInvAdjust::enter() {
  grdInventory->commit();
  const SaveResult result = Enter_Adjustment(session, read());
  const bool entered = conclude(result);
  if (result.fault) cmbCat->showPopup();
  return entered;
}

}  // namespace tallymere
