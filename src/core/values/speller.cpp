#include "core/values/speller.h"

#include <algorithm>
#include <hunspell/hunspell.hxx>

namespace tallymere {
namespace {

namespace fs = std::filesystem;
constexpr size_t most_suggestions = 12;

bool Is_Digit(char c) { return c >= '0' && c <= '9'; }
bool Is_Small(char c) { return (c >= 'a' && c <= 'z') || static_cast<unsigned char>(c) >= 0x80; }
bool Is_Letter(char c) { return Is_Small(c) || (c >= 'A' && c <= 'Z'); }

/// The word that begins here, with the apostrophes inside it: "don't".
std::string Word_At(const std::string& text, size_t at) {
  size_t end = at;
  while (end < text.size() && (Is_Letter(text[end]) || Is_Digit(text[end]) || text[end] == '\'')) ++end;
  while (end > at && text[end - 1] == '\'') --end;
  return text.substr(at, end - at);
}

bool Is_Code(const std::string& word) {
  return std::ranges::any_of(word, Is_Digit) || std::ranges::none_of(word, Is_Small);
}

}  // namespace

Speller::Speller(std::unique_ptr<Hunspell> dictionary) : dictionary_(std::move(dictionary)) {}
Speller::~Speller() = default;

std::unique_ptr<Speller> Speller::Open(const std::vector<fs::path>& folders) {
  for (const fs::path& folder : folders) {
    std::error_code unreadable;
    const fs::path rules = folder / "en_US.aff", words = folder / "en_US.dic";
    if (!fs::is_regular_file(rules, unreadable) || !fs::is_regular_file(words, unreadable)) continue;
    auto dictionary = std::make_unique<Hunspell>(rules.c_str(), words.c_str());
    if (dictionary->get_dict_encoding() == "UTF-8") return std::unique_ptr<Speller>(new Speller(std::move(dictionary)));
  }
  return nullptr;
}

bool Speller::knows(const std::string& word) const { return dictionary_->spell(word); }

std::vector<std::string> Speller::suggestions(const std::string& word) const {
  std::vector<std::string> found = dictionary_->suggest(word);
  if (found.size() > most_suggestions) found.resize(most_suggestions);
  return found;
}

void Speller::take(const std::string& word) { dictionary_->add(word); }

std::optional<Speller::Word> Speller::next(const std::string& text, size_t from) const {
  for (size_t at = from; at < text.size();) {
    if (!Is_Letter(text[at]) && !Is_Digit(text[at])) {
      ++at;
      continue;
    }
    const std::string word = Word_At(text, at);
    if (!Is_Code(word) && !knows(word)) return Word{at, word};
    at += word.size();
  }
  return std::nullopt;
}

}  // namespace tallymere
