#include "reports/graph/graph_paint.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "core/values/format.h"
#include "reports/frame/print_fonts_paint.h"
#include "reports/graph/graph_spans.h"
#include "shell/widgets/Form.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

constexpr int span_sizes[] = {1, 3, 12, 60, 120, 600, 1200};
constexpr double months_share = 0.58;  ///< of the height, above bars

/// One painting: its measures in lines of text, and the pencils.
class Canvas {
 public:
  Canvas(QPainter& painter, const Graph& graph, const Graph_Colors& colors, const QFont& font)
      : painter_(painter), graph_(graph), colors_(colors), font_(font), metrics_(font), line_(metrics_.lineSpacing()) {
    bold_.setBold(true);
  }

  void paint(QRectF room) {
    painter_.setRenderHint(QPainter::Antialiasing);
    for (size_t at = 0; at < graph_.parts.size(); ++at) {
      QRectF here = room;
      if (at + 1 < graph_.parts.size())
        here.setHeight(height_of(graph_.parts[at], graph_.parts[at + 1], room.height()));
      std::visit([&](const auto& part) { draw(here, part); }, graph_.parts[at]);
      room.setTop(here.bottom() + line_);
    }
  }

 private:
  /// Bars take what they need, up to half; months leave the greater part to nothing else.
  qreal height_of(const Graph::Part& part, const Graph::Part& next, qreal room) const {
    if (const auto* bars = std::get_if<Graph_Bars>(&part))
      return std::min(title_height() + bar_height() * static_cast<qreal>(bars->bars.size()), room / 2);
    return std::holds_alternative<Graph_Bars>(next) ? room * months_share : (room - line_) / 2;
  }
  qreal title_height() const { return line_ * 1.7; }
  qreal bar_height() const { return line_ * 1.6; }

  qreal width(const QString& text) const { return metrics_.horizontalAdvance(text); }

  void write(const QRectF& place, int align, const QString& text, const QColor& color, bool bold = false) {
    painter_.setFont(bold ? bold_ : font_);
    painter_.setPen(color);
    painter_.drawText(place, align | Qt::TextSingleLine, text);
  }

  void rule(qreal left, qreal right, qreal y, const QColor& color) {
    painter_.setPen(QPen(color, line_ / 18));
    painter_.drawLine(QPointF(left, y), QPointF(right, y));
  }

  QRectF title(const QRectF& room, const std::string& text) {
    write({room.left(), room.top(), room.width(), line_ * 1.2}, Qt::AlignLeft, qt(text), colors_.ink, true);
    return room.adjusted(0, title_height(), 0, 0);
  }

  // --- the months

  void draw(const QRectF& room, const Graph_Months& months) {
    const QRectF body = title(room, months.title);
    names_ = months.series;
    if (!months.difference.empty()) names_.push_back(months.difference);
    gutter_ = 0;
    for (const std::string& name : names_) gutter_ = std::max(gutter_, bold_width(qt(name)));
    gutter_ += 2.5 * line_;
    fit_spans(months, body.width() - gutter_);
    const qreal table = static_cast<qreal>(names_.size()) * row_height(), below = line_ * 2.6 + table;
    const QRectF plot = body.adjusted(gutter_, 0, 0, -below);
    scale_to(plot);
    axis(plot);
    for (size_t at = 0; at < spans_.size(); ++at) span(plot, at);
    rule(plot.left(), plot.right(), y_of(plot, 0), colors_.soft);
    figures({body.left(), plot.bottom() + line_ * 2.6, body.width(), table});
  }

  qreal row_height() const { return line_ * 1.35; }
  qreal bold_width(const QString& text) const { return QFontMetricsF(bold_).horizontalAdvance(text); }

  /// What a line of the table says of a span.
  Money figure(const Graph_Span& span, size_t row) const {
    return row < span.amounts.size() ? span.amounts[row] : span.amounts[0] - span.amounts[1];
  }

  /// The shortest spans whose figures stand side by side, in full if they can.
  void fit_spans(const Graph_Months& graph, qreal room) {
    for (const int months : span_sizes)
      for (const Graph_Scale scale : {Graph_Scale::Full, Graph_Scale::Thousands, Graph_Scale::Millions}) {
        auto spans = Graph_Spans(graph, months);
        if (!Suits(spans, scale)) continue;
        spans_ = std::move(spans);
        amounts_ = scale;
        if (needed() <= room / static_cast<qreal>(std::max<size_t>(spans_.size(), 1))) return;
      }
  }

  qreal needed() const {
    qreal most = width(QStringLiteral("2000"));
    for (const Graph_Span& span : spans_) {
      most = std::max(most, width(qt(span.label)));
      for (size_t row = 0; row < names_.size(); ++row)
        most = std::max(most, bold_width(qt(Graph_Text(figure(span, row), amounts_))));
    }
    return most + line_ * 0.5;
  }

