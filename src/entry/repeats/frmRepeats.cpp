#include "entry/repeats/frmRepeats.h"

#include "entry/repeats/repeat.h"

namespace tallymere {

namespace {

enum { Name };

}  // namespace

frmRepeats::frmRepeats(Shell& shell_of_frame)
    : ListForm(shell_of_frame, "frmRepeats", "grdList", {"mnuRepeats", "", "mnuDelRepeat"}) {
  setWindowTitle(QStringLiteral("Repeat Transactions"));
  build({{.name = QStringLiteral("Name")},
         {.name = QStringLiteral("Type"), .width = 10},
         {.name = QStringLiteral("Source Category"), .width = 24},
         {.name = QStringLiteral("Amount"), .kind = Kind::money, .width = 14},
         {.name = QStringLiteral("Frequency"), .width = 18},
         {.name = QStringLiteral("Next Date"), .kind = Kind::date, .width = 12}},
        Name);
  grdList->set_empty_hint(QStringLiteral("Nothing repeats yet. A check, bill or invoice has a button for it."));
  on(grdList, &SSDBGrid::DblClick, "grdList_DblClick", [this] { chosen("mnuEditRep"); });
}

void frmRepeats::on_changed(const std::string& table) {
  if (table == "RepeatTrans" || table == "Accounts") make_list_again();
}

void frmRepeats::Make_List() {
  const SSDBGrid::Fill fill(*grdList);
  grdList->RemoveAll();
  for (const RepeatRow& row : Load_Repeats(session))
    grdList->AddValues({row.Name, row.Type, row.SourceCategory, row.Amount, row.Frequency, row.NextDate});
}

std::string frmRepeats::name() const { return grid_->text(grid_->Row(), Name); }

std::vector<std::string> frmRepeats::disabled() const {
  return has_row() ? std::vector<std::string>{} : std::vector<std::string>{"mnuEditRep", "mnuDelRepeat"};
}

void frmRepeats::chosen(const std::string& item) {
  if (item == "mnuEditRep") edit_row("frmModRepeat", Repeat_Rows, name());
  if (item == "mnuDelRepeat" && Delete_Repeat(session, name())) shell.changed("RepeatTrans");
}

}  // namespace tallymere
