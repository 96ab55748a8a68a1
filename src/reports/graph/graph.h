#pragma once

#include <string>
#include <variant>
#include <vector>

#include "reports/reports.h"

/// A report's figures as a picture: what its "Grap&h" shows in place of the grid, on screen and on paper.
namespace tallymere {

/// Months side by side, a bar for each series, with the figures in a small table below.
struct Graph_Months {
  struct Month {
    Date first_day;
    std::vector<Money> amounts;  ///< one for each series
  };
  std::string title = {};
  std::vector<std::string> series = {};  ///< two or three
  std::vector<Month> months = {};        ///< every month of the period, quiet ones too
  std::string difference = {};  ///< names a last line of figures, the first series less the second; empty: none
  bool stands = false;          ///< what stands when a month ends: months together show the last of them
};

/// Amounts below each other, each with its share of all.
struct Graph_Bars {
  struct Bar {
    std::string label;
    Money amount;
  };
  std::string title = {};
  std::vector<Bar> bars = {};
  std::string none = {};  ///< said where there are none
};

struct Graph {
  using Part = std::variant<Graph_Months, Graph_Bars>;
  ReportHeading heading = {};
  std::vector<Part> parts = {};  ///< from the top down
};

bool Has_Graph(std::string_view key);
/// The graph of a report that has one, on the company as it is at one moment.
Graph Build_Graph(Session& session, const ReportRequest& request);
/// Makes a report's graph from the report's own request.
using Graph_Builder = Graph (*)(Session&, const ReportRequest&);

// --- what builders share
/// The months of a period, nothing in them.
std::vector<Graph_Months::Month> Months_Of(DateRange days, size_t series);
/// The largest bars first; those after so many become "Other".
void Keep_Largest(std::vector<Graph_Bars::Bar>& bars, size_t largest);
/// At most so many in the order they stand in, the last of them "Other" where there are more.
std::vector<Graph_Bars::Bar> Largest_Bars(std::vector<Graph_Bars::Bar> bars, size_t most);

}  // namespace tallymere
