#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <filesystem>

#include "core/company/prompts.h"

class QApplication;
class QWidget;

namespace tallymere {

class frmProgress;
class frmStatus;
class Shell;

/// What the program says and asks, as dialogs on the desktop.
class DesktopPrompts : public Prompts {
 public:
  explicit DesktopPrompts(std::filesystem::path sounds) : sounds_(std::move(sounds)) {}
  /// The frame above which windows stand, from when it is there.
  void set_frame(Shell* shell, QWidget* frame);

  void box(const Box& box) override;
  bool ask(const Box& box, Buttons buttons) override;
  std::optional<bool> ask_or_stay(const Box& box) override;
  std::optional<std::string> input(const std::string& title, const std::string& prompt) override;
  std::string open_file(const std::string& filter, const std::string& folder) override;
  std::string save_file(const std::string& filter, const std::string& name) override;
  bool progress(const std::string& label, int64_t done, int64_t total) override;
  void progress_done() override;
  void hourglass(bool on) override;
  void sound(const std::string& file) override;

 private:
  QWidget* above() const;
  void put_above(QWidget& bar) const;
  bool is_due();  ///< the work has taken long enough to be shown, and again since the bar was last painted
  bool show_stoppable(const std::string& label, int64_t done, int64_t total);
  void show_status(const std::string& label, int64_t done, int64_t total);

  std::filesystem::path sounds_;
  Shell* shell_ = nullptr;
  QPointer<QWidget> frame_;
  QPointer<frmStatus> status_;
  QPointer<frmProgress> progress_;
  QElapsedTimer since_start_, since_look_;
};

/// Name, version, look and icon of the program, before any window.
void Prepare_Application(QApplication& app);

}  // namespace tallymere
