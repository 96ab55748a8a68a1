#include "printing/check_run_paint.h"

#include "printing/check_layout.h"

namespace tallymere {

namespace {

/// A run while its pages are painted. Nothing is written before all of them are.
class Painting {
 public:
  Painting(Session& session, Paper_Job& job, Layout_Shelf& shelf) : session_(session), job_(job), shelf_(shelf) {}

  /// Throws Printer_Refused, or whatever kept the check from being filled.
  void add(int64_t TransNum, int64_t number) {
    std::vector<Layout> sheets = Print_it(session_, TransNum, std::to_string(number));
    print(std::move(sheets.at(0)));
    for (size_t further = 1; further < sheets.size(); ++further) further_.push_back(std::move(sheets[further]));
  }
  void add_further_stubs() {
    for (Layout& sheet : further_) print(std::move(sheet));
  }

  struct Printer_Refused {};

 private:
  void print(Layout layout) {
    const Layout_Pages pages({std::move(layout)}, shelf_);
    for (int page = 0; page < pages.count(); ++page)
      if (!job_.add(pages, page)) throw Printer_Refused();
  }

  Session& session_;
  Paper_Job& job_;
  Layout_Shelf& shelf_;
  std::vector<Layout> further_;
};

void Paint_Checks(Session& session, const std::vector<int64_t>& checks, int64_t first, Painting& painting,
                  CheckRun& run, const Keep_Going& keep_going) {
  const auto total = static_cast<int>(checks.size());
  for (int done = 0; done < total; ++done) {
    if (keep_going && !keep_going(done, total)) break;
    const int64_t TransNum = checks[static_cast<size_t>(done)];
    if (!Still_Waits(session, TransNum)) {
      ++run.gone;
      continue;
    }
    const int64_t number = first + static_cast<int64_t>(run.printed.size());
    painting.add(TransNum, number);
    run.printed.push_back({TransNum, number});
  }
}

/// The run as it is when nothing of it came to paper.
void Nothing_Printed(CheckRun& run, Paper_Job& job) {
  job.drop();
  run.printed.clear();
}

}  // namespace

CheckRun Print_Checks(Session& session, const std::vector<int64_t>& checks, int64_t first, QPagedPaintDevice& device,
                      QPointF offset, Layout_Shelf& shelf, const Keep_Going& keep_going) {
  CheckRun run;
  Paper_Job job(device, offset);
  Painting painting(session, job, shelf);
  try {
    try {
      Paint_Checks(session, checks, first, painting, run, keep_going);
    } catch (const std::exception&) {
      run.fault = std::current_exception();  // what was painted before it is good
    }
    painting.add_further_stubs();
  } catch (const Painting::Printer_Refused&) {
    run.refused = true;
  }
  if (run.refused || run.printed.empty()) {
    Nothing_Printed(run, job);
    return run;
  }
  run.taken = !Number_Checks(session, run.printed);
  if (run.taken) {
    Nothing_Printed(run, job);
  } else if (!job.finish()) {
    run.refused = true;
    Good_Print(session, run.printed, first);
    run.printed.clear();
  }
  return run;
}

}  // namespace tallymere
