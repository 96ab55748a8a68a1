#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/ledger/category_tree.h"

/// What is still to be paid: invoices of customers, bills of vendors.
namespace tallymere {

enum class Party { Customers, Vendors };

/// What stands for a party in the ledger and in the words of reports.
struct Party_Words {
  std::string_view control;       ///< the CatID its documents stand on
  std::string_view document;      ///< their Type
  std::string_view list;          ///< the table of its names
  std::string_view control_name;  ///< "Accounts Receivable"
  std::string_view value;         ///< of a row, as the control category counts it, in SQL
};
const Party_Words& Words_Of(Party party);

/// The row of an unpaid invoice or bill on its control category.
struct OpenDocument {
  int64_t TransNum;
  std::string Name, Number, Terms, Class;
  std::optional<Date> day, DueDate;
  int terms_days;  ///< 0 without terms, and with terms that are in the list no more
  Money Amount;    ///< as written: whole, and positive also on a credit memo
  Money AmountReceived;
  bool lowers;  ///< a credit memo: it lowers what is owed

  Date terms_date() const;  ///< Date + the terms' days
  Date due() const { return DueDate ? *DueDate : terms_date(); }
};

/// All that is unpaid now, of any date, by date; read with one statement, the terms with another.
std::vector<OpenDocument> Open_Documents(store::Database& db, Party party);

/// How old a document is, in the five steps that reports show.
inline constexpr std::array<std::string_view, 5> Bucket_Names = {"Current", "1 - 30", "31 - 60", "61 - 90", "> 90"};
size_t Bucket_Of(int age);

/// What leads from the sum of the open documents, each counted whole, to the balance of the control category with all
/// below it. Amounts are to be added; together with the total they are the balance.
struct Balance_Steps {
  struct Step {
    std::string_view label;
    Money amount;
  };
  std::vector<Step> steps;  ///< only what is not zero
  Money balance;
};
Balance_Steps Steps_To_Balance(store::Database& db, Party party, const std::vector<OpenDocument>& documents);

}  // namespace tallymere
