#include "import/iif_file.h"

#include <cstdint>

#include "core/values/text.h"

namespace tallymere {
namespace {

void Append_Utf8(std::string& text, char32_t c) {
  const auto tail = [&](int shift) { text += static_cast<char>(0x80 | ((c >> shift) & 0x3F)); };
  if (c < 0x80) {
    text += static_cast<char>(c);
  } else if (c < 0x800) {
    text += static_cast<char>(0xC0 | (c >> 6));
    tail(0);
  } else if (c < 0x10000) {
    text += static_cast<char>(0xE0 | (c >> 12));
    tail(6), tail(0);
  } else {
    text += static_cast<char>(0xF0 | (c >> 18));
    tail(12), tail(6), tail(0);
  }
}

std::string From_Utf16(std::string_view bytes, bool big_end_first) {
  constexpr char32_t replacement = 0xFFFD;
  std::string text;
  const auto unit = [&](size_t at) {
    const auto low = static_cast<uint8_t>(bytes[at + (big_end_first ? 1 : 0)]);
    const auto high = static_cast<uint8_t>(bytes[at + (big_end_first ? 0 : 1)]);
    return static_cast<char32_t>(high << 8 | low);
  };
  for (size_t at = 0; at + 1 < bytes.size(); at += 2) {
    char32_t c = unit(at);
    const bool pair = c >= 0xD800 && c < 0xDC00 && at + 3 < bytes.size();
    const char32_t second = pair ? unit(at + 2) : 0;
    if (pair && second >= 0xDC00 && second < 0xE000) {
      c = 0x10000 + ((c - 0xD800) << 10) + (second - 0xDC00);
      at += 2;
    } else if (c >= 0xD800 && c < 0xE000) {
      c = replacement;
    }
    Append_Utf8(text, c);
  }
  return text;
}

bool Is_Utf8(std::string_view bytes) {
  for (size_t at = 0; at < bytes.size();) {
    const auto lead = static_cast<uint8_t>(bytes[at]);
    const size_t length = lead < 0x80                   ? 1
                          : lead >= 0xC2 && lead < 0xE0 ? 2
                          : lead >= 0xE0 && lead < 0xF0 ? 3
                          : lead >= 0xF0 && lead < 0xF5 ? 4
                                                        : 0;
    if (length == 0 || at + length > bytes.size()) return false;
    for (size_t more = 1; more < length; ++more)
      if ((static_cast<uint8_t>(bytes[at + more]) & 0xC0) != 0x80) return false;
    at += length;
  }
  return true;
}

std::string From_Windows_1252(std::string_view bytes) {
  constexpr char32_t upper[32] = {0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                  0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD,
                                  0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                  0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};
  std::string text;
  for (const char byte : bytes) {
    const auto c = static_cast<uint8_t>(byte);
    Append_Utf8(text, c >= 0x80 && c < 0xA0 ? upper[c - 0x80] : c);
  }
  return text;
}

std::string Decode(std::string_view bytes, std::string& encoding) {
  if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF")) {
    encoding = "UTF-16";
    return From_Utf16(bytes.substr(2), bytes[0] == '\xFE');
  }
  if (bytes.starts_with("\xEF\xBB\xBF")) bytes.remove_prefix(3);
  encoding = Is_Utf8(bytes) ? "UTF-8" : "Windows-1252";
  return encoding == "UTF-8" ? std::string(bytes) : From_Windows_1252(bytes);
}

/// The quoted field at the beginning of `rest`, and what follows it; nothing where no quote closes it.
std::optional<std::string> Take_Quoted(std::string_view& rest) {
  std::string field;
  for (size_t at = 1; at < rest.size(); ++at) {
    if (rest[at] != '"') {
      field += rest[at];
    } else if (at + 1 < rest.size() && rest[at + 1] == '"') {
      field += rest[++at];
    } else if (at + 1 == rest.size() || rest[at + 1] == '\t') {
      rest.remove_prefix(at + 1);
      return field;
    } else {
      return std::nullopt;
    }
  }
  return std::nullopt;
}

std::vector<std::string> Split_Line(std::string_view rest) {
  std::vector<std::string> fields;
  while (true) {
    std::optional<std::string> field;
    if (rest.starts_with('"')) field = Take_Quoted(rest);
    if (!field) {
      const size_t tab = std::min(rest.find('\t'), rest.size());
      field = std::string(rest.substr(0, tab));
      rest.remove_prefix(tab);
    }
    fields.push_back(std::move(*field));
    if (rest.empty()) return fields;
    rest.remove_prefix(1);
  }
}

std::shared_ptr<const IifRecord::Header> Header_Of(const std::vector<std::string>& fields) {
  auto header = std::make_shared<IifRecord::Header>();
  for (size_t at = 1; at < fields.size(); ++at) header->try_emplace(upper(trim(fields[at])), at);
  return header;
}

/// Ends the block of the record that began it; it may stand alone on its line.
bool Is_End(std::string_view line) { return line.starts_with("END"); }

}  // namespace

std::string IifRecord::at(const IifColumn& column, bool release_2003) const {
  size_t position = static_cast<size_t>(release_2003 ? column.position_2003 : column.position);
  if (header && !column.header.empty()) {
    const auto named = header->find(column.header);
    if (named == header->end()) return "";
    position = named->second;
  }
  return position == 0 || position >= fields.size() ? "" : trim(fields[position]);
}

IifFile Read_Iif(std::string_view bytes) {
  IifFile file;
  const std::string text = Decode(bytes, file.encoding);
  std::map<std::string, std::shared_ptr<const IifRecord::Header>, std::less<>> headers;
  bool tabs = false;
  int number = 0;
  for (size_t at = 0; at < text.size();) {
    const size_t end = std::min(text.find_first_of("\r\n", at), text.size());
    std::string_view line(text.data() + at, end - at);
    at = end + (text.compare(end, 2, "\r\n") == 0 ? 2 : 1);
    ++number;
    const bool tab = line.find('\t') != std::string_view::npos;
    tabs = tabs || tab;
    if (!tab && !Is_End(line)) continue;
    std::vector<std::string> fields = Split_Line(line);
    std::string key = upper(trim(fields[0]));
    if (key.starts_with('!')) {
      headers[key.substr(1)] = Header_Of(fields);
      continue;
    }
    const auto header = headers.find(key);
    file.records.push_back({number, key, std::move(fields), header == headers.end() ? nullptr : header->second});
  }
  if (!tabs)
    throw ImportError(
        "This is no list export: no line of it has a tab between its fields. Please export the lists again "
        "as an .IIF file, and do not save it from a spreadsheet as blanks or quotes.");
  return file;
}

}  // namespace tallymere
