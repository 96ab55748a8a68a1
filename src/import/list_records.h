#pragma once

#include <optional>
#include <set>
#include <string>
#include <vector>

#include "import/categories_import.h"
#include "import/list_rows.h"

/// How a record of each kind becomes rows of the company.
namespace tallymere {

struct RecordDone {
  ImportDid did = ImportDid::Skipped;
  std::string why = {};
};

/// "Parent:Child": what follows the last colon is the name, what stands before it the parent's path.
struct PathName {
  explicit PathName(const std::string& path);
  std::string last;
  std::string parent;  ///< the parent's own name, or ""
};

/// What all records of one import share.
struct ImportWork {
  ImportWork(store::Database& company, bool release)
      : db(company), rows(company), categories(company, rows), release_2003(release) {}

  RecordDone put(std::string_view table, const std::vector<ListRows::Cell>& key,
                 const std::vector<ListRows::Cell>& cells);
  /// Why this name cannot be here: its parent is not there, or it stands below another one.
  std::optional<std::string> other_parent(std::string_view table, std::string_view field, std::string_view parent_field,
                                          const PathName& name);
  /// Whether a field of the ledger names it.
  bool is_entered(std::string_view field, const std::string& name);

  store::Database& db;
  ListRows rows;
  CategoryImport categories;
  bool release_2003;
  std::map<std::string, int> payroll_names;  ///< folded; how often this file has given each
};

std::string With_Lines(const std::string& text);  ///< "\n", the two characters, as a line break
/// Lines of an address, empty ones left out; the first where it repeats the name as well.
std::string Address_Of(const std::vector<std::string>& lines, const std::string& name = "");

RecordDone Put_Item(ImportWork& work, const IifRecord& record);
RecordDone Put_Group_Line(ImportWork& work, const std::string& group, const IifRecord& record);
RecordDone Put_Customer(ImportWork& work, const IifRecord& record);
RecordDone Put_Vendor(ImportWork& work, const IifRecord& record);
RecordDone Put_Small_List(ImportWork& work, const IifRecord& record);
RecordDone Put_Budget(ImportWork& work, const IifRecord& record);
RecordDone Put_Payroll_Item(ImportWork& work, const IifRecord& record);
RecordDone Put_Payroll_Tax(ImportWork& work, const IifRecord& record);
RecordDone Put_Employee(ImportWork& work, const IifRecord& record, Box& cannot);
/// The employee's row of payroll data; `inside` are the records up to the block's end.
RecordDone Put_Employee_Pay(ImportWork& work, const IifRecord& record, const std::vector<const IifRecord*>& inside);

}  // namespace tallymere
