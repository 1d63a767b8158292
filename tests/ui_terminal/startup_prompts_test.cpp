// The start-up questions.
#include "ui/terminal/startup_prompts.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/plain_user.h"
#include "tests/support/tables.h"
#include "tests/ui_terminal/sessions.h"
#include "ui/manual/brief.h"
#include "ui/terminal/terminal_port.h"

namespace tasca::test {
namespace {

TimeOfDay Midnight() { return {}; }

// A console with a session before its start-up questions.
struct StartupConsole : FakeConsole {
  explicit StartupConsole(const std::string& entrada) : FakeConsole{entrada} {
    LlenarCarpeta(Carpeta);
  }

  // Asks all questions and returns the output.
  std::string Ask() {
    if (Sesion.AbrirInicio() == Situacion::EnInicio) AskStartup(Sesion, Consola);
    return Take();
  }

  TempFolder Carpeta;
  Screen Pantalla{Consola};
  TerminalPort Puerto{Consola, Pantalla, Midnight};
  Session Sesion{Carpeta.Path(), Puerto};
  const Table& t = Sesion.Mesa();
};

const std::string Bienvenida =
    "Bienvenido a la tasca\n"
    "del tío Zarandel\n"
    "Elija a sus compañeros de mesa \n"
    "y la forma de la partida.\n"
    "Que pase ustéd un buen rato\n"
    "Enter deja lo que está entre corchetes; q sale del juego; ? da ayuda.\n";
const std::string Lista = "0 Aleatorio\n1 Berta\n2 el Cojo\n3 Dora\n4 el Tuerto\n";

TEST(AskStartup, TakesAllTheDefaults) {
  StartupConsole a{"\n\n\n\n\n\n\n"};
  EXPECT_EQ(a.Ask(), Bienvenida + "Su nombre: [Ana] \n" + Lista +
                         "Compañero: [0 Aleatorio] \n"
                         "Contrario 1: [0 Aleatorio] \n"
                         "Contrario 2: [0 Aleatorio] \n"
                         "Usar los nombres de los jugadores [S/n] \n"
                         "Usar las expresiones de los jugadores [S/n] \n"
                         "Narración: 0 Estilo directo, 1 Estilo indirecto [0] \n"
                         "Así se contará: La boticaria: Sí, como bueyes\n");
  EXPECT_EQ(a.t.NombreJugador, u"Ana");
  EXPECT_TRUE(a.t.UsarNombres && a.t.UsarExpresiones && a.t.EstiloDirecto);
}

TEST(AskStartup, SeatsOfferedCharactersForAleatorio) {
  StartupConsole a{"\n\n\n\n\n\n\n"};
  a.Ask();
  for (const Seat asiento : {2, 3, 4}) {
    const int personaje = a.t.PersonajeAsiento[asiento - 1];
    EXPECT_TRUE(personaje >= 3 && personaje <= 6) << asiento << ": " << personaje;
  }
}

TEST(AskStartup, TakesOtherAnswersAndPrintsTheStories) {
  StartupConsole a{"Íñigo\n3\nCOJO\nberta\nn\ns\nindirecto\n"};
  EXPECT_EQ(a.Ask(), Bienvenida + "Su nombre: [Ana] \n" + Lista +
                         "Compañero: [0 Aleatorio] \n"
                         "Prudente como una gata.\n"
                         "Contrario 1: [0 Aleatorio] \n"
                         "Perdió la pierna en una apuesta.\n"
                         "Contrario 2: [0 Aleatorio] \n"
                         "Guisa como nadie.\n"
                         "Usar los nombres de los jugadores [S/n] \n"
                         "Usar las expresiones de los jugadores [S/n] \n"
                         "Narración: 0 Estilo directo, 1 Estilo indirecto [0] \n"
                         "Así se contará: El jugador 3 dice: Sí, como bueyes\n");
  EXPECT_EQ(a.t.NombreJugador, u"Íñigo");
  EXPECT_EQ(a.t.PersonajeAsiento[2], 5);
  EXPECT_EQ(a.t.PersonajeAsiento[1], 4);
  EXPECT_EQ(a.t.PersonajeAsiento[3], 3);
  EXPECT_FALSE(a.t.UsarNombres);
  EXPECT_TRUE(a.t.UsarExpresiones);
  EXPECT_FALSE(a.t.EstiloDirecto);
  EXPECT_EQ(a.Carpeta.Read("mus.ini"),
            "35\r\n3\r\n3\r\n\xCD\xF1igo> Nombre del \xFAltimo jugador\r\n"
            "Ana> Nombre del \xFAltimo jugador\r\n");
}

TEST(AskStartup, ReportsOnceThatTheNameCannotBeSaved) {
  StartupConsole a{AllDefaults + AllDefaults};
  const PlainUser usuario{a.Carpeta};
  std::filesystem::permissions(a.Carpeta.Path() / "mus.ini", std::filesystem::perms{0444});
  EXPECT_TRUE(
      a.Ask().ends_with("Así se contará: La boticaria: Sí, como bueyes\n"
                        "[No se ha podido guardar su nombre en mus.ini: no hay permiso para "
                        "escribir. La partida se juega igual.]\n"));
  EXPECT_EQ(a.t.NombreJugador, u"Ana");
  EXPECT_TRUE(a.Ask().ends_with("Así se contará: La boticaria: Sí, como bueyes\n"));
}

TEST(AskStartup, PreviewsTheLineWithoutExpressions) {
  StartupConsole a{"\n\n\n\nn\nn\n0\n"};
  EXPECT_TRUE(a.Ask().ends_with("Así se contará: jugador 3: Sí tengo pares\n"));
  EXPECT_FALSE(a.t.UsarExpresiones);
}

TEST(AskStartup, AsksAgainIfAPartnerIsAlsoAnOpponent) {
  StartupConsole a{
      "Eva\n1\n1\n\n\nn\ni\n"
      "\n\n2\n\n\n\n\n"};
  EXPECT_TRUE(
      a.Ask().ends_with("Así se contará: La boticaria dice: Sí tengo pares\n"
                        "[Si quiere que Berta sea su pareja de juego, no puede ser también su "
                        "oponente. ¿Lógico no?]\n"
                        "Su nombre: [Eva] \n" +
                        Lista +
                        "Compañero: [1 Berta] \n"
                        "Contrario 1: [1 Berta] \n"
                        "Perdió la pierna en una apuesta.\n"
                        "Contrario 2: [0 Aleatorio] \n"
                        "Usar los nombres de los jugadores [S/n] \n"
                        "Usar las expresiones de los jugadores [s/N] \n"
                        "Narración: 0 Estilo directo, 1 Estilo indirecto [1] \n"
                        "Así se contará: La boticaria dice: Sí tengo pares\n"));
  EXPECT_EQ(a.t.NombreJugador, u"Eva");
  EXPECT_EQ(a.t.PersonajeAsiento[2], 3);
  EXPECT_EQ(a.t.PersonajeAsiento[1], 4);
  EXPECT_FALSE(a.t.EstiloDirecto);
}

TEST(AskStartup, AsksAgainIfBothOpponentsAreTheSame) {
  StartupConsole a{
      "\n\n3\n3\n\n\n\n"
      "\n\n\n0\n\n\n\n"};
  const std::string texto = a.Ask();
  EXPECT_NE(texto.find("[Lo siento, pero Dora no tiene hermanos gemelos que puedan ser su pareja. "
                       "Elija otro compañero.]\nSu nombre: [Ana] \n"),
            std::string::npos);
  EXPECT_NE(texto.find("Contrario 2: [3 Dora] \nUsar los nombres"), std::string::npos)
      << "Aleatorio has no story, and Dora's is not repeated";
  EXPECT_EQ(a.t.PersonajeAsiento[1], 5);
}

TEST(AskStartup, ExplainsInvalidAnswers) {
  StartupConsole a{"\n5\nZutano\nel\n4\n\n\nquizá\n\n\n2\n\n"};
  const std::string texto = a.Ask();
  const std::string reparo =
      "Eso no se ofrece. Escriba uno de los números o el comienzo de uno de los nombres.\n";
  EXPECT_NE(
      texto.find("Compañero: [0 Aleatorio] \n" + reparo + "Compañero: [0 Aleatorio] \n" + reparo +
                 "Compañero: [0 Aleatorio] \n"
                 "Puede ser el Cojo o el Tuerto. Escriba algo más, o el número.\n"
                 "Compañero: [0 Aleatorio] \nLo ve todo.\n"),
      std::string::npos);
  EXPECT_NE(texto.find("jugadores [S/n] \nConteste \"s\" (sí) o \"n\" (no).\n"
                       "Usar los nombres de los jugadores [S/n] \n"),
            std::string::npos);
  EXPECT_NE(texto.find("Estilo indirecto [0] \n" + reparo), std::string::npos);
  EXPECT_EQ(a.t.PersonajeAsiento[2], 6);
}

TEST(AskStartup, PrintsAllStoriesOnDemand) {
  StartupConsole a{"\n?\n\n\n\n\n\n\n"};
  EXPECT_NE(a.Ask().find("Compañero: [0 Aleatorio] \n"
                         "0 Aleatorio\n"
                         "1 Berta: Guisa como nadie.\n"
                         "2 el Cojo: Perdió la pierna en una apuesta.\n"
                         "3 Dora: Prudente como una gata.\n"
                         "4 el Tuerto: Lo ve todo.\n" +
                         Utf8(BriefOf("al-empezar")) +
                         "\n"
                         "Los compañeros se eligen por su número o por su nombre.\n"
                         "Enter deja lo que está entre corchetes; q sale del juego.\n"
                         "Compañero: [0 Aleatorio] \n"),
            std::string::npos);
}

TEST(AskStartup, RefusesANameOfMoreThanAHundredCharacters) {
  const std::string cien = "Ñ" + std::string(99, 'x');
  StartupConsole a{cien + "y\n" + std::string(3'000'000, 'x') + "\n" + cien + "\n\n\n\n\n\n\n"};
  const std::string reparo = "El nombre puede tener hasta 100 caracteres.\n";
  EXPECT_TRUE(a.Ask().starts_with(Bienvenida + "Su nombre: [Ana] \n" + reparo +
                                  "Su nombre: [Ana] \n" + reparo + "Su nombre: [Ana] \n" + Lista));
  EXPECT_EQ(Utf8(a.t.NombreJugador), cien);
}

// The message about this name. The next name, Eva, is accepted.
std::string AnswerToTheName(const std::string& nombre) {
  StartupConsole a{nombre + "\nEva\n\n\n\n\n\n\n"};
  std::string texto = a.Ask();
  const std::string pregunta = "Su nombre: [Ana] \n";
  EXPECT_EQ(Utf8(a.t.NombreJugador), "Eva") << nombre;
  EXPECT_TRUE(texto.starts_with(Bienvenida + pregunta)) << texto;
  texto.erase(0, Bienvenida.size() + pregunta.size());
  return texto.substr(0, texto.find(pregunta + Lista));
}

TEST(AskStartup, RefusesANameThatIsNotWrittenInUtf8) {
  const std::string reparo =
      "Alguna letra no ha llegado bien: la terminal debe escribir en UTF-8.\n";
  EXPECT_EQ(AnswerToTheName("Jos\xE9"), reparo);
  EXPECT_EQ(AnswerToTheName("Mu\xF1oz"), reparo);
  EXPECT_EQ(AnswerToTheName("Jos\xC3"), reparo);
}

TEST(AskStartup, RefusesANameThatTheSettingsCannotHold) {
  EXPECT_EQ(AnswerToTheName("Иван"), "El archivo no tiene sitio para ese carácter.\n");
  EXPECT_EQ(AnswerToTheName("Ana \xF0\x9F\x98\x80"),
            "El archivo no tiene sitio para ese carácter.\n");
  EXPECT_EQ(AnswerToTheName("Ana>"),
            "El signo > no puede guardarse: separa las partes del archivo.\n");
  EXPECT_EQ(AnswerToTheName("A\tna"), "Un texto no lleva tabuladores ni caracteres de control.\n");
}

TEST(AskStartup, AcceptsANameWithCharactersOfWindows1252) {
  StartupConsole a{"José Muñoz-Œuvré €\n\n\n\n\n\n\n"};
  a.Ask();
  EXPECT_EQ(Utf8(a.t.NombreJugador), "José Muñoz-Œuvré €");
  EXPECT_TRUE(a.Carpeta.Read("mus.ini").find("\r\nJos\xE9 Mu\xF1oz-\x8Cuvr\xE9 \x80>") !=
              std::string::npos);
}

TEST(AskStartup, KeepsANameFromTheSettingsThatCannotBeTyped) {
  StartupConsole a{"\n\n\n\n\n\n\n"};
  a.Carpeta.Write("mus.ini", "35\r\n3\r\n3\r\nA\x81na> Nombre\r\n");
  EXPECT_TRUE(a.Ask().starts_with(Bienvenida + "Su nombre: [A\uFFFDna] \n" + Lista));
  EXPECT_EQ(a.t.NombreJugador, u"A\u0081na");
}

TEST(AskStartup, KeepsALongerNameFromTheSettings) {
  const std::string largo(150, 'x');
  StartupConsole a{"\n\n\n\n\n\n\n"};
  a.Carpeta.Write("mus.ini", "35\r\n3\r\n3\r\n" + largo + "> Nombre\r\n");
  EXPECT_TRUE(a.Ask().starts_with(Bienvenida + "Su nombre: [" + largo + "] \n" + Lista));
  EXPECT_EQ(Utf8(a.t.NombreJugador), largo);
}

bool Leaves(StartupConsole& a) {
  a.Ask();
  return a.Sesion.HaAcabado() && a.Sesion.Final().Estado == 0;
}

// Leaves the program after this many defaults. The settings must be unchanged.
void ExpectToLeave(std::size_t antes, const std::string& orden) {
  StartupConsole a{std::string(antes, '\n') + orden};
  EXPECT_TRUE(Leaves(a)) << orden << antes;
  EXPECT_EQ(a.Carpeta.Read("mus.ini"), "35\r\n3\r\n3\r\nAna> Nombre del \xFAltimo jugador\r\n");
}

TEST(AskStartup, LetsThePlayerLeaveAtEveryPrompt) {
  for (const std::string orden : {"q\n", "Q\n", "salir\n", ""}) {
    for (std::size_t antes = 0; antes < 7; ++antes) ExpectToLeave(antes, orden);
  }
}

TEST(AskStartup, LeavesAtOnceAndReadsNothingMore) {
  for (const std::string orden : {"q", "salir"}) {
    StartupConsole a{orden + std::string(20, '\n')};
    EXPECT_TRUE(Leaves(a)) << orden;
  }
}

TEST(AskStartup, ReportsAMissingCharacterFile) {
  StartupConsole a{"\n"};
  std::filesystem::remove(a.Carpeta.Path() / "Jugadores.dat");
  EXPECT_EQ(a.Ask(),
            "[No se encuentra el archivo con los datos de los personajes. El programa va a "
            "terminar su ejecución.]\n");
  ASSERT_TRUE(a.Sesion.HaAcabado());
  EXPECT_EQ(a.Sesion.Final().Estado, 1);
}

}  // namespace
}  // namespace tasca::test
