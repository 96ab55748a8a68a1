#include "payroll/taxtables/update.h"

#include <algorithm>
#include <charconv>

#include "core/company/tax_update.h"
#include "core/values/text.h"
#include "payroll/taxtables/replies.h"

namespace tallymere {
namespace {

using enum TaxGroup;

constexpr std::array<TaxGroup, 6> all_groups = {Federal, Illinois, Indiana, Minnesota, Missouri, Wisconsin};
constexpr int last_code = 22;
constexpr const char* no_connection_text =
    "Tallymere is attempting to Update your tax tables. The operation cannot perform because you are not connected to the "
    "internet.\r\n\r\nPlease connect you computer to the internet and then restart Tallymere.";

std::string Update_Host(store::Database& accounts) { return accounts.value("SELECT UpdateHost FROM Settings").text(); }

std::string Url(const std::string& host, std::string_view path) {
  const bool whole = host.starts_with("http://") || host.starts_with("https://");
  return (whole ? host : "http://" + host) + (host.ends_with('/') ? "" : "/") + std::string(path);
}

/// The asking ended before all was there. What to say about it, if anything.
struct Broken_Off {
  std::optional<Box> box;
};

/// Asks page by page, with a bar that can stop it.
class Asker {
 public:
  Asker(Session& session, const Fetch& fetch)
      : host_(Update_Host(*session.dbAccounts)), fetch_(fetch), bar_(session.prompts, Tax_Update_Label) {}

  std::string page(std::string_view path, int64_t done, int64_t total) {
    const Fetched reply = fetch_(Url(host_, path), [&] { return bar_.at(done, total); });
    if (reply.end == Fetched::End::Stopped) throw Broken_Off{};
    if (reply.end == Fetched::End::NoConnection)
      throw Broken_Off{Box{no_connection_text, "No Connection", Icon::Information, reply.why}};
    return reply.body;
  }

 private:
  std::string host_;
  const Fetch& fetch_;
  ProgressBar bar_;
};

std::vector<TaxTablePath> Paths_Of(const std::vector<TaxGroup>& groups) {
  std::vector<TaxTablePath> paths;
  for (const TaxGroup group : groups)
    std::ranges::copy_if(tax_table_paths, std::back_inserter(paths),
                         [group](const TaxTablePath& path) { return path.group == group; });
  return paths;
}

/// All replies are there and read before the first table changes.
void Load_Groups(Session& session, Asker& asker, const std::vector<TaxGroup>& groups) {
  std::vector<TaxTableRows> tables;
  const auto paths = Paths_Of(groups);
  for (const TaxTablePath& path : paths) {
    const std::string reply = asker.page(path.path, std::ssize(tables), std::ssize(paths));
    tables.push_back(Read_Reply(*session.dbAccounts, path.table, reply));
  }
  Load_Tax_Tables(*session.dbAccounts, tables, session.today());
}

/// What to say at the end.
Box Ask_And_Load(Session& session, const Fetch& fetch) {
  Asker asker(session, fetch);
  const int code = Code_Of_Index(asker.page("AutoUpdate/index.php", 0, 1));
  if (code < 0) throw Broken_Off{};
  Hourglass hourglass(session.prompts);
  Load_Groups(session, asker, Groups_Of_Code(code));
  return {code == 0 ? "Your Tax Tables are up to date." : "Your Tax Tables Have been Updated.", "Update Complete"};
}

}  // namespace

std::vector<TaxGroup> Groups_Of_Code(int code) {
  if (code < 1 || code > last_code) return {};
  if (code == last_code) return {all_groups.begin(), all_groups.end()};
  if (code <= 6) return {all_groups[static_cast<size_t>(code - 1)]};
  if (code <= 11) return {Federal, all_groups[static_cast<size_t>(code - 6)]};
  std::vector<std::vector<TaxGroup>> pairs;  // of two states, as 12 to 21 count them
  for (size_t first = 1; first < all_groups.size(); ++first)
    for (size_t second = first + 1; second < all_groups.size(); ++second)
      pairs.push_back({Federal, all_groups[first], all_groups[second]});
  return pairs[static_cast<size_t>(code - 12)];
}

int Code_Of_Index(std::string_view body) {
  if (body.empty()) return -2;
  const std::string text = ltrim(body);
  int code = 0;
  std::from_chars(text.data(), text.data() + text.size(), code);
  return code;
}

void Check_Updates(Session& session, const Fetch& fetch) {
  if (Is_Tax_Check_Due(session) && !Update_Host(*session.dbAccounts).empty()) Update_Tax_Tables(session, fetch);
}

void Update_Tax_Tables(Session& session, const Fetch& fetch) {
  std::optional<Box> box;
  try {
    if (Update_Host(*session.dbAccounts).empty())
      throw Broken_Off{Box{no_connection_text, "No Connection", Icon::Information, "No update host is set."}};
    box = Ask_And_Load(session, fetch);
  } catch (const Broken_Off& ended) {
    box = ended.box;
  } catch (const Tax_Reply_Error& error) {
    session.log.write("BasicModule", "Check_Updates", store::errors::conversion, error.what());
    box = Box{"Your Tax Tables have not been changed: what was received is not complete.", "Update", Icon::Critical,
              error.what()};
  }
  if (box) session.prompts.box(*box);
}

void Note_Tax_Check(store::Database& accounts, Date today) {
  if (accounts.Execute("UPDATE Settings SET Updated = ?", {today}) == 0)
    accounts.Execute("INSERT INTO Settings (Updated) VALUES (?)", {today});
}

}  // namespace tallymere
