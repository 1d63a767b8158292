// The start-up dialog: its texts, the choice of characters, and the effects of accepting it.
#include "startup/dlg_inicio.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>

#include "tests/startup/inicio.h"
#include "tests/support/plain_user.h"

namespace tasca::test {
namespace {

using Sucesos = std::vector<std::string>;

TEST(DlgInicio, StartsWithItsDesignValues) {
  const DlgInicio d;
  EXPECT_EQ(Utf8(d.Text1),
            "Bienvenido a la tasca\r\ndel tío Zarandel\r\nElija a sus compañeros de mesa \r\ny la "
            "forma de la partida.\r\nQue pase ustéd un buen rato\r\n");
  EXPECT_EQ(Utf8(d.Text2), "Jugador 1");
  EXPECT_TRUE(d.Check1[0]);
  EXPECT_TRUE(d.Check1[1]);
  EXPECT_EQ(d.Option1, 0);
  EXPECT_FALSE(d.CbOKEnabled);
}

TEST(DlgInicioFormLoad, StartsWithAleatorioEverywhere) {
  const Inicio inicio{3};
  EXPECT_EQ(inicio.d.Combo1.ListIndex, 0);
  EXPECT_EQ(inicio.d.Combo2.ListIndex, 0);
  EXPECT_EQ(inicio.d.Combo3.ListIndex, 0);
  EXPECT_TRUE(inicio.d.CbOKEnabled);
  EXPECT_EQ(Utf8(inicio.d.Text4), "");
  EXPECT_EQ(Utf8(inicio.d.Text3), "La boticaria: Sí, como bueyes");
}

TEST(DlgInicioFormLoad, SeedsTheGeneratorFromTheTimeOfDay) {
  Inicio inicio;
  inicio.port.Hora = {.Hora = 21, .Minuto = 4, .Segundo = 37};
  inicio.rnd();
  inicio.Cargar(Personajes(3));
  EXPECT_EQ(inicio.rnd.Draws(), 0U);
  Rnd esperado;
  esperado.Seed(4180);  // 22 x 5 x 38
  EXPECT_EQ(inicio.rnd(), esperado());
}

TEST(DlgInicioFormLoad, ProposesTheLastPlayersName) {
  struct Caso {
    std::string Linea4;
    std::string Nombre;
  };
  const std::vector<Caso> casos{{"Ana> Nombre del \xFAltimo jugador", "Ana"},
                                {"  Ana  ", "Ana"},
                                {"> Nombre del \xFAltimo jugador", "Jugador 1"},
                                {"   ", "Jugador 1"}};
  for (const Caso& caso : casos) {
    Inicio inicio;
    inicio.carpeta.Write("mus.ini", "35\r\n3\r\n3\r\n" + caso.Linea4 + "\r\n");
    inicio.Cargar(Personajes(3));
    EXPECT_EQ(Utf8(inicio.d.Text2), caso.Nombre);
  }
}

TEST(DlgInicioFormLoad, ProposesJugador1WithoutSettings) {
  EXPECT_EQ(Utf8(Inicio{3}.d.Text2), "Jugador 1");
}

TEST(DlgInicioFormLoad, EndsTheProgramForSettingsCutShort) {
  Inicio inicio;
  inicio.carpeta.Write("mus.ini", "35\r\n3\r\n3\r\n");
  EXPECT_NE(ErrorOf([&inicio] { inicio.Cargar(Personajes(3)); }).find("mus.ini, línea 4: "),
            std::string::npos);
}

TEST(ComboClick, ShowsTheStoryOfTheCharacterLastChosen) {
  Inicio inicio{3};
  Combo1_Click(inicio.d, 1);
  EXPECT_EQ(Utf8(inicio.d.Text4), "Historia 3");
  Combo2_Click(inicio.d, 2);
  EXPECT_EQ(Utf8(inicio.d.Text4), "Historia 4");
  Combo3_Click(inicio.d, 3);
  EXPECT_EQ(Utf8(inicio.d.Text4), "Historia 5");
  Combo1_Click(inicio.d, 0);  // "Aleatorio" has none
  EXPECT_EQ(Utf8(inicio.d.Text4), "Historia 5");
}

TEST(ComboClick, ShowsNoStoryOfTheFirstTwoCharacters) {
  Inicio inicio{Registro("Uno", "Historia 1") + Registro("Dos", "Historia 2") +
                Registro("Tres", "Historia 3")};
  Combo1_Click(inicio.d, 1);
  EXPECT_EQ(Utf8(inicio.d.Text4), "");
  Combo1_Click(inicio.d, 3);
  Combo1_Click(inicio.d, 2);
  EXPECT_EQ(Utf8(inicio.d.Text4), "Historia 3");
}

TEST(ComboClick, EnablesAceptarOnceAllThreeListsHaveAChoice) {
  Inicio inicio{3};
  DlgInicio& d = inicio.d;
  d.CbOKEnabled = false;
  d.Combo1.ListIndex = d.Combo2.ListIndex = d.Combo3.ListIndex = -1;
  Combo3_Click(d, 1);
  EXPECT_FALSE(d.CbOKEnabled);
  Combo1_Click(d, 0);
  EXPECT_FALSE(d.CbOKEnabled);
  Combo2_Click(d, 2);
  EXPECT_TRUE(d.CbOKEnabled);
  d.Combo1.ListIndex = -1;
  Combo2_Click(d, 1);
  EXPECT_FALSE(d.CbOKEnabled);
}

TEST(ComboClick, RejectsAnInvalidPosition) {
  Inicio inicio{3};
  EXPECT_THROW(Combo1_Click(inicio.d, 4), RunTimeError);
  EXPECT_THROW(Combo2_Click(inicio.d, -1), RunTimeError);
  EXPECT_EQ(inicio.d.Combo1.ListIndex, 0);
}

TEST(MostrarEjemplo, ShowsEveryCombinationOfTheOptions) {
  struct Caso {
    bool Nombres;
    bool Expresiones;
    int Estilo;
    std::string Ejemplo;
  };
  const std::vector<Caso> casos{
      {true, true, 0, "La boticaria: Sí, como bueyes"},
      {true, false, 0, "La boticaria: Sí tengo pares"},
      {false, true, 0, "jugador 3: Sí, como bueyes"},
      {false, false, 0, "jugador 3: Sí tengo pares"},
      {true, true, 1, "La boticaria dice: Sí, como bueyes"},
      {true, false, 1, "La boticaria dice: Sí tengo pares"},
      {false, true, 1, "El jugador 3 dice: Sí, como bueyes"},
      {false, false, 1, "El jugador 3 dice: Sí tengo pares"},
  };
  for (const Caso& caso : casos) {
    DlgInicio d;
    d.Check1 = {caso.Nombres, caso.Expresiones};
    d.Option1 = caso.Estilo;
    MostrarEjemplo(d);
    EXPECT_EQ(Utf8(d.Text3), caso.Ejemplo);
  }
}

TEST(MostrarEjemplo, FollowsTheBoxesAndTheOptions) {
  DlgInicio d;
  Check1_Click(d, 0, false);
  EXPECT_EQ(Utf8(d.Text3), "jugador 3: Sí, como bueyes");
  Check1_Click(d, 1, false);
  EXPECT_EQ(Utf8(d.Text3), "jugador 3: Sí tengo pares");
  Option1_Click(d, 1);
  EXPECT_EQ(Utf8(d.Text3), "El jugador 3 dice: Sí tengo pares");
  Check1_Click(d, 0, true);
  EXPECT_EQ(Utf8(d.Text3), "La boticaria dice: Sí tengo pares");
  Check1_Click(d, 1, true);
  Option1_Click(d, 0);
  EXPECT_EQ(Utf8(d.Text3), "La boticaria: Sí, como bueyes");
}

TEST(CbOK, SeatsThePartnerAtThreeAndTheOpponentsAtTwoAndFour) {
  Inicio inicio{4};
  inicio.Elegir(2, 4, 1);
  EXPECT_TRUE(inicio.Aceptar());
  EXPECT_EQ(inicio.t.PersonajeAsiento, (Array<Integer, 0, 3>{0, 6, 4, 3}));
  EXPECT_EQ(inicio.port.TakeEvents(), Sucesos{});
}

TEST(CbOK, DoesNothingWhileItIsDisabled) {
  Inicio inicio{3};
  inicio.d.CbOKEnabled = false;
  const Table antes = inicio.t;
  EXPECT_FALSE(inicio.Aceptar());
  EXPECT_EQ(inicio.t, antes);
}

const std::string Pareja =
    "box: Si quiere que Nombre 3 sea su pareja de juego, no puede ser "
    "también su oponente. ¿Lógico no?";
const std::string Gemelos =
    "box: Lo siento, pero Nombre 4 no tiene hermanos gemelos que puedan "
    "ser su pareja. Elija otro compañero.";

TEST(CbOK, RefusesACharacterAtTwoSeats) {
  struct Caso {
    std::array<int, 3> Eleccion;
    std::string Mensaje;
  };
  const std::vector<Caso> casos{
      {{1, 1, 2}, Pareja},  {{1, 2, 1}, Pareja},  {{1, 1, 0}, Pareja},
      {{1, 0, 1}, Pareja},  {{1, 1, 1}, Pareja},  // before the other message
      {{1, 2, 2}, Gemelos}, {{0, 2, 2}, Gemelos},
  };
  for (const Caso& caso : casos) {
    Inicio inicio{3};
    inicio.Elegir(caso.Eleccion.at(0), caso.Eleccion.at(1), caso.Eleccion.at(2));
    EXPECT_FALSE(inicio.Aceptar());
    EXPECT_EQ(inicio.port.TakeEvents(), Sucesos{caso.Mensaje});
  }
}

TEST(CbOK, NamesTheTwiceChosenCharacterTrimmed) {
  Inicio inicio{Personajes(2) + Registro("  La boticaria  ", "-")};
  inicio.Elegir(3, 1, 3);
  EXPECT_FALSE(inicio.Aceptar());
  EXPECT_EQ(inicio.port.TakeEvents(),
            Sucesos{"box: Si quiere que La boticaria sea su pareja de juego, no puede ser también "
                    "su oponente. ¿Lógico no?"});
}

TEST(CbOK, ChangesNothingAfterAMessage) {
  Inicio inicio;
  inicio.carpeta.Write("mus.ini", "35\r\n3\r\n3\r\nLuis\r\n");
  inicio.Cargar(Personajes(3));
  inicio.d.Text2 = u"Ana";
  inicio.d.Option1 = 1;
  inicio.Elegir(0, 2, 2);
  const Table antes = inicio.t;
  EXPECT_FALSE(inicio.Aceptar());
  EXPECT_EQ(inicio.t, antes);
  EXPECT_EQ(inicio.carpeta.Read("mus.ini"), "35\r\n3\r\n3\r\nLuis\r\n");
  EXPECT_EQ(inicio.d.Combo1.ListIndex, 0);
  EXPECT_EQ(inicio.d.Combo2.ListIndex, 2);
  EXPECT_EQ(inicio.d.Combo3.ListIndex, 2);
  EXPECT_EQ(Utf8(inicio.d.Text2), "Ana");
  EXPECT_EQ(Utf8(inicio.d.Text4), "Historia 4");
}

TEST(CbOK, CanBePressedAgainAfterAMessage) {
  Inicio inicio{3};
  inicio.Elegir(1, 2, 2);
  EXPECT_FALSE(inicio.Aceptar());
  inicio.port.TakeEvents();
  Combo3_Click(inicio.d, 3);
  EXPECT_TRUE(inicio.Aceptar());
  EXPECT_EQ(inicio.t.PersonajeAsiento, (Array<Integer, 0, 3>{0, 4, 3, 5}));
}

TEST(CbOK, StoresTheTrimmedName) {
  Inicio inicio{3};
  inicio.Elegir(1, 2, 3);
  inicio.d.Text2 = u"  Ana María ";
  EXPECT_TRUE(inicio.Aceptar());
  EXPECT_EQ(Utf8(inicio.t.NombreJugador), "Ana María");
  EXPECT_EQ(Utf8(inicio.t.Personajes[0].Nombre.Trimmed()), "Ana María");
}

TEST(CbOK, CallsAPlayerWithoutANameJugador1ButSavesTheEmptyName) {
  for (const std::u16string nombre : {u"", u"   "}) {
    Inicio inicio;
    inicio.carpeta.Write("mus.ini", "35\r\n3\r\n3\r\nLuis\r\n");
    inicio.Cargar(Personajes(3));
    inicio.Elegir(1, 2, 3);
    inicio.d.Text2 = nombre;
    EXPECT_TRUE(inicio.Aceptar());
    EXPECT_EQ(Utf8(inicio.t.NombreJugador), "Jugador 1");
    EXPECT_EQ(Utf8(inicio.t.Personajes[0].Nombre.Trimmed()), "Jugador 1");
    EXPECT_EQ(inicio.carpeta.Read("mus.ini"),
              "35\r\n3\r\n3\r\n> Nombre del \xFAltimo jugador\r\nLuis\r\n");
  }
}

TEST(CbOK, SavesTheTrimmedName) {
  Inicio inicio;
  inicio.carpeta.Write("mus.ini", "35\r\n3\r\n3\r\nLuis\r\n");
  inicio.Cargar(Personajes(3));
  inicio.Elegir(1, 2, 3);
  inicio.d.Text2 = u" Ana ";
  EXPECT_TRUE(inicio.Aceptar());
  EXPECT_EQ(inicio.carpeta.Read("mus.ini"),
            "35\r\n3\r\n3\r\nAna> Nombre del \xFAltimo jugador\r\nLuis\r\n");
}

TEST(CbOK, SavesNothingWithoutASettingsFile) {
  Inicio inicio{3};
  inicio.Elegir(1, 2, 3);
  EXPECT_TRUE(inicio.Aceptar());
  EXPECT_FALSE(std::filesystem::exists(inicio.t.Carpeta / "mus.ini"));
}

const std::string SinNombre =
    "box: No se ha podido guardar su nombre en mus.ini: no hay permiso para escribir. La partida "
    "se juega igual.";

// A dialog with settings, run without root privileges.
struct EnCarpetaAjena : Inicio {
  EnCarpetaAjena() {
    carpeta.Write("mus.ini", "35\r\n3\r\n3\r\nLuis\r\n");
    Cargar(Personajes(3));
    Elegir(1, 2, 3);
    d.Text2 = u"Ana";
    d.Option1 = 1;
    usuario.emplace(carpeta);
  }
  EnCarpetaAjena(const EnCarpetaAjena&) = delete;
  EnCarpetaAjena& operator=(const EnCarpetaAjena&) = delete;
  ~EnCarpetaAjena() { Permitir(carpeta.Path(), 0755); }

