#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QRectF>
#include <map>
#include <string>
#include <string_view>

class QPainter;

namespace tallymere {

/// The looks of a report on paper, in twips. One family with figures of one width.
class Print_Fonts {
 public:
  struct Look {
    QFont font;
    QFontMetricsF metrics;
    qreal row_height() const { return metrics.lineSpacing() * 1.25; }
  };

  explicit Print_Fonts(qreal scale);

  /// "Bold", "sBold", "Small", "Underline" as rows name them; any other name is the plain look.
  const Look& of(std::string_view style) const;

  // --- around the rows
  const Look& heads() const { return of("heads"); }
  const Look& title() const { return of("title"); }
  const Look& company() const { return of("company"); }
  const Look& period() const { return of("period"); }
  const Look& edge() const { return of("edge"); }  ///< running heads and page numbers

 private:
  std::map<std::string, Look, std::less<>> looks_;
};

/// One line of text, smaller where it is long, and cut with dots where even that does not do.
void Write_Line(QPainter& painter, const QRectF& line, int align, const Print_Fonts::Look& look, const QString& text);

}  // namespace tallymere
