#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/company/session.h"
#include "core/ledger/category_tree.h"
#include "core/ledger/numbers.h"

/// Conventions of the ledger that every entry window obeys.
namespace tallymere {

/// Stands in Category for the other side of a row whose transaction has more than one.
inline const std::string break_down = "<-Break Down->";

/// The fixed categories.
inline const std::string accounts_receivable = "AR1";
inline const std::string accounts_payable = "AP1";
inline const std::string undeposited_funds = "UF1";
inline const std::string retained_earnings = "RE1";
inline const std::string opening_balance = "OE1";

/// " OR Account = '...'" for each category below `parent`, to any depth; "" when there is none.
std::string SubAccount_Clause(Session& session, std::string_view parent);
std::string SubAccount_Clause(const CategoryTree& tree, std::string_view parent);

/// The AccountName of a CatID; "<-Break Down->" as it stands, "" for what is no category.
std::string Category_Name(Session& session, const std::string& id);

/// The category that a posting to `id` goes to: `id` itself when it has no children, else its " - Other"
/// child, which is made on first use. Inside a save the new child belongs to the same store transaction.
/// Error 3021 when `id` has children but no row of its own.
std::string Get_Postable_Category(Session& session, const std::string& id);

/// Whether a category of this type grows by credits. All others grow by debits.
bool Is_Credit_Normal(std::string_view AccountType);
/// Whether a category of this type keeps no balance.
bool Is_Profit_And_Loss(std::string_view AccountType);

/// The lines of a multi-line text: one more than its line ends, which may be CR LF, CR or LF.
int Count_Text_Lines(std::string_view text);

}  // namespace tallymere
