#pragma once

#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// A list export as text: one record a line, its key first, a tab between fields, "!" lines naming the fields of a key.
namespace tallymere {

/// Why a file cannot be read at all, in words for who chose it.
struct ImportError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Where a field stands: by the name in the key's "!" line; where there is none, at a position counted from the key as 0,
/// which differs between the two releases. 0: not in this release.
struct IifColumn {
  std::string_view header;
  int position = 0;
  int position_2003 = position;
};

class IifRecord {
 public:
  using Header = std::map<std::string, size_t, std::less<>>;

  int line = 0;  ///< in the file, from 1
  std::string key;
  std::vector<std::string> fields;  ///< fields[0] is the key
  std::shared_ptr<const Header> header;

  std::string at(const IifColumn& column, bool release_2003) const;  ///< trimmed; "" where the line is too short
};

struct IifFile {
  std::vector<IifRecord> records;
  std::string encoding;  ///< "UTF-8", "UTF-16", "Windows-1252"
};

/// Reads UTF-8, UTF-16 with its mark, else Windows-1252; line ends of any kind; fields in quotes, with tabs and doubled
/// quotes inside them. Throws ImportError when no line has a tab.
IifFile Read_Iif(std::string_view bytes);

}  // namespace tallymere
