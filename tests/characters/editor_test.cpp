// The character editor: characters, loading and saving.
#include "characters/editor.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/characters/taller.h"
#include "tests/support/errors.h"
#include "tests/support/plain_user.h"

namespace tasca::test {
namespace {

namespace fs = std::filesystem;

TEST(EditorForm_Load, ListsTheKindsOfPhraseAndNothingElse) {
  const Taller e;
  EXPECT_EQ(Entradas(e.d.List2),
            (Textos{"Quiero mus", "No quiero mus", "Tengo pares", "No tengo pares", "tengo juego",
                    "No tengo juego", "Paso", "Envido", "envido & más", "Órdago", "No quiero",
                    "quiero", "Victoria", "Derrota"}));
  EXPECT_EQ(e.d.List2.ListIndex, -1);
  EXPECT_EQ(Entradas(e.d.List1), Textos{});
  EXPECT_EQ(Entradas(e.d.List3), Textos{});
  EXPECT_EQ(Campos(e.d), (Textos{"", "", ""}));
  EXPECT_EQ(e.d.NumPersonajes, 0);
}

TEST(CargarPersonajes, ListsTheCharactersAndShowsTheFirstWithoutSelectingIt) {
  Taller e{2};
  EXPECT_EQ(Entradas(e.d.List1), (Textos{"1. P1", "2. P2"}));
  EXPECT_EQ(e.d.List1.ListIndex, -1);
  EXPECT_EQ(Campos(e.d), (Textos{"P1", "10", "H1"}));
  EXPECT_EQ(e.d.List2.ListIndex, 0);
  EXPECT_EQ(Entradas(e.d.List3), (Textos{Rellena("1-1-1"), Rellena("1-1-2"), Rellena("1-1-3")}));
  EXPECT_EQ(e.d.NumPersonajes, 2);
}

TEST(CargarPersonajes, TellsTheNumberOfCharacters) {
  Taller e;
  e.Llenar(1);
  EscribirPersonajes(e.t, 1);
  CargarPersonajes(e.d, e.t, e.port);
  EXPECT_EQ(e.port.TakeEvents(), (Textos{"box: se han cargado 1 jugadores"}));
}

TEST(CargarPersonajes, ShowsNobodyFromAnEmptyFile) {
  Taller e;
  e.carpeta.Write("Jugadores.dat", "");
  CargarPersonajes(e.d, e.t, e.port);
  EXPECT_EQ(e.port.TakeEvents(), (Textos{"box: se han cargado 0 jugadores"}));
  EXPECT_EQ(Entradas(e.d.List1), Textos{});
  EXPECT_EQ(e.d.List2.ListIndex, -1);
}

TEST(CargarPersonajes, EndsTheProgramWithoutAFile) {
  Taller e;
  EXPECT_EQ(ErrorOf([&] { CargarPersonajes(e.d, e.t, e.port); }),
            (e.carpeta.Path() / "Jugadores.dat").string() + ": no se encuentra el archivo." +
                FinDelPrograma);
}

TEST(CargarPersonajes, Kept_AddsTheNamesToThoseThatAreListed) {
  Taller e{2};
  List1_Click(e.d, e.t, e.port, 1);
  CargarPersonajes(e.d, e.t, e.port);
  EXPECT_EQ(Entradas(e.d.List1), (Textos{"1. P1", "2. P2", "1. P1", "2. P2"}));
  EXPECT_EQ(e.d.List1.ListIndex, -1);
  EXPECT_EQ(e.d.NumPersonajes, 2);
}

TEST(CargarPersonajes, Kept_AnEntryStandsForItsPlaceEvenBeyondTheCount) {
  Taller e{2};
  CargarPersonajes(e.d, e.t, e.port);
  List1_Click(e.d, e.t, e.port, 2);  // reads "1. P1"
  EXPECT_EQ(Campos(e.d), (Textos{std::string(100, '\0'), "0", std::string(200, '\0')}));
}

TEST(CargarPersonajes, KeepsWhatTheFileDoesNotFill) {
  Taller e{1};
  e.carpeta.Write("Jugadores.dat", "Datos>\r\nLola\r\n007\r\nBaila.\r\nqmus>\r\nmus\r\n");
  CargarPersonajes(e.d, e.t, e.port);
  EXPECT_EQ(Campos(e.d), (Textos{"Lola", "7", "Baila."}));
  EXPECT_EQ(e.Frase(1, 1, 1), "mus");
  EXPECT_EQ(e.Frase(1, 1, 2), "1-1-2");
  EXPECT_EQ(e.Frase(1, 14, 3), "1-14-3");
}

TEST(GuardarPersonajes, WritesTheFileAndTellsHowMany) {
  Taller e{2};
  e.t.Personajes[2].Nombre = u"Dora";
  Command3_Click(e.d, e.t, e.port, 0);
  EXPECT_EQ(e.port.TakeEvents(), (Textos{"box: Se han guardado datos de 2 jugadores"}));
  EXPECT_EQ(e.carpeta.Read("Jugadores.dat"), TextoPersonajes(e.t, 2));
}

TEST(GuardarPersonajes, Kept_BeforeLoadingWritesAnEmptyFile) {
  Taller e;
  e.carpeta.Write("Jugadores.dat", "lo de antes");
  GuardarPersonajes(e.d, e.t, e.port);
  EXPECT_EQ(e.port.TakeEvents(), (Textos{"box: Se han guardado datos de 0 jugadores"}));
  EXPECT_EQ(e.carpeta.Read("Jugadores.dat"), "");
  EXPECT_EQ(e.carpeta.Read("Jugadores.bak"), "lo de antes");
}

TEST(GuardarPersonajes, TellsWhyItFailsAndKeepsTheChanges) {
  Taller e{2};
  const fs::path copia = e.carpeta.Path() / "Jugadores.bak";
  fs::create_directory(copia);
  e.d.Guardado = "otra cosa";
  const Table antes = e.t;
  Command3_Click(e.d, e.t, e.port, 0);
  EXPECT_EQ(e.port.TakeEvents(),
            (Textos{"box: No se ha podido escribir el archivo " + copia.string() +
                    ": hay otra cosa en su lugar. Los cambios siguen aquí: puede intentarlo otra "
                    "vez."}));
  EXPECT_EQ(e.t, antes);
  EXPECT_TRUE(HayCambios(e.d, e.t));
  fs::remove(copia);
  Command3_Click(e.d, e.t, e.port, 0);
  EXPECT_EQ(e.port.TakeEvents(), (Textos{"box: Se han guardado datos de 2 jugadores"}));
  EXPECT_FALSE(HayCambios(e.d, e.t));
}

TEST(GuardarPersonajes, KeepsTheChangesInAReadOnlyFolder) {
  Taller e{1};
  const std::string antes = e.carpeta.Read("Jugadores.dat");
  e.t.Personajes[1].Nombre = u"Dora";
  {
    const PlainUser usuario{e.carpeta};
    fs::permissions(e.carpeta.Path(), fs::perms{0555});
    GuardarPersonajes(e.d, e.t, e.port);
    fs::permissions(e.carpeta.Path(), fs::perms{0755});
  }
  EXPECT_EQ(e.port.TakeEvents(),
            (Textos{"box: No se ha podido escribir el archivo " +
                    (e.carpeta.Path() / "Jugadores.bak").string() +
                    ": no hay permiso para escribir. Los cambios siguen aquí: puede intentarlo "
                    "otra vez."}));
  EXPECT_TRUE(HayCambios(e.d, e.t));
  EXPECT_EQ(e.carpeta.Read("Jugadores.dat"), antes);
}

TEST(List1_Click, ShowsTheCharacter) {
  Taller e{3};
  List2_Click(e.d, e.t, 5);
  List1_Click(e.d, e.t, e.port, 2);
  EXPECT_EQ(e.d.List1.ListIndex, 2);
  EXPECT_EQ(Campos(e.d), (Textos{"P3", "30", "H3"}));
  EXPECT_EQ(e.d.List2.ListIndex, 0);
  EXPECT_EQ(e.d.List3.ListIndex, 1);
}

TEST(List1_Click, Kept_ListsThePhrasesWithTheirPadding) {
  Taller e{1};
  e.t.Mensajes[1][1][3] = FixedText<AnchoFrase>{};
  List1_Click(e.d, e.t, e.port, 0);
  EXPECT_EQ(Entradas(e.d.List3),
            (Textos{Rellena("1-1-1"), Rellena("1-1-2"), std::string(100, '\0')}));
}

TEST(List1_Click, RefusesAnInvalidPosition) {
  Taller e{1};
  EXPECT_EQ(ErrorOf([&] { List1_Click(e.d, e.t, e.port, 1); }), IndiceFuera);
  EXPECT_EQ(ErrorOf([&] { List1_Click(e.d, e.t, e.port, -1); }), IndiceFuera);
}

TEST(List2_Click, ListsThePhrasesOfThatKindTrimmed) {
  Taller e{2};
  List1_Click(e.d, e.t, e.port, 1);
  List2_Click(e.d, e.t, 13);
  EXPECT_EQ(Entradas(e.d.List3), (Textos{"2-14-1", "2-14-2", "2-14-3"}));
  EXPECT_EQ(e.d.List3.ListIndex, -1);
}

TEST(List2_Click, ShowsSlotsThatWereNeverFilledAsTheyAre) {
  Taller e{1};
  e.t.Mensajes[1][2][2] = FixedText<AnchoFrase>{};
  e.t.Mensajes[1][2][3] = u"";
  List1_Click(e.d, e.t, e.port, 0);
  List2_Click(e.d, e.t, 1);
  EXPECT_EQ(Entradas(e.d.List3), (Textos{"1-2-1", std::string(100, '\0'), ""}));
}

TEST(List2_Click, ListsNothingWithoutACharacter) {
  Taller e{1};
  const Textos antes = Entradas(e.d.List3);
  List2_Click(e.d, e.t, 4);
  EXPECT_EQ(e.d.List2.ListIndex, 4);
  EXPECT_EQ(Entradas(e.d.List3), antes);
}

TEST(NuevoJugador, TakesTheThreeTexts) {
  Taller e;
  e.d.Text1 = u"  Lola ";
  e.d.Text2 = u"12abc";
  e.d.Text3 = u" Baila. ";
  Command1_Click(e.d, e.t, e.port, 0);
  EXPECT_EQ(e.d.NumPersonajes, 1);
  EXPECT_EQ(Entradas(e.d.List1), (Textos{"1. Lola"}));
  EXPECT_EQ(e.d.List1.ListIndex, -1);
  EXPECT_EQ(e.Nombre(1), "Lola");
  EXPECT_EQ(e.t.Personajes[1].Ordaguero, 12);
  EXPECT_EQ(Utf8(e.d.Text2), "12");
  EXPECT_EQ(Utf8(e.t.Personajes[1].Historia.Trimmed()), "Baila.");
}

TEST(NuevoJugador, ReadsNoNumberAsZero) {
  Taller e;
  e.d.Text2 = u"mucho";
  Command1_Click(e.d, e.t, e.port, 0);
  EXPECT_EQ(e.t.Personajes[1].Ordaguero, 0);
  EXPECT_EQ(Utf8(e.d.Text2), "0");
}

TEST(NuevoJugador, Kept_TakesOverThePhrasesOfItsPlace) {
  Taller e{2};
  List1_Click(e.d, e.t, e.port, 1);
  e.port.Confirms(true);
  Command1_Click(e.d, e.t, e.port, 1);
  e.d.Text1 = u"Lola";
  Command1_Click(e.d, e.t, e.port, 0);
  EXPECT_EQ(e.Nombre(2), "Lola");
  EXPECT_EQ(e.Frase(2, 5, 1), "2-5-1");
}

TEST(NuevoJugador, EndsTheProgramForTheHundredAndFirst) {
  Taller e;
  for (int i = 0; i < 100; ++i) Command1_Click(e.d, e.t, e.port, 0);
  EXPECT_EQ(e.d.NumPersonajes, 100);
  EXPECT_EQ(ErrorOf([&] { Command1_Click(e.d, e.t, e.port, 0); }), IndiceFuera);
}

TEST(NuevoJugador, EndsTheProgramForAnOrdagueroOutside16Bits) {
  Taller e;
  e.d.Text2 = u"40000";
  EXPECT_EQ(ErrorOf([&] { Command1_Click(e.d, e.t, e.port, 0); }), Desbordamiento);
}

TEST(ReleerJugador, StoresTheThreeTextsIntoTheSelectedCharacter) {
  Taller e{3};
  List1_Click(e.d, e.t, e.port, 1);
  e.d.Text1 = u"Lola";
  e.d.Text2 = u"7x";
  e.d.Text3 = u"Baila.";
  Command1_Click(e.d, e.t, e.port, 2);
  EXPECT_EQ(e.Nombre(2), "Lola");
  EXPECT_EQ(e.t.Personajes[2].Ordaguero, 7);
  EXPECT_EQ(Utf8(e.d.Text2), "7");
  EXPECT_EQ(Utf8(e.t.Personajes[2].Historia.Trimmed()), "Baila.");
  EXPECT_EQ(e.Nombre(1), "P1");
  EXPECT_EQ(e.Nombre(3), "P3");
}

TEST(ReleerJugador, Kept_LeavesTheEntryOfTheListAndSavesTheNewName) {
  Taller e{2};
  List1_Click(e.d, e.t, e.port, 1);
  e.d.Text1 = u"Lola";
  Command1_Click(e.d, e.t, e.port, 2);
  EXPECT_EQ(Entradas(e.d.List1), (Textos{"1. P1", "2. P2"}));
  Command3_Click(e.d, e.t, e.port, 0);
  EXPECT_TRUE(e.carpeta.Read("Jugadores.dat").find("\r\nLola\r\n") != std::string::npos);
}

TEST(ReleerJugador, BeepsWithoutACharacter) {
  Taller e{1};
  e.d.Text1 = u"Lola";
  Command1_Click(e.d, e.t, e.port, 2);
  EXPECT_EQ(e.port.TakeEvents(), (Textos{"beep"}));
  EXPECT_EQ(e.Nombre(1), "P1");
}

TEST(EliminarJugador, AsksFirst) {
  Taller e{3};
  List1_Click(e.d, e.t, e.port, 1);
  const Table antes = e.t;
  e.port.Confirms(false);
  Command1_Click(e.d, e.t, e.port, 1);
  EXPECT_EQ(e.port.TakeEvents(), Textos{PreguntaEliminar("2. P2")});
  EXPECT_EQ(e.t, antes);
  EXPECT_EQ(Entradas(e.d.List1), (Textos{"1. P1", "2. P2", "3. P3"}));
  EXPECT_EQ(e.d.NumPersonajes, 3);
}

TEST(EliminarJugador, MovesTheLaterCharactersOnePlaceDown) {
  Taller e{4};
  List1_Click(e.d, e.t, e.port, 1);
  e.port.Confirms(true);
  Command1_Click(e.d, e.t, e.port, 1);
  EXPECT_EQ(e.d.NumPersonajes, 3);
  EXPECT_EQ(e.Datos(1), (Textos{"P1", "10", "H1"}));
  EXPECT_EQ(e.Datos(2), (Textos{"P3", "30", "H3"}));
  EXPECT_EQ(e.Datos(3), (Textos{"P4", "40", "H4"}));
  EXPECT_EQ(e.FrasesDe(1), Taller::FrasesLlenas(1));
  EXPECT_EQ(e.FrasesDe(2), Taller::FrasesLlenas(3));
  EXPECT_EQ(e.FrasesDe(3), Taller::FrasesLlenas(4));
}

TEST(EliminarJugador, LeavesThePlaceOfTheLastOneWithBlankPhrases) {
  Taller e{2};
  List1_Click(e.d, e.t, e.port, 0);
  e.port.Confirms(true);
  Command1_Click(e.d, e.t, e.port, 1);
  EXPECT_EQ(e.FrasesDe(2), Textos(42, ""));
}

TEST(EliminarJugador, Kept_CountsOneLessForAnEntryBeyondTheCount) {
  Taller e{2};
  CargarPersonajes(e.d, e.t, e.port);
  List1_Click(e.d, e.t, e.port, 2);
  e.port.Confirms(true);
  const Table antes = e.t;
  Command1_Click(e.d, e.t, e.port, 1);
  EXPECT_EQ(e.t, antes);
  EXPECT_EQ(e.d.NumPersonajes, 1);
  EXPECT_EQ(Entradas(e.d.List1), (Textos{"1. P1", "2. P2", "2. P2"}));
}

TEST(EliminarJugador, Kept_TheCountMayFallBelowZero) {
  Taller e{1};
  CargarPersonajes(e.d, e.t, e.port);
  List1_Click(e.d, e.t, e.port, 0);
  e.port.Confirms(true).Confirms(true);
  Command1_Click(e.d, e.t, e.port, 1);
  Command1_Click(e.d, e.t, e.port, 1);
  e.port.TakeEvents();
  Command3_Click(e.d, e.t, e.port, 0);
  EXPECT_EQ(e.port.TakeEvents(), (Textos{"box: Se han guardado datos de -1 jugadores"}));
  EXPECT_EQ(e.carpeta.Read("Jugadores.dat"), "");
}

TEST(EliminarJugador, Kept_LeavesTheOldNumbersAndShowsTheFirstCharacter) {
  Taller e{5};
  List1_Click(e.d, e.t, e.port, 1);
  e.port.Confirms(true);
  Command1_Click(e.d, e.t, e.port, 1);
  EXPECT_EQ(Entradas(e.d.List1), (Textos{"1. P1", "3. P3", "4. P4", "5. P5"}));
  EXPECT_EQ(e.d.List1.ListIndex, 0);
  EXPECT_EQ(Campos(e.d), (Textos{"P1", "10", "H1"}));
  Command3_Click(e.d, e.t, e.port, 0);
  Taller otro;
  otro.carpeta.Write("Jugadores.dat", e.carpeta.Read("Jugadores.dat"));
  Command3_Click(otro.d, otro.t, otro.port, 1);
  EXPECT_EQ(Entradas(otro.d.List1), (Textos{"1. P1", "2. P3", "3. P4", "4. P5"}));
  EXPECT_EQ(otro.Frase(2, 9, 3), "3-9-3");
}

TEST(EliminarJugador, OnlyCountsOneLessForTheLast) {
  Taller e{2};
  List1_Click(e.d, e.t, e.port, 1);
  e.port.Confirms(true);
  const Table antes = e.t;
  Command1_Click(e.d, e.t, e.port, 1);
  EXPECT_EQ(e.t, antes);
  EXPECT_EQ(e.d.NumPersonajes, 1);
}

TEST(EliminarJugador, LeavesNothingShownAfterTheOnlyOne) {
  Taller e{1};
  List1_Click(e.d, e.t, e.port, 0);
  e.port.Confirms(true);
  Command1_Click(e.d, e.t, e.port, 1);
  EXPECT_EQ(Entradas(e.d.List1), Textos{});
  EXPECT_EQ(e.d.List1.ListIndex, -1);
  EXPECT_EQ(Entradas(e.d.List3), Textos{});
  EXPECT_EQ(Campos(e.d), (Textos{"", "", ""}));
  EXPECT_EQ(e.d.NumPersonajes, 0);
}

TEST(EliminarJugador, BeepsWithoutACharacter) {
  Taller e{1};
  Command1_Click(e.d, e.t, e.port, 1);
  EXPECT_EQ(e.port.TakeEvents(), (Textos{"beep"}));
  EXPECT_EQ(e.d.NumPersonajes, 1);
}

TEST(HayCambios, IsTrueFromAChangeUntilItIsSaved) {
  Taller e{2};
  EXPECT_FALSE(HayCambios(e.d, e.t));
  List1_Click(e.d, e.t, e.port, 1);
  EXPECT_FALSE(HayCambios(e.d, e.t));
  e.d.Text1 = u"Lola";
  EXPECT_TRUE(HayCambios(e.d, e.t)) << "typed, and not applied";
  Command1_Click(e.d, e.t, e.port, 2);
  EXPECT_TRUE(HayCambios(e.d, e.t)) << "applied, and not saved";
  Command3_Click(e.d, e.t, e.port, 0);
  EXPECT_FALSE(HayCambios(e.d, e.t));
}

TEST(HayCambios, SeesANewCharacterInAnEmptyEditor) {
  Taller e;
  EXPECT_FALSE(HayCambios(e.d, e.t));
  Command1_Click(e.d, e.t, e.port, 0);
  EXPECT_TRUE(HayCambios(e.d, e.t));
}

}  // namespace
}  // namespace tasca::test
