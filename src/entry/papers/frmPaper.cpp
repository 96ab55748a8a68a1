#include "entry/papers/frmPaper.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/ledger/tree_list.h"
#include "core/values/format.h"
#include "core/values/text.h"
#include "shell/drop_downs.h"
#include "shell/widgets/AddressEdit.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/ScrollRoom.h"
#include "shell/widgets/grid/SSDBCombo.h"
#include "shell/widgets/paper.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

enum { Item, Description, Qty, Rate, Amount };

QLabel* label(const char* text, QWidget* control) { return label_for(control, QString::fromLatin1(text)); }

}  // namespace

frmPaper::frmPaper(Shell& shell_of_frame, PaperKind kind)
    : WalkForm(shell_of_frame, Table_Of(kind).window),
      table_(Table_Of(kind)),
      paper_{.Date = session.today()},
      lists_(new DropDowns(session, this)) {
  setWindowTitle(QString::fromLatin1(table_.caption));
  build_fields();
  build_lines();
  build();
  on(cmbVendor, &SSDBCombo::CloseUp, "cmbVendor_CloseUp", [this] { cmbVendor_CloseUp(); });
  on(grdPOItems, &SSDBGrid::AfterColUpdate, "grdPOItems_AfterColUpdate",
     [this](int row, int column) { line_updated(row, column); });
  on(grdPOItems, &SSDBGrid::AfterDelete, "grdPOItems_AfterDelete", [this] { PO_Total(); });
  on(cmdPrint, "cmdPrint_Click", [this] { cmdPrint_Click(); });
}

// --- the screen ----------------------------------------------------------------------------------

void frmPaper::build_fields() {
  cmbVendor = named("cmbVendor", new SSDBCombo);
  txtAddress = named("txtAddress", new AddressEdit);
  DTPicker1 = named("DTPicker1", new QuillbrookDatePick);
  txtPONum = named("txtPONum", new QLineEdit);
  txtMemo = named("txtMemo", new QLineEdit);
  txtIndex = named("txtIndex", new QLineEdit(this));
  txtIndex->setFocusPolicy(Qt::NoFocus);
  txtIndex->hide();
  lblTotal = named("lblTotal", new QLabel);
  QFont figures = theme::tabular(lblTotal->font());
  figures.setBold(true);
  lblTotal->setFont(figures);
  cmdCancel = cancel_button();
  cmdPrint = leads_to(named("cmdPrint", new QPushButton(QStringLiteral("&Print Preview"))), table_.print);
}

void frmPaper::build_lines() {
  drpItems = new SSDBDropDown(this);
  drpItems->set_columns({{.name = QStringLiteral("ItemName")},
                         {.name = QStringLiteral("Description"), .width = 30},
                         {.name = QStringLiteral("PriceRate"), .money = true}});
  grdPOItems = line_grid("grdPOItems",
                         {{.name = QStringLiteral("Item"), .list = drpItems},
                          {.name = QStringLiteral("Description")},
                          {.name = QStringLiteral("Qty"), .kind = Kind::number, .width = 10},
                          {.name = QStringLiteral("Rate"), .kind = Kind::money, .width = 12},
                          {.name = QStringLiteral("Amount"), .kind = Kind::money, .width = 15}},
                         QStringLiteral("Choose the first item."));
  grdPOItems->setAccessibleName(QStringLiteral("Lines"));
}

