#include "reports/profit/graph_paint.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "core/values/format.h"
#include "reports/frame/print_fonts_paint.h"
#include "reports/profit/graph_spans.h"
#include "shell/widgets/Form.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

constexpr int span_sizes[] = {1, 3, 12, 60, 120, 600, 1200};
constexpr double months_share = 0.58;  ///< of the height
constexpr const char* row_names[] = {"Income", "Expense", "Net"};

/// One painting: the canvas, its measures in lines of text, and the pencils.
class Graph {
 public:
  Graph(QPainter& painter, const PL_Graph& graph, const Graph_Colors& colors, const QFont& font)
      : painter_(painter), graph_(graph), colors_(colors), font_(font), metrics_(font), line_(metrics_.lineSpacing()) {
    bold_.setBold(true);
  }

  void paint(const QRectF& room) {
    painter_.setRenderHint(QPainter::Antialiasing);
    QRectF upper = room, lower = room;
    upper.setHeight(room.height() * months_share);
    lower.setTop(upper.bottom() + line_);
    months(upper);
    expenses(lower);
  }

 private:
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

  QRectF title(const QRectF& room, const char* text) {
    write({room.left(), room.top(), room.width(), line_ * 1.2}, Qt::AlignLeft, QLatin1String(text), colors_.ink, true);
    return room.adjusted(0, line_ * 1.7, 0, 0);
  }

  // --- the months

  void months(const QRectF& room) {
    const QRectF body = title(room, "Income and expense");
    gutter_ = width(QStringLiteral("Expense")) + 2.5 * line_;
    fit_spans(body.width() - gutter_);
    const qreal below = line_ * (2.6 + 3 * 1.35);
    QRectF plot = body.adjusted(gutter_, 0, 0, -below);
    scale_to(plot);
    axis(plot);
    for (size_t at = 0; at < spans_.size(); ++at) span(plot, at);
    rule(plot.left(), plot.right(), y_of(plot, 0), colors_.soft);
    figures({body.left(), plot.bottom() + line_ * 2.6, body.width(), 3 * 1.35 * line_});
  }

  /// The shortest spans whose figures stand side by side, in full if they can.
  void fit_spans(qreal room) {
    for (const int months : span_sizes)
      for (const Graph_Scale scale : {Graph_Scale::Full, Graph_Scale::Thousands, Graph_Scale::Millions}) {
        auto spans = Graph_Spans(graph_, months);
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
      for (const Money amount : {span.income, span.expense, span.income - span.expense})
        most = std::max(most, QFontMetricsF(bold_).horizontalAdvance(qt(Graph_Text(amount, amounts_))));
    }
    return most + line_ * 0.5;
  }

