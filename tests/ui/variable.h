#pragma once
// A variable of the environment.
#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>

namespace tasca::test {

// Sets or unsets a variable, and restores it at the end.
class Variable {
 public:
  Variable(const char* nombre, const char* valor) : nombre_{nombre} {
    const char* const antes = ::getenv(nombre);  // NOLINT(concurrency-mt-unsafe)
    if (antes != nullptr) antes_ = antes;
    Put(valor);
  }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;
  ~Variable() { Put(antes_ ? antes_->c_str() : nullptr); }

 private:
  void Put(const char* valor) const {
    // NOLINTNEXTLINE(concurrency-mt-unsafe): the test has one thread
    EXPECT_EQ(valor == nullptr ? ::unsetenv(nombre_) : ::setenv(nombre_, valor, 1), 0);
  }

  const char* nombre_;
  std::optional<std::string> antes_;
};

}  // namespace tasca::test
