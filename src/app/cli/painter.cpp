#include "app/cli/painter.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "core/backup/whole_file.h"
#include "core/company/program_folder.h"

namespace tallymere::cli {

namespace {

namespace fs = std::filesystem;

int Run_Painter(const fs::path& painter, const fs::path& handed, const fs::path& out) {
  std::string program = painter.string(), from = handed.string(), to = out.string();
  char* words[] = {program.data(), from.data(), to.data(), nullptr};
  pid_t child = 0;
  if (posix_spawn(&child, program.c_str(), nullptr, nullptr, words, environ) != 0) return 1;
  int status = 1;
  waitpid(child, &status, 0);
  return status;
}

}  // namespace

void Paint(Session& session, const fs::path& out, const std::function<void(std::ostream&)>& write) {
  const fs::path painter = Program_File().parent_path() / "tallymere-paint";
  if (!fs::exists(painter)) throw std::runtime_error("tallymere-paint, which paints pages, is not installed here");
  const FileAside handed(session.folder);
  Write_Bytes(handed.path(), handed.path(), write);
  if (Run_Painter(painter, handed.path(), out) != 0) throw std::runtime_error("the pages could not be painted");
}

}  // namespace tallymere::cli
