#include "entry/document/TabbedGrid.h"

#include <QLabel>

#include "shell/widgets/theme.h"

namespace tallymere {

TabbedGrid::TabbedGrid(EntryForm& window, Shell& shell, DropDowns& lists, const Hints& hints,
                       std::function<std::optional<Money>()> amount)
    : expenses(new ExpenseGrid(window, shell, lists, hints.expenses)),
      items(new ItemGrid(window, shell, lists, {.hint = hints.items})),
      amount_(std::move(amount)),
      lblAssigned(new QLabel) {
  setObjectName(QStringLiteral("SSTab1"));
  addTab(expenses->grid, QStringLiteral("E&xpenses"));
  addTab(items->grid, QStringLiteral("&Items"));
  lblAssigned->setObjectName(QStringLiteral("lblAssigned"));
  lblAssigned->setContentsMargins(0, 0, 0, theme::unit / 2);
  lblAssigned->setFont(theme::tabular(lblAssigned->font()));
  setCornerWidget(lblAssigned);
  expenses->offer([this] { return left(); });
  expenses->when_changed([this] { show_assigned(); });
  items->when_changed([this] { show_assigned(); });
  connect(this, &QTabWidget::currentChanged, this, [this] {
    if (isVisible()) currentWidget()->setFocus();
  });
}

void TabbedGrid::settle() {
  expenses->settle();
  items->settle();
}

void TabbedGrid::propose_remainder(Money amount) {
  if (currentIndex() == static_cast<int>(LineTab::Expenses)) expenses->propose_remainder(amount);
}

std::optional<Money> TabbedGrid::left() const {
  const auto amount = amount_();
  if (!amount) return std::nullopt;
  return *amount - Sum_Of(expenses->read()) - Sum_Of(items->read());
}

void TabbedGrid::show_assigned() {
  const auto rest = left();
  lblAssigned->setText(rest ? qt(Assigned_Text(*amount_() - *rest, *rest)) : QString());
}

}  // namespace tallymere
