#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/company/session.h"
#include "core/values/date.h"
#include "core/values/money.h"

/// Looks up transactions by what a person remembers of them.
namespace tallymere {

enum class FindBy { Name, Date, Amount, Number, Memo };

/// What is looked for. Amounts come as typed; `text_to` and `date_to` make a range where they are given.
struct FindRequest {
  FindBy by = FindBy::Name;
  std::string text = {}, text_to = {};
  tallymere::Date date = tallymere::Date(2000, 1, 1);
  std::optional<tallymere::Date> date_to = {};
};

/// One row of a found transaction: a split transaction is found row by row.
struct FoundRow {
  std::string Type;
  std::optional<tallymere::Date> Date;
  std::string Name;
  std::string Category;  ///< the name of the category the row posts to
  Money Amount;
  int64_t TransNum = 0;
};

/// What keeps a request from being looked up; nothing when it can be.
std::optional<Fault> Check_Find(const FindRequest& request);

/// The rows that fit, by date (of one day by number), as entered. A name that nobody has entirely is found as a part of names; a
/// memo always is. Throws nothing of its own; the request must have passed Check_Find.
std::vector<FoundRow> Find_Transactions(Session& session, const FindRequest& request);

}  // namespace tallymere
