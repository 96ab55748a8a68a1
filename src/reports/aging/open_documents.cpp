#include "reports/aging/open_documents.h"

#include "reports/sums/ledger_sums.h"

namespace tallymere {
namespace {

constexpr Party_Words receivable = {"AR1", "Invoice", "Customers", "Accounts Receivable",
                                    "CASE WHEN Debit <> 0 THEN Debit ELSE -COALESCE(Credit, 0) END"};
constexpr Party_Words payable = {"AP1", "Bill", "Vendors", "Accounts Payable",
                                 "CASE WHEN Debit <> 0 THEN -Debit ELSE COALESCE(Credit, 0) END"};

using Terms = CaselessMap<int>;

Terms Read_Terms(store::Database& db) {
  Terms days;
  db.each("SELECT Term, Days FROM Terms ORDER BY RowKey", {},
          [&](const store::Row& row) { days.try_emplace(std::string(row.text(0)), static_cast<int>(row.integer(1))); });
  return days;
}

int Days_Of(const Terms& terms, std::string_view Term) {
  const auto found = Term.empty() ? terms.end() : terms.find(Term);
  return found == terms.end() ? 0 : found->second;
}

constexpr std::string_view unpaid = "(Paid IS NULL OR Paid = 0)";

}  // namespace

const Party_Words& Words_Of(Party party) { return party == Party::Customers ? receivable : payable; }

Date OpenDocument::terms_date() const { return day.value_or(First_Day).plus_days(terms_days); }

std::vector<OpenDocument> Open_Documents(store::Database& db, Party party) {
  enum { TransNum, Name, Day, Number, Term, DueDate, Class, Amount, AmountReceived, Debit, Credit };
  const Party_Words& words = Words_Of(party);
  const Terms terms = Read_Terms(db);
  // A bill that was paid in part is owed the rest; an invoice says itself what was received on it.
  const std::string amount =
      party == Party::Customers
          ? "Amount"
          : "Amount - IFNULL((SELECT SUM(a.Amount) FROM Applied AS a WHERE a.Document = Transactions.TransNum), 0)";
  std::vector<OpenDocument> documents;
  db.each("SELECT TransNum, Name, Date, Number, Terms, DueDate, Class, " + amount +
              ", AmountReceived, Debit, Credit"
              " FROM Transactions INDEXED BY Transactions_Account WHERE Account = ? AND Transactions.Type = ? AND " +
              std::string(unpaid) + " ORDER BY Date, TransNum, Transactions.RowKey",
          {words.control, words.document}, [&](const store::Row& row) {
            const bool is_debit = !row.money(Debit).is_zero(), is_credit = !row.money(Credit).is_zero();
            documents.push_back({.TransNum = row.integer(TransNum),
                                 .Name = std::string(row.text(Name)),
                                 .Number = std::string(row.text(Number)),
                                 .Terms = std::string(row.text(Term)),
                                 .Class = std::string(row.text(Class)),
                                 .day = row.date(Day),
                                 .DueDate = row.date(DueDate),
                                 .terms_days = Days_Of(terms, row.text(Term)),
                                 .Amount = row.money(Amount),
                                 .AmountReceived = row.money(AmountReceived),
                                 .lowers = party == Party::Customers ? is_credit && !is_debit : is_debit});
          });
  return documents;
}

size_t Bucket_Of(int age) {
  constexpr int step = 30;
  if (age < 1) return 0;
  return std::min<size_t>(static_cast<size_t>((age - 1) / step) + 1, Bucket_Names.size() - 1);
}

Balance_Steps Steps_To_Balance(store::Database& db, Party party, const std::vector<OpenDocument>& documents) {
  const Party_Words& words = Words_Of(party);
  const CatIDs family = Family_Of(CategoryTree::Load(db), std::string(words.control));
  // What other kinds of document are worth while they are not settled.
  const std::string_view other_kind = party == Party::Customers ? "Statement" : "Credit";
  const std::string from =
      " FROM json_each(?1) AS wanted CROSS JOIN Transactions INDEXED BY Transactions_Account"
      " WHERE Account = wanted.value";
  const std::string value(words.value);
  Money balance, other, receipts;
  db.each("SELECT SUM(" + value + "), SUM(CASE WHEN Transactions.Type = ?2 AND " + std::string(unpaid) + " THEN " +
              value + " END), SUM(CASE WHEN Transactions.Type = 'Item Receipt' THEN " + value + " END)" + from,
          {Id_List(family), other_kind},
          [&](const store::Row& row) { balance = row.money(0), other = row.money(1), receipts = row.money(2); });
  Money total, received, memos;
  for (const OpenDocument& document : documents) {
    total += document.Amount;
    if (document.lowers) memos += document.Amount;
    received += document.lowers ? -document.AmountReceived : document.AmountReceived;
  }
  if (party == Party::Vendors) received = {};
  Balance_Steps result{.steps = {}, .balance = balance};
  Money left = balance - total;
  const auto step = [&](std::string_view label, Money amount) {
    if (!amount.is_zero()) result.steps.push_back({label, amount});
    left -= amount;
  };
  if (party == Party::Customers) {
    step("Less received", -received);
    step("Less credit memos, counted above as owed", -(memos + memos));
    step("Plus statements", other);
  } else {
    step("Less bills of a negative amount, counted above as owed", -(memos + memos));
    step("Less vendor credits", other);
    step("Plus item receipts", receipts);
  }
  step("Plus other rows", left);
  return result;
}

}  // namespace tallymere
