#include "payroll/items/frmModPayItem.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QStackedWidget>

#include "core/ledger/tree_list.h"
#include "core/values/text.h"
#include "payroll/items/pay_item_ticks.h"
#include "payroll/states.h"
#include "shell/drop_downs.h"
#include "shell/widgets/control_text.h"
#include "shell/widgets/grid/SSDBCombo.h"
#include "shell/widgets/grid/SSDBGrid.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

using Is = PayItemField::Is;

namespace column {
enum { Selected, Name, Key };
}

constexpr std::pair<ItemType, const char*> frames[] = {{ItemType::Wage, "fraWage"},
                                                       {ItemType::Commision, "fraCommision"},
                                                       {ItemType::Addition, "fraAddition"},
                                                       {ItemType::Deduction, "fraDeduction"},
                                                       {ItemType::CompanyContribution, "fraCompany"},
                                                       {ItemType::FederalTax, "fraFederal"},
                                                       {ItemType::StateTax, "fraState"},
                                                       {ItemType::OtherTax, "fraOther"},
                                                       {ItemType::Other, "fraBlank"}};

bool is_category(const PayItemField& field) { return field.is == Is::Expense || field.is == Is::Liability; }

const char* control_name(const PayItemField& field) { return field.control.data(); }  // of a literal

}  // namespace

// --- controls ------------------------------------------------------------------------------------

frmModPayItem::frmModPayItem(Shell& shell_of_frame)
    : RowForm(shell_of_frame, "frmModPayItem", PayItem_Rows, {"New Payroll Item", "Edit Item"}),
      lists_(new DropDowns(session, this)),
      expenses_(new SSDBDropDown(this)),
      liabilities_(new SSDBDropDown(this)) {
  lists_->Vendors();
  build();
  connect_controls();
}

void frmModPayItem::build() {
  txtName = named("txtName", new QLineEdit);
  cmbType = named("cmbType", new SSDBCombo);
  cmbType->set_list_only(true);
  fraItem = named("fraItem", new QStackedWidget);
  for (const auto& [type, name] : frames) {
    if (type != ItemType::Other) cmbType->AddItem(std::string(Text_Of(type)));
    fraItem->addWidget(frames_[type] = build_frame(type, name));
  }
  auto* head = row_layout();
  head->addWidget(label_for(txtName, QStringLiteral("&Name:")));
  head->addWidget(txtName, 3);
  head->addSpacing(theme::gap);
  head->addWidget(label_for(cmbType, QStringLiteral("&Type:")));
  head->addWidget(cmbType, 2);
  auto* column = column_layout(this);
  column->addLayout(head);
  column->addSpacing(theme::gap);
  column->addWidget(fraItem, 1);
  column->addLayout(button_row({}, {cmdCancel, cmdOk}));
  setMinimumWidth(108 * theme::unit);
}

QWidget* frmModPayItem::build_frame(ItemType type, const char* name) {
  auto* frame = named(name, new QWidget);
  auto* sides = new QHBoxLayout(frame);
  sides->setContentsMargins(0, 0, 0, 0);
  sides->setSpacing(theme::margin);
  forms_[type] = form_layout();
  for (const PayItemField& field : PayItem_Fields())
    if (field.type == type) add_control(forms_[type], field);
  sides->addLayout(forms_[type], 3);
  if (Tick_Grids_Of(type).empty()) return frame;
  auto* right = column_layout();
  for (const TickGrid& ticks : Tick_Grids_Of(type)) {
    auto* grid = named(ticks.control_new.data(), new SSDBGrid);
    grid->set_columns({{.kind = Kind::check, .width = 4},
                       {.name = QStringLiteral("Name"), .locked = true},
                       {.name = QStringLiteral("Key"), .kind = Kind::hidden}});
    grid->set_read_only(false);
    grid->setMinimumHeight(14 * theme::unit);
    grid->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    auto* caption = label_for(grid, QLatin1String(ticks.caption.data()));
    caption->setWordWrap(true);
    caption->setAlignment(Qt::AlignLeft);
    right->addWidget(caption);
    right->addWidget(grid, 1);
    grids_[type].push_back(grid);
  }
  sides->addLayout(right, 2);
  return frame;
}

void frmModPayItem::add_control(QFormLayout* fields, const PayItemField& field) {
  QWidget* control = make_control(field);
  if (field.is == Is::Tick) return fields->addRow(QString(), control);
  auto* label = label_for(control, QLatin1String(field.label.data()));
  if (!field.label_control.empty()) label->setObjectName(QLatin1String(field.label_control.data()));
  fields->addRow(label, control);
}

