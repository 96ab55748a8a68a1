#pragma once

#include "entry/papers/paper.h"

/// Purchase orders that a bill takes up.
namespace tallymere {

/// A row of frmOpenPOs.
struct OpenOrder {
  int64_t Index = 0;
  std::string Number;
  tallymere::Date Date;
  Money Total;
};
/// What is open with a vendor, in the order of entry.
std::vector<OpenOrder> Open_Orders(Session& session, const std::string& vendor);

/// What a bill on screen has taken up and not saved yet. Nothing is closed before it is saved: cancelling leaves all orders
/// open.
///
///     if (const auto indexes = Ask_Numbers(shell, {.window = "frmOpenPOs", .key = vendor}))
///       for (const PaperLine& line : pulled.add(session, *indexes)) ...   // into the grid
///
///     Transaction_Writer rows(...);  // in the save
///     ...
///     pulled.close(session, rows.number(), bill.Name);
///     rows.commit();
///
/// Deleting the bill opens them again by itself.
class PulledOrders {
 public:
  /// The lines of these orders, as they stand now. One that is added twice gives its lines once.
  std::vector<PaperLine> add(Session& session, const std::vector<int64_t>& indexes);
  /// Closes them, inside the store transaction that saves the bill. An order of another vendor, because the bill's was
  /// changed since, stays open. Error 3197 when another user changed or took up one of them since add().
  void close(Session& session, int64_t TransNum, const std::string& vendor) const;
  /// Whether all of this vendor's are open still.
  bool are_open(Session& session, const std::string& vendor) const;
  void clear() { orders_.clear(); }
  bool empty() const { return orders_.empty(); }

 private:
  std::vector<PaperDocument> orders_;
};

}  // namespace tallymere
