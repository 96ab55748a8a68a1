#include "reports/aging/frmPrintAging.h"

#include <QButtonGroup>
#include <QRadioButton>

#include "core/company/users.h"

namespace tallymere {

namespace {

constexpr struct { const char *key, *caption; } parties[] = {{"AR", "C&ustomers"}, {"AP", "&Vendors"}};

}  // namespace

frmPrintAging::frmPrintAging(Shell& shell_of_frame) : ReportForm(shell_of_frame, "frmPrintAging") {
  optParty = new QButtonGroup(this);
  optParty->setObjectName(QStringLiteral("optParty"));
  int index = 0;
  for (const auto& party : parties) {
    auto* option = named(("optParty_" + std::to_string(index)).c_str(), new QRadioButton(QLatin1String(party.caption)));
    option->setEnabled(May_Use(session, Find_Report(party.key)->area));
    optParty->addButton(option, index++);
    add_to_bar(option);
  }
  on(optParty, &QButtonGroup::idClicked, "optParty_Click", [this](int party) { optParty_Click(party); });
}

/// Whoever may see the payables alone gets those.
void frmPrintAging::take(const Request& asked) {
  Request allowed = asked;
  for (const auto& party : parties)
    if (const ReportDef* wanted = Find_Report(allowed.key); wanted && !May_Use(session, wanted->area))
      allowed.key = party.key;
  ReportForm::take(allowed);
  for (int at = 0; const auto& party : parties) optParty->button(at++)->setChecked(report().key == party.key);
}

void frmPrintAging::optParty_Click(int party) {
  take({.window = {}, .key = parties[party].key, .end = report_request().to});
}

}  // namespace tallymere
