#pragma once
// Makes every file write of this process fail beyond a few bytes while it lives (a file-size
// limit, which holds for root too), so tests can see what a failed save leaves behind.
#include <sys/resource.h>

#include <csignal>

namespace lathwick::test {

class FailingWrites {
 public:
  FailingWrites() {
    getrlimit(RLIMIT_FSIZE, &saved_);
    previous_ = std::signal(SIGXFSZ, SIG_IGN);  // the write fails with EFBIG instead
    rlimit tight = saved_;
    tight.rlim_cur = 4;
    setrlimit(RLIMIT_FSIZE, &tight);
  }
  ~FailingWrites() {
    setrlimit(RLIMIT_FSIZE, &saved_);
    std::signal(SIGXFSZ, previous_);
  }
  FailingWrites(const FailingWrites&) = delete;
  FailingWrites& operator=(const FailingWrites&) = delete;

 private:
  rlimit saved_{};
  void (*previous_)(int) = nullptr;
};

}  // namespace lathwick::test
