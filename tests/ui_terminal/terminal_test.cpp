// Whole sessions at the terminal.
#include "ui/terminal/terminal.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/support/tables.h"
#include "tests/support/temp_folder.h"
#include "tests/ui_terminal/sessions.h"
#include "ui/manual/brief.h"

namespace tasca::test {
namespace {

int Count(const std::string& texto, const std::string& que) {
  int veces = 0;
  for (std::size_t i = texto.find(que); i != std::string::npos; i = texto.find(que, i + 1)) ++veces;
  return veces;
}

bool Contains(const std::string& texto, const std::string& que) {
  return texto.find(que) != std::string::npos;
}

// The output of a session after the start-up questions.
std::string FromTheTableOn(const SessionResult& sesion) {
  return sesion.Out.substr(sesion.Out.find("Partida de\n"));
}

struct Session : testing::Test {
  TempFolder Carpeta;
};

TEST_F(Session, StartsAMatchAndEndsWithTheInput) {
  LlenarCarpeta(Carpeta);
  const SessionResult sesion = PlayLines(Carpeta, "\n3\n2\n1\n\n\n\n");
  EXPECT_EQ(sesion.Status, 0);
  EXPECT_EQ(sesion.Err, "");
  const std::string mesa = FromTheTableOn(sesion);
  EXPECT_TRUE(
      mesa.starts_with("Partida de\nAna y Dora\n contra \nel Cojo y Berta\n\n"
                       "Partida al mejor de 3 vacas, cada una  al mejor de 3 juegos de35 piedras.\n"
                       "Sus cartas son \n"))
      << mesa;
  EXPECT_TRUE(mesa.ends_with("\nPulse enter para empezar\n")) << mesa;
  EXPECT_EQ(Count(mesa, "\n"), 9) << "the hand is printed once, in the transcript";
}

TEST_F(Session, ReportsThatAPipeHasNoSound) {
  LlenarCarpeta(Carpeta);
  const SessionResult sesion = PlayLines(Carpeta, AllDefaults + "Sonido\n");
  EXPECT_EQ(Count(sesion.Out, "En esta terminal no hay sonido.\n"), 1);
}

TEST_F(Session, TellsTheChronicleWithAndWithoutTheAccent) {
  LlenarCarpeta(Carpeta);
  const SessionResult sesion = PlayLines(Carpeta, AllDefaults + "Crónica\ncronica\n?\n");
  EXPECT_EQ(Count(sesion.Out, "— Mano 1 —\n\nPartida de\nAna y "), 2);
  EXPECT_EQ(Count(sesion.Out, "crónica cuenta la partida desde el principio.\n"), 1);
}

TEST_F(Session, TellsTheChronicleInAQuestionAndRepeatsIt) {
  LlenarCarpeta(Carpeta);
  int veces = 0;
  const SessionResult sesion =
      PlayWith(Carpeta, [&veces](const std::string& pregunta) -> std::optional<std::string> {
        if (!Contains(pregunta, "¿mus?")) return "";
        if (++veces == 1) return "crónica";
        return std::nullopt;
      });
  EXPECT_EQ(veces, 2) << "the question is asked again";
  EXPECT_EQ(Count(sesion.Out, "— Mano 1 —\n"), 1);
}

TEST_F(Session, AcceptsWindowsLineEnds) {
  LlenarCarpeta(Carpeta);
  const SessionResult sesion = PlayLines(Carpeta, "Eva\r\n3\r\n\r\n\r\n\r\n\r\n\r\nsalir\r\n");
  EXPECT_EQ(sesion.Status, 0);
  EXPECT_TRUE(FromTheTableOn(sesion).starts_with("Partida de\nEva y Dora\n"));
}

TEST_F(Session, EndsWithStatusZeroWhereverTheInputEnds) {
  LlenarCarpeta(Carpeta);
  for (std::size_t lineas = 0; lineas < 60; ++lineas) {
    const SessionResult sesion = PlayLines(Carpeta, std::string(lineas, '\n'));
    EXPECT_EQ(sesion.Status, 0) << lineas;
    EXPECT_EQ(sesion.Err, "") << lineas;
    EXPECT_TRUE(sesion.Out.ends_with('\n')) << lineas;
  }
}

// Plays up to the question that contains `ultima`, and ends the input there.
SessionResult PlayUpTo(const TempFolder& carpeta, const std::string& ultima) {
  return PlayWith(carpeta, [&](const std::string& pregunta) -> std::optional<std::string> {
    if (Contains(pregunta, ultima)) return std::nullopt;
    if (Contains(pregunta, "¿mus?")) return ultima == "desechar:" ? "s" : "n";
    if (Contains(pregunta, "Envido Más")) return ultima == "¿Cuántas" ? "2" : "0";
    return "";
  });
}

TEST_F(Session, EndsWithStatusZeroInEveryKindOfQuestion) {
  LlenarCarpeta(Carpeta);
  for (const std::string ultima : {"¿mus?", "desechar:", "Paso", "¿Cuántas", "pares?"}) {
    const SessionResult sesion = PlayUpTo(Carpeta, ultima);
    EXPECT_EQ(sesion.Status, 0) << ultima;
    EXPECT_EQ(sesion.Err, "") << ultima;
    const std::size_t linea = sesion.Out.rfind('\n', sesion.Out.size() - 2);
    EXPECT_TRUE(Contains(sesion.Out.substr(linea), ultima)) << sesion.Out.substr(linea);
  }
}

TEST_F(Session, LeavesOnSalirInAQuestion) {
  LlenarCarpeta(Carpeta);
  const SessionResult sesion = PlayLines(Carpeta, AllDefaults + "\nsalir\n\n\n");
  EXPECT_EQ(sesion.Status, 0);
  EXPECT_EQ(sesion.Err, "");
  EXPECT_TRUE(sesion.Out.ends_with("\n¿mus? [S/n] \n")) << sesion.Out;
}

// The parts that do not occur in `texto` in this order.
std::vector<std::string> MissingParts(const std::string& texto,
                                      const std::vector<std::string>& partes) {
  std::vector<std::string> faltan;
  std::size_t desde = 0;
  for (const std::string& parte : partes) {
    const std::size_t donde = texto.find(parte, desde);
    if (donde == std::string::npos) {
      faltan.push_back(parte);
    } else {
      desde = donde + parte.size();
    }
  }
  return faltan;
}

TEST_F(Session, PlaysAHandFromTheMusToTheCount) {
  LlenarCarpeta(Carpeta);
  const Player jugador = [](const std::string& pregunta) -> std::optional<std::string> {
    if (pregunta == "pulse Enter para empezar") return std::nullopt;
    return Contains(pregunta, "¿mus?") ? "n" : "";
  };
  const SessionResult sesion = PlayWith(Carpeta, jugador);
  EXPECT_EQ(sesion.Status, 0);
  const std::vector<std::string> partes{
      "Pulse enter para empezar\n¿mus? [S/n] \nAna: NMus\nAna es mano\n",
      "Pulse enter para continuar\n",
      "La grande\nLa grande: 0 Paso, 1 Envido, 2 Envido Más, 3 Órdago [0] \nAna: Paso\n",
      "Pequeña \nLa Pequeña: 0 Paso, 1 Envido, 2 Envido Más, 3 Órdago [0] \nAna: Paso\n",
      "¿Tiene pares? [",
      "¿Tiene Juego? [",
      "\nAna\n",
      "la grande",
      "El tanteo actual es de ",
      "\nPiedras: ",
      "\nPulse enter para empezar una nueva mano\n",
      "Sus cartas son\n",
      " es mano\npulse Enter para empezar\n"};
  EXPECT_EQ(MissingParts(sesion.Out, partes), std::vector<std::string>{}) << sesion.Out;
}

TEST_F(Session, StartsTheNextHandWhenThePlayerAbandonsOne) {
  LlenarCarpeta(Carpeta);
  const SessionResult sesion = PlayLines(Carpeta, AllDefaults + "q\nQ\n");
  EXPECT_EQ(sesion.Status, 0);
  const std::string mesa = FromTheTableOn(sesion);
  EXPECT_EQ(Count(mesa, "Sus cartas son"), 3);
  EXPECT_EQ(Count(mesa, " es mano\npulse Enter para empezar\n"), 2);
  EXPECT_FALSE(Contains(mesa, "¿mus?"));
}

TEST_F(Session, ShowsAllHandsOnManos) {
  LlenarCarpeta(Carpeta);
  const std::string mesa = FromTheTableOn(PlayLines(Carpeta, "\n3\n2\n1\n\n\n\nManos\n"));
  const std::string abiertas = mesa.substr(mesa.find("empezar\n") + 8);
  EXPECT_EQ(Count(abiertas, "\n"), 8);
  EXPECT_TRUE(abiertas.starts_with("Ana\n")) << abiertas;
  EXPECT_TRUE(Contains(abiertas, "\nel Cojo\n"));
  EXPECT_TRUE(Contains(abiertas, "\nDora\n"));
  EXPECT_TRUE(Contains(abiertas, "\nBerta\n"));
  EXPECT_EQ(Count(abiertas, " de "), 16);
}

TEST_F(Session, PrintsHelpWithoutAStep) {
  LlenarCarpeta(Carpeta);
  const std::string mesa = FromTheTableOn(PlayLines(Carpeta, AllDefaults + "?\n"));
  EXPECT_TRUE(mesa.ends_with(Utf8(BriefOf("el-mus")) +
                             "\n"
                             "Enter sigue la mano.\n"
                             "q abandona la mano y empieza otra.\n"
                             "manos enseña las cartas de los cuatro.\n"
                             "crónica cuenta la partida desde el principio.\n"
                             "repite dice otra vez lo último.\n"
                             "cartas dice las suyas, tanteo el tanteo y los envites, y mano quién "
                             "es mano.\n"
                             "sonido quita o pone el sonido.\n"
                             "salir, o Ctrl+D, deja el juego.\n"))
      << mesa;
  EXPECT_EQ(Count(mesa, "Sus cartas son"), 1);
  EXPECT_EQ(Count(mesa, " de oros") + Count(mesa, " de copas") + Count(mesa, " de espadas") +
                Count(mesa, " de bastos"),
            8)
      << "the hand twice";
}

TEST_F(Session, PrintsAHintForAnythingElse) {
  LlenarCarpeta(Carpeta);
  for (const std::string otra : {"x", "0", "13", "envido", "qq", "manojo"}) {
    const std::string mesa = FromTheTableOn(PlayLines(Carpeta, AllDefaults + otra + "\n"));
    EXPECT_TRUE(mesa.ends_with(
        "Pulse enter para empezar\n"
        "Pulse Enter para seguir, o escriba q para abandonar la mano o ? para la ayuda.\n"))
        << otra << "\n"
        << mesa;
  }
}

// At the table and at a question, which stays open.
TEST_F(Session, TellsWhatThePlayerAsksFor) {
  LlenarCarpeta(Carpeta);
  const std::string words = "repite\nCartas\ntanteo\nmano\n";
  const std::string atTheTable = FromTheTableOn(PlayLines(Carpeta, AllDefaults + words));
  EXPECT_EQ(Count(atTheTable, "Sus cartas son"), 2) << atTheTable;
  EXPECT_EQ(Count(atTheTable, ", as de espadas.\n"), 1) << atTheTable;
  EXPECT_EQ(Count(atTheTable, "Pareja 1: nosotros. ninguna piedra, ningún juego, ninguna vaca. "),
            1);
  EXPECT_EQ(Count(atTheTable, "Todavía no se sabe quién es mano"), 1);
  const std::string asked = FromTheTableOn(PlayLines(Carpeta, AllDefaults + "\n" + words));
  EXPECT_EQ(Count(asked, "¿mus? [S/n]"), 5) << asked;
  EXPECT_EQ(Count(asked, ", as de espadas.\n"), 1) << asked;
  EXPECT_EQ(Count(asked, "Todavía no se sabe quién es mano"), 1) << asked;
}

TEST_F(Session, LeavesOnSalir) {
  LlenarCarpeta(Carpeta);
  const SessionResult sesion = PlayLines(Carpeta, AllDefaults + "Salir\n\n\n");
  EXPECT_EQ(sesion.Status, 0);
  EXPECT_FALSE(Contains(sesion.Out, "¿mus?"));
}

// With these settings a pareja wins the juego with its second stone, the vaca with its first juego
// and the match with its first vaca.
void LlenarParaPartidaCorta(const TempFolder& carpeta) { LlenarCarpeta(carpeta, "1", "4", "4"); }

TEST_F(Session, SaysGoodbyeWhenThePlayerWantsNoOtherMatch) {
  LlenarParaPartidaCorta(Carpeta);
  const SessionResult sesion = PlayWith(Carpeta, [](const std::string& pregunta) {
    return Contains(pregunta, "¿mus?") || Contains(pregunta, "otra partida?") ? "n" : "";
  });
  EXPECT_EQ(sesion.Status, 0);
  EXPECT_EQ(sesion.Err, "");
  EXPECT_TRUE(Contains(sesion.Out, " la partida.\nSus contrarios le ofrecen la mano"));
  EXPECT_TRUE(sesion.Out.ends_with("\n¿Desea jugar otra partida? [S/n] \nHasta pronto\n"));
}

TEST_F(Session, ReturnsToTheStartUpQuestionsWhenThePlayerWantsOtherPlayers) {
  LlenarParaPartidaCorta(Carpeta);
  int inicios = 0;
  const Player jugador = [&inicios](const std::string& pregunta) -> std::optional<std::string> {
    if (pregunta == "Pulse enter para empezar" && inicios == 2) return std::nullopt;
    if (pregunta == "Compañero: [0 Aleatorio] ") return ++inicios == 2 ? "dora" : "";
    return Contains(pregunta, "¿mus?") ? "n" : "";
  };
  const SessionResult sesion = PlayWith(Carpeta, jugador);
  const std::size_t segunda = sesion.Out.rfind("Bienvenido a la tasca\n");
  EXPECT_TRUE(sesion.Out.substr(0, segunda).ends_with(" vaca.]\n"))
      << "the step ends, and then nothing of the old table is printed";
  EXPECT_TRUE(Contains(sesion.Out.substr(segunda), "Partida de\nAna y Dora\n"));
  EXPECT_TRUE(sesion.Out.ends_with("\nPulse enter para empezar\n"));
}

TEST_F(Session, PrintsNothingOfTheOldTableInTheStartUpQuestions) {
  LlenarParaPartidaCorta(Carpeta);
  int inicios = 0;
  const Player jugador = [&inicios](const std::string& pregunta) -> std::optional<std::string> {
    if (Contains(pregunta, "Su nombre: ") && ++inicios == 3) return std::nullopt;
    if (inicios == 2 && Contains(pregunta, "Compañero: ")) return "1";
    if (inicios == 2 && Contains(pregunta, "Contrario 1: ")) return "1";
    return Contains(pregunta, "¿mus?") ? "n" : "";
  };
  const SessionResult sesion = PlayWith(Carpeta, jugador);
  EXPECT_TRUE(
      Contains(sesion.Out, "Así se contará: La boticaria: Sí, como bueyes\n[Si quiere que "));
}

TEST_F(Session, StartsAnotherMatchWithTheSamePlayers) {
  LlenarParaPartidaCorta(Carpeta);
  int partidas = 0;
  const Player jugador = [&partidas](const std::string& pregunta) -> std::optional<std::string> {
    if (Contains(pregunta, "otra partida?")) return ++partidas == 3 ? "n" : "s";
    if (Contains(pregunta, "cambiar de jugadores?")) return "n";
    return Contains(pregunta, "¿mus?") ? "n" : "";
  };
  const SessionResult sesion = PlayWith(Carpeta, jugador);
  EXPECT_EQ(sesion.Status, 0);
  EXPECT_EQ(Count(sesion.Out, "Bienvenido a la tasca\n"), 1);
  EXPECT_TRUE(sesion.Out.ends_with("\nHasta pronto\n"));
}

TEST_F(Session, EndsWithAnErrorForATooLargeAmount) {
  LlenarCarpeta(Carpeta);
  const SessionResult sesion = PlayWith(Carpeta, [](const std::string& pregunta) {
    if (Contains(pregunta, "¿mus?")) return "n";
    if (Contains(pregunta, "¿Cuántas")) return "40000";
    return Contains(pregunta, "Envido Más") ? "2" : "";
  });
  EXPECT_EQ(sesion.Status, 1);
  EXPECT_EQ(sesion.Err,
            "Desbordamiento: el número no está entre -32768 y 32767. El programa va a terminar su "
            "ejecución.\n");
  EXPECT_TRUE(sesion.Out.ends_with('\n'));
}

TEST_F(Session, EndsWithTheErrorOfAFaultyFile) {
  LlenarCarpeta(Carpeta);
  Carpeta.Write("mus.ini", "35\r\n");
  const SessionResult sesion = PlayLines(Carpeta, AllDefaults);
  EXPECT_EQ(sesion.Status, 1);
  EXPECT_TRUE(Contains(sesion.Err, "mus.ini")) << sesion.Err;
  EXPECT_EQ(Count(sesion.Err, "\n"), 1);
  EXPECT_EQ(sesion.Out, "");
}

TEST_F(Session, ReportsAMissingCharacterFileOnce) {
  const SessionResult sesion = PlayLines(Carpeta, AllDefaults);
  EXPECT_EQ(sesion.Status, 1);
  EXPECT_EQ(sesion.Out,
            "[No se encuentra el archivo con los datos de los personajes. El programa va a "
            "terminar su ejecución.]\n");
  EXPECT_EQ(sesion.Err, "");
}

// An output stream that fails after a number of flushes.
struct FillingBuffer : std::stringbuf {
  explicit FillingBuffer(int quedan) : Quedan{quedan} {}
  int sync() override { return Quedan-- > 0 ? 0 : -1; }
  int Quedan;
};

TEST_F(Session, EndsWithAnErrorIfItsOutputCannotBeWritten) {
  LlenarCarpeta(Carpeta);
  const auto jugar = [&](FillingBuffer& buffer, std::string& error) {
    std::istringstream in{AllDefaults + "?\n"};
    std::ostream out{&buffer};
    std::ostringstream err;
    const int estado = RunTerminal({.Files = Carpeta.Path()}, {.In = in, .Out = out, .Err = err});
    error = err.str();
    return estado;
  };
  constexpr int DeSobra = 1000;
  FillingBuffer entera{DeSobra};
  std::string error;
  EXPECT_EQ(jugar(entera, error), 0);
  const int veces = DeSobra - entera.Quedan;
  EXPECT_EQ(veces, 10) << "nine reads, one of them at the end of the input, and the final flush";
  for (int llena = 0; llena < veces; ++llena) {
    FillingBuffer buffer{llena};
    EXPECT_EQ(jugar(buffer, error), 1) << llena;
    EXPECT_EQ(error,
              "No se puede escribir en la salida. El programa va a terminar su ejecución.\n");
  }
}

TEST_F(Session, PrintsNoControlCharactersFromFiles) {
  LlenarCarpeta(Carpeta);
  std::string personajes = Carpeta.Read("Jugadores.dat");
  for (const std::string_view nombre : {"Berta", "Cojo", "Dora", "Tuerto"}) {
    personajes.replace(personajes.find(nombre), 2, "\x1B\x81");
  }
  Carpeta.Write("Jugadores.dat", personajes);
  Carpeta.Write("mus.ini", std::string{"35\r\n3\r\n3\r\nA\0\x07na>\r\n", 18});
  const SessionResult sesion =
      PlayLines(Carpeta, AllDefaults + "\nn\n\n\x1B[2J\n" + std::string(40, '\n'));
  EXPECT_EQ(sesion.Status, 0);
  EXPECT_TRUE(std::none_of(sesion.Out.begin(), sesion.Out.end(), [](char byte) {
    return (byte >= '\0' && byte < ' ' && byte != '\n') || byte == '\x7F';
  }));
  EXPECT_FALSE(Contains(sesion.Out, "\xC2\x81"));
  EXPECT_TRUE(Contains(sesion.Out, "A\uFFFD\uFFFDna")) << sesion.Out;
}

}  // namespace
}  // namespace tasca::test
