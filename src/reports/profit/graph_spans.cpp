#include "reports/profit/graph_spans.h"

#include <algorithm>
#include <cmath>

#include "core/values/format.h"

namespace tallymere {
namespace {

int Month_Number(Date day) { return day.year() * 12 + static_cast<int>(day.month()) - 1; }

std::string Label_Of(int first_month, int months) {
  const int year = first_month / 12;
  const auto month = static_cast<unsigned>(first_month % 12 + 1);
  if (months == 1) return Format(Date(year, month, 1), "mmm");
  if (months < 12) return "Q" + std::to_string(first_month % 12 / months + 1);
  if (months == 12) return std::to_string(year);
  const std::string last = std::to_string(year + months / 12 - 1);
  return std::to_string(year) + "-" + last.substr(last.size() - 2);
}

double Unit_Of(Graph_Scale scale) { return scale == Graph_Scale::Thousands ? 1e3 : 1e6; }

}  // namespace

std::vector<Graph_Span> Graph_Spans(const PL_Graph& graph, int months) {
  std::vector<Graph_Span> spans;
  int here = -1;
  for (const PL_Graph::Month& month : graph.months) {
    const int first = Month_Number(month.first_day) / months * months;
    if (first != here) spans.push_back({Label_Of(first, months), months < 12 ? first / 12 : 0, {}, {}});
    here = first;
    spans.back().income += month.income;
    spans.back().expense += month.expense;
  }
  return spans;
}

std::string Graph_Text(Money amount, Graph_Scale scale) {
  if (scale == Graph_Scale::Full) return Format(amount, "#,##0");
  if (amount.is_zero()) return "0";
  return Format(amount.to_double() / Unit_Of(scale), "#,##0.0") + (scale == Graph_Scale::Thousands ? "k" : "M");
}

bool Suits(const std::vector<Graph_Span>& spans, Graph_Scale scale) {
  if (scale == Graph_Scale::Full) return true;
  return std::any_of(spans.begin(), spans.end(), [&](const Graph_Span& span) {
    return std::max(std::abs(span.income.to_double()), std::abs(span.expense.to_double())) >= Unit_Of(scale);
  });
}

double Graph_Step(double low, double high, int steps) {
  const double raw = std::max(high - low, 1.0) / steps;
  const double power = std::pow(10, std::floor(std::log10(raw)));
  for (const double times : {1.0, 2.0, 5.0})
    if (raw <= times * power) return times * power;
  return 10 * power;
}

std::vector<PL_Graph::Slice> Largest_Slices(const std::vector<PL_Graph::Slice>& slices, size_t most) {
  if (slices.size() <= most || most == 0) return most == 0 ? std::vector<PL_Graph::Slice>{} : slices;
  std::vector<PL_Graph::Slice> kept(slices.begin(), slices.begin() + static_cast<std::ptrdiff_t>(most) - 1);
  Money rest;
  for (size_t at = most - 1; at < slices.size(); ++at) rest += slices[at].amount;
  kept.push_back({"Other", rest});
  return kept;
}

}  // namespace tallymere