  void scale_to(const QRectF& plot) {
    low_ = 0, high_ = 0;
    for (const Graph_Span& span : spans_)
      for (const Money amount : span.amounts) {
        low_ = std::min(low_, amount.to_double());
        high_ = std::max(high_, amount.to_double());
      }
    step_ = Graph_Step(low_, high_, std::max(static_cast<int>(plot.height() / (2.4 * line_)), 2));
    low_ = std::floor(low_ / step_) * step_;
    high_ = std::max(std::ceil(high_ / step_) * step_, low_ + step_);
  }

  qreal y_of(const QRectF& plot, double amount) const {
    return plot.bottom() - (amount - low_) / (high_ - low_) * plot.height();
  }

  void axis(const QRectF& plot) {
    const Graph_Scale scale = high_ >= 1e6   ? Graph_Scale::Millions
                              : high_ >= 1e4 ? Graph_Scale::Thousands
                                             : Graph_Scale::Full;
    for (double amount = low_; amount <= high_ + step_ / 2; amount += step_) {
      const qreal y = y_of(plot, amount);
      rule(plot.left(), plot.right(), y, colors_.line);
      const Money value = Money::from_double(amount);
      write({plot.left() - gutter_, y - line_ / 2, gutter_ - line_ * 0.6, line_}, Qt::AlignRight | Qt::AlignVCenter,
            qt(Graph_Text(value, scale)).remove(QStringLiteral(".0")), colors_.soft);
    }
  }

  qreal span_width(const QRectF& plot) const { return plot.width() / static_cast<qreal>(spans_.size()); }

  void span(const QRectF& plot, size_t at) {
    const Graph_Span& span = spans_[at];
    const qreal whole = span_width(plot), left = plot.left() + whole * static_cast<qreal>(at);
    const auto count = static_cast<qreal>(span.amounts.size());
    const qreal bar = std::min(whole * 0.7 / count, line_ * 2.4), between = line_ * 0.12;
    qreal x = left + (whole - bar * count - between * (count - 1)) / 2;
    for (size_t series = 0; series < span.amounts.size(); ++series, x += bar + between)
      this->bar(plot, x, bar, span.amounts[series], colors_.series[series]);
    const QRectF label(left, plot.bottom() + line_ * 0.3, whole, line_);
    write(label, Qt::AlignHCenter, qt(span.label), colors_.ink);
    const bool first_of_year = at == 0 || spans_[at - 1].year != span.year;
    if (span.year != 0 && first_of_year)
      write(label.translated(0, line_), Qt::AlignHCenter, QString::number(span.year), colors_.soft);
  }

  void bar(const QRectF& plot, qreal left, qreal width_of_bar, Money amount, const QColor& color) {
    if (amount.is_zero()) return;
    const qreal zero = y_of(plot, 0), end = y_of(plot, amount.to_double());
    painter_.fillRect(QRectF(QPointF(left, std::min(zero, end)), QPointF(left + width_of_bar, std::max(zero, end))),
                      color);
  }

