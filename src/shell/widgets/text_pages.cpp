#include "shell/widgets/text_pages.h"

#include <QAbstractTextDocumentLayout>
#include <QTextCursor>

namespace tallymere {

namespace {

constexpr int point = Pages::twips / 72;
constexpr int margin = Pages::twips;

}  // namespace

TextPages::TextPages(const QPageLayout& page, const QString& title, const QString& text) : Pages(page) {
  QFont font = Paper_Font();
  font.setPixelSize(11 * point);
  document_.setDefaultFont(font);
  document_.setDocumentMargin(0);
  document_.setPageSize(room().size());
  QTextCursor cursor(&document_);
  QTextCharFormat head;
  head.setFontWeight(QFont::Bold);
  cursor.insertText(title, head);
  cursor.insertBlock();
  cursor.insertBlock(QTextBlockFormat(), QTextCharFormat());
  cursor.insertText(text);
}

QRectF TextPages::room() const { return {margin, margin, size().width() - 2 * margin, size().height() - 2 * margin}; }

void TextPages::paint(QPainter& painter, int page) const {
  const QRectF at = room();
  painter.save();
  painter.translate(at.left(), at.top() - page * at.height());
  QAbstractTextDocumentLayout::PaintContext context;
  context.palette.setColor(QPalette::Text, Qt::black);
  context.clip = QRectF(0, page * at.height(), at.width(), at.height());
  painter.setClipRect(context.clip);
  document_.documentLayout()->draw(&painter, context);
  painter.restore();
}

}  // namespace tallymere
