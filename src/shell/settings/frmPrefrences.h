#pragma once

#include "core/company/preference_form.h"
#include "shell/widgets/Form.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QStackedWidget;

namespace tallymere {

class QuillbrookDatePick;
class SSDBCombo;

/// What the company prefers, page by page. Asked for with a page's name it opens there.
class frmPrefrences : public Form {
  Q_OBJECT

 public:
  explicit frmPrefrences(Shell& shell_of_frame);

  void load() override;
  void take(const Request& request) override;
  void on_changed(const std::string& table) override;

 private:
  void build();
  QFormLayout* add_page(const char* name);
  void build_pages();
  void build_invoices(QFormLayout* page);
  QButtonGroup* options(QFormLayout* page, const char* name, const char* label,
                        std::initializer_list<const char*> captions);
  void fill_lists();
  void show_form();
  void show_logo();
  PreferenceForm read() const;
  void SSDBCommand1_AfterClick();
  bool cmdApply_AfterClick();

  PreferenceForm before_;
  std::optional<std::string> logo_;
  QComboBox* imgSettings;
  QStackedWidget* pages_;
  QCheckBox* chkToolBar;
  QComboBox *cmbInvoiceStyle, *cmbFirstDay, *cmbItemSort;
  QButtonGroup *optPrintInvoice, *optFeed, *optStyle, *optSalesBase, *optPosting;
  SSDBCombo *cmbBank, *cmbFinanceCat;
  QLabel *lblBank, *lblFinCatID, *picLogo;
  QLineEdit *txtLogo, *txtAPR;
  QuillbrookDatePick* txtClosingDate;
  QPushButton *SSDBCommand1, *cmdApply, *cmdClose, *cmdCancel;
};

}  // namespace tallymere
