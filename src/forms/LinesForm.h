#pragma once

#include <map>

#include "forms/tax_form.h"
#include "shell/widgets/Form.h"

class QGridLayout;
class QLabel;
class QPushButton;

namespace tallymere {

class MoneyEdit;

/// The window of a form with numbered lines: each a caption, a field that may be corrected, and a button that lists what
/// made it. What follows from a corrected line follows the correction; an emptied field shows what the books say again.
class LinesForm : public Form {
  Q_OBJECT

 public:
  LinesForm(Shell& shell_of_frame, const char* name, std::span<const FormLineDef> defs);

  void on_changed(const std::string& table) override;

 protected:
  virtual TaxForm reckon() = 0;                    ///< with typed()
  virtual void after_reckoning(const TaxForm&) {}  ///< what stands beside the lines
  virtual FormPaper paper() = 0;                   ///< for the file

  void Load_Form();   ///< reckons and shows the lines
  void begin_anew();  ///< another period: corrections go
  bool settle();      ///< takes what was typed last; false: it cannot be taken
  const Corrections& typed() const { return typed_; }

  static constexpr int line_width = 112;  ///< of a field, in pixels
  static QGridLayout* lines_layout();
  /// These lines below each other, from a row of the grid on; the next free row.
  int add_lines(QGridLayout* grid, int row, std::initializer_list<std::string_view> controls);
  /// The page of all fields, scrolled where the screen is small.
  QWidget* page(QLayout* fields);
  QLabel* caption_of(std::string_view control) const { return captions_.at(std::string(control)); }

  QPushButton *cmdCSV, *cmdCancel;

 private:
  void add_line(QGridLayout* grid, int row, const FormLineDef& def);
  void show_line(const FormLine& line);
  bool line_left(const std::string& control);  ///< false: it is no amount, and the user is back there
  void trace(const std::string& control);

  std::span<const FormLineDef> defs_;
  Corrections typed_;
  std::map<std::string, FormLine> shown_;
  std::map<std::string, MoneyEdit*> edits_;
  std::map<std::string, QLabel*> results_, captions_;
};

}  // namespace tallymere
