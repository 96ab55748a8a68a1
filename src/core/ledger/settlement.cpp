#include "core/ledger/settlement.h"

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <string>
#include <unordered_map>

#include "core/company/schema.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

using store::Database;
using store::Row;
using store::Value;

/// What can be settled, and how its rows tell of it.
struct Kind {
  std::string_view Type;
  std::string_view head;  ///< the category of the row whose Amount is what it comes to
  bool names_payers;      ///< in PaidBy
  bool keeps_received;    ///< in AmountReceived; else every payment pays the whole
};
constexpr Kind kinds[] = {{"Bill", "AP1", true, false},
                          {"Invoice", "AR1", true, true},
                          {"Statement", "AR1", true, true},
                          {"Payment", "AR1", false, false}};

/// A document and its head row.
struct Document {
  const Kind* kind = nullptr;  ///< nullptr: gone, or nothing that is ever settled
  Money total;
  Money received;  ///< as its rows tell
  bool paid = false;
  std::string payers;  ///< PaidBy
};

Document Read_Document(Database& db, int64_t TransNum) {
  Document document;
  for (const Kind& kind : kinds)
    db.each(
        "SELECT IFNULL(Amount, 0), IFNULL(AmountReceived, 0), Paid, PaidBy FROM Transactions WHERE TransNum = ?"
        " AND Account = ? AND Type = ? ORDER BY RowKey DESC",
        {TransNum, kind.head, kind.Type}, [&](const Row& row) {
          document = {&kind, row.money(0), row.money(1), row.flag(2), std::string(row.text(3))};
        });
  return document;
}

std::vector<Application> Read_Applications(Database& db, const char* sql, int64_t TransNum) {
  std::vector<Application> found;
  db.each(sql, {TransNum}, [&](const Row& row) { found.push_back({row.integer(0), row.money(1)}); });
  return found;
}

Money Sum_Of(const std::vector<Application>& applications) {
  Money sum;
  for (const Application& each : applications) sum += each.Amount;
  return sum;
}

/// A customer's payment waits for its deposit while its money lies in Undeposited Funds.
bool Waits(Database& db, int64_t Payment) {
  return !db.value("SELECT 1 FROM Transactions WHERE TransNum = ? AND Account = 'UF1' LIMIT 1", {Payment}).is_null();
}

void Write_Received(Database& db, int64_t TransNum, Money received, Money total) {
  std::vector<std::pair<int64_t, Money>> rows;
  db.each("SELECT RowKey, Amount FROM Transactions WHERE TransNum = ?", {TransNum},
          [&](const Row& row) { rows.emplace_back(row.integer(0), row.money(1)); });
  for (const auto& [key, amount] : rows)
    db.Execute("UPDATE Transactions SET AmountReceived = ? WHERE RowKey = ?",
               {total.is_zero() ? Money() : amount.share(received, total), key});
}

std::vector<int64_t> Payers_In(std::string_view PaidBy) {
  std::vector<int64_t> payers;
  for (const std::string& number : split(PaidBy, ";"))
    if (int64_t payer = std::atoll(number.c_str()); payer > 0) payers.push_back(payer);
  return payers;
}

void Add_Row(Database& db, int64_t Payment, int64_t Document, Money Amount) {
  db.Execute("INSERT INTO Applied (Payment, Document, Amount) VALUES (?, ?, ?)", {Payment, Document, Amount});
}

bool Is_Recorded(Database& db, int64_t Document) {
  return !db.value("SELECT 1 FROM Applied WHERE Document = ? LIMIT 1", {Document}).is_null();
}

/// What all payers of a document from before can have paid together.
Money Paid_Before(const Document& document) {
  return document.paid && document.received.is_zero() ? document.total : document.received;
}

Money Amount_Of_Payment(Database& db, int64_t TransNum) {
  return db.value("SELECT Amount FROM Transactions WHERE TransNum = ? AND Account = 'AR1' ORDER BY RowKey", {TransNum})
      .money();
}

/// Before a payment joins or leaves a document that Applied knows nothing of: the payers it names paid it in their
/// order, each as much as it had.
void Record_What_Was(Database& db, int64_t TransNum) {
  if (Is_Recorded(db, TransNum)) return;
  const Document document = Read_Document(db, TransNum);
  if (!document.kind || !document.kind->names_payers) return;
  Money left = Paid_Before(document);
  for (int64_t payer : Payers_In(document.payers)) {
    if (db.value("SELECT 1 FROM Transactions WHERE TransNum = ? LIMIT 1", {payer}).is_null()) continue;
    const Money share = document.kind->keeps_received ? std::min(left, Amount_Of_Payment(db, payer)) : document.total;
    if (share <= Money()) continue;
    Add_Row(db, payer, TransNum, share);
    left -= share;
  }
}

