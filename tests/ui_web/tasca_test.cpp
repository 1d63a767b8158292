// The game behind a page: what it accepts, and what it keeps.
#include "ui/web/tasca.h"

#include <gtest/gtest.h>

#include <memory>
#include <nlohmann/json.hpp>

#include "base/keys.h"
#include "sound/effects.h"
#include "tests/support/temp_folder.h"
#include "tests/traces/read_file.h"

namespace tasca::test {
namespace {

using Objeto = nlohmann::json;

constexpr TimeOfDay LasNueve{.Hora = 21, .Minuto = 4, .Segundo = 37};

// A page on a folder with the shipped characters.
class Pagina : public testing::Test {
 protected:
  Pagina() {
    carpeta_.Write("Jugadores.dat", ReadFile(TASCA_SOURCE_DIR "/data/Jugadores.dat"));
    carpeta_.Write("mus.ini", "35\r\n3\r\n3\r\nLola> Nombre del último jugador\r\n");
    Abrir();
  }

  Objeto Abrir(std::string_view guardada = {}) {
    juego_ = std::make_unique<Tasca>(carpeta_.Path());
    return vista_ = Objeto::parse(juego_->Abrir(guardada, LasNueve));
  }
  Objeto Aceptar() { return vista_ = Objeto::parse(juego_->Aceptar(u"Ana", LasNueve)); }
  Objeto Tecla(int codigo) { return vista_ = Objeto::parse(juego_->Tecla(codigo, 0, LasNueve)); }
  Objeto Responde(const Entrada& respuesta) {
    return vista_ = Objeto::parse(juego_->Responde(respuesta));
  }
  Objeto FinDeSonido() { return vista_ = Objeto::parse(juego_->FinDeSonido(0, LasNueve)); }

  // Presses Enter until a question is open.
  void HastaUnaPregunta() {
    for (int veces = 0; vista_["pregunta"].is_null(); ++veces) {
      ASSERT_LT(veces, 10);
      Tecla(TeclaEnter);
    }
  }

