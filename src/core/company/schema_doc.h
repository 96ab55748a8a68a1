#pragma once

#include <string>

namespace tallymere {

// docs/schema.md as it has to be: every table with its fields, types, meanings and indexes, in Markdown.
std::string Schema_Document();

}  // namespace tallymere
