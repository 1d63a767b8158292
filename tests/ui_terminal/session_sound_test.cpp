// Sessions with sound.
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <functional>
#include <optional>
#include <sstream>
#include <streambuf>
#include <string>
#include <thread>

#include "tests/ui_loudspeaker/listener.h"
#include "tests/ui_loudspeaker/recording.h"
#include "tests/ui_loudspeaker/stand_in.h"
#include "tests/ui_terminal/sessions.h"
#include "ui/terminal/terminal.h"

namespace tasca::test {
namespace {

using Oidos = std::vector<std::string>;

// An unbuffered input stream: reads one character at a time from a descriptor.
class KeyboardInput : public std::streambuf {
 public:
  explicit KeyboardInput(int descriptor) : descriptor_{descriptor} {}

 protected:
  int_type underflow() override {
    if (::read(descriptor_, &letra_, 1) != 1) return traits_type::eof();
    setg(&letra_, &letra_, &letra_ + 1);
    return traits_type::to_int_type(letra_);
  }

 private:
  int descriptor_;
  char letra_ = 0;
};

class SessionWithSound : public testing::Test {
 protected:
  SessionWithSound() { LlenarCarpeta(carpeta_); }

  using Typist = std::function<void(const std::string& texto)>;
  // Plays a session. `jugador` runs in another thread and types with the function that it gets; the
  // input ends when it returns. Returns the output.
  std::string Play(const std::function<void(const Typist&)>& jugador) {
    std::array<int, 2> tubo{-1, -1};
    EXPECT_EQ(::pipe(tubo.data()), 0);
    std::jthread delante{[&] {
      jugador([&](const std::string& texto) {
        EXPECT_EQ(::write(tubo[1], texto.data(), texto.size()), ::ssize_t(texto.size()));
      });
      ::close(tubo[1]);
    }};
    KeyboardInput teclado{tubo[0]};
    std::istream in{&teclado};
    std::ostringstream out;
    EXPECT_EQ(RunTerminal({.Files = carpeta_.Path()},
                          {.In = in, .Out = out, .Err = out, .Keyboard = tubo[0]}),
              0);
    delante.join();
    ::close(tubo[0]);
    return out.str();
  }

  void Hear(const std::vector<std::string>& archivos) {
    EXPECT_TRUE(WaitForRecording(carpeta_.Recording(), archivos));
  }

  SoundFolder carpeta_;
};

TEST_F(SessionWithSound, PlaysTheShuffleAndTheDealWhileItWaitsForALine) {
  Play([this](const Typist& teclear) {
    teclear(AllDefaults);
    Hear({"Son_BarajaCartas.mp3", "Son_ReparteCartas.mp3"});
  });
  EXPECT_EQ(Described(Listen(carpeta_.Recording())),
            (Oidos{"Son_BarajaCartas.mp3 0.0 0.0", "Son_ReparteCartas.mp3 0.0 0.0"}));
}

TEST_F(SessionWithSound, TurnsTheSoundOffAndOn) {
  const std::string salida = Play([this](const Typist& teclear) {
    teclear(AllDefaults + "sonido\nq\nq\nsonido\nq\n");
    Hear({"Son_ReparteCartas.mp3"});
  });
  EXPECT_NE(salida.find("Sin sonido.\n"), std::string::npos);
  EXPECT_NE(salida.find("Con sonido.\n"), std::string::npos);
  const std::vector<Heard> oidos = Listen(carpeta_.Recording());
  ASSERT_EQ(oidos.size(), 1U) << "opening the device truncates the recording";
  EXPECT_EQ(oidos.front().Archivo, "Son_ReparteCartas.mp3");
}

// The stand-in never reports the end of a sound, so that only the end of the table stops one.
TEST(SessionWithStandIn, StopsTheSoundOfTheOldTable) {
  const TempFolder carpeta;
  LlenarCarpeta(carpeta, "1", "4", "4");
  StandInThatRecords(carpeta);
  std::string ordenes;
  const auto segundaMesa = [&] { return ShufflesIn(ordenes = RecordedOrders(carpeta)) == 2; };
  int inicios = 0;
  const Player jugador = [&](const std::string& pregunta) -> std::optional<std::string> {
    if (pregunta.starts_with("Su nombre: ")) ++inicios;
    if (inicios == 2 && pregunta == "Pulse enter para empezar") {
      EXPECT_TRUE(Eventually(segundaMesa)) << ordenes;
      return std::nullopt;
    }
    return pregunta.find("¿mus?") != std::string::npos ? "n" : "";
  };
  EXPECT_EQ(PlayHearing(carpeta, jugador).Status, 0);
  EXPECT_TRUE(StopsBeforeTheLastShuffle(ordenes)) << ordenes;
}

}  // namespace
}  // namespace tasca::test