  TempFolder carpeta_;
  std::unique_ptr<Tasca> juego_;
  Objeto vista_;
};

TEST_F(Pagina, OpensTheStartUpDialog) {
  EXPECT_EQ(vista_["situacion"], "inicio");
  EXPECT_EQ(vista_["textos"], Objeto::parse(R"(["", "", ""])"));
  EXPECT_EQ(vista_["pregunta"], nullptr);
  EXPECT_EQ(vista_["final"], nullptr);
  EXPECT_EQ(vista_["asunto"], "al-empezar");
  const Objeto& inicio = vista_["inicio"];
  EXPECT_EQ(inicio["nombre"]["valor"], "Lola");
  EXPECT_EQ(inicio["lista"][0], Objeto::parse(R"({"texto": "Aleatorio", "historia": ""})"));
  EXPECT_EQ(inicio["lista"][1]["texto"], "La boticaria");
  EXPECT_FALSE(inicio["lista"][1]["historia"].get<std::string>().empty());
  EXPECT_EQ(inicio["combos"][2], Objeto::parse(R"({"rotulo": "Contrario 2:", "elegido": 0})"));
  EXPECT_EQ(inicio["casillas"][1]["marcada"], true);
  EXPECT_EQ(inicio["estilo"]["elegido"], 0);
  EXPECT_EQ(inicio["botones"]["aceptar"]["activo"], true);
  EXPECT_EQ(juego_->Guardada(), "");
}

TEST_F(Pagina, ShowsTheChoicesOfTheDialog) {
  vista_ = Objeto::parse(juego_->Elige(1, 1));
  EXPECT_EQ(vista_["inicio"]["combos"][1]["elegido"], 1);
  EXPECT_EQ(vista_["inicio"]["historia"], vista_["inicio"]["lista"][1]["historia"]);
  vista_ = Objeto::parse(juego_->Marca(0, false));
  EXPECT_EQ(vista_["inicio"]["casillas"][0]["marcada"], false);
  EXPECT_EQ(vista_["inicio"]["ejemplo"], "jugador 3: Sí, como bueyes");
  vista_ = Objeto::parse(juego_->Estilo(1));
  EXPECT_EQ(vista_["inicio"]["ejemplo"], "El jugador 3 dice: Sí, como bueyes");
}

TEST_F(Pagina, RefusesTheSameCharacterTwiceByAMessageBox) {
  juego_->Elige(0, 1);
  juego_->Elige(1, 1);
  Aceptar();
  EXPECT_EQ(vista_["situacion"], "inicio");
  EXPECT_EQ(vista_["pregunta"]["clase"], "aviso");
  Responde({});
  EXPECT_EQ(vista_["pregunta"], nullptr);
  EXPECT_EQ(vista_["situacion"], "inicio");
  EXPECT_EQ(vista_["inicio"]["combos"][1]["elegido"], 1);
}

TEST_F(Pagina, StartsTheMatchAndSavesTheName) {
  Aceptar();
  EXPECT_EQ(vista_["situacion"], "mesa");
  EXPECT_EQ(vista_["inicio"], nullptr);
  EXPECT_EQ(vista_["sucesos"][0]["archivo"], "Son_BarajaCartas.mp3");
  EXPECT_EQ(vista_["archivos"], Objeto::parse(R"(["mus.ini"])"));
  EXPECT_EQ(carpeta_.Read("mus.ini").substr(0, 18), "35\r\n3\r\n3\r\nAna> Nom");
  EXPECT_EQ(vista_["dichos"].back(), "Pulse enter para empezar");
  EXPECT_NE(juego_->Guardada(), "");
}

TEST_F(Pagina, SaysNoLineTwice) {
  Aceptar();
  const std::size_t lineas = vista_["dichos"].size();
  EXPECT_GT(lineas, 0);
  EXPECT_EQ(FinDeSonido()["dichos"], Objeto::array());
  EXPECT_EQ(juego_->Ultimos().size(), lineas);
}

TEST_F(Pagina, DealsAfterTheShuffleHasEnded) {
  Aceptar();
  FinDeSonido();
  ASSERT_EQ(vista_["sucesos"].size(), 1);
  EXPECT_EQ(vista_["sucesos"][0]["archivo"], "Son_ReparteCartas.mp3");
}

TEST_F(Pagina, HearsTheEndOfASoundWhileAQuestionIsOpen) {
  Aceptar();
  HastaUnaPregunta();
  const Objeto pregunta = vista_["pregunta"];
  FinDeSonido();
  EXPECT_EQ(vista_["pregunta"], pregunta);
  ASSERT_EQ(vista_["sucesos"].size(), 1);
  EXPECT_EQ(vista_["sucesos"][0]["archivo"], "Son_ReparteCartas.mp3");
  FinDeSonido();
  EXPECT_EQ(vista_["sucesos"], Objeto::array());
  EXPECT_EQ(juego_->Sesion().Mesa().SonidoActual, SonidoReparto);
}

TEST_F(Pagina, ShowsTheTableOfTheOpenQuestion) {
  Aceptar();
  EXPECT_EQ(juego_->Vista().Toca, Turno::Enter);
  HastaUnaPregunta();
  EXPECT_EQ(vista_["pregunta"]["sobre"], "Mus");
  EXPECT_EQ(vista_["asunto"], "el-mus");
  EXPECT_EQ(juego_->Vista().Toca, Turno::Jugador);
}

TEST_F(Pagina, RefusesWhatIsNotPossibleNow) {
  EXPECT_THROW(juego_->Tecla(TeclaEnter, 0, LasNueve), Imposible);
  EXPECT_THROW(juego_->Responde({}), Imposible);
  EXPECT_THROW(juego_->Elige(3, 0), Imposible);
  EXPECT_THROW(juego_->Elige(0, 1000), Imposible);
  EXPECT_THROW(juego_->Elige(0, -1), Imposible);
  EXPECT_THROW(juego_->Marca(2, true), Imposible);
  EXPECT_THROW(juego_->Estilo(2), Imposible);
  EXPECT_THROW(juego_->Aceptar(u"Ana\nEva", LasNueve), Imposible);
  Aceptar();
  EXPECT_THROW(juego_->Aceptar(u"Ana", LasNueve), Imposible);
  HastaUnaPregunta();
  const std::string antes = juego_->Guardada();
  EXPECT_THROW(juego_->Tecla(TeclaEnter, 0, LasNueve), Imposible);
  EXPECT_THROW(juego_->Responde({.Clase = ClaseEntrada::Boton}), Imposible);
  EXPECT_EQ(juego_->Guardada(), antes);
}

TEST_F(Pagina, RefusesEverythingBeforeItIsOpen) {
  Tasca sinAbrir{carpeta_.Path()};
  EXPECT_THROW(sinAbrir.Elige(0, 0), Imposible);
  EXPECT_THROW(sinAbrir.Tecla(TeclaEnter, 0, LasNueve), Imposible);
  EXPECT_THROW(sinAbrir.FinDeSonido(0, LasNueve), Imposible);
  EXPECT_THROW(sinAbrir.Salir(), Imposible);
  EXPECT_THROW(sinAbrir.Responde({}), Imposible);
  EXPECT_EQ(sinAbrir.Guardada(), "");
}

TEST_F(Pagina, LeavesWithAnOpenQuestionAndKeepsTheMatch) {
  Aceptar();
  HastaUnaPregunta();
  const std::string guardada = juego_->Guardada();
  vista_ = Objeto::parse(juego_->Salir());
  EXPECT_EQ(vista_["situacion"], "fin");
  EXPECT_EQ(vista_["pregunta"], nullptr);
  EXPECT_EQ(vista_["final"], Objeto::parse(R"({"estado": 0, "mensaje": ""})"));
  EXPECT_EQ(juego_->Guardada(), guardada);
  EXPECT_THROW(juego_->Responde({.Clase = ClaseEntrada::Si}), Imposible);
  EXPECT_EQ(FinDeSonido()["situacion"], "fin");
  EXPECT_EQ(juego_->Guardada(), guardada);
}

TEST_F(Pagina, StartsAnewWithOneLineAboutBytesThatAreNoMatch) {
  Aceptar();
  std::string danada = juego_->Guardada();
  danada[danada.size() / 2] = static_cast<char>(danada[danada.size() / 2] ^ 1);
  for (const std::string& bytes : {danada, std::string{"otra cosa"}, std::string{"\0", 1}}) {
    Abrir(bytes);
    EXPECT_EQ(vista_["situacion"], "inicio");
    EXPECT_EQ(vista_["aviso"],
              "La partida que se guardó está dañada o es de otra versión del juego, y no se puede "
              "seguir.");
    EXPECT_EQ(juego_->Guardada(), "");
    EXPECT_EQ(Aceptar()["aviso"], "");
  }
}

TEST_F(Pagina, StartsAnewIfTheMatchInTheBytesIsImpossible) {
  Abrir(EscribirPartidaWeb({.Partida = "no es una partida"}));
  EXPECT_EQ(vista_["situacion"], "inicio");
  EXPECT_NE(vista_["aviso"], "");
}

TEST_F(Pagina, GoesOnWithTheChronicle) {
  Aceptar();
  HastaUnaPregunta();
  const std::u16string relato = juego_->Sesion().Relato().Texto();
  Abrir(juego_->Guardada());
  EXPECT_EQ(juego_->Sesion().Relato().Texto(), relato);
  EXPECT_NE(relato, u"");
}

TEST_F(Pagina, TellsTheErrorOfAMissingCharacterFileOnce) {
  std::filesystem::remove(carpeta_.Path() / "Jugadores.dat");
  Abrir();
  EXPECT_EQ(vista_["pregunta"]["clase"], "aviso");
  Responde({});
  EXPECT_EQ(vista_["situacion"], "fin");
  EXPECT_EQ(vista_["final"], Objeto::parse(R"({"estado": 1, "mensaje": ""})"));
}

TEST_F(Pagina, ObjectsToNamesThatTheFileCannotHold) {
  EXPECT_EQ(juego_->ReparoAlNombre(u"Ana"), u"");
  EXPECT_EQ(juego_->ReparoAlNombre(std::u16string(101, u'a')), NombreDemasiadoLargo);
  EXPECT_NE(juego_->ReparoAlNombre(u"Ana>"), u"");
  EXPECT_NE(juego_->ReparoAlNombre(u"Ana\u4E00"), u"");
}

TEST_F(Pagina, AcceptsTheStoredNameWhateverItIs) {
  const std::string largo(120, 'a');
  carpeta_.Write("mus.ini", "35\r\n3\r\n3\r\n" + largo + "> Nombre\r\n");
  Abrir();
  EXPECT_EQ(vista_["inicio"]["nombre"]["valor"], largo);
  EXPECT_EQ(juego_->ReparoAlNombre(std::u16string(120, u'a')), u"");
}

}  // namespace
}  // namespace tasca::test
