#pragma once

#include "core/values/speller.h"
#include "shell/widgets/Form.h"

class QLabel;
class QLineEdit;
class QListWidget;

namespace tallymere {

/// Goes through the words of a text that the dictionary does not know. The text comes as `key`; the answer is the text
/// as it was corrected.
class frmSpell : public Form {
  Q_OBJECT

 public:
  explicit frmSpell(Shell& shell_of_frame);

  void take(const Request& request) override;

 private:
  void show_next(size_t from);
  void replace_word(const std::string& word);

  Speller* speller_;
  std::string text_;
  Speller::Word word_;
  QLabel *lblText, *lblWord;
  QLineEdit* txtChange;
  QListWidget* lstSuggestions;
  QPushButton *cmdChange, *cmdIgnore, *cmdAlways, *cmdCancel;
};

/// The dictionary in the program's folder or the system's; nullptr where there is none. Opened once.
Speller* Dictionary(Session& session);

/// Corrects texts one after the other, asking about each unknown word. false: the user stopped it.
bool Check_Spelling(Shell& shell, std::vector<std::string>& texts);

}  // namespace tallymere
