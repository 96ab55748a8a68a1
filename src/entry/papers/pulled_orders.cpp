#include "entry/papers/pulled_orders.h"

#include <algorithm>

#include "core/ledger/taken_papers.h"
#include "core/values/text.h"

namespace tallymere {

std::vector<OpenOrder> Open_Orders(Session& session, const std::string& vendor) {
  std::vector<OpenOrder> orders;
  session.dbCompany->each(
      "SELECT \"Index\", PONumber, Date, Total FROM POs WHERE Vendor = ? AND Open = True ORDER BY \"Index\"", {vendor},
      [&](const store::Row& row) {
        orders.push_back(
            {row.integer(0), std::string(row.text(1)), row.date(2).value_or(session.today()), row.money(3)});
      });
  return orders;
}

std::vector<PaperLine> PulledOrders::add(Session& session, const std::vector<int64_t>& indexes) {
  std::vector<PaperLine> lines;
  for (const int64_t index : indexes) {
    const bool here = std::ranges::find(orders_, index, &PaperDocument::Index) != orders_.end();
    auto order = here ? std::nullopt : Load_Paper(session, PaperKind::PO, index);
    if (!order) continue;
    lines.insert(lines.end(), order->lines.begin(), order->lines.end());
    orders_.push_back(std::move(*order));
  }
  return lines;
}

bool PulledOrders::are_open(Session& session, const std::string& vendor) const {
  const auto open = Open_Orders(session, vendor);
  return std::ranges::all_of(orders_, [&](const PaperDocument& order) {
    return !same_text(order.Party, vendor) || std::ranges::find(open, order.Index, &OpenOrder::Index) != open.end();
  });
}

void PulledOrders::close(Session& session, int64_t TransNum, const std::string& vendor) const {
  store::Database& db = *session.dbCompany;
  for (const PaperDocument& order : orders_) {
    if (!same_text(order.Party, vendor)) continue;
    order.probe.check(db);
    order.line_probe.check(db);
    Take_Paper(db, POs, order.Index, TransNum);
  }
}

}  // namespace tallymere
