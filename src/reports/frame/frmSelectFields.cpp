#include "reports/frame/frmSelectFields.h"

#include <QLabel>
#include <QPushButton>

#include "shell/widgets/grid/SSDBGrid.h"
#include "shell/widgets/theme.h"

namespace tallymere {

frmSelectFields::frmSelectFields(Shell& shell_of_frame, std::vector<FieldChoice> choices)
    : Form(shell_of_frame, "frmSelectFields", Place::Above), choices_(std::move(choices)) {
  setWindowTitle(QStringLiteral("Select Columns"));
  grdFields = named("grdFields", new SSDBGrid);
  grdFields->set_columns({{.name = QStringLiteral("Column")}});
  grdFields->set_multi_select(true);
  grdFields->setMinimumHeight(40 * theme::unit);
  auto* hint = label_for(grdFields, QStringLiteral("Ctrl and a click, or Ctrl and Space, mark several."));
  hint->setAlignment(Qt::AlignLeft);
  hint->setForegroundRole(QPalette::PlaceholderText);
  cmdOk = named("cmdOk", new QPushButton(QStringLiteral("&Ok")));
  cmdCancel = named("cmdCancel", new QPushButton(QStringLiteral("&Cancel")));
  auto* column = column_layout(this);
  column->addWidget(grdFields);
  column->addWidget(hint);
  column->addLayout(button_row({}, {cmdCancel, cmdOk}));
  on(cmdOk, "cmdOk_AfterClick", [this] { cmdOk_AfterClick(); });
  on(cmdCancel, "cmdCancel_AfterClick", [this] { finish(false); });
}

void frmSelectFields::load() {
  std::vector<int> selected;
  {
    const SSDBGrid::Fill fill(*grdFields);
    for (const FieldChoice& choice : choices_) {
      if (choice.selected) selected.push_back(grdFields->rows());
      grdFields->AddItem(choice.caption);
    }
  }
  grdFields->select_rows(selected);
}

void frmSelectFields::cmdOk_AfterClick() {
  for (FieldChoice& choice : choices_) choice.selected = false;
  for (const int row : grdFields->selected_rows()) choices_[static_cast<size_t>(row)].selected = true;
  finish(true);
}

}  // namespace tallymere