QWidget* frmModPayItem::make_control(const PayItemField& field) {
  switch (field.is) {
    case Is::Text:
    case Is::Rate:
    case Is::Limit:
    case Is::Fraction:
      return named(control_name(field), new QLineEdit);
    case Is::Tick:
      return named(control_name(field), new QCheckBox(QLatin1String(field.label.data())));
    case Is::Options:
      return make_options(field);
    default:
      return make_combo(field);
  }
}

SSDBCombo* frmModPayItem::make_combo(const PayItemField& field) {
  auto* combo = named(control_name(field), new SSDBCombo);
  if (is_category(field)) combo->set_list_only(true);
  if (field.is == Is::Expense) combo->set_list(expenses_);
  if (field.is == Is::Liability) combo->set_list(liabilities_);
  if (field.is == Is::Agency) combo->set_list(lists_->Vendors());
  if (field.is == Is::Tracking)
    session.dbAccounts->each("SELECT Type FROM TaxTracking ORDER BY RowKey", {},
                             [combo](const store::Row& row) { combo->AddItem(std::string(row.text(0))); });
  if (field.is == Is::FedRates)
    session.dbAccounts->each("SELECT Rate FROM FedUnRates ORDER BY RowKey", {},
                             [combo](const store::Row& row) { combo->AddItem(store::Value(row.number(0)).text()); });
  if (field.is == Is::State) {
    combo->set_list_only(true);
    combo->set_columns({{}, {}});
    for (const UsState& state : us_states) combo->AddItem(std::string(state.letters) + "\t" + std::string(state.name));
  }
  return combo;
}

QWidget* frmModPayItem::make_options(const PayItemField& field) {
  auto* group = named(control_name(field), new QButtonGroup(this));
  auto* box = new QWidget;
  auto* row = new QHBoxLayout(box);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(theme::gap);
  for (const PayItemOption& option : PayItem_Options()) {
    if (option.control != field.control) continue;
    const auto id = group->buttons().size();
    const std::string name = std::string(field.control) + "_" + std::to_string(id);
    auto* button = named(name.c_str(), new QRadioButton(QLatin1String(option.caption.data())));
    group->addButton(button, static_cast<int>(id));
    row->addWidget(button);
  }
  row->addStretch(1);
  return box;
}

void frmModPayItem::connect_controls() {
  connect_choice("cmbType", "cmbType_Click", &frmModPayItem::cmbType_Click);
  connect_choice("cmbSState", "cmbSState_Click", &frmModPayItem::cmbSState_Click);
  connect_choice("cmbAddType", "cmbAddType_Click", &frmModPayItem::Tracking_Click);
  connect_choice("cmbDeducType", "cmbDeducType_Click", &frmModPayItem::Tracking_Click);
  on(&static_cast<QButtonGroup&>(Control_Of(*this, "optStateTax")), &QButtonGroup::idClicked, "optStateTax_Click",
     [this] { optStateTax_Click(); });
}

/// Runs a combo's rule once for each text that was picked, or typed and left.
void frmModPayItem::connect_choice(const char* name, const char* procedure, void (frmModPayItem::*handler)()) {
  auto* combo = &static_cast<SSDBCombo&>(Control_Of(*this, name));
  const auto choose = [this, combo, name, handler] {
    if (chosen_[name] == combo->text()) return;
    chosen_[name] = combo->text();
    (this->*handler)();
  };
  on(combo, &SSDBCombo::Click, procedure, choose);
  on(combo, &SSDBCombo::LostFocus, procedure, choose);
}

// --- showing -------------------------------------------------------------------------------------

void frmModPayItem::on_changed(const std::string& table) {
  lists_->changed(table);
  if (table == "Accounts") fill_categories();
}

void frmModPayItem::show_row() {
  lists_->changed("Vendors");
  form_ = is_new() ? PayItemForm() : Pay_Item_Form(session, row());
  txtName->setText(qt(form_.Name));
  txtName->setEnabled(is_new());
  cmbType->set_text(form_.Type);
  cmbType->setEnabled(is_new());
  show_frame();
  is_new() ? go_to(txtName) : go_to_first_field();
}

void frmModPayItem::go_to_first_field() {
  for (const PayItemField& field : PayItem_Fields()) {
    if (field.type != form_.type()) continue;
    QObject& first = Control_Of(*this, field.control);
    if (auto* group = qobject_cast<QButtonGroup*>(&first)) return group->buttons().front()->setFocus();
    return go_to(static_cast<QWidget*>(&first));
  }
}

void frmModPayItem::fill_categories() {
  for (const auto& [list, type, field] : {std::tuple(expenses_, "Expense", "ExpenseAcct"),
                                          std::tuple(liabilities_, "Current Liability", "LiabilityAcct")}) {
    std::vector<SSDBDropDown::Item> items;
    for (const CategoryRow& row : Pay_Item_Categories(session, type, form_.at(field)))
      items.push_back({Indented(row.AccountName, row.level), row.CatID});
    list->set_items(items);
  }
}