/// All documents that name a payment, or that it is recorded to have settled.
std::vector<int64_t> Documents_Of(Database& db, int64_t Payment) {
  std::vector<int64_t> documents;
  const std::string named =
      "SELECT TransNum FROM Transactions WHERE PaidBy = ? UNION SELECT TransNum FROM "
      "Transactions WHERE " +
      std::string(not_one_payment) + " AND instr(';' || PaidBy, ?) > 0";
  db.each(named + " UNION SELECT Document FROM Applied WHERE Payment = ?",
          {Paid_By(Payment), ";" + Paid_By(Payment), Payment},
          [&](const Row& row) { documents.push_back(row.integer(0)); });
  return documents;
}

}  // namespace

std::string Paid_By(int64_t TransNum) { return std::to_string(TransNum) + ";"; }

std::vector<Application> Applied_To(Database& db, int64_t Document) {
  return Read_Applications(db, "SELECT Payment, Amount FROM Applied WHERE Document = ? ORDER BY RowKey", Document);
}

std::vector<Application> Applied_By(Database& db, int64_t Payment) {
  return Read_Applications(db, "SELECT Document, Amount FROM Applied WHERE Payment = ? ORDER BY RowKey", Payment);
}

void Apply(Database& db, int64_t Payment, int64_t Document, Money Amount) {
  if (Amount.is_negative()) throw std::logic_error("a payment settles more than nothing of a document");
  Record_What_Was(db, Document);
  if (Amount.is_zero())
    db.Execute("DELETE FROM Applied WHERE Payment = ? AND Document = ?", {Payment, Document});
  else if (db.Execute("UPDATE Applied SET Amount = ? WHERE Payment = ? AND Document = ?",
                      {Amount, Payment, Document}) == 0)
    Add_Row(db, Payment, Document, Amount);
  Settle(db, Document);
}

void Settle(Database& db, int64_t TransNum) {
  const Document document = Read_Document(db, TransNum);
  if (!document.kind) return;
  const auto payments = Applied_To(db, TransNum);
  const Money received = Sum_Of(payments);
  bool paid = !payments.empty() && received >= document.total;
  if (document.kind->Type == "Payment") paid = paid || !Waits(db, TransNum);
  db.Execute("UPDATE Transactions SET Paid = ? WHERE TransNum = ?", {paid, TransNum});
  if (document.kind->keeps_received) Write_Received(db, TransNum, received, document.total);
  if (!document.kind->names_payers) return;
  std::string payers;
  for (const Application& payment : payments) payers += Paid_By(payment.TransNum);
  db.Execute("UPDATE Transactions SET PaidBy = ? WHERE TransNum = ?",
             {payers.empty() ? Value() : Value(payers), TransNum});
}

void Take_Back(Database& db, int64_t TransNum) {
  const auto documents = Documents_Of(db, TransNum);
  for (int64_t document : documents) Record_What_Was(db, document);
  db.Execute("DELETE FROM Applied WHERE Payment = ? OR Document = ?", {TransNum, TransNum});
  for (int64_t document : documents) Settle(db, document);
}

// --- what must stay true -------------------------------------------------------------------------

namespace {

[[noreturn]] void Refuse(const std::string& why) { throw store::Error(settlement_broken, why); }

/// What a transaction takes out of a category: credits less debits.
Money Taken(Database& db, int64_t TransNum, std::string_view Account) {
  return Money::from_units(db.value("SELECT SUM(IFNULL(Credit, 0) - IFNULL(Debit, 0)) + 0 FROM Transactions WHERE"
                                    " TransNum = ? AND Account = ?",
                                    {TransNum, Account})
                               .integer());
}

std::string Type_Of(Database& db, int64_t TransNum) {
  return db.value("SELECT Type FROM Transactions WHERE TransNum = ? LIMIT 1", {TransNum}).text();
}

std::string Customer_Of(Database& db, int64_t TransNum) {
  return db.value("SELECT Name FROM Transactions WHERE TransNum = ? AND Account = 'AR1' LIMIT 1", {TransNum}).text();
}

void Require_Payment(Database& db, int64_t Payment) {
  const std::vector<Application> by = Applied_By(db, Payment), held = Applied_To(db, Payment);
  const Money amount = Taken(db, Payment, "AR1"), settled = Sum_Of(by);
  const bool less = settled < amount && Unrecorded_Documents(db).empty();
  if (!by.empty() && (settled > amount || less))
    Refuse("This payment settles invoices for " + settled.to_text() + ". Change its amount in the payments window.");
  if (!held.empty() && -Taken(db, Payment, "UF1") != Sum_Of(held))
    Refuse("This payment lies in a deposit, transaction " + std::to_string(held.front().TransNum) +
           ". Delete that deposit first.");
}

void Require_Deposit(Database& db, int64_t Deposit) {
  Money held;
  for (const Application& each : Applied_By(db, Deposit))
    if (Type_Of(db, each.TransNum) == "Payment") held += each.Amount;
  if (!held.is_zero() && Taken(db, Deposit, "UF1") != held)
    Refuse("This deposit holds payments of " + held.to_text() +
           ". What it takes out of Undeposited Funds stays; to take a payment out of it, delete the deposit.");
}

/// A payment and what it settles are of one customer.
void Require_One_Customer(Database& db, int64_t one, const std::vector<Application>& others) {
  const std::string name = Customer_Of(db, one);
  for (const Application& other : others)
    if (const std::string theirs = Customer_Of(db, other.TransNum); !theirs.empty() && !name.empty() && theirs != name)
      Refuse("Transaction " + std::to_string(other.TransNum) + " of " + theirs +
             " and this one settle each other. The customer stays.");
}

}  // namespace

