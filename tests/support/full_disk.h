#pragma once
// A disk that is full.
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>

namespace tasca::test {

// No file may grow past `bytes` while it lives, as on a disk that is full.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) {
    EXPECT_EQ(::getrlimit(RLIMIT_FSIZE, &antes_), 0);
    rlimit ahora = antes_;
    ahora.rlim_cur = bytes;
    EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &ahora), 0);
    tratamiento_ = std::signal(SIGXFSZ, SIG_IGN);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  ~FullDisk() {
    EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &antes_), 0);
    static_cast<void>(std::signal(SIGXFSZ, tratamiento_));
  }

 private:
  rlimit antes_{};
  void (*tratamiento_)(int) = nullptr;
};

}  // namespace tasca::test