void frmModPayItem::show_frame() {
  const ItemType type = form_.type();
  fill_categories();
  for (const PayItemField& field : PayItem_Fields())
    if (field.type == type) show_field(field);
  show_ticks();
  show_useful();
  fraItem->setCurrentWidget(frames_.at(type));
  for (auto& [name, text] : chosen_) text = static_cast<SSDBCombo&>(Control_Of(*this, name)).text();
}

void frmModPayItem::show_field(const PayItemField& field) {
  QObject& control = Control_Of(*this, field.control);
  const std::string& text = form_.at(field.field);
  if (is_category(field)) {
    static_cast<SSDBCombo&>(control).set_id(text);
  } else if (field.is == Is::Options) {
    auto& group = static_cast<QButtonGroup&>(control);
    int id = 0;
    group.setExclusive(false);  // a text that is none of them ticks none of them
    for (const PayItemOption& option : PayItem_Options())
      if (option.control == field.control) group.button(id++)->setChecked(option.stored == text);
    group.setExclusive(true);
  } else {
    Show_Text(control, text);
  }
}

/// The grids are called after what they show: the ticks a new item is offered, or those of an item.
void frmModPayItem::show_ticks() {
  const auto ticks = Tick_Grids_Of(form_.type());
  for (size_t at = 0; at < ticks.size(); ++at) {
    SSDBGrid& grid = *grids_.at(form_.type())[at];
    grid.setObjectName(QLatin1String((is_new() ? ticks[at].control_new : ticks[at].control_edit).data()));
    const SSDBGrid::Fill fill(grid);
    grid.RemoveAll();
    for (const TickRow& row : form_.ticks[at]) grid.AddValues({row.selected, row.name, std::to_string(row.key)});
  }
}

void frmModPayItem::show_useful() {
  const PayItemForm form = read();
  for (const PayItemField& field : PayItem_Fields())
    if (field.type == form.type() && field.is != Is::Options)
      forms_.at(field.type)
          ->setRowVisible(static_cast<QWidget*>(&Control_Of(*this, field.control)), Has_Use_For(form, field.field));
}

// --- what the controls do ------------------------------------------------------------------------

void frmModPayItem::cmbType_Click() {
  if (Item_Type_Of(cmbType->text()) == ItemType::FederalTax) {
    session.prompts.box({"Cannot Change Item to Federal Tax", "No Change", Icon::Critical});
    cmbType->set_text(form_.Type);
    chosen_["cmbType"] = form_.Type;
    return;
  }
  form_ = New_Pay_Item(session, cmbType->text());
  show_frame();
}

void frmModPayItem::cmbSState_Click() {
  if (!is_new()) return;
  form_ = read();
  Prefill_Unemployment(form_);
  show_frame();
}

/// A withholding has no rate, limit, credit or expense of its own.
void frmModPayItem::optStateTax_Click() {
  form_ = read();
  for (auto& [field, text] : form_.fields)
    if (!Has_Use_For(form_, field)) text = field == "FUTACredit" ? "0" : "";
  if (is_new()) Prefill_Unemployment(form_);
  show_frame();
}

void frmModPayItem::Tracking_Click() {
  form_ = read();
  Tick_By_Tracking_Type(session, form_);
  show_ticks();
}

// --- saving --------------------------------------------------------------------------------------

std::string frmModPayItem::saved_key() const { return trim(utf8(txtName->text())); }

std::string frmModPayItem::read_field(const PayItemField& field) const {
  QObject& control = Control_Of(*this, field.control);
  if (is_category(field)) return static_cast<SSDBCombo&>(control).id();
  if (field.is != Is::Options) return Text_In(control);
  int id = static_cast<QButtonGroup&>(control).checkedId();
  for (const PayItemOption& option : PayItem_Options())
    if (option.control == field.control && id-- == 0) return std::string(option.stored);
  return form_.at(field.field);
}

PayItemForm frmModPayItem::read() const {
  PayItemForm form = form_;
  form.Name = utf8(txtName->text());
  const ItemType type = form.type();
  for (const PayItemField& field : PayItem_Fields())
    if (field.type == type) form.fields[std::string(field.field)] = read_field(field);
  for (size_t at = 0; at < form.ticks.size(); ++at) {
    const SSDBGrid& grid = *grids_.at(type)[at];
    for (int row = 0; row < grid.rows(); ++row)
      form.ticks[at][static_cast<size_t>(row)].selected = grid.checked(row, column::Selected);
  }
  return form;
}

RowSave frmModPayItem::save_row() {
  for (const auto& [type, grids] : grids_)
    for (SSDBGrid* grid : grids) grid->commit();
  return Save_Pay_Item(session, row(), read());
}

}  // namespace tallymere
