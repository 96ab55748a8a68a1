#include "core/ledger/stored_row.h"

namespace tallymere {
namespace {

std::optional<Money> Amount(const store::Value& value) {
  return value.blank() ? std::nullopt : std::optional(value.money());
}

std::optional<double> Number(const store::Value& value) {
  return value.blank() ? std::nullopt : std::optional(value.number());
}

}  // namespace

LedgerRow Stored_Row(store::RowSet& row) {
  return {.Account = row["Account"].text(),
          .Category = row["Category"].text(),
          .Debit = row["Debit"].money(),
          .Credit = row["Credit"].money(),
          .Amount = Amount(row["Amount"].value()),
          .Memo = row["Memo"].text(),
          .SourceName = row["SourceName"].text(),
          .Class = row["Class"].text(),
          .Item = row["Item"].text(),
          .ItemDescription = row["ItemDescription"].text(),
          .Qty = Number(row["Qty"].value()),
          .SalePrice = Amount(row["SalePrice"].value()),
          .ExactRate = Number(row["ExactRate"].value()),
          .Taxable = row["Taxable"].flag(),
          .Cleared = row["Cleared"].flag(),
          .Paid = row["Paid"].flag(),
          .PaidBy = row["PaidBy"].text(),
          .AmountReceived = Amount(row["AmountReceived"].value()),
          .Type = row["Type"].text(),
          .Number = row["Number"].text(),
          .Name = row["Name"].text(),
          .Address = row["Address"].text(),
          .ShippingAddress = row["ShippingAddress"].text(),
          .Terms = row["Terms"].text(),
          .DueDate = row["DueDate"].maybe_date(),
          .PONum = row["PONum"].text(),
          .ShipDate = row["ShipDate"].maybe_date(),
          .FOB = row["FOB"].text(),
          .Via = row["Via"].text(),
          .Rep = row["Rep"].text(),
          .PayMethod = row["PayMethod"].text(),
          .PaidThrough = row["PaidThrough"].maybe_date(),
          .SSNum = row["SSNum"].text(),
          .PayrollItem = row["PayrollItem"].text(),
          .PayPeriod = row["PayPeriod"].text(),
          .Hours = Number(row["Hours"].value())};
}

void Follow_Head(LedgerRow& row, const LedgerRow& head) {
  for (auto field : {&LedgerRow::Type, &LedgerRow::Number, &LedgerRow::Name, &LedgerRow::Address})
    if (row.*field == head.*field) (row.*field).reset();
}

}  // namespace tallymere
