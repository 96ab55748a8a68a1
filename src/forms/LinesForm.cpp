#include "forms/LinesForm.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QToolButton>
#include <algorithm>

#include "core/values/text.h"
#include "forms/frmFormTrace.h"
#include "forms/frmPrintForm.h"
#include "shell/widgets/MoneyEdit.h"
#include "shell/widgets/theme.h"

namespace tallymere {

LinesForm::LinesForm(Shell& shell_of_frame, const char* name, std::span<const FormLineDef> defs)
    : Form(shell_of_frame, name), defs_(defs) {
  cmdCSV = named("cmdCSV", new QPushButton(QStringLiteral("&Save CSV...")));
  cmdCancel = named("cmdCancel", new QPushButton(QStringLiteral("&Cancel")));
  on(cmdCSV, "cmdCSV_AfterClick", [this] {
    if (settle()) Save_Paper_Csv(shell, paper());
  });
  on(cmdCancel, "cmdCancel_AfterClick", [this] { finish(false); });
}

// --- the screen

QGridLayout* LinesForm::lines_layout() {
  auto* grid = new QGridLayout;
  grid->setColumnStretch(0, 1);
  grid->setHorizontalSpacing(theme::gap);
  grid->setVerticalSpacing(theme::gap / 2);
  return grid;
}

int LinesForm::add_lines(QGridLayout* grid, int row, std::initializer_list<std::string_view> controls) {
  for (const std::string_view control : controls)
    add_line(grid, row++, *std::ranges::find(defs_, control, &FormLineDef::control));
  return row;
}

void LinesForm::add_line(QGridLayout* grid, int row, const FormLineDef& def) {
  const std::string control(def.control), caption = std::string(def.number) + ". " + std::string(def.caption);
  auto* label = captions_[control] = new QLabel(qt(caption));
  label->setWordWrap(true);
  grid->addWidget(label, row, 0);
  if (def.kind == FormLineDef::Result) {
    auto* result = results_[control] = named(control.c_str(), new QLabel);
    result->setFont(theme::tabular(result->font()));
    result->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(result, row, 1);
    return;
  }
  auto* edit = edits_[control] = named(control.c_str(), new MoneyEdit);
  edit->set_tidy(false);
  edit->set_mask("$0.00");
  edit->setFixedWidth(line_width);
  edit->setAccessibleName(qt(caption));
  label->setBuddy(edit);
  grid->addWidget(edit, row, 1);
  connect(
      edit, &MoneyEdit::LostFocus, this,  // once the focus is where it goes: a box may send it back
      [this, control] { guard((control + "_LostFocus").c_str(), [&] { line_left(control); }); }, Qt::QueuedConnection);
  if (def.kind == FormLineDef::Entered) return;
  auto* made = named(("cmdMade_" + control).c_str(), new QToolButton);
  made->setText(QStringLiteral("..."));
  made->setAccessibleName(qt("What made line " + std::string(def.number)));
  made->setToolTip(made->accessibleName());
  QSizePolicy keeps_room = made->sizePolicy();
  keeps_room.setRetainSizeWhenHidden(true);
  made->setSizePolicy(keeps_room);
  made->setFocusPolicy(Qt::ClickFocus);  // Tab goes from field to field
  grid->addWidget(made, row, 2);
  connect(made, &QToolButton::clicked, this,
          [this, control] { guard((control + "_Made").c_str(), [&] { trace(control); }); });
}

QWidget* LinesForm::page(QLayout* fields) {
  auto* inside = new QWidget;
  inside->setLayout(fields);
  fields->setContentsMargins(0, 0, theme::gap, 0);
  auto* scroll = new QScrollArea;
  scroll->setWidget(inside);
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroll->setFocusPolicy(Qt::NoFocus);
  return scroll;
}

// --- the figures

void LinesForm::on_changed(const std::string& table) {
  if (table == "Transactions" || table == "PayrollItems") Load_Form();
}

void LinesForm::begin_anew() {
  typed_.clear();
  Load_Form();
}

void LinesForm::Load_Form() {
  const Hourglass hourglass(session.prompts);
  const TaxForm form = reckon();
  shown_.clear();
  for (const FormLine& line : form.lines()) show_line(line);
  after_reckoning(form);
}

void LinesForm::show_line(const FormLine& line) {
  const std::string control(line.def.control);
  shown_.insert_or_assign(control, line);
  const QString amount = qt(Form_Money(line.amount));
  if (const auto result = results_.find(control); result != results_.end()) result->second->setText(amount);
  const auto edit = edits_.find(control);
  if (edit == edits_.end()) return;
  const bool corrected = line.amount != line.reckoned;
  edit->second->setText(amount);
  QFont font = edit->second->font();
  font.setBold(corrected);
  edit->second->setFont(font);
  edit->second->setToolTip(corrected ? qt("Corrected. The books say " + Form_Money(line.reckoned) + ".") : QString());
  if (auto* made = findChild<QToolButton*>(qt("cmdMade_" + control))) made->setVisible(!line.sources.empty());
}

bool LinesForm::line_left(const std::string& control) {
  MoneyEdit* edit = edits_.at(control);
  const auto found = shown_.find(control);
  if (found == shown_.end() || utf8(edit->text()) == Form_Money(found->second.amount)) return true;
  const FormLine& line = found->second;
  const std::optional<Money> amount = edit->amount();
  const bool emptied = trim(utf8(edit->text())).empty() && line.def.kind == FormLineDef::Reckoned;
  if (!amount && !emptied) {
    const std::string said = "Item Number " + std::string(line.def.number) + " must be a Numeric value.";
    show_fault({{said, "No Value", Icon::Critical}, control});
    return false;
  }
  if (amount && amount->rounded_to_cents() != line.reckoned)
    typed_.insert_or_assign(control, amount->rounded_to_cents());
  else
    typed_.erase(control);
  Load_Form();
  return true;
}

bool LinesForm::settle() {
  return std::ranges::all_of(edits_, [this](const auto& edit) { return line_left(edit.first); });
}

void LinesForm::trace(const std::string& control) {
  const auto line = shown_.find(control);
  if (line == shown_.end()) return;
  frmFormTrace made(shell, line->second);
  shell.Run_Modal(made);
}

}  // namespace tallymere
