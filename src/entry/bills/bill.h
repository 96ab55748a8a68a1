#pragma once

#include <optional>
#include <string>
#include <vector>

#include "entry/document/deletion.h"
#include "entry/document/lines.h"
#include "entry/papers/pulled_orders.h"

/// What is owed to vendors: bills, the credits they give, and receipts of goods whose bill is still to come.
namespace tallymere {

/// What frmBills shows.
struct Bill {
  int64_t TransNum = 0;   ///< txtIndex
  std::string Type = {};  ///< as it stands in the ledger: "Bill", "Credit" or "Item Receipt"; empty: new
  bool credit = false;    ///< optBill says "Credit", else "Bill"
  bool receipt = false;   ///< chkRecipt
  tallymere::Date Date;
  std::optional<tallymere::Date> DueDate = {};
  std::string Number = {};
  std::string Name = {};  ///< the vendor
  std::string Terms = {};
  std::string Memo = {};
  std::optional<Money> Amount = {};  ///< negative: a bill that is a credit, or a credit that is a bill
  bool Paid = false;                 ///< these two are Pay Bills'; a save carries them to every row
  std::string PaidBy = {};
  LineTab Tab = LineTab::Expenses;
  std::vector<ExpenseLine> expenses = {};
  std::vector<ItemLine> items = {};
  PulledOrders pulled = {};  ///< purchase orders that it took up: saving it closes them

  KeptRow kept = {};  ///< the payable row as it was loaded
  Probe probe = {};

  bool is_new() const { return Type.empty(); }
  /// Paid, if only in part.
  bool is_settled() const { return Paid || !PaidBy.empty(); }
};

/// Bills, credits and receipts, for the walk from one to the next.
extern const DocumentKind<Bill> Bill_Kind;

/// A blank bill of today.
Bill New_Bill(Session& session);
/// The bill, credit or receipt under this number; nothing when it is none, or is gone.
std::optional<Bill> Load_Bill(Session& session, int64_t TransNum);

/// Gives a bill that is empty so far the lines and the amount of its vendor's last one. false: there is none, or
/// something stands in this bill.
bool Fill_From_Last_Bill(Session& session, Bill& bill);

/// Adds the lines of purchase orders, and what they come to.
void Take_Up_Orders(Session& session, Bill& bill, const std::vector<int64_t>& indexes);

/// Whether two readings of a bill show the same.
bool Same_Bill(const Bill& one, const Bill& other);

/// One quiet line about what is typed: another bill of the vendor has this number, or the vendor is in no list; "".
std::string Bill_Notice(Session& session, const Bill& bill);

/// Saves what frmBills shows. Afterwards `bill` has the number, type and probe for the next save. What was only looked
/// at is not written. Changing a bill that is paid is asked about.
SaveResult Enter_Bill(Session& session, Bill& bill);

/// Asks, and asks again where it is paid, and deletes its rows. The payment stays.
Deleted<Bill> Delete_Bill(Session& session, const Bill& bill);

/// A receipt of goods that no bill has come for yet: a line of frmInvBill.
struct OpenReceipt {
  std::string Number, Vendor;
  Money Amount;
  int64_t TransNum = 0;
};
std::vector<OpenReceipt> Open_Receipts(Session& session);

}  // namespace tallymere
