// A company file that somebody damaged or prepared: opened, verified, reported, undone, backed up and restored; each of it
// works or is refused in words. The input is a list of edits of a sound file, so that it gets past the door.

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "core/backup/backup.h"
#include "core/backup/clsHuffman.h"
#include "core/backup/restore.h"
#include "core/company/company.h"
#include "core/company/folder.h"
#include "core/ledger/balances.h"
#include "core/ledger/transaction_writer.h"
#include "core/ledger/undo.h"
#include "core/ledger/verify.h"
#include "core/store/history.h"
#include "reports/frame/renderers.h"
#include "reports/reports.h"
#include "support/places.h"
#include "support/silent_prompts.h"
#include "support/temp_folder.h"

using namespace tallymere;

namespace {

namespace fs = std::filesystem;

/// A program's folder with a small company in it, as a file in memory.
struct House {
  House() {
    Prepare_Folder(folder.path(), testing::data_folder);
    Main(session);
    New_Company(session, "Acme");
    Open_Company_File(session, folder / "Acme.cmf");
    Set_Recordsets(session);
    for (int number = 1; number <= 5; ++number) {
      Transaction_Writer check(session,
                               {.TransNum = number, .Type = "Check", .Date = Date(2026, 1, number), .Name = "Bob"});
      check.add(
          {.Account = "0SS", .Category = "10SS", .Credit = Money::dollars(number), .Amount = Money::dollars(number)});
      check.add(
          {.Account = "10SS", .Category = "0SS", .Debit = Money::dollars(number), .Amount = Money::dollars(number)});
      check.commit();
    }
    Leave_Company(session);
    std::ifstream in(folder / "Acme.cmf", std::ios::binary);
    sound.assign(std::istreambuf_iterator<char>(in), {});
  }
  testing::TempFolder folder;
  testing::SilentPrompts prompts;
  Session session{folder.path(), Clock::standing_on(Date(2026, 6, 15)), prompts};
  std::string sound;
};

/// Edits of three bytes of place, one of length and so many of content; lengths beyond 200 cut the file instead.
std::string Edited(std::string file, const uint8_t* data, size_t size) {
  while (size >= 4) {
    const size_t place = (data[0] << 16 | data[1] << 8 | data[2]) % file.size();
    const size_t length = std::min<size_t>(data[3], size - 4);
    if (data[3] > 250) {
      file.resize(std::max<size_t>(place, 1));
    } else {
      file.replace(place, std::min(length, file.size() - place), reinterpret_cast<const char*>(data) + 4, length);
    }
    data += 4 + length, size -= 4 + length;
  }
  return file;
}

void Try(const std::function<void()>& work) try { work(); } catch (const store::Error&) {
} catch (const std::runtime_error&) {
} catch (const HuffmanError&) {
}

void Look_Over(Session& session) {
  auto& db = *session.dbCompany;
  Try([&] { Verify_Company(db); });
  Try([&] {
    for (const auto& action : store::List_Actions(db, 5)) Try([&] { Undo_Action(session, action.number); });
  });
  Try([&] { Update_Accounts(session), Update_Customers(session), Update_Vendors(session); });
}

void Report_All(Session& session) {
  for (const ReportDef& report : Reports())
    Try([&] {
      ReportRequest request = Default_Request(session, report.key);
      if (!report.subject.empty()) request.options.insert_or_assign(std::string(report.subject), "0SS");
      std::ostringstream out;
      Write_Csv(Build_Report(session, request), out);
    });
}

void Keep_And_Restore(House& house) {
  Write_Backup(*house.session.dbCompany, house.folder / "a.cbk");
  Restore_Company(house.session, {.backup = house.folder / "a.cbk", .target = house.folder / "Acme.cmf", .ask = false});
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static House& house = *new House;
  std::ofstream(house.folder / "Acme.cmf", std::ios::binary) << Edited(house.sound, data, size);
  Try([&] {
    Open_Company_File(house.session, house.folder / "Acme.cmf");
    Set_Recordsets(house.session);
    switch (size % 3) {  // a third of it each time, to get through more files
      case 0:
        return Look_Over(house.session);
      case 1:
        return Report_All(house.session);
      default:
        return Keep_And_Restore(house);
    }
  });
  Leave_Company(house.session);
  for (const char* left : {"a.cbk", "Acme.cmf-journal"}) fs::remove(house.folder / left);
  house.prompts.boxes.clear();
  return 0;
}
