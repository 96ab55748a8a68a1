#include "shell/frmMenus.h"

#include <algorithm>
#include <utility>

#include "core/company/error_box.h"
#include "shell/menus.h"
#include "shell/widgets/Form.h"

namespace tallymere {

namespace {

QString text_of(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

}  // namespace

frmMenus::frmMenus(Session& running) : session_(running) {
  setObjectName(QStringLiteral("frmMenus"));
  for (const ContextRow& row : Context_Table()) {
    QAction* item = menu_named(row.menu)->addAction(text_of(row.caption));
    item->setObjectName(text_of(row.name));
    connect(item, &QAction::triggered, this, [this, item] { picked(item); });
  }
}

QMenu* frmMenus::menu_named(std::string_view name) {
  QMenu*& menu = menus_[std::string(name)];
  if (!menu) {
    menu = new QMenu(this);
    menu->setObjectName(text_of(name));
  }
  return menu;
}

void frmMenus::Popup(const std::string& menu, const QPoint& at, const std::vector<std::string>& disabled,
                     Chosen chosen) {
  QMenu* shown = menus_.at(menu);
  for (QAction* item : shown->actions())
    item->setEnabled(std::find(disabled.begin(), disabled.end(), utf8(item->objectName())) == disabled.end());
  chosen_ = std::move(chosen);
  shown->popup(at);
}

void frmMenus::picked(const QAction* item) {
  const Chosen chosen = std::exchange(chosen_, {});
  const std::string name = utf8(item->objectName());
  try {
    if (chosen) chosen(name);
  } catch (const std::exception& fault) {
    Error_Box(session_, "frmMenus", name + "_Click", fault);
  }
}

}  // namespace tallymere
