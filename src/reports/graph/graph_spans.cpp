#include "reports/graph/graph_spans.h"

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

std::vector<Graph_Span> Graph_Spans(const Graph_Months& graph, int months) {
  std::vector<Graph_Span> spans;
  int here = -1;
  for (const Graph_Months::Month& month : graph.months) {
    const int first = Month_Number(month.first_day) / months * months;
    if (first != here)
      spans.push_back(
          {Label_Of(first, months), months < 12 ? first / 12 : 0, std::vector<Money>(month.amounts.size())});
    here = first;
    std::vector<Money>& amounts = spans.back().amounts;
    for (size_t at = 0; at < amounts.size(); ++at)
      amounts[at] = graph.stands ? month.amounts[at] : amounts[at] + month.amounts[at];
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
    return std::any_of(span.amounts.begin(), span.amounts.end(),
                       [&](Money amount) { return std::abs(amount.to_double()) >= Unit_Of(scale); });
  });
}

double Graph_Step(double low, double high, int steps) {
  const double raw = std::max(high - low, 1.0) / steps;
  const double power = std::pow(10, std::floor(std::log10(raw)));
  for (const double times : {1.0, 2.0, 5.0})
    if (raw <= times * power) return times * power;
  return 10 * power;
}

}  // namespace tallymere
