#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class Hunspell;

namespace tallymere {

/// Whether words are spelt as a dictionary has them. A dictionary is two files, en_US.aff and en_US.dic.
class Speller {
 public:
  /// The dictionary of the first folder that has one; nothing where none does.
  static std::unique_ptr<Speller> Open(const std::vector<std::filesystem::path>& folders);
  ~Speller();

  bool knows(const std::string& word) const;
  std::vector<std::string> suggestions(const std::string& word) const;  ///< the likeliest first, a dozen at most
  void take(const std::string& word);                                   ///< it is right, as long as the program runs

  /// A word of a text that the dictionary does not know.
  struct Word {
    size_t at = 0;  ///< in bytes
    std::string text = {};
  };
  /// The first one at or behind `from`. What has digits in it and what is all capitals is no word: "M8", "PVC".
  std::optional<Word> next(const std::string& text, size_t from) const;

 private:
  explicit Speller(std::unique_ptr<Hunspell> dictionary);
  std::unique_ptr<Hunspell> dictionary_;
};

}  // namespace tallymere
