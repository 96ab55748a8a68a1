#pragma once

#include <filesystem>
#include <iosfwd>
#include <map>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// What is printed on a sheet whose looks people can change: code fills the named objects of a layout and hides what
/// does not belong; where they stand, and in which letters, is a drawing (data/layouts/*.svg) that the painter reads.
namespace tallymere {

/// One of the layouts that ship, and what code fills on it. A drawing that lacks an object it needs is not used.
struct LayoutDef {
  std::string_view name;        ///< "crpCheck"
  std::string_view caption;     ///< "Checks, single sheets"
  std::string_view needs;       ///< names of objects, blanks between; "Text24..Text86" is a row of numbered ones
  std::string_view fills = {};  ///< further objects that code fills where a drawing has them
};
std::span<const LayoutDef> Layout_Defs();
const LayoutDef* Find_Layout(std::string_view name);
/// The names a definition's text stands for, the rows of numbered ones written out.
std::vector<std::string> Object_Names(std::string_view names);

/// A layout as filled for one document. An object that nobody sets stays empty; one that the drawing does not have is
/// passed over.
class Layout {
 public:
  using Row = std::map<std::string, std::string>;  ///< object in the section "Detail" -> its text on this line

  explicit Layout(std::string name = {}) : name_(std::move(name)) {}

  const std::string& name() const { return name_; }
  void SetText(const std::string& object, std::string text) { texts_[object] = std::move(text); }
  /// The bytes of a JPEG or PNG file; it fills the room as far as its shape allows.
  void SetPicture(const std::string& object, std::string bytes) { pictures_[object] = std::move(bytes); }
  void Suppress(const std::string& object) { hidden_.insert(object); }  ///< a text, a box, or a whole section
  void add_detail(Row row) { details_.push_back(std::move(row)); }

  const std::string& text(const std::string& object) const;  ///< "" when it was not set
  bool is_hidden(const std::string& object) const { return hidden_.contains(object); }
  const std::map<std::string, std::string>& texts() const { return texts_; }
  const std::map<std::string, std::string>& pictures() const { return pictures_; }
  const std::set<std::string>& hidden() const { return hidden_; }
  const std::vector<Row>& details() const { return details_; }

  friend bool operator==(const Layout&, const Layout&) = default;

 private:
  std::string name_;
  std::map<std::string, std::string> texts_, pictures_;
  std::set<std::string> hidden_;
  std::vector<Row> details_;
};

/// Where the drawings lie: people's own go before the shipped ones.
struct LayoutPlaces {
  std::filesystem::path own;      ///< "layouts" in the program's folder; need not exist
  std::filesystem::path shipped;  ///< "layouts" of what ships with the program

  std::filesystem::path own_file(std::string_view name) const;
  std::filesystem::path shipped_file(std::string_view name) const;
};
LayoutPlaces Layout_Places(const std::filesystem::path& program_folder);
/// Puts the shipped drawing into people's own folder, there to be changed; where it lies now. Error 3204 when one is
/// there already: what somebody drew is never written over.
std::filesystem::path Write_Out_Layout(const LayoutPlaces& places, std::string_view name);

/// Filled layouts handed from one program to another, as the command line does to `tallymere-paint`: lines of fields
/// between tabs, in texts \t, \n, \r and \\ for a tab, line ends and a backslash.
///
///     tallymere-layouts 1
///     title    TITLE
///     places   OWN SHIPPED
///     layout   NAME
///     text     OBJECT TEXT
///     picture  OBJECT BASE64
///     hide     OBJECT
///     detail   OBJECT TEXT OBJECT TEXT...
///     end
struct LayoutFile {
  std::string title;
  LayoutPlaces places;
  std::vector<Layout> layouts;
};
inline constexpr std::string_view layout_file_mark = "tallymere-layouts 1";
void Write_Layout_File(const LayoutFile& file, std::ostream& out);
/// Throws store::Error 3343 when this is no such file, or one cut short.
LayoutFile Read_Layout_File(std::istream& in);

}  // namespace tallymere
