#include "reports/frame/squeeze.h"

#include <algorithm>
#include <cmath>

namespace tallymere {
namespace {

constexpr int widths_tried = 96;
constexpr double dearest = 12;  ///< a text of more lines costs no more

/// How many lines more than one each the texts take in that width.
double More_Lines(const std::vector<double>& texts, double width) {
  double lines = 0;
  for (double text : texts)
    if (text > width) lines += std::min(std::ceil(text / width) - 1, dearest);
  return lines;
}

/// A column on its way from its natural width down to the least one: over the widths that are worth stopping at,
/// each step dearer than the one before.
class Narrowing {
 public:
  explicit Narrowing(const Column_Demand& column) : texts_(column.texts), width_(column.natural) {
    stops_ = {{column.natural, More_Lines(texts_, column.natural)}};
    if (texts_.empty() || column.least >= column.natural) return;
    for (int step = 1; step <= widths_tried; ++step) {
      const double width = column.natural - (column.natural - column.least) * step / widths_tried;
      add_stop({width, More_Lines(texts_, width)});
    }
  }

  double width() const { return width_; }
  double more_lines() const { return More_Lines(texts_, width_); }
  bool can_narrow() const { return next_ < stops_.size(); }
  double price() const { return price_between(stops_[next_ - 1], stops_[next_]); }
  double wins() const { return width_ - stops_[next_].width; }
  void narrow() { width_ = stops_[next_++].width; }

  // --- the last bit, which is less than any step
  bool has(double excess) const { return can_narrow() && width_ - excess >= stops_.back().width; }
  double lines_for(double excess) const { return More_Lines(texts_, width_ - excess) - more_lines(); }
  void give(double excess) { width_ -= excess; }

 private:
  struct Stop {
    double width, lines;
  };
  static double price_between(const Stop& wide, const Stop& narrow) {
    return (narrow.lines - wide.lines) / (wide.width - narrow.width);
  }
  /// A stop that is dearer to reach than the one after it is passed by.
  void add_stop(const Stop& stop) {
    while (stops_.size() > 1 &&
           price_between(stops_[stops_.size() - 2], stops_.back()) >= price_between(stops_.back(), stop))
      stops_.pop_back();
    stops_.push_back(stop);
  }

  const std::vector<double>& texts_;
  std::vector<Stop> stops_;
  size_t next_ = 1;
  double width_;
};

/// The one of those that can for which it costs least; nullptr when none can.
template <typename Can, typename Cost>
Narrowing* Cheapest(std::vector<Narrowing>& columns, Can&& can, Cost&& cost) {
  Narrowing* cheapest = nullptr;
  for (Narrowing& column : columns)
    if (can(column) && (!cheapest || cost(column) < cost(*cheapest))) cheapest = &column;
  return cheapest;
}

}  // namespace

Squeezed_Columns Squeeze(const std::vector<Column_Demand>& demands, double room) {
  std::vector<Narrowing> columns(demands.begin(), demands.end());
  double excess = -room;
  for (const Narrowing& column : columns) excess += column.width();
  while (excess > 0) {
    Narrowing* next = Cheapest(
        columns, [](auto& column) { return column.can_narrow(); }, [](auto& column) { return column.price(); });
    if (!next) break;
    if (next->wins() < excess) {
      excess -= next->wins();
      next->narrow();
      continue;
    }
    Cheapest(
        columns, [&](auto& column) { return column.has(excess); },
        [&](auto& column) { return column.lines_for(excess); })
        ->give(excess);
    break;
  }
  Squeezed_Columns squeezed;
  for (const Narrowing& column : columns) {
    squeezed.widths.push_back(column.width());
    squeezed.more_lines += column.more_lines();
  }
  return squeezed;
}

}  // namespace tallymere
