#pragma once

#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "core/company/company.h"
#include "core/company/folder.h"
#include "support/places.h"
#include "support/temp_folder.h"

namespace tallymere::testing {

/// Prompts with a script: says are kept, asks are answered in order (Yes when nothing is scripted).
class ScriptedPrompts : public Prompts {
 public:
  void box(const Box& shown) override { boxes.push_back(shown); }
  bool ask(const Box& shown, Buttons) override {
    boxes.push_back(shown);
    return answers.empty() ? true : next(answers);
  }
  std::optional<std::string> input(const std::string&, const std::string&) override {
    return inputs.empty() ? std::nullopt : std::optional(next(inputs));
  }
  std::string open_file(const std::string&, const std::string&) override { return inputs.empty() ? "" : next(inputs); }
  std::string save_file(const std::string&, const std::string&) override { return inputs.empty() ? "" : next(inputs); }
  bool progress(const std::string& label, int64_t, int64_t) override {
    if (labels.empty() || labels.back() != label) labels.push_back(label);
    in_progress = true;
    return true;
  }
  void progress_done() override { in_progress = false; }
  void hourglass(bool) override {}
  void sound(const std::string& file) override { sounds.push_back(file); }

  std::vector<Box> boxes;
  std::vector<std::string> labels, sounds;
  std::deque<bool> answers;
  std::deque<std::string> inputs;
  bool in_progress = false;  ///< a progress is shown that nobody took away

 private:
  template <typename T>
  static T next(std::deque<T>& queue) {
    T first = queue.front();
    queue.pop_front();
    return first;
  }
};

/// A program's folder with one open company, and as many users of it as a test wants.
struct TestCompany {
  explicit TestCompany(Date today = Date(2026, 6, 15)) : clock(Clock::standing_on(today)) {
    Prepare_Folder(folder.path(), testing::data_folder);
    session = user();
    New_Company(*session, "Acme");
    open(*session);
  }
  /// Another session on the same folder; no company open yet.
  std::unique_ptr<Session> user() {
    auto other = std::make_unique<Session>(folder.path(), clock, prompts);
    Main(*other);
    return other;
  }
  void open(Session& other) {
    Open_Company_File(other, Company_Path(other, "Acme"));
    Set_Recordsets(other);
  }
  /// A colleague at work in the same company.
  std::unique_ptr<Session> another_user() {
    auto other = user();
    open(*other);
    return other;
  }
  store::Database& db() { return *session->dbCompany; }

  /// Writes behind the program's back: company.run("UPDATE Accounts SET ...", {...}).
  void run(std::string_view sql, const store::Database::Params& params = {}) {
    store::Transaction tx(db(), "Set up by a test");
    db().Execute(sql, params);
    tx.commit();
  }
  void add_category(const std::string& id, const std::string& type, const std::string& parent = "",
                    bool dormant = false) {
    run("INSERT INTO Accounts (CatID, AccountName, AccountType, ParentAccount, Dormant) VALUES (?, ?, ?, ?, ?)",
        {id, "Name of " + id, type, parent, dormant});
  }

  TempFolder folder;
  Clock clock;
  ScriptedPrompts prompts;
  std::unique_ptr<Session> session;
};

}  // namespace tallymere::testing