  static void Permitir(const std::filesystem::path& ruta, unsigned permisos) {
    std::filesystem::permissions(ruta, std::filesystem::perms{permisos});
  }
  std::string Ajustes() const { return carpeta.Read("mus.ini"); }

  std::optional<PlainUser> usuario;
};

TEST(CbOK, PlaysWithoutSavingTheNameInAReadOnlyFolderAndTellsWhy) {
  EnCarpetaAjena inicio;
  EnCarpetaAjena::Permitir(inicio.carpeta.Path(), 0555);
  EXPECT_TRUE(inicio.Aceptar());
  EXPECT_EQ(inicio.port.TakeEvents(), Sucesos{SinNombre});
  EXPECT_EQ(Utf8(inicio.t.NombreJugador), "Ana");
  EXPECT_EQ(inicio.t.PersonajeAsiento, (Array<Integer, 0, 3>{0, 4, 3, 5}));
  EXPECT_FALSE(inicio.t.EstiloDirecto);
  EXPECT_EQ(inicio.Ajustes(), "35\r\n3\r\n3\r\nLuis\r\n");
}

TEST(CbOK, PlaysWithoutSavingTheNameInAReadOnlyFileAndTellsWhy) {
  EnCarpetaAjena inicio;
  EnCarpetaAjena::Permitir(inicio.carpeta.Path() / "mus.ini", 0444);
  EXPECT_TRUE(inicio.Aceptar());
  EXPECT_EQ(inicio.port.TakeEvents(), Sucesos{SinNombre});
  EXPECT_EQ(inicio.Ajustes(), "35\r\n3\r\n3\r\nLuis\r\n");
}

TEST(CbOK, TellsOnlyOnceThatTheNameCannotBeSaved) {
  EnCarpetaAjena inicio;
  EnCarpetaAjena::Permitir(inicio.carpeta.Path(), 0555);
  EXPECT_TRUE(inicio.Aceptar());
  inicio.port.TakeEvents();
  inicio.d = DlgInicio{};
  inicio.Cargar();
  inicio.Elegir(3, 2, 1);
  EXPECT_TRUE(inicio.Aceptar());
  EXPECT_EQ(inicio.port.TakeEvents(), Sucesos{});
}

TEST(CbOK, SavesTheNameOnceTheFolderIsWritable) {
  EnCarpetaAjena inicio;
  EnCarpetaAjena::Permitir(inicio.carpeta.Path(), 0555);
  EXPECT_TRUE(inicio.Aceptar());
  inicio.port.TakeEvents();
  EnCarpetaAjena::Permitir(inicio.carpeta.Path(), 0755);
  EXPECT_TRUE(inicio.Aceptar());
  EXPECT_EQ(inicio.port.TakeEvents(), Sucesos{});
  EXPECT_EQ(inicio.Ajustes(), "35\r\n3\r\n3\r\nAna> Nombre del \xFAltimo jugador\r\nLuis\r\n");
}

TEST(CbOK, EndsTheProgramForSettingsThatMayNotBeRead) {
  EnCarpetaAjena inicio;
  EnCarpetaAjena::Permitir(inicio.carpeta.Path() / "mus.ini", 0222);
  EXPECT_EQ(ErrorOf([&inicio] { inicio.Aceptar(); }),
            (inicio.t.Carpeta / "mus.ini").string() +
                ": no se puede leer el archivo. El programa va a terminar su ejecución.");
  EXPECT_EQ(inicio.port.TakeEvents(), Sucesos{});
}

TEST(CbOK, EndsTheProgramForSettingsCutShort) {
  Inicio inicio{3};
  inicio.Elegir(1, 2, 3);
  inicio.carpeta.Write("mus.ini", "35\r\n3\r\n");
  EXPECT_NE(ErrorOf([&inicio] { inicio.Aceptar(); }).find("mus.ini, línea 3: "), std::string::npos);
}

TEST(CbOK, SetsNamesExpressionsAndStyle) {
  struct Caso {
    bool Nombres;
    bool Expresiones;
    int Estilo;
  };
  const std::vector<Caso> casos{
      {true, true, 0}, {true, false, 0}, {false, true, 0}, {false, false, 0},
      {true, true, 1}, {true, false, 1}, {false, true, 1}, {false, false, 1},
  };
  for (const Caso& caso : casos) {
    Inicio inicio{3};
    inicio.Elegir(1, 2, 3);
    inicio.t.UsarNombres = !caso.Nombres;
    inicio.t.UsarExpresiones = !caso.Expresiones;
    inicio.t.EstiloDirecto = caso.Estilo == 1;
    Check1_Click(inicio.d, 0, caso.Nombres);
    Check1_Click(inicio.d, 1, caso.Expresiones);
    Option1_Click(inicio.d, caso.Estilo);
    EXPECT_TRUE(inicio.Aceptar());
    EXPECT_EQ(inicio.t.UsarNombres, caso.Nombres);
    EXPECT_EQ(inicio.t.UsarExpresiones, caso.Expresiones);
    EXPECT_EQ(inicio.t.EstiloDirecto, caso.Estilo == 0);
  }
}

}  // namespace
}  // namespace tasca::test
