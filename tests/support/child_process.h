#pragma once

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>
#include <vector>

namespace tallymere::testing {

/// A program running beside the test, its output caught.
class ChildProcess {
 public:
  explicit ChildProcess(std::vector<std::string> words) {
    int ends[2];
    if (pipe(ends) != 0) throw std::runtime_error("no pipe");
    pid_ = fork();
    if (pid_ == 0) {
      dup2(ends[1], STDOUT_FILENO);
      close(ends[0]);
      std::vector<char*> arguments;
      for (auto& word : words) arguments.push_back(word.data());
      arguments.push_back(nullptr);
      execv(arguments[0], arguments.data());
      _exit(127);
    }
    close(ends[1]);
    output_ = ends[0];
  }
  ~ChildProcess() {
    if (pid_ > 0) kill_now();
    close(output_);
  }
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  /// Waits until something has been said.
  std::string first_words() {
    char buffer[512];
    ssize_t got = read(output_, buffer, sizeof buffer);
    return got > 0 ? std::string(buffer, static_cast<size_t>(got)) : std::string();
  }
  std::string rest() {
    std::string all, part;
    while (!(part = first_words()).empty()) all += part;
    return all;
  }
  void kill_now() {
    kill(pid_, SIGKILL);
    wait_for_end();
  }
  int wait_for_end() {
    int status = 0;
    waitpid(std::exchange(pid_, -1), &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

 private:
  pid_t pid_ = -1;
  int output_ = -1;
};

}  // namespace tallymere::testing
