#include "lists/SmallListForm.h"

#include <QPushButton>

#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

enum { Name, Key };

}  // namespace

SmallListForm::SmallListForm(Shell& shell_of_frame, const char* name, const char* grid_name, const SmallList& list)
    : Form(shell_of_frame, name), list_(list) {
  grid_ = named(grid_name, new SSDBGrid);
  cmdAction = named("cmdAction", new QPushButton(QStringLiteral("&Delete")));
  cmdClose = named("cmdClose", new QPushButton(QStringLiteral("&Close")));
  build();
  on(grid_, &SSDBGrid::AfterUpdate, "Grid_AfterUpdate", [this](int row) { row_left(row); });
  on(grid_, &SSDBGrid::BeforeDelete, "Grid_BeforeDelete", [this](int row, bool& cancel) { row_goes(row, cancel); });
  on(cmdAction, "cmdAction_Click", [this] { cmdAction_Click(); });
  on(cmdClose, "cmdClose_Click", [this] { finish(false); });
}

void SmallListForm::build() {
  grid_->set_columns({{.name = QStringLiteral("Name")}, {.name = QStringLiteral("Key"), .kind = Kind::hidden}});
  grid_->setAccessibleName(QStringLiteral("Names"));
  grid_->set_read_only(false);
  grid_->set_new_line(true);
  grid_->set_delete(true);
  grid_->set_empty_hint(QStringLiteral("Type the first name in the line above."));
  auto* column = column_layout(this);
  column->addWidget(grid_, 1);
  column->addLayout(plain_button_row({cmdAction}, {cmdClose}));
  setMinimumWidth(44 * theme::unit);
}

void SmallListForm::load() {
  read_list();
  grid_->set_cell(grid_->rows(), Name);
  grid_->setFocus();
}

void SmallListForm::read_list() {
  const SSDBGrid::Fill fill(*grid_);
  grid_->RemoveAll();
  for (const SmallListRow& row : Small_List_Rows(session, list_)) grid_->AddValues({row.text, row.key});
}

SmallListRow SmallListForm::row_at(int row) const { return {grid_->value(row, Key).integer(), grid_->text(row, Name)}; }

void SmallListForm::row_left(int row) {
  SmallListRow typed = row_at(row);
  Update_Small_List(session, list_, typed);
  grid_->set_value(row, Key, typed.key);
  shell.changed(std::string(list_.table));
}

void SmallListForm::row_goes(int row, bool& cancel) {
  cancel = true;
  const SmallListRow gone = row_at(row);
  const Box question{"You are about to delete \"" + gone.text + "\". Do you want to go on?", "Confirm Delete",
                     Icon::Question};
  if (!session.prompts.ask(question, Buttons::YesNoDefaultNo)) return;
  if (gone.key != 0) Delete_From_Small_List(session, list_, gone);
  cancel = false;
  shell.changed(std::string(list_.table));
}

void SmallListForm::cmdAction_Click() {
  grid_->commit();
  const std::vector<int> chosen = grid_->selected_rows();
  if (chosen.size() == 1) grid_->delete_row(chosen.front());
}

/// What is being typed is written, as leaving its row does.
bool SmallListForm::may_close() { return grid_->commit(); }

}  // namespace tallymere
