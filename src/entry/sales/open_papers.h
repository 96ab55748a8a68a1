#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "entry/sales/sale_lines.h"

/// Estimates and package slips of a customer that wait to become an invoice.
namespace tallymere {

/// Where a kind of paper and its lines stand.
struct SalePaper {
  std::string_view table, customer, number, lines, index;
};
inline constexpr SalePaper Estimate_Paper = {"Estimates", "Customer", "EstimateNumber", "EstItems", "EstimateIndex"};
inline constexpr SalePaper Slip_Paper = {"PSlips", "Vendor", "PONumber", "PSlipItems", "POIndex"};

struct OpenPaper {
  int64_t Index = 0;
  std::string Number = {};
  Money Total = {};
};
std::vector<OpenPaper> Open_Papers(Session& session, const SalePaper& paper, const std::string& customer);

/// Its lines as an invoice has them: what it says of quantity, price and amount, and the item's tax mark and category.
std::vector<ItemLine> Paper_Lines(Session& session, SaleItems& items, const SalePaper& paper, int64_t Index);

}  // namespace tallymere
