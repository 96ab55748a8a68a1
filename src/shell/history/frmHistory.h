#pragma once

#include <vector>

#include "core/company/rights.h"
#include "core/store/history.h"
#include "shell/widgets/Form.h"
#include "shell/widgets/grid/SSDBGrid.h"

namespace tallymere {

/// What was done in this company: who, when and what, the rows before and after, and a way to take it back. Everybody
/// sees what his rights reach.
class frmHistory : public Form {
  Q_OBJECT

 public:
  explicit frmHistory(Shell& shell_of_frame);
  void load() override;
  void on_changed(const std::string& table) override;

 private:
  void build();
  void fill();
  bool is_shown(const store::Action& action) const;
  void show_changes();
  void cmdTakeBack_Click();

  std::vector<store::Action> actions_;  ///< one a row of grdActions
  std::vector<CommandRight> rights_;
  SSDBGrid *grdActions, *grdChanges;
  QPushButton *cmdTakeBack, *cmdClose;
};

}  // namespace tallymere
