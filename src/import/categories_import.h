#pragma once

#include <map>
#include <set>
#include <string>

#include "import/lists_import.h"

namespace tallymere {

/// The categories of the company by their whole path, and those that the file gives as its own receivables, payables and
/// undeposited funds, which are the company's fixed ones.
class CategoryImport {
 public:
  CategoryImport(store::Database& company, ListRows& rows);

  struct Done {
    ImportDid did;
    std::string why = {};
  };
  /// A record "ACCNT".
  Done put(const IifRecord& record, bool release_2003);
  /// The CatID of a category named in the file; opening balance equity where there is none. "" stays "".
  std::string Map_Category(const std::string& name);
  /// The same for stock: a missing asset category is made.
  std::string Asset_Category(const std::string& name);

 private:
  std::string find(const std::string& path) const;  ///< "" where there is none
  std::string make(const std::string& path, const std::string& name);

  store::Database& db_;
  ListRows& rows_;
  std::map<std::string, std::string> by_path_;  ///< folded "Auto:Insurance" -> CatID
  std::set<std::string> receivable_, payable_, undeposited_;
};

}  // namespace tallymere
