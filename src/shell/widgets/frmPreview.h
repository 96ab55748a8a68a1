#pragma once

#include <memory>

#include "shell/widgets/Form.h"
#include "shell/widgets/printed_pages.h"

class QHBoxLayout;
class QLabel;
class QPushButton;
class QPrinter;
class QScrollArea;

namespace tallymere {

/// A page on the screen as it will come out of the printer.
class PreviewSheet : public QWidget {
  Q_OBJECT

 public:
  explicit PreviewSheet(QWidget* parent = nullptr);

  void show_page(const Pages* pages, int page);
  void set_room(QSize room, bool whole_page);  ///< else as wide as the room

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const Pages* pages_ = nullptr;
  int page_ = 0;
};

/// Shows what is to be printed, page by page, prints it or writes a PDF. Only the page on show is painted, so
/// a report of a thousand pages comes up as quickly as one.
class frmPreview : public Form {
  Q_OBJECT

 public:
  frmPreview(Shell& shell_of_frame, const QString& title, Lay_Out lay_out, const QPageLayout& page);
  ~frmPreview() override;

  QSize sizeHint() const override;

 protected:
  /// A viewer of its own name, which calls show_pages once it knows what it shows.
  frmPreview(Shell& shell_of_frame, const char* name);
  /// `turns`: whether the pages may be laid out on a sheet turned round.
  void show_pages(const QString& title, Lay_Out lay_out, const QPageLayout& page, bool turns);
  void add_button(QPushButton* button);  ///< beside those that print and save
  void save_pdf(const std::filesystem::path& file);
  /// How far the pages are moved on this printer, in twips.
  virtual QPointF offset_on(const QPrinter&) const { return {}; }
  /// The pages went to the printer.
  virtual void printed() { finish(true); }

  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* build_bar();
  void connect_controls();
  void lay_out(const QPageLayout& page);
  int last_page() const { return pages_ ? pages_->count() - 1 : -1; }
  void go_to_page(int page);
  void fit();
  bool page_key(int key);
  void cmdPrint_AfterClick();
  void cmdPDF_AfterClick();

  QString title_;
  Lay_Out lay_out_;
  std::unique_ptr<Pages> pages_;
  int page_ = 0;
  QHBoxLayout* bar_ = nullptr;
  PreviewSheet* sheet_;
  QScrollArea* scroll_;
  QLabel* lblPage;
  QPushButton *cmdPrint, *cmdPDF, *cmdFirst, *cmdPrevious, *cmdNext, *cmdLast, *cmdLandscape, *cmdWidth, *cmdClose;
};

}  // namespace tallymere
