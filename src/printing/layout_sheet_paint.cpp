#include "printing/layout_sheet_paint.h"

#include <QFile>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <QtMath>

#include "shell/widgets/printed_pages.h"

namespace tallymere {

namespace {

constexpr qint64 largest = 4 << 20;  // bytes of a drawing: more is no layout
constexpr int deepest = 100;         // groups within groups
constexpr size_t kept_arts = 8;
constexpr qreal pixels_to_the_inch = 96;

[[noreturn]] void Fault(const QString& why) { throw Layout_Fault(why.toStdString()); }

/// "8.5in" in inches; a bare number is pixels. Nothing for a percentage or what is no length.
std::optional<qreal> Inches(const QString& length) {
  static const QRegularExpression form(QStringLiteral(R"(^\s*([0-9]*\.?[0-9]+)\s*(in|mm|cm|pt|pc|px|)\s*$)"));
  static const std::map<QString, qreal> units = {
      {QStringLiteral("in"), 1},      {QStringLiteral("mm"), 25.4}, {QStringLiteral("cm"), 2.54},
      {QStringLiteral("pt"), 72},     {QStringLiteral("pc"), 6},    {QStringLiteral("px"), pixels_to_the_inch},
      {QString(), pixels_to_the_inch}};
  const auto match = form.match(length);
  if (!match.hasMatch()) return std::nullopt;
  return match.captured(1).toDouble() / units.at(match.captured(2));
}

std::vector<qreal> Numbers(const QString& text) {
  static const QRegularExpression parting(QStringLiteral("[\\s,]+"));
  std::vector<qreal> numbers;
  for (const QString& part : text.split(parting, Qt::SkipEmptyParts)) numbers.push_back(part.toDouble());
  return numbers;
}

qreal Number(const QDomElement& element, const char* name, qreal otherwise = 0) {
  const auto numbers = Numbers(element.attribute(QLatin1String(name)).remove(QStringLiteral("px")));
  return numbers.empty() || !std::isfinite(numbers[0]) ? otherwise : numbers[0];
}

QTransform One_Transform(const QString& name, const std::vector<qreal>& n) {
  const auto at = [&](size_t i, qreal otherwise) { return i < n.size() ? n[i] : otherwise; };
  if (name == QLatin1String("translate")) return QTransform::fromTranslate(at(0, 0), at(1, 0));
  if (name == QLatin1String("scale")) return QTransform::fromScale(at(0, 1), at(1, at(0, 1)));
  if (name == QLatin1String("matrix") && n.size() == 6) return {n[0], n[1], n[2], n[3], n[4], n[5]};
  if (name == QLatin1String("rotate"))
    return QTransform::fromTranslate(-at(1, 0), -at(2, 0)) * QTransform().rotate(at(0, 0)) *
           QTransform::fromTranslate(at(1, 0), at(2, 0));
  return {};
}

QTransform Transform_Of(const QDomElement& element) {
  static const QRegularExpression step(QStringLiteral(R"((\w+)\s*\(([^)]*)\))"));
  QTransform all;
  for (auto steps = step.globalMatch(element.attribute(QStringLiteral("transform"))); steps.hasNext();) {
    const auto match = steps.next();
    all = One_Transform(match.captured(1), Numbers(match.captured(2))) * all;
  }
  return all;
}

/// A property as an attribute of its own or in "style"; "" when it is not said here.
QString Property(const QDomElement& element, const QString& name) {
  for (const QString& part : element.attribute(QStringLiteral("style")).split(QLatin1Char(';')))
    if (part.section(QLatin1Char(':'), 0, 0).trimmed() == name) return part.section(QLatin1Char(':'), 1).trimmed();
  return element.attribute(name).trimmed();
}

bool Is_Text(const QDomElement& element) { return element.tagName() == QLatin1String("text"); }

bool Is_Group(const QDomElement& element) {
  return element.tagName() == QLatin1String("g") || element.tagName() == QLatin1String("a");
}

/// What stands between tags, with line ends and runs of blanks as one.
QString Plain(const QString& text) { return text.simplified(); }

}  // namespace

/// What holds at a place of the drawing, from all the groups around it.
struct Layout_Sheet::Style {
  QTransform place;
  QStringList sections = {};
  QString family = QStringLiteral("sans-serif");
  qreal size = 10;
  bool bold = false, italic = false, shown = true;
  QColor color = Qt::black;
  Anchor anchor = Anchor::Start;
  int depth = 0;

