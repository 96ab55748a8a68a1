#include "shell/settings/frmCustFields.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>

#include "core/company/company_settings.h"
#include "shell/widgets/theme.h"

namespace tallymere {

frmCustFields::frmCustFields(Shell& shell_of_frame) : Form(shell_of_frame, "frmCustFields", Place::Above) {
  setWindowTitle(QStringLiteral("Customize Fields"));
  auto* frame = new QGroupBox(QStringLiteral("Define Names"));
  auto* names = form_layout();
  frame->setLayout(names);
  for (size_t at = 0; at < texts_.size(); ++at) {
    const std::string number = std::to_string(at + 1);
    texts_[at] = named(("Text" + number).c_str(), new QLineEdit);
    texts_[at]->setMinimumWidth(26 * theme::unit);
    add_field(names, qt("Field &" + number + ":"), texts_[at]);
  }
  cmdOk = named("cmdOk", new QPushButton(QStringLiteral("&Ok")));
  cmdCancel = named("cmdCancel", new QPushButton(QStringLiteral("&Cancel")));
  auto* column = column_layout(this);
  column->addWidget(frame);
  column->addLayout(button_row({}, {cmdCancel, cmdOk}));
  on(cmdOk, "cmdOk_AfterClick", [this] { cmdOk_AfterClick(); });
  on(cmdCancel, "cmdCancel_AfterClick", [this] { finish(false); });
}

void frmCustFields::load() {
  const CustomFields captions = Read_Custom_Fields(session);
  for (size_t at = 0; at < texts_.size(); ++at) texts_[at]->setText(qt(captions[at]));
  go_to(texts_.front());
}

void frmCustFields::cmdOk_AfterClick() {
  CustomFields captions;
  for (size_t at = 0; at < texts_.size(); ++at) captions[at] = utf8(texts_[at]->text());
  Save_Custom_Fields(session, captions);
  shell.changed("CompanyInfo");
  finish(true);
}

}  // namespace tallymere
