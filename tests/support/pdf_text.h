#pragma once

#include <algorithm>
#include <filesystem>
#include <regex>
#include <string>
#include <vector>

#include "support/child_process.h"

namespace tallymere::testing {

/// A word of a PDF and where it stands, in points from its page's upper left corner.
struct PdfWord {
  std::string text;
  int page = 0;  ///< from 1
  double left = 0, top = 0, right = 0, bottom = 0;
};

/// What a reader of the file finds in it: its words as text, not as drawn shapes.
inline std::vector<PdfWord> Pdf_Words(const std::filesystem::path& pdf) {
  ChildProcess reader({"/usr/bin/pdftotext", "-bbox", pdf.string(), "-"});
  const std::string found = reader.rest();
  static const std::regex form(
      R"re(<page |<word xMin="([^"]*)" yMin="([^"]*)" xMax="([^"]*)" yMax="([^"]*)">([^<]*)<)re");
  std::vector<PdfWord> words;
  int page = 0;
  for (std::sregex_iterator at(found.begin(), found.end(), form), end; at != end; ++at) {
    const std::smatch& word = *at;
    if (!word[1].matched)
      ++page;
    else
      words.push_back({word[5], page, std::stod(word[1]), std::stod(word[2]), std::stod(word[3]), std::stod(word[4])});
  }
  return words;
}

/// All words, blanks between, as they stand in the file; of one page when it is named.
inline std::string Pdf_Text(const std::filesystem::path& pdf, int page = 0) {
  std::string text;
  for (const PdfWord& word : Pdf_Words(pdf))
    if (page == 0 || word.page == page) text += (text.empty() ? "" : " ") + word.text;
  return text;
}

inline int Pdf_Pages(const std::filesystem::path& pdf) {
  int pages = 0;
  for (const PdfWord& word : Pdf_Words(pdf)) pages = std::max(pages, word.page);
  return pages;
}

}  // namespace tallymere::testing
