#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "core/store/database.h"

/// What pays what. Each row of Applied says how much of a document a payment settled; Paid, PaidBy and AmountReceived
/// on the document's own rows follow from them. All writing happens inside the caller's Transaction.
namespace tallymere {

/// One end of a row of Applied, and how much it is worth: more than nothing.
struct Application {
  int64_t TransNum = 0;
  Money Amount;
  friend bool operator==(const Application&, const Application&) = default;
};

/// A payment (a check, a payment, a vendor's credit, a deposit) settles this much of a document (a bill, an invoice, a
/// statement, a payment that waits for its deposit), in place of what it settled of it before; zero: nothing any more.
/// The document's rows follow at once. A bill is paid whole: its Amount.
void Apply(store::Database& db, int64_t Payment, int64_t Document, Money Amount);

/// Derives on all rows of a document: Paid, once what was applied reaches its amount; PaidBy, its payers in the order
/// of payment, each followed by ";"; AmountReceived of what customers owe, each row its share. For rows just written.
void Settle(store::Database& db, int64_t Document);

/// What must stay true of what is settled, whatever window writes: a customer's payment settles documents of that
/// customer for its own amount; a deposit takes out of Undeposited Funds what its payments come to. Error
/// `settlement_broken` says which document stands against it.
void Require_Settled(store::Database& db, int64_t TransNum);
inline constexpr int settlement_broken = 3352;

/// What is deleted settles nothing any more, and nothing settles it: its documents are open again by what it had paid.
/// Delete_Transaction does this for everybody.
void Take_Back(store::Database& db, int64_t TransNum);

std::vector<Application> Applied_To(store::Database& db, int64_t Document);  ///< its payments, in their order
std::vector<Application> Applied_By(store::Database& db, int64_t Payment);   ///< its documents, in their order

/// Fills Applied from the PaidBy of documents that were settled before it was kept, wherever one amount alone is
/// possible. How many documents remain; each is recorded, oldest payment first, when a payment next touches it.
int64_t Fill_Applied(store::Database& db);

/// Documents whose PaidBy names payments that Applied knows nothing of.
std::vector<int64_t> Unrecorded_Documents(store::Database& db);

/// "1042;", as a document names its payer.
std::string Paid_By(int64_t TransNum);

}  // namespace tallymere
