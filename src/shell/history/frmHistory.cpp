#include "shell/history/frmHistory.h"

#include <QSplitter>
#include <algorithm>

#include "core/company/field_captions.h"
#include "core/ledger/ledger.h"
#include "core/ledger/reach.h"
#include "core/values/control_characters.h"
#include "core/values/format.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

constexpr int64_t looked_back = 500;

const char* word_for(store::RowChange::Kind kind) {
  switch (kind) {
    case store::RowChange::Kind::Added:
      return "new";
    case store::RowChange::Kind::Deleted:
      return "deleted";
    case store::RowChange::Kind::Changed:
      break;
  }
  return "changed";
}

/// One line, as screens show it: amounts grouped, flags in words.
std::string shown(const store::Value& value) {
  if (const auto* amount = std::get_if<Money>(&value.content())) return Money_Text(*amount);
  if (const auto* flag = std::get_if<bool>(&value.content())) return *flag ? "Yes" : "No";
  return in_one_plain_line(value.text());
}

/// Categories stand in the ledger by their id; people know their names.
std::string shown(Session& session, const store::Change& change, const std::string& field, const store::Value& value) {
  const bool category = change.table == "Transactions" && (field == "Account" || field == "Category");
  const std::string name = category && !value.blank() ? Category_Name(session, value.text()) : "";
  return name.empty() ? shown(value) : in_one_plain_line(name);
}

}  // namespace

frmHistory::frmHistory(Shell& shell_of_frame) : Form(shell_of_frame, "frmHistory") {
  setWindowTitle(QStringLiteral("History"));
  build();
  on(grdActions, &SSDBGrid::RowColChange, "grdActions_RowColChange", [this] { show_changes(); });
  on(cmdTakeBack, "cmdTakeBack_Click", [this] { cmdTakeBack_Click(); });
  on(cmdClose, "cmdClose_Click", [this] { finish(false); });
}

void frmHistory::build() {
  grdActions = named("grdActions", new SSDBGrid);
  grdActions->setAccessibleName(QStringLiteral("What was done"));
  grdActions->set_columns({{.name = QStringLiteral("When"), .width = 20},
                           {.name = QStringLiteral("Who"), .width = 14},
                           {.name = QStringLiteral("What")},
                           {.name = QStringLiteral("Taken Back"), .width = 12}});
  grdActions->set_empty_hint(QStringLiteral("Nothing has been done in this company yet."));
  grdChanges = named("grdChanges", new SSDBGrid);
  grdChanges->setAccessibleName(QStringLiteral("Before and after"));
  grdChanges->set_columns({{.name = QStringLiteral("Where"), .width = 26},
                           {.name = QStringLiteral("Field"), .width = 18},
                           {.name = QStringLiteral("Before")},
                           {.name = QStringLiteral("After")}});
  cmdTakeBack = named("cmdTakeBack", new QPushButton(QStringLiteral("&Take Back")));
  cmdClose = named("cmdClose", new QPushButton(QStringLiteral("&Close")));
  auto* halves = new QSplitter(Qt::Vertical);
  halves->setChildrenCollapsible(false);
  halves->addWidget(grdActions);
  halves->addWidget(grdChanges);
  auto* column = column_layout(this);
  column->addWidget(halves, 1);
  column->addLayout(plain_button_row({cmdTakeBack}, {cmdClose}));
  setMinimumWidth(80 * theme::unit);
}

void frmHistory::load() {
  rights_ = Rights_Of(session);
  fill();
  grdActions->set_Row(0);
  show_changes();
  grdActions->setFocus();
}

void frmHistory::on_changed(const std::string&) {
  const int row = grdActions->Row();
  const int64_t at = row >= 0 && row < grdActions->rows() ? actions_[static_cast<size_t>(row)].number : 0;
  fill();
  const auto found = std::ranges::find(actions_, at, &store::Action::number);
  grdActions->set_Row(found == actions_.end() ? 0 : static_cast<int>(found - actions_.begin()));
  show_changes();
}

/// Balances that were brought up to date are nothing that anybody did.
bool frmHistory::is_shown(const store::Action& action) const {
  if (!action.undoable) return !session.MultiUser || session.CurrentUser == Administrator;
  const auto changes = store::Changes_Of(*session.dbCompany, action.number);
  return !Is_Upkeep(changes) && Reaches(*session.dbCompany, rights_, changes);
}

void frmHistory::fill() {
  actions_ = store::List_Actions(*session.dbCompany, looked_back);
  std::set<int64_t> undone;
  for (const store::Action& action : actions_) undone.insert(action.undoes);
  std::erase_if(actions_, [this](const store::Action& action) { return !is_shown(action); });
  const SSDBGrid::Fill rows(*grdActions);
  grdActions->RemoveAll();
  for (const store::Action& action : actions_)
    grdActions->AddValues({in_one_plain_line(action.at), in_one_plain_line(action.user), in_one_plain_line(action.what),
                           std::string(undone.contains(action.number) ? "Yes" : "")});
}

void frmHistory::show_changes() {
  const SSDBGrid::Fill rows(*grdChanges);
  grdChanges->RemoveAll();
  const int row = grdActions->currentIndex().row();  // while it moves the old one is still lit
  cmdTakeBack->setEnabled(false);
  if (row < 0 || row >= grdActions->rows()) return;
  const store::Action& action = actions_[static_cast<size_t>(row)];
  if (!action.undoable) return;
  const auto changes = store::Changes_Of(*session.dbCompany, action.number);
  cmdTakeBack->setEnabled(!Is_Setting(changes) && grdActions->text(row, 3).empty());
  for (const store::Change& change : changes) {
    std::string where = Field_Caption(change.table) + ", " + word_for(change.kind);
    for (const auto& cell : change.cells) {
      if (shown(cell.before) == shown(cell.after)) continue;
      grdChanges->AddValues({where, Field_Caption(cell.field), shown(session, change, cell.field, cell.before),
                             shown(session, change, cell.field, cell.after)});
      where.clear();
    }
  }
}

void frmHistory::cmdTakeBack_Click() {
  const store::Action action = actions_.at(static_cast<size_t>(grdActions->Row()));
  if (!session.prompts.ask(Undo_Question(action))) return;
  for (const std::string& table : Take_Back(session, action.number)) shell.changed(table);
}

}  // namespace tallymere
