#pragma once

#include <string>
#include <vector>

#include "reports/graph/graph.h"

/// The figures of a graph, put together until their labels have room.
namespace tallymere {

/// Months that share one group of bars.
struct Graph_Span {
  std::string label;  ///< "Jan", "Q1", "2026", "2020-24"
  int year = 0;       ///< to stand below the first of each year; 0: the label says it
  std::vector<Money> amounts;
};

/// The months in spans of this many: 1, 3, 12 or a multiple of 12, by the calendar.
std::vector<Graph_Span> Graph_Spans(const Graph_Months& graph, int months);

/// How amounts are written: in full without cents, in thousands or in millions.
enum class Graph_Scale { Full, Thousands, Millions };
std::string Graph_Text(Money amount, Graph_Scale scale);
/// Whether the figures say anything on that scale: small ones are all "0.0M" in millions.
bool Suits(const std::vector<Graph_Span>& spans, Graph_Scale scale);

/// Steps for an axis from `low` to `high` (low <= 0 <= high): 1, 2 or 5 times a power of ten, about `steps`.
double Graph_Step(double low, double high, int steps);

}  // namespace tallymere
