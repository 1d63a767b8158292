// The chronicle of a session: a whole match, the next one, and a match of another time.
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <vector>

#include "base/keys.h"
#include "base/text.h"
#include "match/session.h"
#include "tests/support/state_player.h"
#include "tests/support/tables.h"
#include "tests/support/temp_folder.h"

namespace tasca::test {
namespace {

// The whole lines of a text. The prompts are no whole lines, or stand before a line end.
std::vector<std::u16string> Lineas(std::u16string_view texto) {
  std::vector<std::u16string> lineas;
  for (std::size_t fin = texto.find_first_of(CrLf); fin != std::u16string_view::npos;
       fin = texto.find_first_of(CrLf)) {
    const std::u16string_view linea = texto.substr(0, fin);
    if (!linea.empty() && !linea.starts_with(u"Pulse enter para")) lineas.emplace_back(linea);
    texto.remove_prefix(fin + 1);
  }
  return lineas;
}

// A player who writes down what stands on the table at each question, and the messages.
class Testigo : public StatePlayer {
 public:
  std::vector<std::u16string> Visto;

  void Mirar(const Table& t) {
    for (const std::u16string& linea : Lineas(t.Text2)) Visto.push_back(linea);
  }
  void MsgBox(const Table& t, std::u16string_view texto) override {
    Mirar(t);
    for (const std::u16string& linea : Lineas(Join(texto, CrLf))) Visto.push_back(linea);
  }
  bool YesNoBox(const Table& t, Pregunta sobre, const YesNoQuestion& pregunta) override {
    Mirar(t);
    return StatePlayer::YesNoBox(t, sobre, pregunta);
  }
  std::u16string InputBox(const Table& t, Pregunta sobre, const InputQuestion& pregunta) override {
    Mirar(t);
    return StatePlayer::InputBox(t, sobre, pregunta);
  }
  void ShowDialog(const Table& t, Dialog& dialogo) override {
    Mirar(t);
    StatePlayer::ShowDialog(t, dialogo);
  }
};

struct CronicaDeSesion : testing::Test {
  CronicaDeSesion() {
    std::filesystem::copy(TASCA_SOURCE_DIR "/tests/traces/folder/Jugadores.dat",
                          Carpeta.Path() / "Jugadores.dat");
    Carpeta.Write("mus.ini", "20\r\n1\r\n1\r\nAna>\r\n");
    Jugador.Hora = {.Hora = 9, .Minuto = 10, .Segundo = 11};
    Sesion = NuevaSesion();
  }
  std::unique_ptr<Session> NuevaSesion() {
    return std::make_unique<Session>(Carpeta.Path(), Jugador, Estado.Path());
  }
  // Ends the program, starts it again, and goes on with the match.
  void EmpezarDeNuevo() {
    Sesion.reset();
    Sesion = NuevaSesion();
    EXPECT_EQ(Sesion->Relato().Texto(), u"");
    EXPECT_EQ(Sesion->Retomar(), Situacion::EnLaMesa);
  }
  void Sentarse() const {
    Sesion->AbrirInicio();
    ASSERT_EQ(Sesion->Aceptar(), Situacion::EnLaMesa);
  }
  Situacion Pulsar(int tecla = TeclaEnter) {
    Jugador.NewStep();
    Integer codigo = tecla;
    return Sesion->Tecla(codigo, 0);
  }
  // Plays a match to the wish for other companions. Returns the number of hands.
  int JugarLaPartida() {
    Sentarse();
    Jugador.OtraPartida = true;
    Jugador.CambiarJugadores = true;
    int manos = 1;
    Situacion situacion = Situacion::EnLaMesa;
    for (int pasos = 0; situacion == Situacion::EnLaMesa && pasos < 10'000; ++pasos) {
      Jugador.Mirar(Sesion->Mesa());
      if (Sesion->Mesa().Fase == Fase::EmpezarMano) ++manos;
      situacion = Pulsar();
    }
    EXPECT_EQ(situacion, Situacion::OtrosJugadores);
    return manos;
  }
  bool Cuenta(std::u16string_view que) const { return Contains(Sesion->Relato().Texto(), que); }
  int Veces(std::u16string_view que) const {
    const std::u16string texto = Sesion->Relato().Texto();
    int veces = 0;
    for (std::size_t i = texto.find(que); i != std::u16string::npos; i = texto.find(que, i + 1))
      ++veces;
    return veces;
  }

