#pragma once

#include "shell/widgets/Form.h"

class QPushButton;

namespace tallymere {

class SSDBGrid;

/// Who may log in to the company. Users without a password are marked.
class frmUsers : public Form {
  Q_OBJECT

 public:
  explicit frmUsers(Shell& shell_of_frame);

  void load() override;
  void on_changed(const std::string& table) override;

 private:
  void Make_List();
  std::string user() const;  ///< "" without a row
  void cmdNew_AfterClick();
  void cmdEdit_AfterClick();
  void cmdDelete_AfterClick();

  SSDBGrid* SSDBGrid1;
  QPushButton *cmdNew, *cmdEdit, *cmdDelete, *cmdClose;
};

}  // namespace tallymere
