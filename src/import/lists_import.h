#pragma once

#include <array>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "import/iif_file.h"
#include "import/list_rows.h"

/// Lists that come from another program: categories, items, customers, vendors, employees, payroll items, small lists.
namespace tallymere {

enum class ListKind {
  Categories,
  Items,
  PayrollItems,
  PayrollTaxItems,
  Classes,
  Customers,
  Vendors,
  Employees,
  ShippingMethods,
  PaymentMethods,
  Terms,
  OtherNames,
  Messages,
  Representatives,
  Budgets
};
std::string_view Name_Of(ListKind kind);  ///< "Categories"

struct ImportLine {
  int line;  ///< in the file
  ListKind kind;
  ImportDid did;
  std::string name;
  std::string why;  ///< a line was skipped, or what of it was left out
};

struct ImportReport {
  std::string encoding;
  std::vector<ImportLine> lines;
  std::map<std::string, int> unknown;  ///< keys that mean nothing here, and how many lines had them
  std::vector<Box> told;               ///< the boxes of employees who cannot be added
  bool stopped = false;

  int64_t count(ListKind kind, ImportDid did) const;
  int64_t count(ImportDid did) const;
};

struct ImportOptions {
  bool release_2003 = false;
  bool keep = false;  ///< else everything is done and then undone: a report of what would be
  std::function<bool(int64_t done, int64_t total)> progress = {};  ///< false stops, and nothing is kept
};

/// All records of the file in one transaction. Records match what stands here by name, categories by their whole path;
/// so a second import of the same file changes nothing.
ImportReport Import_Lists(Session& session, const IifFile& file, const ImportOptions& options);

/// "Import Summary".
Box Import_Summary(const ImportReport& report);

}  // namespace tallymere
