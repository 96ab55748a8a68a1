#include "printing/layout_paint.h"

#include <QFontMetricsF>
#include <QImage>
#include <QSvgRenderer>

#include "printing/bank_line_paint.h"
#include "printing/fitted_text_paint.h"

namespace tallymere {

namespace {

const QString detail = QStringLiteral("Detail");

QString Q(const std::string& text) { return QString::fromStdString(text); }

bool Stands_In(const QStringList& sections, const std::set<QString>& hidden) {
  return std::any_of(sections.begin(), sections.end(),
                     [&](const QString& section) { return hidden.contains(section); });
}

/// What code fills on this layout: where it fills nothing, the sample in the drawing must not stand there.
const std::set<QString>& Filled_Objects(const std::string& name) {
  static std::map<std::string, std::set<QString>> known;
  auto [found, fresh] = known.try_emplace(name);
  if (const LayoutDef* def = fresh ? Find_Layout(name) : nullptr)
    for (const std::string_view names : {def->needs, def->fills})
      for (const std::string& object : Object_Names(names)) found->second.insert(Q(object));
  return found->second;
}

}  // namespace

// --- the drawings

const Layout_Sheet& Layout_Shelf::sheet(const std::string& name) {
  auto& kept = sheets_[name];
  if (!kept) kept = read(name);
  return *kept;
}

std::shared_ptr<const Layout_Sheet> Layout_Shelf::read(const std::string& name) {
  const LayoutDef* def = Find_Layout(name);
  const std::vector<std::string> needed = Object_Names(def ? def->needs : "");
  const auto own = places_.own_file(name);
  if (std::filesystem::exists(own)) {
    try {
      return Layout_Sheet::Read(own, needed);
    } catch (const Layout_Fault& fault) {
      tell_("The layout '" + own.string() + "' is not used: " + fault.what() + ".");
    }
  }
  const auto shipped = places_.shipped_file(name);
  try {
    return Layout_Sheet::Read(shipped, needed);
  } catch (const Layout_Fault& fault) {
    throw Layout_Fault("The layout '" + shipped.string() + "' cannot be used: " + fault.what() + ".");
  }
}

QPageLayout Page_Of(const Layout_Sheet& drawing) {
  const QSizeF inches = drawing.size() / Pages::twips;
  const bool wide = inches.width() > inches.height();
  const QPageSize size(wide ? inches.transposed() : inches, QPageSize::Inch, QString(), QPageSize::FuzzyMatch);
  return QPageLayout(size, wide ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF());
}

// --- documents on sheets

Layout_Pages::Layout_Pages(std::vector<Layout> layouts, Layout_Shelf& shelf)
    : Pages(Page_Of(shelf.sheet(layouts.at(0).name()))), layouts_(std::move(layouts)), shelf_(shelf) {
  for (size_t layout = 0; layout < layouts_.size(); ++layout) break_into_sheets(layout);
}

std::vector<Layout_Pages::Line> Layout_Pages::lines_of(const Layout& layout, const Layout_Sheet& drawing) const {
  const Layout_Sheet::Room *row = drawing.room(QStringLiteral("Detail.box")),
                           *room = drawing.room(QStringLiteral("Detail.room"));
  std::vector<Line> lines;
  if (!room) return lines;
  const qreal usual = row ? row->box.height() : 0;
  for (const Layout::Row& texts : layout.details()) {
    Line line{{}, usual};
    for (const Layout_Sheet::Text& text : drawing.texts()) {
      const auto given = texts.find(text.id.toStdString());
      if (given == texts.end() || !text.sections.contains(detail)) continue;
      const QStringList broken = Broken_Lines(text, Q(given->second));
      line.height = std::max(line.height, usual + static_cast<qreal>(broken.size() - 1) * Line_Height(text.font));
      line.cells.emplace(text.id, broken);
    }
    lines.push_back(std::move(line));
  }
  return lines;
}

void Layout_Pages::break_into_sheets(size_t layout) {
  const Layout_Sheet& drawing = shelf_.sheet(layouts_[layout].name());
  const Layout_Sheet::Room* room = drawing.room(QStringLiteral("Detail.room"));
  const size_t first = sheets_.size();
  sheets_.push_back({layout});
  qreal left = room ? room->box.height() : 0;
  for (Line& line : lines_of(layouts_[layout], drawing)) {
    line.height = std::min(line.height, room->box.height());
    if (line.height > left + 1 && !sheets_.back().lines.empty()) {
      sheets_.push_back({layout});
      left = room->box.height();
    }
    left -= line.height;
    sheets_.back().lines.push_back(std::move(line));
  }
  for (size_t sheet = first; sheet < sheets_.size(); ++sheet) {
    sheets_[sheet].number = static_cast<int>(sheet - first) + 1;
    sheets_[sheet].of = static_cast<int>(sheets_.size() - first);
  }
}

// --- painting

std::set<QString> Layout_Pages::hidden_on(const Sheet& sheet) const {
  std::set<QString> hidden{detail};
  for (const std::string& object : layouts_[sheet.layout].hidden()) hidden.insert(Q(object));
  if (sheet.number > 1) hidden.insert(QStringLiteral("First"));
  if (sheet.number < sheet.of) hidden.insert(QStringLiteral("Last"));
  return hidden;
}

void Layout_Pages::paint(QPainter& painter, int page) const {
  const Sheet& sheet = sheets_.at(static_cast<size_t>(page));
  const Layout_Sheet& drawing = drawing_of(sheet);
  const std::set<QString> hidden = hidden_on(sheet);
  drawing.art(hidden).render(&painter, QRectF(QPointF(), drawing.size()));
  paint_pictures(painter, sheet, hidden);
  paint_texts(painter, sheet, hidden);
  paint_lines(painter, sheet);
}

void Layout_Pages::paint_texts(QPainter& painter, const Sheet& sheet, const std::set<QString>& hidden) const {
  const Layout& layout = layouts_[sheet.layout];
  const std::set<QString>& filled = Filled_Objects(layout.name());
  for (const Layout_Sheet::Text& text : drawing_of(sheet).texts()) {
    if (hidden.contains(text.id) || Stands_In(text.sections, hidden)) continue;
    const auto set = layout.texts().find(text.id.toStdString());
    QString content;
    if (set != layout.texts().end())
      content = Q(set->second);
    else if (text.id == QLatin1String("Page") && sheet.of > 1)
      content = QStringLiteral("Page %1 of %2").arg(sheet.number).arg(sheet.of);
    else if (!filled.contains(text.id))
      content = text.caption;
    if (text.id == QLatin1String("BankLine"))
      Paint_Bank_Line(painter, text.at, content);
    else
      Paint_Fitted(painter, text, content);
  }
}

void Layout_Pages::paint_pictures(QPainter& painter, const Sheet& sheet, const std::set<QString>& hidden) const {
  const Layout& layout = layouts_[sheet.layout];
  for (const auto& [object, bytes] : layout.pictures()) {
    const Layout_Sheet::Room* room = drawing_of(sheet).room(Q(object) + QStringLiteral(".box"));
    const QImage picture = QImage::fromData(QByteArray::fromStdString(bytes));
    if (!room || picture.isNull() || hidden.contains(Q(object)) || Stands_In(room->sections, hidden)) continue;
    const QSizeF size = QSizeF(picture.size()).scaled(room->box.size(), Qt::KeepAspectRatio);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(room->box.topLeft(), size), picture);
  }
}

