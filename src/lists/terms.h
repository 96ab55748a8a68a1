#pragma once

#include <optional>
#include <string>

#include "core/company/session.h"

/// Terms: how many days after its date a document falls due.
namespace tallymere {

/// The days of a term; nothing for one that is in no list, or has none.
std::optional<int> Term_Days(Session& session, const std::string& Term);

/// `date` plus the term's days; nothing when the term has none.
std::optional<Date> Due_Date(Session& session, const std::string& Term, Date date);

/// Asks for the days of a term that is new, and adds it to Terms. `question` is the text of the input box titled "New
/// Term". false: an answer that is empty or no number adds nothing.
bool Add_Term(Session& session, const std::string& Term, const std::string& question);

}  // namespace tallymere
