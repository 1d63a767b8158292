// Starts, reads and kills the child process.
#include "tests/save_races/saving_program.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <string_view>
#include <utility>

namespace tasca::test {

SavingProgram::SavingProgram(std::string carpeta, int numero)
    : carpeta_{std::move(carpeta)}, numero_{std::to_string(numero)} {
  Start();
}

SavingProgram::~SavingProgram() { Kill(); }

void SavingProgram::Start() {
  std::array<int, 2> tubo{-1, -1};
  EXPECT_EQ(::pipe2(tubo.data(), O_CLOEXEC), 0);
  posix_spawn_file_actions_t acciones{};
  ::posix_spawn_file_actions_init(&acciones);
  ::posix_spawn_file_actions_adddup2(&acciones, tubo[1], STDOUT_FILENO);
  std::string programa = TASCA_SAVE_AGAIN;
  const std::array<char*, 4> palabras{programa.data(), carpeta_.data(), numero_.data(), nullptr};
  EXPECT_EQ(
      ::posix_spawn(&proceso_, programa.c_str(), &acciones, nullptr, palabras.data(), environ), 0);
  ::posix_spawn_file_actions_destroy(&acciones);
  ::close(tubo[1]);
  salida_ = tubo[0];
}

int SavingProgram::TakeRounds() {
  std::array<char, 4096> trozo{};
  const ssize_t leidos = ::read(salida_, trozo.data(), trozo.size());
  EXPECT_GT(leidos, 0) << "writer " << numero_ << " has ended";
  const std::string_view dicho{trozo.data(),
                               static_cast<std::size_t>(std::max<ssize_t>(leidos, 0))};
  EXPECT_EQ(dicho.find_first_not_of('.'), std::string_view::npos) << dicho;
  return static_cast<int>(std::count(dicho.begin(), dicho.end(), '.'));
}

void SavingProgram::Restart() {
  Kill();
  Start();
}

void SavingProgram::Kill() {
  int estado = 0;
  EXPECT_EQ(::kill(proceso_, SIGKILL), 0);
  EXPECT_EQ(::waitpid(proceso_, &estado, 0), proceso_);
  EXPECT_TRUE(WIFSIGNALED(estado)) << "writer " << numero_ << " had ended";
  ::close(salida_);
}

}  // namespace tasca::test