  /// The figures under their bars; the names at the left explain the colours.
  void figures(const QRectF& room) {
    const qreal height = row_height(), left = room.left() + gutter_;
    const qreal whole = (room.width() - gutter_) / static_cast<qreal>(std::max<size_t>(spans_.size(), 1));
    for (size_t row = 0; row < names_.size(); ++row) {
      const QRectF line(room.left(), room.top() + height * static_cast<qreal>(row), gutter_, height);
      const bool is_series = spans_.empty() || row < spans_.front().amounts.size();
      if (is_series)
        painter_.fillRect(QRectF(line.left(), line.center().y() - line_ * 0.3, line_ * 0.6, line_ * 0.6),
                          colors_.series[row]);
      else
        rule(room.left(), room.right(), line.top(), colors_.line);
      write(line.adjusted(line_, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, qt(names_[row]), colors_.ink, !is_series);
      for (size_t at = 0; at < spans_.size(); ++at)
        write({left + whole * static_cast<qreal>(at), line.top(), whole, height}, Qt::AlignCenter,
              qt(Graph_Text(figure(spans_[at], row), amounts_)), colors_.ink, !is_series);
    }
  }

  // --- bars

  void draw(const QRectF& room, const Graph_Bars& part) {
    const QRectF body = title(room, part.title);
    const auto bars = Largest_Bars(part.bars, static_cast<size_t>(std::max(body.height() / bar_height() + 0.01, 0.0)));
    if (bars.empty()) return write(body, Qt::AlignLeft | Qt::AlignTop, qt(part.none), colors_.soft);
    Money total, most;
    qreal names = 0, figures_width = 0;
    for (const Graph_Bars::Bar& bar : bars) {
      total += bar.amount;
      most = std::max(most, bar.amount.abs());
      names = std::max(names, width(qt(bar.label)));
      figures_width = std::max(figures_width, width(amount_text(bar.amount)));
    }
    names = std::min(names, body.width() * 0.34) + line_ * 0.8;
    QRectF row(body.left(), body.top(), body.width(), bar_height());
    for (const Graph_Bars::Bar& bar : bars) {
      const double length = most.is_zero() ? 0 : bar.amount.abs().to_double() / most.to_double();
      bar_row(row, bar, names, (row.width() - names - figures_width - share_width() - line_) * length);
      if (total > Money())
        write(row, Qt::AlignRight | Qt::AlignVCenter, qt(Format(bar.amount.to_double() / total.to_double(), "0%")),
              colors_.soft);
      row.translate(0, bar_height());
    }
  }

  static QString amount_text(Money amount) { return qt(Format(amount, "#,##0.00")); }
  qreal share_width() const { return width(QStringLiteral("100%")) + line_; }

  void bar_row(const QRectF& row, const Graph_Bars::Bar& bar, qreal names, qreal length) {
    const QString name = metrics_.elidedText(qt(bar.label), Qt::ElideRight, names - line_ * 0.8);
    write({row.left(), row.top(), names, row.height()}, Qt::AlignLeft | Qt::AlignVCenter, name, colors_.ink);
    if (!bar.amount.is_zero())
      painter_.fillRect(
          QRectF(row.left() + names, row.center().y() - line_ * 0.42, std::max(length, line_ / 10), line_ * 0.84),
          bar.amount.is_negative() ? colors_.below_zero : colors_.bars);
    write({row.left(), row.top(), row.width() - share_width(), row.height()}, Qt::AlignRight | Qt::AlignVCenter,
          amount_text(bar.amount), colors_.ink);
  }

  QPainter& painter_;
  const Graph& graph_;
  const Graph_Colors& colors_;
  QFont font_, bold_ = font_;
  QFontMetricsF metrics_;
  qreal line_;
  std::vector<std::string> names_;  ///< of the lines of the table: the series, their difference
  std::vector<Graph_Span> spans_;
  Graph_Scale amounts_ = Graph_Scale::Full;
  qreal gutter_ = 0;
  double low_ = 0, high_ = 0, step_ = 1;
};

}  // namespace

Graph_Colors Graph_Colors::on_paper() {
  const QColor dark(15, 102, 115), amber(224, 160, 62), pale(176, 196, 200);
  return {QColor(20, 20, 20), QColor(90, 90, 90), QColor(222, 226, 228), {dark, amber, pale}, amber, pale};
}

Graph_Colors Graph_Colors::on_screen() {
  if (!theme::is_dark()) return on_paper();
  const QColor bright(63, 160, 176), amber(232, 181, 101), pale(104, 124, 129);
  return {QColor(227, 234, 236), QColor(147, 163, 168), QColor(46, 56, 59), {bright, amber, pale}, amber, pale};
}

void Paint_Graph(QPainter& painter, const QRectF& room, const Graph& graph, const Graph_Colors& colors,
                 const QFont& font) {
  Canvas(painter, graph, colors, font).paint(room);
}

Graph_Pages::Graph_Pages(const Graph& graph, const QPageLayout& page) : Pages(page), graph_(graph) {}

void Graph_Pages::paint(QPainter& painter, int) const {
  const Print_Fonts fonts(1);
  const Graph_Colors colors = Graph_Colors::on_paper();
  QRectF room(900, 720, size().width() - 1800, size().height() - 1620);
  const auto write = [&](const Print_Fonts::Look& look, const std::string& text, const QColor& color) {
    painter.setPen(color);
    Write_Line(painter, room, Qt::AlignHCenter | Qt::AlignTop, look, qt(text));
    room.setTop(room.top() + look.row_height());
  };
  write(fonts.title(), graph_.heading.title, colors.ink);
  write(fonts.company(), graph_.heading.company, colors.ink);
  write(fonts.period(), graph_.heading.period, colors.soft);
  painter.setFont(fonts.edge().font);
  painter.drawText(room, Qt::AlignLeft | Qt::AlignBottom, qt(graph_.heading.basis));
  Paint_Graph(painter, room.adjusted(0, 300, 0, -400), graph_, colors, fonts.of("Small").font);
}

GraphSheet::GraphSheet(const Graph& graph, QWidget* parent) : QWidget(parent), graph_(graph) {
  setMinimumSize(56 * theme::unit, 52 * theme::unit);
}

void GraphSheet::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  Paint_Graph(painter, QRectF(rect()).adjusted(3 * theme::unit, theme::unit, -3 * theme::unit, -theme::unit), graph_,
              Graph_Colors::on_screen(), theme::tabular(font()));
}

}  // namespace tallymere
