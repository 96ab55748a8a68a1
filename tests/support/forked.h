#pragma once

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <stdexcept>
#include <utility>

namespace tallymere::testing {

/// This program a second time, which does a thing and then stands still until it is killed: nothing of it is tidied up.
class Forked {
 public:
  explicit Forked(const std::function<void()>& work) {
    int ends[2];
    if (pipe(ends) != 0) throw std::runtime_error("no pipe");
    pid_ = fork();
    if (pid_ == 0) {
      work();
      if (write(ends[1], "x", 1) == 1) pause();
      _exit(1);
    }
    close(ends[1]);
    char done = 0;
    const bool stands = read(ends[0], &done, 1) == 1;
    close(ends[0]);
    if (!stands) throw std::runtime_error("the other program failed");
  }
  ~Forked() { kill_now(); }
  Forked(const Forked&) = delete;
  Forked& operator=(const Forked&) = delete;

  void kill_now() {
    if (pid_ <= 0) return;
    kill(pid_, SIGKILL);
    waitpid(std::exchange(pid_, -1), nullptr, 0);
  }

 private:
  pid_t pid_ = -1;
};

}  // namespace tallymere::testing
