#include "entry/document/PickForm.h"

#include <QPushButton>

#include "shell/widgets/theme.h"

namespace tallymere {

PickForm::PickForm(Shell& shell_of_frame, const char* name, const char* grid_name, std::vector<GridColumn> columns,
                   Picks picks, const QString& empty_hint)
    : Form(shell_of_frame, name, Place::Above), number_column_(static_cast<int>(columns.size())) {
  columns.push_back({.name = QStringLiteral("Index"), .kind = Kind::hidden});
  grid_ = named(grid_name, new SSDBGrid);
  grid_->set_columns(std::move(columns));
  grid_->set_multi_select(picks == Picks::Several);
  grid_->set_empty_hint(empty_hint);
  cmdOk = named("cmdOk", new QPushButton(QStringLiteral("&Ok")));
  cmdCancel = named("cmdCancel", new QPushButton(QStringLiteral("&Cancel")));
  auto* column = column_layout(this);
  column->addWidget(grid_, 1);
  column->addLayout(button_row({}, {cmdCancel, cmdOk}));
  setMinimumSize(60 * theme::unit, 36 * theme::unit);
  on(cmdOk, "cmdOk_AfterClick", [this] { cmdOk_AfterClick(); });
  on(cmdCancel, "cmdCancel_Click", [this] { finish(false); });
  on(grid_, &SSDBGrid::DblClick, "cmdOk_AfterClick", [this] { cmdOk_AfterClick(); });
}

void PickForm::add_row(std::vector<store::Value> values, int64_t number) {
  values.emplace_back(number);
  grid_->AddValues(values);
}

void PickForm::showEvent(QShowEvent* event) {
  Form::showEvent(event);
  cmdOk->setEnabled(grid_->rows() > 0);
  if (grid_->rows() > 0 && grid_->Row() < 0) grid_->set_Row(0);
  grid_->setFocus();
}

void PickForm::cmdOk_AfterClick() {
  std::string numbers;
  for (const int row : grid_->selected_rows()) numbers += grid_->text(row, number_column_) + ";";
  if (!numbers.empty()) finish(true, numbers);
}

std::vector<int64_t> Numbers_In(const std::string& answer) {
  std::vector<int64_t> numbers;
  for (size_t at = 0; at < answer.size(); at = answer.find(';', at) + 1)
    numbers.push_back(std::stoll(answer.substr(at)));
  return numbers;
}

std::optional<std::vector<int64_t>> Ask_Numbers(Shell& shell, const Request& request) {
  const auto answer = shell.Ask_Window(request);
  return answer ? std::optional(Numbers_In(*answer)) : std::nullopt;
}

}  // namespace tallymere
