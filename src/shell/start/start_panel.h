#pragma once

#include <QWidget>
#include <functional>
#include <string>
#include <vector>

class QGridLayout;
class QLabel;

namespace tallymere {

/// The quiet card in the empty frame: whose books these are, and the few things one begins a day with.
class StartPanel : public QWidget {
  Q_OBJECT

 public:
  struct Shortcut {
    QString caption;
    QString icon;
    std::string command;  ///< of frmMain's tables
  };

  explicit StartPanel(QWidget* parent);

  struct Figure {
    QString caption, amount;
  };

  /// Heading, the line below it, what a person asks first, and the shortcuts that can be used now.
  void show_company(const QString& name, const QString& line, const std::vector<Figure>& figures,
                    const std::vector<Shortcut>& shortcuts);
  void centre();

 Q_SIGNALS:
  void chosen(const QString& command);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QLabel *name_, *line_;
  void show_figures(const std::vector<Figure>& figures);
  void show_shortcuts(const std::vector<Shortcut>& shortcuts);

  QGridLayout *figures_, *buttons_;
};

/// The shortcuts of an open company, and those without one.
const std::vector<StartPanel::Shortcut>& Company_Shortcuts();
const std::vector<StartPanel::Shortcut>& Start_Shortcuts();

}  // namespace tallymere
