#pragma once

#include <deque>
#include <memory>

#include "core/store/database.h"
#include "demo/document.h"

namespace tallymere::demo {

/// Takes documents in the order of their numbers and writes them in that order, each only when nothing can
/// mark it any more: so no row is written twice, and only a few months of business are held in memory.
class Loader {
 public:
  /// `reconciled` are the categories with bank statements, `through` the last day that a statement has
  /// covered.
  Loader(store::Database& db, std::vector<std::string_view> reconciled, Date through);

  Document& Add(Date date, std::string_view type);  ///< under the next number; stays valid until written
  void Write_Before(Date day);                      ///< writes what is dated earlier
  void Write_All();

  int64_t count() const { return next_ - 1; }
  int64_t rows() const { return rows_; }

 private:
  void Write(const Document& document);
  void Write_Row(const Document& document, const Posting& row);
  bool Is_Cleared(const Document& document, const Posting& row) const;

  store::Database& db_;
  std::vector<std::string_view> reconciled_;
  Date through_;
  std::string insert_;
  std::deque<std::unique_ptr<Document>> waiting_;
  int64_t next_ = 1;
  int64_t rows_ = 0;
};

}  // namespace tallymere::demo
