#include "shell/frmSpell.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStandardPaths>

#include "shell/widgets/theme.h"

namespace tallymere {

Speller* Dictionary(Session& session) {
  static std::map<std::filesystem::path, std::unique_ptr<Speller>> opened;
  const auto [place, fresh] = opened.try_emplace(session.folder);
  if (fresh) {
    std::vector<std::filesystem::path> folders = {session.folder / "dictionaries"};
    for (const QString& folder : QStandardPaths::locateAll(QStandardPaths::GenericDataLocation,
                                                           QStringLiteral("hunspell"), QStandardPaths::LocateDirectory))
      folders.emplace_back(utf8(folder));
    place->second = Speller::Open(folders);
  }
  return place->second.get();
}

bool Check_Spelling(Shell& shell, std::vector<std::string>& texts) {
  const Speller* speller = Dictionary(shell.session);
  for (std::string& text : texts) {
    if (!speller || !speller->next(text, 0)) continue;
    const auto corrected = shell.Ask_Window({.window = "frmSpell", .key = text});
    if (!corrected) return false;
    if (!corrected->empty()) text = *corrected;
  }
  return true;
}

frmSpell::frmSpell(Shell& shell_of_frame)
    : Form(shell_of_frame, "frmSpell", Place::Above), speller_(Dictionary(session)) {
  setWindowTitle(QStringLiteral("Spell Check"));
  lblText = named("lblText", new QLabel);
  lblText->setWordWrap(true);
  lblText->setTextFormat(Qt::RichText);
  lblWord = named("lblWord", new QLabel);
  lblWord->setTextFormat(Qt::PlainText);
  txtChange = named("txtChange", new QLineEdit);
  lstSuggestions = named("lstSuggestions", new QListWidget);
  lstSuggestions->setAccessibleName(QStringLiteral("Suggestions"));
  cmdChange = named("cmdChange", new QPushButton(QStringLiteral("C&hange")));
  cmdIgnore = named("cmdIgnore", new QPushButton(QStringLiteral("&Ignore")));
  cmdAlways = named("cmdAlways", new QPushButton(QStringLiteral("Ignore &Always")));
  cmdCancel = named("cmdCancel", new QPushButton(QStringLiteral("&Cancel")));
  auto* fields = form_layout();
  fields->addRow(QStringLiteral("Not known:"), lblWord);
  add_field(fields, QStringLiteral("Change &to:"), txtChange);
  add_field(fields, QStringLiteral("&Suggestions:"), lstSuggestions);
  auto* column = column_layout(this);
  column->addWidget(lblText);
  column->addLayout(fields, 1);
  column->addLayout(button_row({cmdIgnore, cmdAlways}, {cmdCancel, cmdChange}));
  setMinimumSize(52 * theme::unit, 36 * theme::unit);
  on(lstSuggestions, &QListWidget::currentTextChanged, "lstSuggestions_Click", [this](const QString& word) {
    if (!word.isEmpty()) txtChange->setText(word);
  });
  on(lstSuggestions, &QListWidget::itemActivated, "lstSuggestions_DblClick",
     [this] { replace_word(utf8(txtChange->text())); });
  on(cmdChange, "cmdChange_Click", [this] { replace_word(utf8(txtChange->text())); });
  on(cmdIgnore, "cmdIgnore_Click", [this] { show_next(word_.at + word_.text.size()); });
  on(cmdAlways, "cmdAlways_Click", [this] {
    speller_->take(word_.text);
    show_next(word_.at + word_.text.size());
  });
  on(cmdCancel, "cmdCancel_Click", [this] { finish(false); });
  for (QPushButton* button : {cmdChange, cmdIgnore, cmdAlways}) button->setEnabled(false);
}

void frmSpell::take(const Request& request) {
  text_ = request.key;
  if (!text_.empty()) show_next(0);
}

void frmSpell::show_next(size_t from) {
  const auto next = speller_ ? speller_->next(text_, from) : std::nullopt;
  if (!next) return finish(true, text_);
  word_ = *next;
  const size_t end = word_.at + word_.text.size();
  lblText->setText(qt(text_.substr(0, word_.at)).toHtmlEscaped() + QStringLiteral("<b>") +
                   qt(word_.text).toHtmlEscaped() + QStringLiteral("</b>") + qt(text_.substr(end)).toHtmlEscaped());
  lblWord->setText(qt(word_.text));
  lstSuggestions->clear();
  for (const std::string& word : speller_->suggestions(word_.text)) lstSuggestions->addItem(qt(word));
  txtChange->setText(qt(word_.text));
  if (lstSuggestions->count() > 0) lstSuggestions->setCurrentRow(0);
  for (QPushButton* button : {cmdChange, cmdIgnore, cmdAlways}) button->setEnabled(true);
  txtChange->setFocus();
  txtChange->selectAll();
}

void frmSpell::replace_word(const std::string& word) {
  text_.replace(word_.at, word_.text.size(), word);
  show_next(word_.at + word.size());
}

}  // namespace tallymere