void Require_Settled(Database& db, int64_t TransNum) {
  const std::vector<Application> by = Applied_By(db, TransNum), to = Applied_To(db, TransNum);
  if (by.empty() && to.empty()) return;
  if (Type_Of(db, TransNum) == "Payment")
    Require_Payment(db, TransNum);
  else
    Require_Deposit(db, TransNum);
  Require_One_Customer(db, TransNum, by);
  Require_One_Customer(db, TransNum, to);
}

// --- documents of before -------------------------------------------------------------------------

namespace {

/// A payer of a document, and what it must have paid of it, once that is known.
struct Claim {
  int64_t document, payer;
  std::optional<Money> amount = {};
};

/// Amounts that must come out on both sides: a document's payers together paid what it received, a customer's payment
/// settled documents for its own amount. Whoever has one unknown left knows it.
class Puzzle {
 public:
  explicit Puzzle(Database& db) : db_(db) {}

  void add(int64_t document, const Document& read) {
    const auto payers = Payers_In(read.payers);
    if (read.kind->keeps_received) expect(document, Paid_Before(read), payers.size());
    for (int64_t payer : payers) {
      if (!payer_amount(payer)) continue;  // it is gone: what its document received stays a riddle
      std::optional<Money> whole = read.kind->keeps_received ? std::nullopt : std::optional(read.total);
      if (read.kind->keeps_received) by_number_[payer].open++;
      claims_.push_back({document, payer, whole});
    }
  }

  void solve() {
    for (bool more = true; more;) {
      more = false;
      for (Claim& claim : claims_) more = find(claim) || more;
    }
  }

  /// Writes the documents that came out whole.
  void write() {
    for (const Claim& claim : claims_) {
      const auto side = by_number_.find(-claim.document);
      const bool whole = side == by_number_.end() || (side->second.open == 0 && side->second.left.is_zero());
      if (whole && claim.amount) Add_Row(db_, claim.payer, claim.document, *claim.amount);
    }
  }

 private:
  struct Side {
    Money left;
    size_t open = 0;
  };

  void expect(int64_t document, Money received, size_t payers) { by_number_[-document] = {received, payers}; }

  bool payer_amount(int64_t payer) {
    if (by_number_.contains(payer)) return true;
    if (db_.value("SELECT 1 FROM Transactions WHERE TransNum = ? LIMIT 1", {payer}).is_null()) return false;
    by_number_[payer] = {Amount_Of_Payment(db_, payer), 0};
    return true;
  }

  bool find(Claim& claim) {
    if (claim.amount) return false;
    Side &document = by_number_[-claim.document], &payer = by_number_[claim.payer];
    if (document.open != 1 && payer.open != 1) return false;
    const Money amount = document.open == 1 ? document.left : payer.left;
    if (amount <= Money() || amount > document.left || amount > payer.left) return false;
    claim.amount = amount;
    for (Side* side : {&document, &payer}) side->left -= amount, side->open--;
    return true;
  }

  Database& db_;
  std::vector<Claim> claims_;
  std::unordered_map<int64_t, Side> by_number_;  ///< payments by their number, documents by its negative
};

}  // namespace

std::vector<int64_t> Unrecorded_Documents(Database& db) {
  std::vector<int64_t> documents;
  db.each(
      "SELECT DISTINCT TransNum FROM Transactions WHERE PaidBy IS NOT NULL AND PaidBy <> ''"
      " AND Account IN ('AR1', 'AP1') AND TransNum NOT IN (SELECT Document FROM Applied) ORDER BY Date, TransNum",
      {}, [&](const Row& row) { documents.push_back(row.integer(0)); });
  return documents;
}

int64_t Fill_Applied(Database& db) {
  Puzzle puzzle(db);
  for (int64_t document : Unrecorded_Documents(db))
    if (const Document read = Read_Document(db, document); read.kind && read.kind->names_payers)
      puzzle.add(document, read);
  puzzle.solve();
  puzzle.write();
  return static_cast<int64_t>(Unrecorded_Documents(db).size());
}

}  // namespace tallymere
