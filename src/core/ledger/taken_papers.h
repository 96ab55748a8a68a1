#pragma once

#include <cstdint>
#include <string_view>

#include "core/store/database.h"

/// Papers that a transaction took up: an estimate or a package slip that became an invoice, an order that became a
/// bill. TakenBy says which one; while it stands the paper is closed. All writing happens inside the caller's
/// Transaction.
namespace tallymere {

/// Tables of papers.
inline constexpr std::string_view Estimates = "Estimates";
inline constexpr std::string_view PSlips = "PSlips";
inline constexpr std::string_view POs = "POs";

/// Closes an open paper. Error 3197 when another user took or deleted it meanwhile.
void Take_Paper(store::Database& db, std::string_view table, int64_t Index, int64_t TransNum);

/// What is deleted gives back its papers: they are open again. Delete_Transaction does this for everybody.
void Give_Papers_Back(store::Database& db, int64_t TransNum);

}  // namespace tallymere