void frmPaper::build() {
  auto* head = new Paper;
  auto* grid = new QGridLayout(head);
  grid->setContentsMargins(2 * theme::margin, theme::margin, 2 * theme::margin, theme::margin);
  grid->setSpacing(theme::gap);
  grid->addWidget(label(table_.party_label, cmbVendor), 0, 0);
  grid->addWidget(cmbVendor, 0, 1);
  QLabel* address = label("Addre&ss:", txtAddress);
  address->setAlignment(Qt::AlignRight | Qt::AlignTop);
  grid->addWidget(address, 1, 0, 2, 1);
  grid->addWidget(txtAddress, 1, 1, 2, 1);
  grid->addWidget(label("D&ate:", DTPicker1), 0, 3);
  grid->addWidget(DTPicker1, 0, 4);
  grid->addWidget(label(table_.number_label, txtPONum), 1, 3);
  grid->addWidget(txtPONum, 1, 4, Qt::AlignTop);
  grid->addWidget(label("&Memo:", txtMemo), 3, 0);
  grid->addWidget(txtMemo, 3, 1);
  grid->setColumnStretch(1, 1);
  grid->setColumnMinimumWidth(2, theme::margin);
  grid->setColumnMinimumWidth(4, 18 * theme::unit);
  auto* total = row_layout();
  total->addStretch(1);
  total->addWidget(new QLabel(QStringLiteral("Total")));
  total->addWidget(lblTotal);
  auto* sheet = column_layout();
  sheet->addWidget(head);
  sheet->addWidget(grdPOItems, 1);
  sheet->addLayout(total);
  auto* column = column_layout(this);
  column->addWidget(new ScrollRoom(sheet), 1);
  column->addLayout(button_row({cmdPrint, cmdCancel}, {cmdPrev, cmdNext, cmdSaveNew, cmdOk}));
  QWidget* const order[] = {cmbVendor,  txtAddress, DTPicker1, txtPONum, txtMemo,  grdPOItems,
                            cmdSaveNew, cmdOk,      cmdPrev,   cmdNext,  cmdPrint, cmdCancel};
  for (size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
  setMinimumWidth(80 * theme::unit);
}

void frmPaper::fill_items() {
  std::vector<SSDBDropDown::Item> items;
  for (const PaperItem& item : Paper_Items(session, table_.kind))
    items.push_back(
        {Indented(item.ItemName, item.level) + "\t" + item.Description + "\t" + Format(item.PriceRate, price_mask),
         {}});
  drpItems->set_items(items);
}

void frmPaper::load() {
  cmbVendor->set_list(table_.kind == PaperKind::PO ? lists_->Vendors() : lists_->Customers());
  lists_->changed(table_.parties);
  fill_items();
  show(New_Paper(session, table_.kind));
}

/// `number`: the Index to show.
void frmPaper::take(const Request& request) {
  if (request.number == 0 || !let_go()) return;
  auto asked = Load_Paper(session, table_.kind, request.number);
  asked ? show(std::move(*asked)) : shell.say("There is no such " + std::string(table_.word) + " any more.");
}

void frmPaper::on_changed(const std::string& table) {
  lists_->changed(table);
  if (table == "Items") fill_items();
}

// --- document to screen and back -----------------------------------------------------------------

void frmPaper::show(PaperDocument paper) {
  paper_ = std::move(paper);
  txtIndex->setText(QString::number(paper_.Index));
  cmbVendor->set_text(paper_.Party);
  txtAddress->set_text(paper_.Address);
  DTPicker1->set_value(paper_.Date);
  txtPONum->setText(qt(paper_.Number));
  txtMemo->setText(qt(paper_.Memo));
  grdPOItems->RemoveAll();
  for (const PaperLine& line : paper_.lines) set_line(grdPOItems->rows(), line);
  grdPOItems->set_cell(0, Item);
  PO_Total();
  keep();
  cmbVendor->setFocus();
}

PaperDocument frmPaper::read() const {
  PaperDocument paper = paper_;
  paper.Party = trim(cmbVendor->text());
  paper.Address = txtAddress->text();
  paper.Date = DTPicker1->value();
  paper.Number = utf8(txtPONum->text());
  paper.Memo = utf8(txtMemo->text());
  paper.lines.clear();
  for (int row = 0; row < grdPOItems->rows(); ++row) paper.lines.push_back(read_line(row));
  std::erase_if(paper.lines, [](const PaperLine& line) { return line.blank(); });
  return paper;
}

PaperLine frmPaper::read_line(int row) const {
  return {.Item = grdPOItems->text(row, Item),
          .Description = grdPOItems->text(row, Description),
          .Qty = Number_At(*grdPOItems, row, Qty),
          .Rate = Money_At(*grdPOItems, row, Rate),
          .Amount = Money_At(*grdPOItems, row, Amount)};
}

void frmPaper::set_line(int row, const PaperLine& line) {
  if (row >= grdPOItems->rows()) grdPOItems->AddItem("");
  const store::Value values[] = {line.Item, line.Description, line.Qty, line.Rate, line.Amount};
  for (int column = Item; column <= Amount; ++column) grdPOItems->set_value(row, column, values[column]);
}

void frmPaper::PO_Total() { lblTotal->setText(qt(Dollar_Text(read().total()))); }

// --- filling in ----------------------------------------------------------------------------------

void frmPaper::cmbVendor_CloseUp() {
  if (const auto address = Party_Address(session, table_.kind, cmbVendor->text())) txtAddress->set_text(*address);
}

void frmPaper::line_updated(int row, int column) {
  PaperLine line = read_line(row);
  if (column == Item && !line.Item.empty() && grdPOItems->Valid()) line = Paper_Line(session, table_.kind, line.Item);
  if (column == Qty || column == Rate) Reckon(line);
  set_line(row, line);
  PO_Total();
}

// --- saving and walking --------------------------------------------------------------------------

/// What was only looked at is not written again.
bool frmPaper::enter() {
  grdPOItems->commit();
  PaperDocument paper = read();
  if (paper.says_the_same(paper_)) return true;
  SaveResult result = Enter_PO(session, table_.kind, paper);
  if (result.written) {
    paper_ = std::move(paper);
    txtIndex->setText(QString::number(paper_.Index));
    txtPONum->setText(qt(paper_.Number));
    shell.changed(table_.header);
    result.written = false;  // no transaction was
  }
  return conclude(result);
}

void frmPaper::load_again() {
  auto paper = Load_Paper(session, table_.kind, paper_.Index);
  show(paper ? std::move(*paper) : New_Paper(session, table_.kind));
}

void frmPaper::step(bool forward) {
  auto beside = Paper_Beside(session, table_.kind, paper_.Index, forward);
  if (beside) return show(std::move(*beside));
  session.prompts.box({table_.at_first, "NO PO", Icon::Information});
}

void frmPaper::show_new() { show(New_Paper(session, table_.kind)); }

void frmPaper::cmdPrint_Click() {
  if (save() && !paper_.is_new())
    shell.Show_Window(
        {.window = table_.print, .key = table_.kind == PaperKind::Estimate ? "Estimate" : "", .number = paper_.Index});
}

}  // namespace tallymere
