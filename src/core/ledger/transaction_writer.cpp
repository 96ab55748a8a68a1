#include "core/ledger/transaction_writer.h"

#include <algorithm>
#include <cassert>

#include "core/ledger/ledger.h"
#include "core/ledger/marks.h"
#include "core/ledger/pay_period.h"
#include "core/ledger/settlement.h"
#include "core/ledger/taken_papers.h"
#include "core/store/sql.h"

namespace tallymere {
namespace {

using store::Value;

/// "Check 1042, Acme Supply"
std::string Title(const std::string& type, const std::string& number, const std::string& name) {
  std::string title = type.empty() ? "Transaction" : type;
  if (!number.empty()) title += " " + number;
  if (!name.empty()) title += ", " + name;
  return title;
}

Value Text(const std::string& text) { return text.empty() ? Value() : Value(text); }
Value Text(const std::optional<std::string>& own, const std::string& head) { return Text(own ? *own : head); }

struct Column {
  std::string_view name;
  Value (*value)(const TransactionHead& head, const LedgerRow& row);
};
using Head = const TransactionHead&;
using Row = const LedgerRow&;
constexpr Column columns[] = {
    {"TransNum", [](Head head, Row) { return Value(head.TransNum); }},
    {"Type", [](Head head, Row row) { return Text(row.Type, head.Type); }},
    {"Date", [](Head head, Row) { return Value(head.Date); }},
    {"Number", [](Head head, Row row) { return Text(row.Number, head.Number); }},
    {"Name", [](Head head, Row row) { return Text(row.Name, head.Name); }},
    {"Address", [](Head head, Row row) { return Text(row.Address, head.Address); }},
    {"ShippingAddress", [](Head, Row row) { return Text(row.ShippingAddress); }},
    {"Memo", [](Head, Row row) { return Text(row.Memo); }},
    {"Account", [](Head, Row row) { return Text(row.Account); }},
    {"Category", [](Head, Row row) { return Text(row.Category); }},
    {"Debit", [](Head, Row row) { return Value(row.Debit); }},
    {"Credit", [](Head, Row row) { return Value(row.Credit); }},
    {"Amount", [](Head, Row row) { return Value(row.Amount); }},
    {"Class", [](Head, Row row) { return Text(row.Class); }},
    {"Cleared", [](Head head, Row row) { return Value(head.Cleared || row.Cleared); }},
    {"Paid", [](Head, Row row) { return Value(row.Paid); }},
    {"PaidBy", [](Head, Row row) { return Text(row.PaidBy); }},
    {"AmountReceived", [](Head, Row row) { return Value(row.AmountReceived); }},
    {"SourceName", [](Head, Row row) { return Text(row.SourceName); }},
    {"Item", [](Head, Row row) { return Text(row.Item); }},
    {"ItemDescription", [](Head, Row row) { return Text(row.ItemDescription); }},
    {"Qty", [](Head, Row row) { return Value(row.Qty); }},
    {"SalePrice", [](Head, Row row) { return Value(row.SalePrice); }},
    {"ExactRate", [](Head, Row row) { return Value(row.ExactRate); }},
    {"Taxable", [](Head, Row row) { return Value(row.Taxable); }},
    {"Terms", [](Head, Row row) { return Text(row.Terms); }},
    {"DueDate", [](Head, Row row) { return Value(row.DueDate); }},
    {"PONum", [](Head, Row row) { return Text(row.PONum); }},
    {"ShipDate", [](Head, Row row) { return Value(row.ShipDate); }},
    {"FOB", [](Head, Row row) { return Text(row.FOB); }},
    {"Via", [](Head, Row row) { return Text(row.Via); }},
    {"Rep", [](Head, Row row) { return Text(row.Rep); }},
    {"PayMethod", [](Head, Row row) { return Text(row.PayMethod); }},
    {"PaidThrough", [](Head, Row row) { return Value(row.PaidThrough); }},
    {"SSNum", [](Head, Row row) { return Text(row.SSNum); }},
    {"PayrollItem", [](Head, Row row) { return Text(row.PayrollItem); }},
    {"PayPeriod", [](Head, Row row) { return Text(row.PayPeriod); }},
    {"Hours", [](Head, Row row) { return Value(row.Hours); }},
};

std::string Insert_Statement() {
  std::string names, marks;
  for (const Column& column : columns) {
    names += (names.empty() ? "" : ", ") + store::Quoted(column.name);
    marks += marks.empty() ? "?" : ", ?";
  }
  return "INSERT INTO Transactions (" + names + ") VALUES (" + marks + ")";
}

bool Has_Rows(store::Database& db, int64_t number) {
  return !db.value("SELECT RowKey FROM Transactions WHERE TransNum = ? LIMIT 1", {number}).is_null();
}

void Delete_Rows(store::Database& db, int64_t number) {
  db.Execute("DELETE FROM Transactions WHERE TransNum = ?", {number});
}

void Unsign(LedgerRow& row) {
  const Money debit = row.Debit, credit = row.Credit, none;
  row.Debit = std::max(debit, none) + std::max(-credit, none);
  row.Credit = std::max(credit, none) + std::max(-debit, none);
  if (row.Amount) row.Amount = row.Amount->abs();
}

}  // namespace

// --- Transaction_Writer --------------------------------------------------------------------------

Transaction_Writer::Transaction_Writer(Session& session, TransactionHead head, const Probe& probe)
    : db_(*session.dbCompany), head_(std::move(head)), tx_(db_, Title(head_.Type, head_.Number, head_.Name)) {
  if (probe.is_new()) {
    const bool used = Has_Rows(db_, head_.TransNum) || head_.TransNum <= Mark(db_, "TransNum");
    if (used || head_.TransNum == 0) head_.TransNum = Next_TransNum(db_);
  } else {
    assert(head_.TransNum != 0);
    probe.check(db_);
    Delete_Rows(db_, head_.TransNum);
  }
  Note_TransNum(db_, head_.TransNum);
}

void Transaction_Writer::require_category(const LedgerRow& row) {
  const bool posts = !row.Debit.is_zero() || !row.Credit.is_zero();
  if (row.Account.empty() && !posts) return;
  if (found_.contains(row.Account)) return;
  if (db_.value("SELECT 1 FROM Accounts WHERE CatID = ?", {row.Account}).is_null())
    throw store::Error(store::errors::no_such_category,
                       row.Account.empty() ? "Please choose a category for every line that has an amount."
                                           : "A category of this transaction is not there any more. Another user may "
                                             "have deleted it. Please choose another one.");
  found_.insert(row.Account);
}

void Transaction_Writer::add(LedgerRow row) {
  static const std::string insert = Insert_Statement();
  store::Database::Params values;
  require_category(row);
  Unsign(row);
  values.reserve(std::size(columns));
  for (const Column& column : columns) values.push_back(column.value(head_, row));
  db_.Execute(insert, values);
}

void Transaction_Writer::commit() {
  if (!Applied_To(db_, head_.TransNum).empty()) Settle(db_, head_.TransNum);
  Require_Settled(db_, head_.TransNum);
  Probe written = Probe::Of(db_, head_.TransNum);
  tx_.commit();
  written_ = std::move(written);
}

// --- without rewriting ---------------------------------------------------------------------------

std::string Title_Of_Rows(store::Database& db, int64_t TransNum) {
  auto row = db.OpenRecordset("SELECT * FROM Transactions WHERE TransNum = ? ORDER BY RowKey", {TransNum});
  if (!row.has_row()) return "transaction " + std::to_string(TransNum);
  return Title(row["Type"].text(), row["Number"].text(), row["Name"].text());
}

int64_t Delete_Transaction(Session& session, int64_t TransNum) {
  store::Database& db = *session.dbCompany;
  store::Transaction tx(db, "Deleted " + Title_Of_Rows(db, TransNum));
  int64_t rows = db.value("SELECT COUNT(*) FROM Transactions WHERE TransNum = ?", {TransNum}).integer();
  Unpay_Period(db, TransNum);
  Take_Back(db, TransNum);
  Give_Papers_Back(db, TransNum);
  Note_TransNum(db, TransNum);
  Delete_Rows(db, TransNum);
  tx.commit();
  return rows;
}

int64_t Rewrite_Fields(Session& session, int64_t TransNum, const FieldValues& fields) {
  store::Database& db = *session.dbCompany;
  const store::TableDef& table = *db.find_table("Transactions");
  std::string assignments;
  store::Database::Params values;
  for (const auto& [name, value] : fields) {
    const store::Field* field = table.find(name);
    if (!field)
      throw store::Error(store::errors::no_such_field, "Item not found in this collection: " + std::string(name) + ".");
    assignments += (assignments.empty() ? "" : ", ") + store::Quoted(field->name) + " = ?";
    values.push_back(value.as(field->type));
  }
  values.emplace_back(TransNum);
  store::Transaction tx(db, Title_Of_Rows(db, TransNum));
  int64_t rows = db.Execute("UPDATE Transactions SET " + assignments + " WHERE TransNum = ?", values);
  tx.commit();
  return rows;
}

std::optional<Conflict> Conflict_Of(const store::Error& error) {
  switch (error.number) {
    case store::errors::data_changed:
      return Conflict{
          {"This Transaction has been modified by another user since you opened it. Transaction will not be "
           "updated. Click Ok to see changes.",
           "Data has changed", Icon::Information},
          true};
    case store::errors::no_such_category:
      return Conflict{{error.description(), "Invalid Category", Icon::Information}, false};
    case settlement_broken:
      return Conflict{{error.description(), "Payment Applied", Icon::Information}, false};
    case store::errors::locked:
      return Conflict{{error.description() + " Try Again later.", "", Icon::None}, false};
    default:
      return std::nullopt;
  }
}

}  // namespace tallymere
