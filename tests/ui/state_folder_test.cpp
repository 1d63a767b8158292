// The folders of the user, by the environment.
#include "ui/state_folder.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <array>
#include <filesystem>
#include <string>

#include "tests/support/temp_folder.h"
#include "tests/ui/variable.h"

namespace tasca::test {
namespace {

struct Case {
  const char* Data;  // or state
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
    const Variable estados{"XDG_STATE_HOME", c.Data};
    const Variable casa{"HOME", c.Home};
    EXPECT_EQ(StateFolder(), c.Folder);
  }
}

TEST(DataFolder, IsThatOfTheEnvironment) {
  constexpr std::array<Case, 6> cases{{
      {"/datos", "/casa", "/datos/tasca"},
      {nullptr, "/casa", "/casa/.local/share/tasca"},
      {"datos", "/casa", "/casa/.local/share/tasca"},
      {"", "/casa", "/casa/.local/share/tasca"},
      {nullptr, nullptr, ""},
      {"./datos", "casa", ""},
  }};
  for (const Case& c : cases) {
    const Variable datos{"XDG_DATA_HOME", c.Data};
    const Variable casa{"HOME", c.Home};
    EXPECT_EQ(DataFolder(), c.Folder);
  }
}

TEST(DataFolder, OfAnotherUserIsNotRoots) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root may write to everybody's folders";
  constexpr uid_t otro = 65534;
  const TempFolder casa;
  const Variable datos{"XDG_DATA_HOME", nullptr};
  const Variable personal{"HOME", casa.Path().c_str()};
  EXPECT_EQ(DataFolder(), casa.Path() / ".local/share/tasca");
  ASSERT_EQ(::chown(casa.Path().c_str(), otro, otro), 0);
  EXPECT_EQ(DataFolder(), "");
  const Variable estados{"XDG_STATE_HOME", (casa.Path() / "estados").c_str()};
  EXPECT_EQ(StateFolder(), "");
}

// The tests' programs run with the environment of the test.
TEST(DataFolder, IsNotTheUsersInATest) { EXPECT_EQ(DataFolder(), StateFolder()); }

TEST(StateFolder, IsNotTheUsersInATest) {
  const std::filesystem::path propia = StateFolder().parent_path();
  EXPECT_TRUE(propia.filename().string().starts_with("tasca-state-")) << propia;
  EXPECT_TRUE(std::filesystem::is_directory(propia));
}

}  // namespace
}  // namespace tasca::test
