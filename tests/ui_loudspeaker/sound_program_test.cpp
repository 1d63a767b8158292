// The program tasca-sound, tested through its socket.
#include <gtest/gtest.h>
#include <poll.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <filesystem>

#include "tests/ui_loudspeaker/recording.h"

namespace tasca::test {
namespace {

constexpr int MedioMinuto = 30'000;
const std::string Cerrada = "the connection has ended";
const std::string Nada = "nothing is said";

class SoundProgram : public testing::Test {
 protected:
  void TearDown() override {
    if (proceso_ > 0) {
      ::kill(proceso_, SIGKILL);
      ::waitpid(proceso_, nullptr, 0);
    }
    HangUp();
    ::unsetenv("LD_PRELOAD");  // NOLINT(concurrency-mt-unsafe)
  }

  // Makes its alarm go off after a tenth of a second.
  static void HurryTheAlarm() {
    ASSERT_EQ(::setenv("LD_PRELOAD", TASCA_QUICK_ALARM, 1), 0);  // NOLINT(concurrency-mt-unsafe)
  }

  void Start() {
    std::array<int, 2> extremos{-1, -1};
    ASSERT_EQ(::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, extremos.data()), 0);
    conexion_ = extremos[0];
    posix_spawn_file_actions_t acciones;
    ::posix_spawn_file_actions_init(&acciones);
    ::posix_spawn_file_actions_adddup2(&acciones, extremos[1], STDIN_FILENO);
    std::string nombre = carpeta_.Path() / "tasca-sound";
    const std::array<char*, 2> argumentos{nombre.data(), nullptr};
    ASSERT_EQ(
        ::posix_spawn(&proceso_, nombre.c_str(), &acciones, nullptr, argumentos.data(), ::environ),
        0);
    ::posix_spawn_file_actions_destroy(&acciones);
    ::close(extremos[1]);
  }

  void Order(const std::string& paquete) const {
    EXPECT_EQ(::send(conexion_, paquete.data(), paquete.size(), MSG_NOSIGNAL),
              static_cast<ssize_t>(paquete.size()));
  }
  void OrderCard(const std::string& numeros) const {
    Order(numeros + " " + (carpeta_.Path() / "Son_DaUnaCarta.wav").string());
  }

  // Its next packet, or Nada after the limit, or Cerrada at the end of the connection.
  std::string Hear(int milisegundos = MedioMinuto) const {
    pollfd suceso{.fd = conexion_, .events = POLLIN, .revents = 0};
    if (::poll(&suceso, 1, milisegundos) != 1) return Nada;
    std::array<char, 64> paquete{};
    const ssize_t bytes = ::recv(conexion_, paquete.data(), paquete.size(), 0);
    return bytes > 0 ? std::string{paquete.data(), static_cast<std::size_t>(bytes)} : Cerrada;
  }

  void HangUp() {
    if (conexion_ >= 0) ::close(conexion_);
    conexion_ = -1;
  }

  // Waits until it has ended and returns its status from waitpid.
  int WaitForItsEnd() {
    int estado = -1;
    EXPECT_EQ(::waitpid(proceso_, &estado, 0), proceso_);
    proceso_ = 0;
    return estado;
  }

  // Whether it has the loudspeaker open.
  bool HoldsTheDevice() const {
    namespace fs = std::filesystem;
    const fs::path archivos = fs::path{"/proc"} / std::to_string(proceso_) / "fd";
    for (const auto& enlace : fs::directory_iterator{archivos}) {
      std::error_code error;  // a descriptor may have been closed meanwhile
      if (fs::read_symlink(enlace, error) == carpeta_.Recording()) return true;
    }
    return false;
  }

  SoundFolder carpeta_;

 private:
  int conexion_ = -1;
  pid_t proceso_ = 0;
};

// Opening a FIFO without a reader blocks for ever.
TEST_F(SoundProgram, EndsWhenTheSoundSystemHangs) {
  HurryTheAlarm();
  ASSERT_EQ(::mkfifo(carpeta_.Recording().c_str(), 0600), 0);
  Start();
  OrderCard("1 1 0 0");
  ASSERT_EQ(Hear(), Cerrada);
  const int estado = WaitForItsEnd();
  EXPECT_TRUE(WIFSIGNALED(estado) && WTERMSIG(estado) == SIGALRM) << estado;
}

TEST_F(SoundProgram, OutlivesItsAlarmWhileNothingHangs) {
  HurryTheAlarm();
  Start();
  Order("no order at all");
  EXPECT_EQ(Hear(500), Nada) << "for five times the alarm's delay";
  OrderCard("7 1 0 0");
  EXPECT_EQ(Hear(), "7");
}

TEST_F(SoundProgram, AnswersEveryOrderOnceWithItsNumber) {
  Start();
  OrderCard("70000 2 0 0");
  EXPECT_EQ(Hear(), "70000");
  Order("3 0 0 0 ");
  EXPECT_EQ(Hear(), "3");
  Order("4 1 0 0 /nowhere/Son.wav");
  EXPECT_EQ(Hear(), "4");
  EXPECT_EQ(Hear(100), Nada);
}

TEST_F(SoundProgram, AnswersForTheLastOfTwoOrders) {
  Start();
  Order("1 1000 0 0 " + (carpeta_.Path() / "Son_aplauso.wav").string());
  OrderCard("2 1 0 0");
  EXPECT_EQ(Hear(), "2");
  EXPECT_EQ(Hear(100), Nada);
}

TEST_F(SoundProgram, ClosesTheDeviceAndReportsItOnceWhenIdle) {
  Start();
  OrderCard("3 1 0 0");
  EXPECT_EQ(Hear(), "3");
  EXPECT_EQ(Hear(1000), Nada) << "another sound may follow soon";
  EXPECT_TRUE(HoldsTheDevice());
  EXPECT_EQ(Hear(), "idle");
  EXPECT_FALSE(HoldsTheDevice());
  EXPECT_EQ(Hear(100), Nada);
  OrderCard("4 1 0 0");
  EXPECT_EQ(Hear(), "4");
}

TEST_F(SoundProgram, AcceptsAPathOfMaximumLength) {
  Start();
  constexpr std::size_t Maximo = 4095;
  std::string ruta = carpeta_.Path().string() + "/";
  const std::string nombre = "Son_DaUnaCarta.wav";
  while (ruta.size() + nombre.size() + 2 <= Maximo) ruta += "./";
  Order("1 1 0 0 " + ruta + nombre);
  EXPECT_EQ(Hear(), "1");
  EXPECT_TRUE(std::filesystem::exists(carpeta_.Recording())) << "the sound was played";
}

TEST_F(SoundProgram, EndsWithTheGame) {
  Start();
  Order("1 1000 0 0 " + (carpeta_.Path() / "Son_aplauso.wav").string());
  HangUp();
  const int estado = WaitForItsEnd();
  EXPECT_TRUE(WIFEXITED(estado) && WEXITSTATUS(estado) == 0) << estado;
}

}  // namespace
}  // namespace tasca::test
