#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/company/session.h"

namespace tallymere {

/// What became of a record.
enum class ImportDid { Added, Changed, Same, Skipped };

/// Rows of the company's lists, written by name: what is there is changed, what is not is added, and an empty cell erases
/// nothing. Inside one store transaction.
class ListRows {
 public:
  struct Cell {
    std::string_view field;
    std::string text;  ///< as it stands in the file
  };
  explicit ListRows(store::Database& company) : db_(company) {}

  /// The row whose fields of `key` hold these texts, case aside; the first of `key` must be an index field's.
  ImportDid put(std::string_view table, const std::vector<Cell>& key, const std::vector<Cell>& cells);
  /// The field of the row with this key; "" where there is none.
  std::string look_up(std::string_view table, const Cell& key, std::string_view field);
  bool has(std::string_view table, const Cell& key);

  /// What of the last put() could not be understood and was left out: "PriceRate \"abc\"".
  const std::string& left_out() const { return left_out_; }

 private:
  store::Table& at(std::string_view table, const Cell& key);
  bool find(store::Table& rows, const std::vector<Cell>& key);
  store::Value value_of(store::Table& rows, const Cell& cell);

  store::Database& db_;
  std::map<std::string, std::unique_ptr<store::Table>, std::less<>> tables_;
  std::string left_out_;
};

}  // namespace tallymere
