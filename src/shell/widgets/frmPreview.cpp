#include "shell/widgets/frmPreview.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

#include "shell/widgets/ask_printer.h"
#include "shell/widgets/theme.h"
#include "shell/widgets/window_memory.h"

namespace tallymere {

namespace {

/// As wide as its word, so that the bar fits the smallest screen.
class TurningButton : public QPushButton {
 public:
  using QPushButton::QPushButton;
  QSize sizeHint() const override {
    return {fontMetrics().horizontalAdvance(text()) + 3 * theme::unit, QPushButton::sizeHint().height()};
  }
  QSize minimumSizeHint() const override { return sizeHint(); }
};

constexpr int around = 2 * theme::unit;  ///< blank around the sheet

}  // namespace

// --- the sheet

PreviewSheet::PreviewSheet(QWidget* parent) : QWidget(parent) { setAccessibleName(QStringLiteral("Page")); }

void PreviewSheet::show_page(const Pages* pages, int page) {
  pages_ = pages;
  page_ = page;
  update();
}

void PreviewSheet::set_room(QSize room, bool whole_page) {
  if (!pages_) return;
  const QSizeF paper = pages_->size();
  qreal scale = (room.width() - 2 * around) / paper.width();
  if (whole_page) scale = std::min(scale, (room.height() - 2 * around) / paper.height());
  const QSize page = (paper * std::max(scale, 0.01)).toSize();
  resize(std::max(room.width(), page.width() + 2 * around), std::max(room.height(), page.height() + 2 * around));
  setProperty("page", page);
  update();
}

void PreviewSheet::paintEvent(QPaintEvent*) {
  if (!pages_) return;
  QPainter painter(this);
  QRect paper(QPoint(), property("page").toSize());
  paper.moveCenter(rect().center());
  painter.fillRect(paper.translated(3, 3), QColor(0, 0, 0, 50));
  painter.fillRect(paper, Qt::white);
  painter.setPen(QColor(0, 0, 0, 60));
  painter.drawRect(paper.adjusted(0, 0, -1, -1));
  painter.setClipRect(paper);
  painter.translate(paper.topLeft());
  Paint_Page(*pages_, page_, painter, paper.width() * Pages::twips / pages_->size().width());
}

// --- the window

frmPreview::frmPreview(Shell& shell_of_frame, const QString& title, Lay_Out lay_out_pages, const QPageLayout& page)
    : frmPreview(shell_of_frame, "frmPreview") {
  show_pages(title, std::move(lay_out_pages), page, true);
}

frmPreview::frmPreview(Shell& shell_of_frame, const char* name) : Form(shell_of_frame, name, Place::Above) {
  sheet_ = new PreviewSheet;
  scroll_ = new QScrollArea;
  scroll_->setWidget(sheet_);
  scroll_->setFrameShape(QFrame::StyledPanel);
  scroll_->setBackgroundRole(QPalette::Mid);
  scroll_->setFocusPolicy(Qt::StrongFocus);
  scroll_->setAccessibleName(QStringLiteral("Preview"));
  scroll_->installEventFilter(this);
  auto* column = column_layout(this);
  column->addWidget(build_bar());
  column->addWidget(scroll_, 1);
  connect_controls();
}

void frmPreview::show_pages(const QString& title, Lay_Out lay_out_pages, const QPageLayout& page, bool turns) {
  title_ = title;
  setWindowTitle(title);
  lay_out_ = std::move(lay_out_pages);
  cmdLandscape->setVisible(turns);
  page_ = 0;
  lay_out(page);
}

frmPreview::~frmPreview() = default;

QSize frmPreview::sizeHint() const {
  if (const auto left = window_memory::size_of(objectName())) return *left;
  return Form::sizeHint().expandedTo({112 * theme::unit, 96 * theme::unit});
}

QWidget* frmPreview::build_bar() {
  auto* bar = new QWidget;
  auto* row = bar_ = row_layout();
  bar->setLayout(row);
  const auto put = [&](const char* name, QPushButton* made) {
    row->addWidget(named(name, made));
    return made;
  };
  const auto button = [&](const char* name, const char* caption) {
    return put(name, new QPushButton(QLatin1String(caption)));
  };
  const auto turning = [&](const char* name, const char* caption) {
    return put(name, new TurningButton(QLatin1String(caption)));
  };
  cmdPrint = button("cmdPrint", "&Print...");
  cmdPDF = button("cmdPDF", "&Save PDF...");
  row->addStretch(1);
  cmdFirst = turning("cmdFirst", "&First");
  cmdPrevious = turning("cmdPrevious", "Pre&vious");
  row->addWidget(lblPage = named("lblPage", new QLabel));
  cmdNext = turning("cmdNext", "&Next");
  cmdLast = turning("cmdLast", "&Last");
  row->addStretch(1);
  cmdLandscape = button("cmdLandscape", "Lan&dscape");
  cmdWidth = button("cmdWidth", "Page &Width");
  cmdLandscape->setCheckable(true);
  cmdWidth->setCheckable(true);
  cmdClose = button("cmdClose", "&Close");
  cmdPrint->setDefault(true);
  return bar;
}

void frmPreview::add_button(QPushButton* button) { bar_->insertWidget(bar_->indexOf(cmdPDF) + 1, button); }

void frmPreview::connect_controls() {
  on(cmdPrint, "cmdPrint_AfterClick", [this] { cmdPrint_AfterClick(); });
  on(cmdPDF, "cmdPDF_AfterClick", [this] { cmdPDF_AfterClick(); });
  on(cmdFirst, "cmdFirst_AfterClick", [this] { go_to_page(0); });
  on(cmdPrevious, "cmdPrevious_AfterClick", [this] { go_to_page(page_ - 1); });
  on(cmdNext, "cmdNext_AfterClick", [this] { go_to_page(page_ + 1); });
  on(cmdLast, "cmdLast_AfterClick", [this] { go_to_page(last_page()); });
  on(cmdLandscape, "cmdLandscape_AfterClick", [this] {
    QPageLayout page = pages_->page();
    page.setOrientation(cmdLandscape->isChecked() ? QPageLayout::Landscape : QPageLayout::Portrait);
    lay_out(page);
  });
  on(cmdWidth, "cmdWidth_AfterClick", [this] { fit(); });
  on(cmdClose, "cmdClose_AfterClick", [this] { finish(false); });
}

void frmPreview::lay_out(const QPageLayout& page) {
  const Hourglass hourglass(session.prompts);
  auto pages = lay_out_(page);
  pages_.swap(pages);  // what is on show lives until the sheet shows the new ones
  cmdLandscape->setChecked(page.orientation() == QPageLayout::Landscape);
  go_to_page(std::min(page_, last_page()));
  fit();
}

void frmPreview::go_to_page(int page) {
  page_ = std::clamp(page, 0, std::max(last_page(), 0));
  sheet_->show_page(pages_.get(), page_);
  lblPage->setText(QStringLiteral("Page %1 of %2").arg(page_ + 1).arg(last_page() + 1));
  cmdFirst->setEnabled(page_ > 0);
  cmdPrevious->setEnabled(page_ > 0);
  cmdNext->setEnabled(page_ < last_page());
  cmdLast->setEnabled(page_ < last_page());
  scroll_->verticalScrollBar()->setValue(0);
}

void frmPreview::fit() {
  QSize room = scroll_->maximumViewportSize();
  if (cmdWidth->isChecked()) room.rwidth() -= scroll_->verticalScrollBar()->sizeHint().width();
  sheet_->set_room(room, !cmdWidth->isChecked());
}

void frmPreview::resizeEvent(QResizeEvent* event) {
  Form::resizeEvent(event);
  fit();
}

void frmPreview::showEvent(QShowEvent* event) {
  Form::showEvent(event);
  fit();
  scroll_->setFocus();
}

bool frmPreview::page_key(int key) {
  const std::pair<int, int> ways[] = {
      {Qt::Key_PageDown, page_ + 1}, {Qt::Key_PageUp, page_ - 1}, {Qt::Key_Home, 0}, {Qt::Key_End, last_page()}};
  for (const auto& [known, page] : ways)
    if (known == key) {
      go_to_page(page);
      return true;
    }
  return false;
}

void frmPreview::keyPressEvent(QKeyEvent* event) {
  if (!page_key(event->key())) Form::keyPressEvent(event);
}

/// With a whole page on show there is nothing to scroll: the keys turn the pages.
bool frmPreview::eventFilter(QObject* watched, QEvent* event) {
  if (watched != scroll_ || event->type() != QEvent::KeyPress) return Form::eventFilter(watched, event);
  return !cmdWidth->isChecked() && page_key(static_cast<QKeyEvent*>(event)->key());
}

void frmPreview::cmdPrint_AfterClick() {
  if (!pages_) return;
  const auto printer = Ask_Printer(this, pages_->page(), title_, pages_->count());
  if (!printer) return;
  const QPageLayout chosen = printer->pageLayout();
  if (!chosen.isEquivalentTo(pages_->page()))
    lay_out(QPageLayout(chosen.pageSize(), chosen.orientation(), QMarginsF()));
  const int last = last_page();
  const bool all = printer->fromPage() == 0;
  const Hourglass hourglass(session.prompts);
  ProgressBar bar(session.prompts, "Print");
  const Printed done =
      Print_Pages(*pages_, *printer, all ? 0 : printer->fromPage() - 1,
                  all ? last : std::min(printer->toPage() - 1, last), Told_By(bar), offset_on(*printer));
  if (done == Printed::Whole) return printed();
  if (done == Printed::Refused) session.prompts.box({"The printer did not take the pages.", "Print", Icon::Critical});
}

void frmPreview::cmdPDF_AfterClick() {
  if (!pages_) return;
  const std::string file = session.prompts.save_file("PDF Files (*.pdf)|*.pdf", utf8(title_) + ".pdf");
  if (!file.empty()) save_pdf(file);
}

void frmPreview::save_pdf(const std::filesystem::path& file) {
  const Hourglass hourglass(session.prompts);
  ProgressBar bar(session.prompts, "Save PDF");
  if (pages_ && Write_Pdf(*pages_, file, title_, Told_By(bar))) shell.say("Saved as " + file.string() + ".");
}

}  // namespace tallymere
