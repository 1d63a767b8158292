// Starts, reads and kills the child process.
#include "tests/kept_kills/keeping_program.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <utility>

namespace tasca::test {

KeepingProgram::KeepingProgram(std::string carpeta, std::string estado) {
  std::array<int, 2> tubo{-1, -1};
  EXPECT_EQ(::pipe2(tubo.data(), O_CLOEXEC), 0);
  posix_spawn_file_actions_t acciones{};
  ::posix_spawn_file_actions_init(&acciones);
  ::posix_spawn_file_actions_adddup2(&acciones, tubo[1], STDOUT_FILENO);
  std::string programa = TASCA_KEEP_ON;
  const std::array<char*, 4> palabras{programa.data(), carpeta.data(), estado.data(), nullptr};
  EXPECT_EQ(
      ::posix_spawn(&proceso_, programa.c_str(), &acciones, nullptr, palabras.data(), environ), 0);
  ::posix_spawn_file_actions_destroy(&acciones);
  ::close(tubo[1]);
  salida_ = tubo[0];
}

KeepingProgram::~KeepingProgram() {
  Kill();
  ::close(salida_);
}

std::optional<std::string> KeepingProgram::NextLine() {
  constexpr int Minuto = 60'000;
  std::size_t largo = leido_.find('\n');
  while (largo == std::string::npos) {
    pollfd suceso{.fd = salida_, .events = POLLIN, .revents = 0};
    const bool hay = ::poll(&suceso, 1, Minuto) == 1;
    EXPECT_TRUE(hay) << "the program hangs";
    std::array<char, 4096> trozo{};
    const ssize_t leidos = hay ? ::read(salida_, trozo.data(), trozo.size()) : 0;
    if (leidos <= 0) return std::nullopt;
    leido_.append(trozo.data(), static_cast<std::size_t>(leidos));
    largo = leido_.find('\n');
  }
  std::string linea = leido_.substr(0, largo);
  leido_.erase(0, largo + 1);
  return linea;
}

void KeepingProgram::Kill() {
  if (proceso_ <= 0) return;
  EXPECT_EQ(::kill(proceso_, SIGKILL), 0);
  EXPECT_EQ(::waitpid(proceso_, nullptr, 0), proceso_);
  proceso_ = -1;
}

}  // namespace tasca::test
