#pragma once

#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "printing/layout.h"
#include "printing/layout_sheet_paint.h"
#include "shell/widgets/printed_pages.h"

namespace tallymere {

/// The drawings of the layouts, each read once: people's own where it can serve, else the shipped one.
class Layout_Shelf {
 public:
  /// Told once of each drawing of people's own that is not used: its file and what is wrong with it, in one sentence.
  using Tell = std::function<void(const std::string& fault)>;
  Layout_Shelf(LayoutPlaces places, Tell tell) : places_(std::move(places)), tell_(std::move(tell)) {}

  /// Throws Layout_Fault when not even the shipped drawing serves.
  const Layout_Sheet& sheet(const std::string& name);
  const LayoutPlaces& places() const { return places_; }

 private:
  std::shared_ptr<const Layout_Sheet> read(const std::string& name);
  LayoutPlaces places_;
  Tell tell_;
  std::map<std::string, std::shared_ptr<const Layout_Sheet>> sheets_;
};

/// Filled layouts as pages, one after another, each on as many sheets as its lines need. The lines of "Detail" stand in
/// the rectangle "Detail.room"; sheets after the first go on with them. A section "First" stands only on a document's
/// first sheet, "Last" only on its last; the text "Page" says "Page 2 of 3" where there are several.
class Layout_Pages : public Pages {
 public:
  /// The shelf must outlive it. At least one layout; all sheets have the size of the first.
  Layout_Pages(std::vector<Layout> layouts, Layout_Shelf& shelf);

  int count() const override { return static_cast<int>(sheets_.size()); }
  void paint(QPainter& painter, int page) const override;

 private:
  using Cells = std::map<QString, QStringList>;  ///< the broken lines of each text of a detail row
  struct Line {
    Cells cells;
    qreal height = 0;
  };
  struct Sheet {
    size_t layout = 0;
    int number = 1, of = 1;  ///< among the sheets of its document
    std::vector<Line> lines = {};
  };

  void break_into_sheets(size_t layout);
  std::vector<Line> lines_of(const Layout& layout, const Layout_Sheet& drawing) const;
  std::set<QString> hidden_on(const Sheet& sheet) const;
  void paint_texts(QPainter& painter, const Sheet& sheet, const std::set<QString>& hidden) const;
  void paint_pictures(QPainter& painter, const Sheet& sheet, const std::set<QString>& hidden) const;
  void paint_lines(QPainter& painter, const Sheet& sheet) const;
  const Layout_Sheet& drawing_of(const Sheet& sheet) const { return shelf_.sheet(layouts_[sheet.layout].name()); }

  std::vector<Layout> layouts_;
  Layout_Shelf& shelf_;
  std::vector<Sheet> sheets_;
};

/// A sheet with a ruler along two edges and the named rooms of a layout outlined: held against pre-printed stock it
/// shows how far the printer is off.
class Test_Sheet : public Pages {
 public:
  explicit Test_Sheet(const Layout_Sheet& drawing);
  int count() const override { return 1; }
  void paint(QPainter& painter, int page) const override;

 private:
  const Layout_Sheet& drawing_;
};

QPageLayout Page_Of(const Layout_Sheet& drawing);

}  // namespace tallymere
