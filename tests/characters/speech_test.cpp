// Spoken lines.
#include "characters/speech.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "base/errors.h"
#include "tests/support/draw_list.h"
#include "tests/support/errors.h"
#include "tests/support/tables.h"

namespace tasca::test {
namespace {

using enum MessageCategory;

// The table of MesaDePrueba, with an empty transcript.
struct Mesa {
  Table t = MesaDePrueba();

  FixedText<AnchoFrase>& Frase(int personaje, MessageCategory categoria, int hueco) {
    return t.Mensajes[personaje][categoria][hueco];
  }
  // Sets the first phrase of the seat's character.
  void Dira(Seat asiento, MessageCategory categoria, std::u16string_view frase) {
    Frase(t.PersonajeAsiento[asiento - 1], categoria, 1) = frase;
  }

  // Speaks with exactly these draws and returns the appended line.
  std::string Dice(std::initializer_list<float> sacadas, Seat asiento, MessageCategory categoria,
                   int cantidad = SinCantidad) {
    t.Text2.clear();
    DrawList lista{sacadas};
    DiceJugador(t, lista, asiento, categoria, cantidad);
    return Utf8(t.Text2);
  }
  // The human's line, spoken without draws.
  std::string DiceHumano(MessageCategory categoria, int cantidad = SinCantidad) {
    return Dice({}, 1, categoria, cantidad);
  }
  // A computer seat's line, with its first phrase.
  std::string DicePrimera(Seat asiento, MessageCategory categoria, int cantidad = SinCantidad) {
    return Dice({0.0F, 0.0F}, asiento, categoria, cantidad);
  }
};

TEST(DiceJugador, AppendsALineToTheTranscript) {
  Mesa m;
  m.t.Text2 = u"La grande\r\n";
  DrawList sacadas{0, 0, 0, 0};
  DiceJugador(m.t, sacadas, 2, Paso, SinCantidad);
  DiceJugador(m.t, sacadas, 1, Envi, SinCantidad);
  DiceJugador(m.t, sacadas, 3, NQui, SinCantidad);
  EXPECT_EQ(Utf8(m.t.Text2), "La grande\r\nJugador 2: Paso1\r\nAna: Envi1\r\nJugador 3: NQui1\r\n");
}

TEST(DiceJugador, RecordsSeatCategoryAmountAndPhrase) {
  Mesa m;
  m.Dira(3, EnvM, u"  van & más ");
  DrawList sacadas{0, 0, 0, 0};
  DiceJugador(m.t, sacadas, 2, Paso, SinCantidad);
  DiceJugador(m.t, sacadas, 3, EnvM, 5);
  const std::vector<Dicho> esperados{
      {.Asiento = 2, .Categoria = Paso, .Cantidad = SinCantidad, .Frase = u"Paso1"},
      {.Asiento = 3, .Categoria = EnvM, .Cantidad = 5, .Frase = u"van 5 más"}};
  EXPECT_EQ(m.t.Dichos, esperados);
}

TEST(DiceJugador, RecordsTheHumansPhraseWithItsAmount) {
  Mesa m;
  m.t.NombreJugador = u"A&B";
  m.Frase(2, EnvM, 1) = u"Envido & más";
  m.DiceHumano(EnvM, 4);
  ASSERT_EQ(m.t.Dichos.size(), 1U);
  EXPECT_EQ(m.t.Dichos.front(),
            (Dicho{.Asiento = 1, .Categoria = EnvM, .Cantidad = 4, .Frase = u"Envido 4 más"}));
}

TEST(DiceJugador, RecordsNothingForABlankPhrase) {
  Mesa m;
  m.Dira(3, Paso, u"");
  EXPECT_THROW(m.DicePrimera(3, Paso), RunTimeError);
  EXPECT_TRUE(m.t.Dichos.empty());
}

TEST(EmpezarRelato, ReplacesTheTranscriptAndForgetsWhatWasSaid) {
  Mesa m;
  m.DicePrimera(3, Paso);
  EmpezarRelato(m.t, u"Los pares\r\n");
  EXPECT_EQ(Utf8(m.t.Text2), "Los pares\r\n");
  EXPECT_TRUE(m.t.Dichos.empty());
  EmpezarRelato(m.t);
  EXPECT_EQ(Utf8(m.t.Text2), "");
}

TEST(DiceJugador, LetsTheHumanSpeakTheDefaultPhraseOfTheStyle) {
  Mesa m;
  m.Frase(1, QMus, 1) = u"que quiere mus";
  m.Frase(2, QMus, 1) = u"  mus, por favor ";
  EXPECT_EQ(m.DiceHumano(QMus), "Ana: mus, por favor\r\n");
  m.t.EstiloDirecto = false;
  EXPECT_EQ(m.DiceHumano(QMus), "Ana dice que quiere mus\r\n");
  m.Frase(1, QMus, 1) = u"Mus";
  EXPECT_EQ(m.DiceHumano(QMus), "Ana dice Mus\r\n");
}

TEST(DiceJugador, LetsTheHumanSpeakAlikeUnderAllOptions) {
  for (const bool directo : {true, false}) {
    for (const bool nombres : {true, false}) {
      for (const bool expresiones : {true, false}) {
        Mesa m;
        m.t.Personajes[0].Nombre = u"Otra";
        m.t.EstiloDirecto = directo;
        m.t.UsarNombres = nombres;
        m.t.UsarExpresiones = expresiones;
        EXPECT_EQ(m.DiceHumano(SQui), directo ? "Ana: SQui1\r\n" : "Ana dice SQui1\r\n");
      }
    }
  }
}

TEST(DiceJugador, PutsTheAmountIntoTheWholeOfTheHumansLine) {
  Mesa m;
  m.t.NombreJugador = u"Ana & Cía";
  m.Frase(2, EnvM, 1) = u"envido &, sí, &";
  EXPECT_EQ(m.DiceHumano(EnvM, 12), "Ana 12 Cía: envido 12, sí, 12\r\n");
  EXPECT_EQ(m.DiceHumano(EnvM, 0), "Ana 0 Cía: envido 0, sí, 0\r\n");
  EXPECT_EQ(m.DiceHumano(EnvM, -1), "Ana -1 Cía: envido -1, sí, -1\r\n");
  EXPECT_EQ(m.DiceHumano(EnvM), "Ana & Cía: envido &, sí, &\r\n");
}

TEST(DiceJugador, AppendsNoAmountToTheHumansRaise) {
  Mesa m;
  EXPECT_EQ(m.DiceHumano(EnvM, 5), "Ana: EnvM1\r\n");
}

TEST(DiceJugador, LabelsTheComputerSeats) {
  struct Caso {
    bool Directo;
    bool Nombres;
    Seat Asiento;
    std::string Linea;
  };
  const std::vector<Caso> casos{
      {true, false, 2, "Jugador 2: Paso1\r\n"},
      {true, false, 4, "Jugador 4: Paso1\r\n"},
      {true, true, 2, "Berta: Paso1\r\n"},
      {true, true, 3, "el Cojo: Paso1\r\n"},
      {false, false, 3, "El jugador 3 dice: Paso1\r\n"},
      {false, false, 4, "El jugador 4 dice: Paso1\r\n"},
      {false, true, 3, "el Cojo dice: Paso1\r\n"},
      {false, true, 4, "Dora dice: Paso1\r\n"},
  };
  for (const Caso& caso : casos) {
    Mesa m;
    m.t.EstiloDirecto = caso.Directo;
    m.t.UsarNombres = caso.Nombres;
    EXPECT_EQ(m.DicePrimera(caso.Asiento, Paso), caso.Linea);
  }
}

TEST(DiceJugador, TrimsTheNameInTheLabel) {
  Mesa m;
  m.t.UsarNombres = true;
  m.t.Personajes[3].Nombre = u"  La boticaria ";
  EXPECT_EQ(m.DicePrimera(2, Paso), "La boticaria: Paso1\r\n");
}

TEST(DiceJugador, TakesThePhrasesOfTheCharacterAtTheSeat) {
  Mesa m;
  m.Frase(3, TJue, 1) = u"de Berta";
  m.Frase(4, TJue, 1) = u"del Cojo";
  m.Frase(5, TJue, 1) = u"de Dora";
  EXPECT_EQ(m.DicePrimera(2, TJue), "Jugador 2: de Berta\r\n");
  EXPECT_EQ(m.DicePrimera(3, TJue), "Jugador 3: del Cojo\r\n");
  EXPECT_EQ(m.DicePrimera(4, TJue), "Jugador 4: de Dora\r\n");
}

TEST(DiceJugador, TakesThePhrasesOfTheCategory) {
  const std::array<std::string, 14> marcas{"QMus", "NMus", "TPar", "NPar", "TJue", "NJue", "Paso",
                                           "Envi", "EnvM", "Orda", "NQui", "SQui", "Vict", "Derr"};
  for (int categoria = 1; categoria <= 14; ++categoria) {
    Mesa m;
    const std::string frase = marcas.at(static_cast<std::size_t>(categoria - 1)) + "1\r\n";
    EXPECT_EQ(m.DicePrimera(2, static_cast<MessageCategory>(categoria)), "Jugador 2: " + frase);
    EXPECT_EQ(m.DiceHumano(static_cast<MessageCategory>(categoria)), "Ana: " + frase);
  }
}

TEST(DiceJugador, ChoosesOneOfThreePhrasesByTheFirstDraw) {
  struct Caso {
    float Sacada;
    std::string Linea;
  };
  const std::vector<Caso> casos{
      {0.0F, "Jugador 2: Paso1\r\n"},
      {DrawBelow(1.0F / 3.0F), "Jugador 2: Paso1\r\n"},
      {DrawFrom(1.0F / 3.0F), "Jugador 2: Paso2\r\n"},
      {0.5F, "Jugador 2: Paso2\r\n"},
      {DrawBelow(2.0F / 3.0F), "Jugador 2: Paso2\r\n"},
      {DrawFrom(2.0F / 3.0F), "Jugador 2: Paso3\r\n"},
      {DrawBelow(1.0F), "Jugador 2: Paso3\r\n"},
  };
  for (const Caso& caso : casos) {
    Mesa m;
    EXPECT_EQ(m.Dice({caso.Sacada, 0.0F}, 2, Paso), caso.Linea) << caso.Sacada;
  }
}

TEST(DiceJugador, Kept_TheSecondDrawCopiesThePhraseOverAnother) {
  struct Caso {
    float Sacada;
    int Hueco;
  };
  const std::vector<Caso> casos{
      {0.0F, 1},
      {DrawBelow(1.0F / 3.0F), 1},
      {DrawFrom(1.0F / 3.0F), 2},
      {DrawBelow(2.0F / 3.0F), 2},
      {DrawFrom(2.0F / 3.0F), 3},
      {DrawBelow(1.0F), 3},
  };
  for (const Caso& caso : casos) {
    Mesa m;
    Table esperada = m.t;
    EXPECT_EQ(m.Dice({0.5F, caso.Sacada}, 3, Envi), "Jugador 3: Envi2\r\n");
    esperada.Mensajes[4][8][caso.Hueco] = u"Envi2";
    esperada.Text2 = m.t.Text2;
    esperada.Dichos = m.t.Dichos;
    EXPECT_EQ(m.t, esperada) << caso.Sacada;
  }
}

TEST(DiceJugador, Kept_ACopiedPhraseIsSpokenFromItsNewPlace) {
  Mesa m;
  EXPECT_EQ(m.Dice({0.75F, 0.0F}, 2, Paso), "Jugador 2: Paso3\r\n");
  EXPECT_EQ(m.DicePrimera(2, Paso), "Jugador 2: Paso3\r\n");
  m.t.PersonajeAsiento[3] = 3;  // the same character speaks from another seat
  EXPECT_EQ(m.DicePrimera(4, Paso), "Jugador 4: Paso3\r\n");
}

TEST(DiceJugador, Kept_ThePhraseIsCopiedWithItsBlanks) {
  Mesa m;
  m.Frase(3, Paso, 1) = u"  paso";
  EXPECT_EQ(m.Dice({0.0F, 0.5F}, 2, Paso), "Jugador 2: paso\r\n");
  EXPECT_TRUE(m.Frase(3, Paso, 2).Full().starts_with(u"  paso "));
}

TEST(DiceJugador, FallsBackOnTheDefaultPhraseOfTheStyleForAPhraseNeverFilled) {
  Mesa m;
  m.Frase(1, Orda, 1) = u" ¡Órdago! ";
  m.Frase(2, Orda, 1) = u" Órdago ";
  m.Frase(3, Orda, 2) = u"";
  m.Frase(3, Orda, 2) = FixedText<AnchoFrase>{};
  EXPECT_EQ(m.Dice({0.5F, 0.5F}, 2, Orda), "Jugador 2: Órdago\r\n");
  m.t.EstiloDirecto = false;
  EXPECT_EQ(m.Dice({0.5F, 0.5F}, 2, Orda), "El jugador 2 dice: ¡Órdago!\r\n");
}

TEST(DiceJugador, Kept_APhraseNeverFilledIsCopiedTooAndTheOtherIsGone) {
  Mesa m;
  m.Frase(2, Orda, 1) = u"por defecto";
  m.Frase(3, Orda, 2) = FixedText<AnchoFrase>{};
  EXPECT_EQ(m.Dice({0.5F, 0.0F}, 2, Orda), "Jugador 2: por defecto\r\n");
  EXPECT_EQ(m.Frase(3, Orda, 1), FixedText<AnchoFrase>{});
  EXPECT_EQ(m.DicePrimera(2, Orda), "Jugador 2: por defecto\r\n");
}

TEST(DiceJugador, PutsTheAmountIntoADefaultPhraseToo) {
  Mesa m;
  m.Frase(2, EnvM, 1) = u"& más";
  m.Frase(4, EnvM, 1) = FixedText<AnchoFrase>{};
  EXPECT_EQ(m.DicePrimera(3, EnvM, 4), "Jugador 3: 4 más\r\n");
}

// The message of the error that seat `asiento` causes by passing. Nothing may have been said.
std::string Fallo(Mesa& m, std::initializer_list<float> sacadas, Seat asiento) {
  try {
    return "no error but " + m.Dice(sacadas, asiento, Paso);
  } catch (const RunTimeError& error) {
    EXPECT_TRUE(m.t.Text2.empty());
    return Utf8(error.Message());
  }
}

const std::string NadaQueDecir =
    "Llamada a procedimiento o argumento no válidos. Un personaje no tiene nada que decir: marque "
    "la casilla \"Usar las expresiones de los jugadores\" al empezar y compruebe que no haya "
    "frases en blanco en \"Jugadores.dat\". El programa va a terminar su ejecución.";

TEST(DiceJugador, Kept_ABlankPhraseEndsTheProgram) {
  Mesa m;
  m.Frase(5, Paso, 3) = u"   ";
  EXPECT_EQ(Fallo(m, {0.75F, 0.0F}, 4), NadaQueDecir);
}

TEST(DiceJugador, Kept_ComputerSeatsWithoutTheirOwnPhrasesEndTheProgram) {
  for (const bool directo : {true, false}) {
    Mesa m;
    m.t.UsarExpresiones = false;
    m.t.EstiloDirecto = directo;
    EXPECT_EQ(Fallo(m, {}, 2), NadaQueDecir);
  }
}

TEST(DiceJugador, EndsTheProgramForAnInvalidSeat) {
  for (const bool nombres : {true, false}) {
    for (const bool expresiones : {true, false}) {
      Mesa m;
      m.t.UsarNombres = nombres;
      m.t.UsarExpresiones = expresiones;
      Rnd rnd;
      EXPECT_EQ(ErrorOf([&] { DiceJugador(m.t, rnd, 5, Paso, SinCantidad); }),
                std::string{"El índice está fuera del intervalo."} + FinDelPrograma)
          << nombres << expresiones;
    }
  }
}

TEST(DiceJugador, JoinsAPhraseThatBeginsWithQueInIndirectStyle) {
  struct Caso {
    std::u16string_view Frase;
    std::string Linea;
  };
  const std::vector<Caso> casos{
      {u"que quiero mus", "El jugador 2 dice que quiero mus\r\n"},
      {u"  que quiero mus", "El jugador 2 dice que quiero mus\r\n"},
      {u"quema", "El jugador 2 dice quema\r\n"},
      {u"que: sí", "El jugador 2 dice que: sí\r\n"},
      {u"que", "El jugador 2 dice que\r\n"},
      {u"Que quiero mus", "El jugador 2 dice: Que quiero mus\r\n"},
      {u"QUE quiero mus", "El jugador 2 dice: QUE quiero mus\r\n"},
      {u"qué dices", "El jugador 2 dice: qué dices\r\n"},
      {u"qu", "El jugador 2 dice: qu\r\n"},
      {u"digo que mus", "El jugador 2 dice: digo que mus\r\n"},
  };
  for (const Caso& caso : casos) {
    Mesa m;
    m.t.EstiloDirecto = false;
    m.Dira(2, QMus, caso.Frase);
    EXPECT_EQ(m.DicePrimera(2, QMus), caso.Linea);
  }
}

TEST(DiceJugador, JoinsNothingInDirectStyle) {
  Mesa m;
  m.Dira(2, QMus, u"que quiero mus");
  EXPECT_EQ(m.DicePrimera(2, QMus), "Jugador 2: que quiero mus\r\n");
}

TEST(DiceJugador, JoinsADefaultPhraseToo) {
  Mesa m;
  m.t.EstiloDirecto = false;
  m.Frase(1, QMus, 1) = u"que quiere mus";
  m.Frase(3, QMus, 1) = FixedText<AnchoFrase>{};
  EXPECT_EQ(m.DicePrimera(2, QMus), "El jugador 2 dice que quiere mus\r\n");
}

TEST(DiceJugador, Kept_JoiningTakesTheColonsOfTheNameToo) {
  Mesa m;
  m.t.EstiloDirecto = false;
  m.t.UsarNombres = true;
  m.t.Personajes[3].Nombre = u"Don: Ramón: ";
  m.Dira(2, QMus, u"que mus: ya");
  EXPECT_EQ(m.DicePrimera(2, QMus), "Don Ramón dice que mus: ya\r\n");
  m.Dira(2, QMus, u"mus: ya");
  EXPECT_EQ(m.DicePrimera(2, QMus), "Don: Ramón: dice: mus: ya\r\n");
}

TEST(DiceJugador, PutsTheAmountIntoThePhrase) {
  struct Caso {
    std::u16string_view Frase;
    MessageCategory Categoria;
    int Cantidad;
    std::string Dicho;
  };
  const std::vector<Caso> casos{
      {u"Envido &", Envi, 5, "Envido 5"},
      {u"&, y & más", Envi, 17, "17, y 17 más"},
      {u"Envido &", Envi, SinCantidad, "Envido &"},
      {u"Envido", Envi, 5, "Envido"},
      {u"Envido más", EnvM, 3, "Envido más 3"},
      {u" Envido más ", EnvM, 3, "Envido más 3"},
      {u"Envido & más", EnvM, 3, "Envido 3 más"},
      {u"Envido más", EnvM, SinCantidad, "Envido más"},
      {u"Envido & más", EnvM, SinCantidad, "Envido & más"},
      {u"Envido más", EnvM, 0, "Envido más 0"},
      {u"Envido más", EnvM, -1, "Envido más -1"},
      {u"Órdago", Orda, 3, "Órdago"},
      {u"Órdago &", Orda, 3, "Órdago 3"},
      {u"Quiero", SQui, 3, "Quiero"},
      {u"&", EnvM, 32767, "32767"},
  };
  for (const Caso& caso : casos) {
    Mesa m;
    m.Dira(3, caso.Categoria, caso.Frase);
    EXPECT_EQ(m.DicePrimera(3, caso.Categoria, caso.Cantidad), "Jugador 3: " + caso.Dicho + "\r\n");
  }
}

TEST(DiceJugador, LeavesTheNameOfAComputerSeatWithoutTheAmount) {
  Mesa m;
  m.t.UsarNombres = true;
  m.t.Personajes[3].Nombre = u"Pin & Pon";
  m.Dira(2, EnvM, u"& más");
  EXPECT_EQ(m.DicePrimera(2, EnvM, 4), "Pin & Pon: 4 más\r\n");
}

TEST(DiceJugador, KeepsTheAmountOutOfTheCharactersPhrases) {
  Mesa m;
  m.Dira(2, EnvM, u"& más");
  m.DicePrimera(2, EnvM, 4);
  EXPECT_EQ(m.DicePrimera(2, EnvM, 5), "Jugador 2: 5 más\r\n");
}

}  // namespace
}  // namespace tasca::test
