// The sound effects as recorded from the loudspeaker.
#include <gtest/gtest.h>

#include "cards/deck.h"
#include "cards/hand.h"
#include "match/start.h"
#include "sound/effects.h"
#include "tests/support/scripted_port.h"
#include "tests/support/tables.h"
#include "tests/ui_loudspeaker/listener.h"
#include "tests/ui_loudspeaker/recording.h"

namespace tasca::test {
namespace {

using Oidos = std::vector<std::string>;

// A port with a media player.
class SoundingPort : public ScriptedPort {
 public:
  void OpenSound(const Table& t, std::u16string_view archivo) override {
    Reproductor.Open(t.Carpeta, archivo, t.Mp1);
  }
  void StopSound(const Table& /*t*/) override { Reproductor.Stop(); }

  MediaPlayer Reproductor;
};

class Effects : public testing::Test {
 protected:
  Effects() { t_.Carpeta = carpeta_.Path(); }

  // Waits for the ends of this many sounds and returns the recording. No further sound may end.
  Oidos Hear(int sonidos) {
    int quedan = sonidos;
    const auto alTerminar = [this, &quedan] {
      Mp1_FinReproduccion(g_, 0);
      return --quedan == 0;
    };
    AttendEnds(puerto_.Reproductor, std::chrono::seconds{20}, alTerminar);
    EXPECT_EQ(quedan, 0) << "sounds that did not end";
    EXPECT_EQ(AttendEnds(puerto_.Reproductor, std::chrono::milliseconds{200}, [] { return true; }),
              0);
    WaitForSilence(carpeta_.Recording());
    return Described(Listen(carpeta_.Recording()));
  }

  SoundFolder carpeta_;
  Table t_ = MesaDePrueba();
  Rnd rnd_;
  SoundingPort puerto_;
  Game g_{t_, rnd_, puerto_};
};

TEST_F(Effects, AMatchStartsWithTheShuffleAndThenTheDeal) {
  std::filesystem::copy_file(std::filesystem::path{TASCA_SOURCE_DIR} / "data" / "Jugadores.dat",
                             carpeta_.Path() / "Jugadores.dat");
  carpeta_.Write("mus.ini", "35\r\n3\r\n3\r\nAna> Nombre\r\n");
  Form_Load(g_);
  EXPECT_EQ(Hear(2), (Oidos{"Son_BarajaCartas.mp3 0.0 0.0", "Son_ReparteCartas.mp3 0.0 0.0"}));
}

TEST_F(Effects, AHandStartsWithTheDealAlone) {
  EmpezarMano(g_);
  EXPECT_EQ(Hear(1), (Oidos{"Son_ReparteCartas.mp3 0.0 0.0"}));
}

TEST_F(Effects, ADiscardPassGoesRoundFromTheManoEachSeatAtItsSide) {
  SonidoDescartes(g_, {1, 2, 3, 4}, 3);
  EXPECT_EQ(Hear(4), (Oidos{"Son_DaUnaCarta.wav -7.0 -7.0", "Son_DaUnaCarta.wav -7.0 -7.0",
                            "Son_DaUnaCarta.wav -7.0 -7.0", "Son_DaUnaCarta.wav -5.0 -8.0",
                            "Son_DaUnaCarta.wav -5.0 -8.0", "Son_DaUnaCarta.wav -5.0 -8.0",
                            "Son_DaUnaCarta.wav -5.0 -8.0", "Son_DaUnaCarta.wav -3.2 -3.2",
                            "Son_DaUnaCarta.wav -8.0 -5.0", "Son_DaUnaCarta.wav -8.0 -5.0"}));
}

TEST_F(Effects, AManoWithoutChangesIsSilentAndTheOthersFollow) {
  SonidoDescartes(g_, {1, 0, 0, 2}, 2);
  EXPECT_EQ(Hear(3), (Oidos{"Son_DaUnaCarta.wav -5.0 -8.0", "Son_DaUnaCarta.wav -5.0 -8.0",
                            "Son_DaUnaCarta.wav -3.2 -3.2"}));
}

TEST_F(Effects, OnlyTheHumanChangesAtTheCentre) {
  SonidoDescartes(g_, {4, 0, 0, 0}, 1);
  EXPECT_EQ(Hear(1), Oidos(4, "Son_DaUnaCarta.wav -3.2 -3.2"));
}

TEST_F(Effects, AMatchWonIsApplaudedOnce) {
  t_.SonidoActual = SonidoReparto;
  SonidoAplauso(g_);
  EXPECT_EQ(Hear(1), (Oidos{"Son_aplauso.wav 0.0 0.0"}));
}

TEST_F(Effects, TheDealAfterADiscardPassIsAsLoudAsTheHumansCards) {
  SonidoDescartes(g_, {1, 0, 0, 0}, 1);
  AttendEnds(puerto_.Reproductor, std::chrono::seconds{20}, [this] {
    Mp1_FinReproduccion(g_, 0);
    return true;
  });
  EmpezarMano(g_);
  EXPECT_EQ(Hear(1), (Oidos{"Son_DaUnaCarta.wav -3.2 -3.2", "Son_ReparteCartas.mp3 -3.2 -3.2"}));
}

TEST_F(Effects, WithoutADeviceTheChainRunsToItsEnd) {
  TakeLoudspeakerAway();
  SonidoDescartes(g_, {1, 2, 3, 4}, 3);
  EXPECT_EQ(Hear(4), Oidos{});
  EXPECT_EQ(t_.SonidosDados, 5);
}

}  // namespace
}  // namespace tasca::test
