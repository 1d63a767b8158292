#pragma once
// Simulates a full disk.
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>

namespace tasca::test {

// During its lifetime no file of this process and its children can grow past `bytes`: write() fails
// with EFBIG. SIGXFSZ is ignored meanwhile.
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