  void scale_to(const QRectF& plot) {
    low_ = 0, high_ = 0;
    for (const Graph_Span& span : spans_)
      for (const Money amount : {span.income, span.expense}) {
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
    const qreal bar = std::min(whole * 0.34, line_ * 2.4), middle = left + whole / 2;
    this->bar(plot, middle - bar - line_ * 0.06, bar, span.income, colors_.income);
    this->bar(plot, middle + line_ * 0.06, bar, span.expense, colors_.expense);
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
    const QColor chips[] = {colors_.income, colors_.expense, QColor()};
    const qreal height = room.height() / 3, left = room.left() + gutter_;
    const qreal whole = (room.width() - gutter_) / static_cast<qreal>(std::max<size_t>(spans_.size(), 1));
    for (int row = 0; row < 3; ++row) {
      const QRectF line(room.left(), room.top() + height * row, gutter_, height);
      if (row == 2) rule(room.left(), room.right(), line.top(), colors_.line);
      if (chips[row].isValid())
        painter_.fillRect(QRectF(line.left(), line.center().y() - line_ * 0.3, line_ * 0.6, line_ * 0.6), chips[row]);
      write(line.adjusted(line_, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, QLatin1String(row_names[row]), colors_.ink,
            row == 2);
      for (size_t at = 0; at < spans_.size(); ++at) {
        const Graph_Span& span = spans_[at];
        const Money amount = row == 0 ? span.income : row == 1 ? span.expense : span.income - span.expense;
        write({left + whole * static_cast<qreal>(at), line.top(), whole, height}, Qt::AlignCenter,
              qt(Graph_Text(amount, amounts_)), colors_.ink, row == 2);
      }
    }
  }

  // --- the expenses

  void expenses(const QRectF& room) {
    const QRectF body = title(room, "Largest expenses");
    const qreal height = line_ * 1.6;
    const auto slices = Largest_Slices(graph_.expenses, static_cast<size_t>(std::max(body.height() / height, 0.0)));
    if (slices.empty())
      return write(body, Qt::AlignLeft | Qt::AlignTop, QStringLiteral("No expenses in this period."), colors_.soft);
    Money total, most;
    qreal names = 0, figures_width = 0;
    for (const PL_Graph::Slice& slice : slices) {
      total += slice.amount;
      most = std::max(most, slice.amount);
      names = std::max(names, width(qt(slice.AccountName)));
      figures_width = std::max(figures_width, width(amount_text(slice.amount)));
    }
    names = std::min(names, body.width() * 0.34) + line_ * 0.8;
    QRectF row(body.left(), body.top(), body.width(), height);
    const qreal share = width(QStringLiteral("100%")) + line_;
    for (const PL_Graph::Slice& slice : slices) {
      slice_row(row, slice, names, body.width() - names - figures_width - share - line_,
                slice.amount.to_double() / most.to_double(), slice.amount.to_double() / total.to_double());
      row.translate(0, height);
    }
  }

  static QString amount_text(Money amount) { return qt(Format(amount, "#,##0.00")); }

  void slice_row(const QRectF& row, const PL_Graph::Slice& slice, qreal names, qreal room, double length, double part) {
    const QString name = metrics_.elidedText(qt(slice.AccountName), Qt::ElideRight, names - line_ * 0.8);
    write({row.left(), row.top(), names, row.height()}, Qt::AlignLeft | Qt::AlignVCenter, name, colors_.ink);
    const QRectF bar(row.left() + names, row.center().y() - line_ * 0.42, std::max(room * length, line_ / 10),
                     line_ * 0.84);
    painter_.fillRect(bar, colors_.expense);
    const qreal share = width(QStringLiteral("100%")) + line_;
    write({row.left(), row.top(), row.width() - share, row.height()}, Qt::AlignRight | Qt::AlignVCenter,
          amount_text(slice.amount), colors_.ink);
    write(row, Qt::AlignRight | Qt::AlignVCenter, qt(Format(part, "0%")), colors_.soft);
  }

  QPainter& painter_;
  const PL_Graph& graph_;
  const Graph_Colors& colors_;
  QFont font_, bold_ = font_;
  QFontMetricsF metrics_;
  qreal line_;
  std::vector<Graph_Span> spans_;
  Graph_Scale amounts_ = Graph_Scale::Full;
  qreal gutter_ = 0;
  double low_ = 0, high_ = 0, step_ = 1;
};

}  // namespace

Graph_Colors Graph_Colors::on_paper() {
  return {QColor(20, 20, 20), QColor(90, 90, 90), QColor(222, 226, 228), QColor(15, 102, 115), QColor(224, 160, 62)};
}

Graph_Colors Graph_Colors::on_screen() {
  Graph_Colors colors = on_paper();
  if (!theme::is_dark()) return colors;
  return {QColor(227, 234, 236), QColor(147, 163, 168), QColor(46, 56, 59), QColor(63, 160, 176),
          QColor(232, 181, 101)};
}

void Paint_PL_Graph(QPainter& painter, const QRectF& room, const PL_Graph& graph, const Graph_Colors& colors,
                    const QFont& font) {
  Graph(painter, graph, colors, font).paint(room);
}

Graph_Pages::Graph_Pages(const PL_Graph& graph, const QPageLayout& page) : Pages(page), graph_(graph) {}

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
  Paint_PL_Graph(painter, room.adjusted(0, 300, 0, -400), graph_, colors, fonts.of("Small").font);
}

}  // namespace tallymere