  TempFolder Carpeta;
  TempFolder Estado;
  Testigo Jugador;
  std::unique_ptr<Session> Sesion;
};

TEST_F(CronicaDeSesion, HasEveryLineThatStoodInTheTranscript) {
  JugarLaPartida();
  ASSERT_GT(Jugador.Visto.size(), 50U);
  for (const std::u16string& linea : Jugador.Visto) EXPECT_TRUE(Cuenta(linea)) << Utf8(linea);
  EXPECT_EQ(Veces(u"Pulse enter"), 0);
}

TEST_F(CronicaDeSesion, HasAHeadingAndAScoreForEachHand) {
  const int manos = JugarLaPartida();
  EXPECT_GT(manos, 1);
  EXPECT_EQ(Veces(u"— Mano "), manos);
  EXPECT_EQ(Veces(u"Tanteo: "), manos);
  EXPECT_EQ(Veces(u"Partida de"), 1);
}

TEST_F(CronicaDeSesion, StaysUntilTheNextMatch) {
  JugarLaPartida();
  const std::u16string texto = Sesion->Relato().Texto();
  EXPECT_EQ(Sesion->AbrirInicio(), Situacion::EnInicio);
  EXPECT_EQ(Sesion->Relato().Texto(), texto);
}

TEST_F(CronicaDeSesion, BelongsToOneMatch) {
  Sentarse();
  Pulsar(TeclaQ);
  EXPECT_TRUE(Cuenta(u"La mano se abandona sin contarla."));
  EXPECT_TRUE(Cuenta(u"— Mano 2 —"));
  Sentarse();
  EXPECT_TRUE(Cuenta(u"— Mano 1 —"));
  EXPECT_FALSE(Cuenta(u"— Mano 2 —"));
}

TEST_F(CronicaDeSesion, GoesOnWithTheMatch) {
  JugarLaPartida();
  const std::u16string seguida = Sesion->Relato().Texto();
  Sesion.reset();
  Sesion = NuevaSesion();
  Sentarse();
  Situacion situacion = Situacion::EnLaMesa;
  for (int pasos = 0; situacion == Situacion::EnLaMesa && pasos < 10'000; ++pasos) {
    const std::u16string antes = Sesion->Relato().Texto();
    EmpezarDeNuevo();
    EXPECT_EQ(Utf8(Sesion->Relato().Texto()), Utf8(antes)) << pasos;
    situacion = Pulsar();
  }
  EXPECT_EQ(Utf8(Sesion->Relato().Texto()), Utf8(seguida));
  EXPECT_FALSE(std::filesystem::exists(Estado.Path() / "cronica"));
}

TEST_F(CronicaDeSesion, TellsWhereItBeginsIfItIsLost) {
  Sentarse();
  Pulsar();
  Sesion.reset();
  ASSERT_TRUE(std::filesystem::remove(Estado.Path() / "cronica"));
  Sesion = NuevaSesion();
  ASSERT_EQ(Sesion->Retomar(), Situacion::EnLaMesa);
  EXPECT_TRUE(Sesion->Relato().Texto().starts_with(u"Se sigue con una partida de otra vez. "));
  for (const std::u16string& linea : Lineas(Sesion->Mesa().Text2)) {
    EXPECT_TRUE(Cuenta(linea)) << Utf8(linea);
  }
  EXPECT_TRUE(Cuenta(u"— Mano 1 —"));
}

TEST_F(CronicaDeSesion, HasAFileOfItsOwnForAnotherMatch) {
  Sentarse();
  Pulsar(TeclaQ);
  Sentarse();
  EmpezarDeNuevo();
  EXPECT_TRUE(Cuenta(u"— Mano 1 —"));
  EXPECT_FALSE(Cuenta(u"— Mano 2 —"));
}

}  // namespace
}  // namespace tasca::test
