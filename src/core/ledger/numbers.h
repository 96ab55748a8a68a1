#pragma once

#include <cstdint>
#include <string>

#include "core/store/database.h"

/// Numbers and ids that are never given twice. What was deleted may still be named somewhere, and must not be met
/// again under another's rows: so the highest ever used is kept in the file.
namespace tallymere {

/// One more than the highest TransNum ever used, 1 in a ledger that never had any. It is not reserved:
/// Transaction_Writer looks again. Error 3022 when all numbers are used up.
int64_t Next_TransNum(store::Database& db);

/// "SS" behind a number one higher than any category ever had.
std::string Unused_CatID(store::Database& db);

/// Remembers, inside a Transaction, that these are in use: whoever writes or deletes rows under them says so.
void Note_TransNum(store::Database& db, int64_t TransNum);
void Note_CatID(store::Database& db, const std::string& CatID);

/// For a file that kept no such marks: everything that is named anywhere has been given.
void Note_All_Numbers(store::Database& db);

}  // namespace tallymere
