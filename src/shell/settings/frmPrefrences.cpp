#include "shell/settings/frmPrefrences.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>

#include "core/company/logo.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/grid/SSDBCombo.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

/// The States of each group of options, in the order of its buttons.
constexpr std::array<const char*, 4> print_styles = {"BlankBox", "PrePrinted", "BlankNoBox", "Letterhead"};
constexpr std::array<const char*, 2> feeds = {"Single Sheet", "Continuous Sheets"};
constexpr std::array<const char*, 2> check_styles = {"Original", "Custom"};
constexpr std::array<const char*, 2> tax_bases = {"Cash", "Accural"};
constexpr std::array<const char*, 2> postings = {"Plain", "Balanced"};

template <size_t count>
void show_option(QButtonGroup& group, const std::array<const char*, count>& States, const std::string& State) {
  for (size_t at = 0; at < count; ++at)
    if (State == States[at]) group.button(static_cast<int>(at))->setChecked(true);
}

/// What is chosen; nothing is chosen where a State of another version stands, and so that stays.
template <size_t count>
std::string option_of(const QButtonGroup& group, const std::array<const char*, count>& States,
                      const std::string& kept) {
  return group.checkedId() < 0 ? kept : States[static_cast<size_t>(group.checkedId())];
}

void show_choice(QComboBox& box, const std::string& State) {
  box.setCurrentIndex(box.findText(qt(State), Qt::MatchFixedString));
}

std::string choice_of(const QComboBox& box, const std::string& kept) {
  return box.currentIndex() < 0 ? kept : utf8(box.currentText());
}

}  // namespace

// --- controls ------------------------------------------------------------------------------------

frmPrefrences::frmPrefrences(Shell& shell_of_frame) : Form(shell_of_frame, "frmPrefrences", Place::Above) {
  setWindowTitle(QStringLiteral("Prefrences"));
  build();
  on(imgSettings, &QComboBox::currentIndexChanged, "imgSettings_Click",
     [this](int page) { pages_->setCurrentIndex(page); });
  on(SSDBCommand1, "SSDBCommand1_AfterClick", [this] { SSDBCommand1_AfterClick(); });
  on(cmdApply, "cmdApply_AfterClick", [this] { cmdApply_AfterClick(); });
  on(cmdClose, "cmdClose_AfterClick", [this] {
    if (cmdApply_AfterClick()) finish(true);
  });
  on(cmdCancel, "cmdCancel_AfterClick", [this] { finish(false); });
}

void frmPrefrences::build() {
  imgSettings = named("imgSettings", new QComboBox);
  pages_ = new QStackedWidget;
  build_pages();
  cmdApply = named("cmdApply", new QPushButton(QStringLiteral("&Apply")));
  cmdClose = named("cmdClose", new QPushButton(QStringLiteral("&Close")));
  cmdCancel = named("cmdCancel", new QPushButton(QStringLiteral("&Cancel")));
  auto* head = form_layout();
  add_field(head, QStringLiteral("&Settings:"), imgSettings);
  auto* column = column_layout(this);
  column->addLayout(head);
  column->addWidget(pages_, 1);
  column->addLayout(button_row({}, {cmdApply, cmdCancel, cmdClose}));
  setMinimumWidth(72 * theme::unit);
}

QFormLayout* frmPrefrences::add_page(const char* name) {
  imgSettings->addItem(QLatin1String(name));
  auto* page = new QGroupBox(QLatin1String(name));
  auto* fields = form_layout();
  page->setLayout(fields);
  pages_->addWidget(page);
  return fields;
}

QButtonGroup* frmPrefrences::options(QFormLayout* page, const char* name, const char* label,
                                     std::initializer_list<const char*> captions) {
  auto* group = new QButtonGroup(this);
  group->setObjectName(QLatin1String(name));
  bool first = true;
  for (const char* caption : captions) {
    const int id = static_cast<int>(group->buttons().size());
    auto* button = named((name + ("_" + std::to_string(id))).c_str(), new QRadioButton(QLatin1String(caption)));
    group->addButton(button, id);
    page->addRow(first ? QLatin1String(label) : QString(), button);
    first = false;
  }
  return group;
}

