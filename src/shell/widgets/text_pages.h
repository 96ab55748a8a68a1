#pragma once

#include <QTextDocument>

#include "shell/widgets/printed_pages.h"

namespace tallymere {

/// A plain text below a title, on as many pages as it takes.
class TextPages : public Pages {
 public:
  TextPages(const QPageLayout& page, const QString& title, const QString& text);

  int count() const override { return document_.pageCount(); }
  void paint(QPainter& painter, int page) const override;

 private:
  QRectF room() const;  ///< of the text, within the page's margins

  QTextDocument document_;
};

}  // namespace tallymere
