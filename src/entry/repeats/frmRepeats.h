#pragma once

#include "lists/ListForm.h"

namespace tallymere {

/// What is entered again on fixed dates. A new repeat is made from the check, bill or invoice itself.
class frmRepeats : public ListForm {
  Q_OBJECT

 public:
  explicit frmRepeats(Shell& shell_of_frame);

  void on_changed(const std::string& table) override;

 protected:
  void Make_List() override;
  void chosen(const std::string& item) override;
  std::vector<std::string> disabled() const override;

 private:
  std::string name() const;  ///< of the repeat in the current row

  SSDBGrid*& grdList = grid_;
};

}  // namespace tallymere