void frmPrefrences::build_pages() {
  const auto choice = [this](const char* name, std::initializer_list<const char*> rows) {
    auto* box = named(name, new QComboBox);
    for (const char* row : rows) box->addItem(QLatin1String(row));
    return box;
  };
  const auto hidden = [this](const char* name) {
    auto* label = named(name, new QLabel(this));
    label->hide();
    return label;
  };
  QFormLayout* page = add_page("Shortcut Bar");
  chkToolBar = named("chkToolBar", new QCheckBox(QStringLiteral("&Display Short Cut Bar?")));
  page->addRow(chkToolBar);
  build_invoices(add_page("Invoices"));

  page = add_page("Checks");
  cmbBank = named("cmbBank", new SSDBCombo);
  lblBank = hidden("lblBank");
  add_field(page, QStringLiteral("Default &Bank Account:"), cmbBank);
  optFeed = options(page, "optFeed", "Print Feed", {"Single Sheet", "Continuous Sheets"});
  optStyle = options(page, "optStyle", "Check Print Style", {"Original", "Custom"});

  page = add_page("Finance Charges");
  txtAPR = named("txtAPR", new QLineEdit);
  cmbFinanceCat = named("cmbFinanceCat", new SSDBCombo);
  lblFinCatID = hidden("lblFinCatID");
  add_field(page, QStringLiteral("Annual Finance &Rate"), txtAPR);
  add_field(page, QStringLiteral("&Finance Income Category"), cmbFinanceCat);

  page = add_page("Sales Tax");
  optSalesBase = options(page, "optSalesBase", "Sales Tax Basis", {"Cash", "Accrual"});
  page = add_page("Items");
  cmbItemSort = choice("cmbItemSort", {"Name", "Type"});
  add_field(page, QStringLiteral("&Item List Sort By"), cmbItemSort);
  page = add_page("Payroll");
  optPosting = options(page, "optPosting", "Paychecks Post",
                       {"Plain: as companies of earlier versions do", "Balanced: debits always equal credits"});
  cmbFirstDay = choice("cmbFirstDay", {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"});
  add_field(page, QStringLiteral("&First Day of Pay Week"), cmbFirstDay);

  page = add_page("Closing Date");
  txtClosingDate = named("txtClosingDate", new QuillbrookDatePick);
  txtClosingDate->allow_blank(true);
  add_field(page, QStringLiteral("Books &Closed Up To:"), txtClosingDate);
  auto* meaning = new QLabel(
      QStringLiteral("Nothing dated on or before this day is entered, changed, deleted, imported or undone by anyone. "
                     "Leave it empty to open the books again."));
  meaning->setWordWrap(true);
  page->addRow(meaning);
}

void frmPrefrences::build_invoices(QFormLayout* page) {
  cmbInvoiceStyle = named("cmbInvoiceStyle", new QComboBox);
  cmbInvoiceStyle->addItems({QStringLiteral("Professional"), QStringLiteral("Product"), QStringLiteral("Service")});
  add_field(page, QStringLiteral("Default Invoice St&yle:"), cmbInvoiceStyle);
  optPrintInvoice = options(page, "optPrintInvoice",
                            "Invoice Print Style:", {"Blank /w Boxes", "PrePrinted", "Blank /wo Boxes", "Letterhead"});
  txtLogo = named("txtLogo", new QLineEdit);
  txtLogo->setReadOnly(true);
  SSDBCommand1 = named("SSDBCommand1", new QPushButton(QStringLiteral("&Browse")));
  auto* file = row_layout();
  file->addWidget(txtLogo, 1);
  file->addWidget(SSDBCommand1);
  page->addRow(label_for(txtLogo, QStringLiteral("Company &Logo:")), file);
  picLogo = named("picLogo", new QLabel);
  picLogo->setFixedHeight(10 * theme::unit);
  page->addRow(QString(), picLogo);
}

// --- showing -------------------------------------------------------------------------------------

void frmPrefrences::load() {
  fill_lists();
  before_ = Read_Preferences(session);
  show_form();
  imgSettings->setFocus();
}

void frmPrefrences::take(const Request& request) {
  if (const int page = imgSettings->findText(qt(request.key)); page >= 0) imgSettings->setCurrentIndex(page);
}

void frmPrefrences::on_changed(const std::string& table) {
  if (table == "Accounts") fill_lists();
}

void frmPrefrences::fill_lists() {
  const auto fill = [this](SSDBCombo& box, const char* AccountType) {
    std::vector<SSDBDropDown::Item> rows;
    session.dbCompany->each("SELECT AccountName, CatID FROM Accounts WHERE AccountType = ? ORDER BY AccountName",
                            {std::string(AccountType)}, [&](const store::Row& row) {
                              rows.push_back({std::string(row.text(0)), std::string(row.text(1))});
                            });
    box.list().set_items(rows);
  };
  fill(*cmbBank, "Bank");
  fill(*cmbFinanceCat, "Income");
}

void frmPrefrences::show_form() {
  chkToolBar->setChecked(before_.ToolBarVisible == "Yes");
  show_choice(*cmbInvoiceStyle, before_.InvoiceStyle);
  show_choice(*cmbFirstDay, before_.FirstDay);
  show_option(*optPosting, postings, before_.PayrollPosting.empty() ? postings[0] : before_.PayrollPosting);
  show_choice(*cmbItemSort, before_.ItemSort);
  show_option(*optPrintInvoice, print_styles, before_.PrintInvoice);
  show_option(*optFeed, feeds, before_.Feed);
  show_option(*optStyle, check_styles, before_.Style);
  show_option(*optSalesBase, tax_bases, before_.SalesBase);
  txtLogo->setText(qt(before_.LogoPath));
  cmbBank->set_id(before_.DefaultBank);
  lblBank->setText(qt(before_.DefaultBank));
  cmbFinanceCat->set_id(before_.FinanceCat);
  txtClosingDate->set_value(Date::from_iso(before_.ClosingDate));
  lblFinCatID->setText(qt(before_.FinanceCat));
  txtAPR->setText(qt(before_.FinanceAPR));
  show_logo();
}

void frmPrefrences::show_logo() {
  const std::string picture = logo_.value_or(Company_Logo(*session.dbCompany));
  QPixmap pixmap;
  pixmap.loadFromData(reinterpret_cast<const uchar*>(picture.data()), static_cast<uint>(picture.size()));
  if (pixmap.isNull()) return picLogo->setText(QStringLiteral("No logo."));
  picLogo->setPixmap(pixmap.scaled(32 * theme::unit, picLogo->height(), Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

// --- saving --------------------------------------------------------------------------------------

PreferenceForm frmPrefrences::read() const {
  PreferenceForm form = before_;
  form.ToolBarVisible = chkToolBar->isChecked() ? "Yes" : "No";
  form.InvoiceStyle = choice_of(*cmbInvoiceStyle, before_.InvoiceStyle);
  form.FirstDay = choice_of(*cmbFirstDay, before_.FirstDay);
  if (optPosting->checkedId() != 0 || !before_.PayrollPosting.empty())  // a company without the row is plain
    form.PayrollPosting = option_of(*optPosting, postings, before_.PayrollPosting);
  form.ItemSort = choice_of(*cmbItemSort, before_.ItemSort);
  form.PrintInvoice = option_of(*optPrintInvoice, print_styles, before_.PrintInvoice);
  form.Feed = option_of(*optFeed, feeds, before_.Feed);
  form.Style = option_of(*optStyle, check_styles, before_.Style);
  form.SalesBase = option_of(*optSalesBase, tax_bases, before_.SalesBase);
  form.LogoPath = utf8(txtLogo->text());
  form.DefaultBank = cmbBank->id();
  form.FinanceCat = cmbFinanceCat->id();
  form.FinanceAPR = utf8(txtAPR->text());
  const auto closed = txtClosingDate->maybe_value();
  form.ClosingDate = closed ? closed->to_iso() : "";
  form.logo = logo_;
  return form;
}

void frmPrefrences::SSDBCommand1_AfterClick() {
  const std::string path = session.prompts.open_file("Logo Files (*.jpg)|*.jpg", session.folder.string());
  if (path.empty()) return;
  QFile file(qt(path));
  QByteArray bytes;
  if (file.open(QIODevice::ReadOnly)) bytes = file.read(Largest_Logo + 1);
  if (QPixmap picture; !picture.loadFromData(bytes))
    return session.prompts.box(
        {"This file holds no picture that can be read.", "Company Logo", Icon::Information, path});
  logo_ = bytes.toStdString();
  txtLogo->setText(qt(path));
  show_logo();
}

bool frmPrefrences::cmdApply_AfterClick() {
  const PreferenceForm now = read();
  if (const auto fault = Save_Preferences(session, before_, now)) {
    if (fault->control == "txtAPR") imgSettings->setCurrentText(QStringLiteral("Finance Charges"));
    show_fault(*fault);
    return false;
  }
  shell.changed("GeneralPrefs");
  logo_.reset();
  before_ = Read_Preferences(session);
  show_form();
  return true;
}

}  // namespace tallymere
