#pragma once

#include <signal.h>
#include <sys/resource.h>

namespace tallymere::testing {

/// While it lives no file can grow beyond a size: as on a disk that is full.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) {
    getrlimit(RLIMIT_FSIZE, &before_);
    quiet_ = signal(SIGXFSZ, SIG_IGN);
    const rlimit now{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &now);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    signal(SIGXFSZ, quiet_);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit before_{};
  void (*quiet_)(int) = nullptr;
};

}  // namespace tallymere::testing