  Style within(const QDomElement& element) const;
  QFont font() const;
};

Layout_Sheet::Style Layout_Sheet::Style::within(const QDomElement& element) const {
  Style inner = *this;
  if (++inner.depth > deepest) Fault(QStringLiteral("its groups stand too deep in one another"));
  inner.place = Transform_Of(element) * place;
  const auto said = [&](const char* name) { return Property(element, QLatin1String(name)); };
  if (const QString family_said = said("font-family"); !family_said.isEmpty()) inner.family = family_said;
  if (const QString size_said = said("font-size"); !size_said.isEmpty())
    inner.size = Inches(size_said).value_or(inner.size / pixels_to_the_inch) * pixels_to_the_inch;
  if (const QString weight = said("font-weight"); !weight.isEmpty())
    inner.bold = weight.startsWith(QLatin1String("bold")) || weight.toInt() >= 600;
  if (const QString slant = said("font-style"); !slant.isEmpty()) inner.italic = slant != QLatin1String("normal");
  if (const QString fill = said("fill"); !fill.isEmpty()) inner.color = QColor(fill);
  if (const QString where = said("text-anchor"); !where.isEmpty())
    inner.anchor = where == QLatin1String("end")      ? Anchor::End
                   : where == QLatin1String("middle") ? Anchor::Middle
                                                      : Anchor::Start;
  if (said("display") == QLatin1String("none")) inner.shown = false;
  return inner;
}

QFont Layout_Sheet::Style::font() const {
  QFont made = Paper_Font();
  QStringList families;
  for (QString one : family.split(QLatin1Char(','))) {
    one = one.remove(QLatin1Char('\'')).remove(QLatin1Char('"')).trimmed();
    if (one == QLatin1String("monospace")) made.setStyleHint(QFont::Monospace);
    if (one == QLatin1String("serif")) made.setStyleHint(QFont::Serif);
    if (one != QLatin1String("sans-serif")) families << one;
  }
  if (!families.isEmpty()) made.setFamilies(families + made.families());
  const qreal scale = std::sqrt(std::abs(place.determinant()));
  made.setPixelSize(std::clamp(static_cast<int>(std::lround(size * scale)), 1, 100 * Pages::twips));
  made.setBold(bold);
  made.setItalic(italic);
  return made;
}

// --- reading

std::shared_ptr<const Layout_Sheet> Layout_Sheet::Read(const std::filesystem::path& file,
                                                       std::span<const std::string> needed) {
  QFile in(QString::fromStdString(file.string()));
  if (!in.open(QIODevice::ReadOnly)) Fault(QStringLiteral("it cannot be read"));
  if (in.size() > largest) Fault(QStringLiteral("it is larger than a drawing of a sheet"));
  const std::shared_ptr<Layout_Sheet> sheet(new Layout_Sheet);
  sheet->read(in.readAll());
  QStringList missing;
  for (const std::string& id : needed)
    if (!sheet->has(QString::fromStdString(id))) missing << QString::fromStdString(id);
  if (!missing.isEmpty()) Fault(QStringLiteral("it lacks ") + missing.join(QStringLiteral(", ")));
  return sheet;
}

Layout_Sheet::~Layout_Sheet() = default;

void Layout_Sheet::read(const QByteArray& svg) {
  QString why;
  int line = 0;
  if (svg.contains("<!ENTITY")) Fault(QStringLiteral("it defines entities of its own"));
  if (!drawing_.setContent(svg, false, &why, &line))
    Fault(QStringLiteral("it is no drawing (line %1: %2)").arg(line).arg(why));
  const QDomElement root = drawing_.documentElement();
  if (root.tagName() != QLatin1String("svg")) Fault(QStringLiteral("it is no SVG drawing"));
  read_size(root);
  Style style;
  style.place = to_twips_;
  walk(root, style.within(root));
  join_boxes();
}

void Layout_Sheet::read_size(const QDomElement& root) {
  const auto width = Inches(root.attribute(QStringLiteral("width")));
  const auto height = Inches(root.attribute(QStringLiteral("height")));
  if (!width || !height) Fault(QStringLiteral("it does not say how wide and high its sheet is"));
  constexpr qreal smallest = 1, widest = 50;  // inches
  if (std::min(*width, *height) < smallest || std::max(*width, *height) > widest)
    Fault(QStringLiteral("its sheet is no size of paper"));
  size_ = QSizeF(*width, *height) * Pages::twips;
  auto view = Numbers(root.attribute(QStringLiteral("viewBox")));
  if (view.empty()) view = {0, 0, *width * pixels_to_the_inch, *height * pixels_to_the_inch};
  if (view.size() != 4 || !(view[2] > 0) || !(view[3] > 0)) Fault(QStringLiteral("its viewBox is not four numbers"));
  to_twips_ = QTransform::fromTranslate(-view[0], -view[1]) *
              QTransform::fromScale(size_.width() / view[2], size_.height() / view[3]);
}

void Layout_Sheet::walk(const QDomElement& parent, const Style& outer) {
  for (QDomElement element = parent.firstChildElement(); !element.isNull(); element = element.nextSiblingElement()) {
    if (element.tagName() == QLatin1String("defs")) continue;
    const QString id = element.attribute(QStringLiteral("id"));
    if (!id.isEmpty()) ids_.insert(id);
    Style style = outer.within(element);
    if (Is_Text(element)) {
      take_text(element, style);
    } else if (element.tagName() == QLatin1String("rect")) {
      take_rectangle(element, style);
    } else if (Is_Group(element)) {
      if (!id.isEmpty()) style.sections << id;
      walk(element, style);
    }
  }
}

void Layout_Sheet::take_text(const QDomElement& element, const Style& style) {
  if (!style.shown) return;
  // Drawing programs put place and letters on the first tspan.
  const QDomElement first = element.firstChildElement(QStringLiteral("tspan"));
  const Style letters = first.isNull() ? style : style.within(first);
  const QDomElement placed = element.hasAttribute(QStringLiteral("x")) || first.isNull() ? element : first;
  Text text{.id = element.attribute(QStringLiteral("id")),
            .sections = style.sections,
            .at = letters.place.map(QPointF(Number(placed, "x"), Number(placed, "y"))),
            .anchor = letters.anchor,
            .font = letters.font(),
            .color = letters.color,
            .box = {},
            .caption = {}};
  take_lines(element, style, std::move(text));
}

/// A text of several tspans that have places of their own is as many captions.
void Layout_Sheet::take_lines(const QDomElement& element, const Style& style, Text text) {
  const qreal left = Number(element, "x", Number(element.firstChildElement(QStringLiteral("tspan")), "x"));
  qreal x = left, y = Number(element, "y", Number(element.firstChildElement(QStringLiteral("tspan")), "y"));
  const auto end_line = [&] {
    text.caption = Plain(text.caption);
    texts_.push_back(text);
    text.caption.clear();
    text.id.clear();
  };
  for (QDomNode node = element.firstChild(); !node.isNull(); node = node.nextSibling()) {
    const QDomElement span = node.toElement();
    const bool moves = span.hasAttribute(QStringLiteral("y")) || span.hasAttribute(QStringLiteral("dy"));
    if (moves && !text.caption.isEmpty()) end_line();
    if (moves) {
      x = Number(span, "x", left);
      y = Number(span, "y", y) + Number(span, "dy");
      text.at = style.within(span).place.map(QPointF(x, y));
    }
    text.caption += span.isNull() ? node.nodeValue() : span.text();
  }
  end_line();
}

void Layout_Sheet::take_rectangle(const QDomElement& element, const Style& style) {
  const QString id = element.attribute(QStringLiteral("id"));
  if (id.isEmpty()) return;
  const QRectF box(Number(element, "x"), Number(element, "y"), Number(element, "width"), Number(element, "height"));
  rooms_.push_back({id, style.sections, style.place.mapRect(box)});
}

void Layout_Sheet::join_boxes() {
  for (Text& text : texts_)
    if (const Room* room = text.id.isEmpty() ? nullptr : this->room(text.id + QStringLiteral(".box"))) {
      text.box = room->box;
    }
}

const Layout_Sheet::Room* Layout_Sheet::room(const QString& id) const {
  for (const Room& room : rooms_)
    if (room.id == id) return &room;
  return nullptr;
}

// --- the art

namespace {

/// The shapes that are drawn. What could lead into itself, reach for other files or move is none of them.
bool Is_Art(const QDomElement& element) {
  static const std::set<QString> shapes = [] {
    std::set<QString> names;
    for (const char* name : {"g", "a", "rect", "line", "path", "polyline", "polygon", "circle", "ellipse", "defs",
                             "style", "linearGradient", "radialGradient", "stop"})
      names.insert(QLatin1String(name));
    return names;
  }();
  if (element.tagName() != QLatin1String("image")) return shapes.contains(element.tagName());
  const QString source = element.attribute(QStringLiteral("href"), element.attribute(QStringLiteral("xlink:href")));
  return source.startsWith(QLatin1String("data:"));
}

/// Leaves the art: what the painter itself sets goes, with boxes that only say how much room there is and what is
/// hidden.
void Prune(QDomElement parent, const std::set<QString>& hidden) {
  for (QDomElement element = parent.firstChildElement(); !element.isNull();) {
    const QDomElement next = element.nextSiblingElement();
    const QString id = element.attribute(QStringLiteral("id"));
    const bool room = id.endsWith(QLatin1String(".box")) || id.endsWith(QLatin1String(".room"));
    if (!Is_Art(element) || room || (!id.isEmpty() && hidden.contains(id)))
      parent.removeChild(element);
    else
      Prune(element, hidden);
    element = next;
  }
}

}  // namespace

QSvgRenderer& Layout_Sheet::art(const std::set<QString>& hidden) const {
  for (const auto& [known, renderer] : arts_)
    if (known == hidden) return *renderer;
  QDomDocument pruned = drawing_.cloneNode(true).toDocument();
  Prune(pruned.documentElement(), hidden);
  auto renderer = std::make_unique<QSvgRenderer>();
  renderer->load(pruned.toByteArray(-1));
  if (arts_.size() == kept_arts) arts_.erase(arts_.begin());
  return *arts_.emplace_back(hidden, std::move(renderer)).second;
}

}  // namespace tallymere
