#pragma once

#include <QMenu>
#include <QPoint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "core/company/session.h"
#include "core/values/date_range.h"

namespace tallymere {

/// The hidden companion of frmMain: every context menu, built from the table.
class frmMenus : public QWidget {
  Q_OBJECT

 public:
  using Chosen = std::function<void(const std::string& item)>;

  explicit frmMenus(Session& running);

  /// Pops a menu; `chosen` gets the name of the item that was picked, if any.
  void Popup(const std::string& menu, const QPoint& at, const std::vector<std::string>& disabled, Chosen chosen);

  tallymere::DateRange Get_Date_Range(const std::string& name) const {
    return tallymere::Get_Date_Range(name, session_.today());
  }

 private:
  QMenu* menu_named(std::string_view name);
  void picked(const QAction* item);

  Session& session_;
  std::map<std::string, QMenu*, std::less<>> menus_;
  Chosen chosen_;
};

}  // namespace tallymere
