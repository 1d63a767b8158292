// The folder of the kept match, by the environment.
#include "ui/state_folder.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>

namespace tasca::test {
namespace {

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

struct Case {
  const char* State;
  const char* Home;
  const char* Folder;
};

TEST(StateFolder, IsThatOfTheEnvironment) {
  constexpr std::array<Case, 8> cases{{
      {"/estados", "/casa", "/estados/tasca"},
      {"/estados", nullptr, "/estados/tasca"},
      {nullptr, "/casa", "/casa/.local/state/tasca"},
      {"", "/casa", "/casa/.local/state/tasca"},
      {"estados", "/casa", "/casa/.local/state/tasca"},
      {nullptr, nullptr, ""},
      {nullptr, "", ""},
      {"./estados", "casa", ""},
  }};
  for (const Case& c : cases) {
    const Variable estados{"XDG_STATE_HOME", c.State};
    const Variable casa{"HOME", c.Home};
    EXPECT_EQ(StateFolder(), c.Folder);
  }
}

// The tests' programs run with the environment of the test.
TEST(StateFolder, IsNotTheUsersInATest) {
  const std::filesystem::path propia = StateFolder().parent_path();
  EXPECT_TRUE(propia.filename().string().starts_with("tasca-state-")) << propia;
  EXPECT_TRUE(std::filesystem::is_directory(propia));
}

}  // namespace
}  // namespace tasca::test