void Layout_Pages::paint_lines(QPainter& painter, const Sheet& sheet) const {
  const Layout_Sheet& drawing = drawing_of(sheet);
  const Layout_Sheet::Room *row = drawing.room(QStringLiteral("Detail.box")),
                           *room = drawing.room(QStringLiteral("Detail.room"));
  if (!room) return;
  const qreal begin = row ? row->box.top() : room->box.top();
  QPointF moved(0, room->box.top() - begin);
  for (const Line& line : sheet.lines) {
    for (const Layout_Sheet::Text& text : drawing.texts())
      if (const auto cell = line.cells.find(text.id); cell != line.cells.end() && text.sections.contains(detail))
        Paint_Lines(painter, text, cell->second, moved, room->box.height());
    moved.ry() += line.height;
  }
}

// --- the test page

Test_Sheet::Test_Sheet(const Layout_Sheet& drawing) : Pages(Page_Of(drawing)), drawing_(drawing) {}

void Test_Sheet::paint(QPainter& painter, int) const {
  QFont small = Paper_Font();
  small.setPixelSize(120);
  painter.setFont(small);
  const QSizeF sheet = size();
  painter.setPen(QPen(Qt::black, 10));
  for (int tick = 1; tick * twips / 8 < std::max(sheet.width(), sheet.height()); ++tick) {
    const qreal at = tick * twips / 8.0, length = tick % 8 == 0 ? 360 : tick % 4 == 0 ? 240 : 120;
    painter.drawLine(QPointF(at, 360), QPointF(at, 360 + length));
    painter.drawLine(QPointF(360, at), QPointF(360 + length, at));
    if (tick % 8 != 0) continue;
    painter.drawText(QPointF(at + 30, 700), QString::number(tick / 8));
    painter.drawText(QPointF(740, at - 30), QString::number(tick / 8));
  }
  painter.setPen(QPen(Qt::darkGray, 8));
  for (const Layout_Sheet::Text& text : drawing_.texts()) {
    if (!text.box) continue;
    painter.drawRect(*text.box);
    painter.drawText(*text.box, Qt::AlignCenter | Qt::TextDontClip, text.id);
  }
}

}  // namespace tallymere
