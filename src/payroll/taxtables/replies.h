#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "core/store/database.h"

/// The tax tables as text, as an update endpoint sends them and `taxtables --load` reads them: fields in the table's
/// order with a tab between them, a line feed after every row, the last one too.
namespace tallymere {

struct TaxTableRows {
  std::string table;
  std::vector<std::vector<store::Value>> rows;
};

/// Why a reply cannot be a table: "FedWeekly, row 3: ...". Nothing has been changed then.
struct Tax_Reply_Error : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Reads and checks one reply: every field there and a number where one belongs, rates between 0 and 1, brackets that
/// rise without a gap to a top no wage reaches, every filing status and pay period, and every key that `accounts` holds
/// in this table now. A reply that was cut short anywhere fails. Throws Tax_Reply_Error.
TaxTableRows Read_Reply(store::Database& accounts, std::string_view table, std::string_view reply);

/// Replaces the rows of all these tables, and says when, in one transaction.
void Load_Tax_Tables(store::Database& accounts, const std::vector<TaxTableRows>& tables, Date today);

/// The same from a folder of files Table.tsv; those that are there. The tables' names, in order; Tax_Reply_Error.
std::vector<std::string> Load_Tax_Folder(store::Database& accounts, const std::filesystem::path& folder, Date today);

}  // namespace tallymere
