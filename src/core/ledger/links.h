#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/company/schema.h"
#include "core/store/database.h"

/// What points at what, asked of one company: the table of links is the schema's.
namespace tallymere {

/// Whether a row of the link's table names this key.
bool Points_At(store::Database& db, const Reference& link, const store::Value& key);

/// The first link by which something names this key of a table: what keeps its row from being deleted.
std::optional<Reference> In_Use(store::Database& db, std::string_view table, std::string_view field,
                                const store::Value& key);

/// "Preferences use it.", for the line below a box; by the table's meaning to the user.
std::string Use_In_Words(const Reference& link);

}  // namespace tallymere
