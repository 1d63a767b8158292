// Creates the terminals, the pipes and the process.
#include "tests/ui_terminal/terminal_program.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <pty.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>

#include "tests/support/program_path.h"

namespace tasca::test {
namespace {

// The two ends of a pipe or a terminal.
struct Ends {
  int Here = -1;
  int There = -1;
};

Ends NewTerminal(unsigned short columnas) {
  Ends extremos;
  const winsize medidas{.ws_row = 24, .ws_col = columnas, .ws_xpixel = 0, .ws_ypixel = 0};
  EXPECT_EQ(::openpty(&extremos.Here, &extremos.There, nullptr, nullptr, &medidas), 0);
  return extremos;
}

Ends NewPipe(bool haciaElPrograma) {
  std::array<int, 2> tubo{-1, -1};
  EXPECT_EQ(::pipe(tubo.data()), 0);
  return haciaElPrograma ? Ends{.Here = tubo[1], .There = tubo[0]}
                         : Ends{.Here = tubo[0], .There = tubo[1]};
}

}  // namespace

void CopyTerminalProgram(const std::filesystem::path& carpeta) {
  std::filesystem::copy_file(ProgramPath(TASCA_TERMINAL_PROGRAM), carpeta / "tasca-terminal");
}

TerminalProgram::TerminalProgram(const Sides& lados, std::vector<std::string> orden)
    : alTerminal_{lados.TypesAtTerminal} {
  const Ends teclado = lados.TypesAtTerminal ? NewTerminal(lados.Columns) : NewPipe(true);
  const bool unoSolo = lados.TypesAtTerminal && lados.ReadsAtTerminal;
  Ends pantalla = teclado;
  if (!unoSolo) pantalla = lados.ReadsAtTerminal ? NewTerminal(lados.Columns) : NewPipe(false);
  entrada_ = teclado.Here;
  salida_ = pantalla.Here;
  posix_spawn_file_actions_t acciones;
  ::posix_spawn_file_actions_init(&acciones);
  ::posix_spawn_file_actions_adddup2(&acciones, teclado.There, STDIN_FILENO);
  ::posix_spawn_file_actions_adddup2(&acciones, pantalla.There, STDOUT_FILENO);
  ::posix_spawn_file_actions_addclosefrom_np(&acciones, STDERR_FILENO + 1);
  orden.insert(orden.begin(), {"env", "-u", "SSH_CONNECTION", "-u", "SSH_TTY",
                               "XDG_STATE_HOME=" + estado_.Path().string()});
  std::vector<char*> argumentos;
  argumentos.reserve(orden.size() + 1);
  for (std::string& argumento : orden) argumentos.push_back(argumento.data());
  argumentos.push_back(nullptr);
  EXPECT_EQ(::posix_spawnp(&proceso_, "env", &acciones, nullptr, argumentos.data(), ::environ), 0);
  ::posix_spawn_file_actions_destroy(&acciones);
  ::close(teclado.There);
  if (!unoSolo) ::close(pantalla.There);
}

TerminalProgram::~TerminalProgram() {
  if (proceso_ > 0) {
    ::kill(proceso_, SIGKILL);
    ::waitpid(proceso_, nullptr, 0);
  }
  if (entrada_ >= 0) ::close(entrada_);
  if (salida_ != entrada_) ::close(salida_);
}

void TerminalProgram::Type(const std::string& texto) const {
  EXPECT_EQ(::write(entrada_, texto.data(), texto.size()), static_cast<ssize_t>(texto.size()));
}

// Reads some output. False at its end, or if there is none for 30 seconds.
bool TerminalProgram::ReadSome() {
  constexpr int medioMinuto = 30'000;
  pollfd suceso{.fd = salida_, .events = POLLIN, .revents = 0};
  if (::poll(&suceso, 1, medioMinuto) != 1) return false;
  std::array<char, 4096> bytes{};
  const ssize_t leidos = ::read(salida_, bytes.data(), bytes.size());
  if (leidos <= 0) return false;
  mostrado_.append(bytes.data(), static_cast<std::size_t>(leidos));
  return true;
}

bool TerminalProgram::Shows(const std::string& texto) {
  while (mostrado_.find(texto) == std::string::npos) {
    if (!ReadSome()) return false;
  }
  return true;
}

int TerminalProgram::End() {
  if (alTerminal_) {
    Type("\x04");  // Ctrl+D
  } else {
    ::close(entrada_);
    entrada_ = -1;
  }
  while (ReadSome()) continue;
  int estado = -1;
  EXPECT_EQ(::waitpid(proceso_, &estado, 0), proceso_);
  proceso_ = 0;
  return WIFEXITED(estado) ? WEXITSTATUS(estado) : -1;
}

}  // namespace tasca::test
