// Bringing characters of another file: reading it, limits and equal names.
#include "characters/bring.h"

#include <gtest/gtest.h>

#include <memory>
#include <numeric>

#include "base/code_page.h"
#include "tests/characters/taller.h"
#include "tests/support/errors.h"

namespace tasca::test {
namespace {

// One record with a phrase for the first kind.
std::string FichaDe(const std::string& nombre, const std::string& historia = "Una historia.") {
  return "Datos>\r\n" + nombre + "\r\n050\r\n" + historia + "\r\nQMus>\r\nfrase de " + nombre +
         "\r\n";
}

// An editor with the characters "P1" to "Pn" and another file.
struct Traslado : Taller {
  explicit Traslado(int personajes, const std::string& bytes = "") : Taller{personajes} {
    carpeta.Write("otro.dat", bytes);
  }
  std::filesystem::path Otro() const { return carpeta.Path() / "otro.dat"; }
  // Brings the characters of these positions.
  void Traer(const std::vector<int>& elegidos) {
    port.Opens(Otro()).Chooses(elegidos);
    TraerPersonajes(d, t, port);
  }
  std::string Ultimo() { return port.TakeEvents().back(); }
  // Expects the events of a file that cannot be used, and that nothing changes.
  void EsperarRechazo(const std::string& mensaje) {
    const Table antes = t;
    const Textos lista = Entradas(d.List1);
    port.Opens(Otro());
    TraerPersonajes(d, t, port);
    EXPECT_EQ(port.TakeEvents(),
              (Textos{"file[Traer personajes]", "box: " + Otro().string() + mensaje}));
    EXPECT_EQ(t, antes);
    EXPECT_EQ(Entradas(d.List1), lista);
    EXPECT_FALSE(HayCambios(d, t));
  }
};

std::vector<Candidato> Nuevos(int cuantos, std::u16string_view nombre = u"Nuevo ") {
  std::vector<Candidato> candidatos;
  for (int i = 1; i <= cuantos; ++i)
    candidatos.push_back({.Nombre = Join(nombre, i), .Historia = {}});
  return candidatos;
}

std::string Reparo(int yaHay, const std::vector<Candidato>& candidatos) {
  const auto t = std::make_unique<Table>();
  std::vector<int> todos(candidatos.size());
  std::iota(todos.begin(), todos.end(), 0);
  const Numeracion numeracion = Numerar(candidatos, todos, *t, yaHay, Repetidos::Sustituir);
  return Utf8(ReparoANumeracion(numeracion, candidatos, yaHay));
}

TEST(LeerOtroArchivo, ReadsItAsTheEditorDoes) {
  Traslado e{0, "datos>\r\nLola\r\n070\r\nBaila.\r\nqmus>\r\nmus\r\n"};
  const auto otros = std::make_unique<Table>();
  EXPECT_EQ(LeerOtroArchivo(e.Otro(), *otros), 1);
  EXPECT_EQ(Utf8(otros->Personajes[1].Nombre.Trimmed()), "Lola");
  EXPECT_EQ(otros->Personajes[1].Ordaguero, 70);
  EXPECT_EQ(Utf8(otros->Mensajes[1][1][1].Trimmed()), "mus");
}

TEST(LeerOtroArchivo, RefusesAFileWithoutCharacters) {
  for (const std::string bytes : {"", "QMus>\r\n"}) {
    Traslado e{0, bytes};
    const auto otros = std::make_unique<Table>();
    EXPECT_EQ(ErrorOf([&] { LeerOtroArchivo(e.Otro(), *otros); }),
              e.Otro().string() +
                  ": no hay ningún personaje en el archivo. El programa va a terminar su "
                  "ejecución.");
  }
}

TEST(CandidatosDe, TellsTheStoriesAndWhoIsThereAlready) {
  Traslado e{2, FichaDe("P2", "Otra.") + FichaDe("p1")};
  const auto otros = std::make_unique<Table>();
  const int cuantos = LeerOtroArchivo(e.Otro(), *otros);
  EXPECT_EQ(CandidatosDe(*otros, cuantos, e.t, 2),
            (std::vector<Candidato>{{.Nombre = u"P2", .Historia = u"Otra.", .YaEsta = true},
                                    {.Nombre = u"p1", .Historia = u"Una historia."}}));
  EXPECT_FALSE(CandidatosDe(*otros, cuantos, e.t, 1).front().YaEsta) << "P2 is no longer edited";
}

TEST(Numerar, AddsAfterTheLastOneInTheOrderOfTheFile) {
  const Taller e{3};
  const Numeracion numeracion = Numerar(Nuevos(4), {0, 3}, e.t, 3, Repetidos::Sustituir);
  EXPECT_EQ(numeracion.Traidos,
            (std::vector<Traido>{{.Otro = 1, .Numero = 4}, {.Otro = 4, .Numero = 5}}));
  EXPECT_EQ(numeracion.NumPersonajes, 5);
}

TEST(Numerar, GivesARepeatedOneThePlaceOfTheOtherOrLeavesItOut) {
  const Taller e{3};
  std::vector<Candidato> candidatos = Nuevos(2);
  candidatos.front() = {.Nombre = u"P2", .Historia = {}, .YaEsta = true};
  EXPECT_EQ(Numerar(candidatos, {0, 1}, e.t, 3, Repetidos::Sustituir).Traidos,
            (std::vector<Traido>{{.Otro = 1, .Numero = 2}, {.Otro = 2, .Numero = 4}}));
  EXPECT_EQ(Numerar(candidatos, {0, 1}, e.t, 3, Repetidos::Dejar).Traidos,
            (std::vector<Traido>{{.Otro = 2, .Numero = 4}}));
}

TEST(Numerar, LosesNoneOfTwoChosenOnesOfTheSameName) {
  const Taller e{2};
  const Candidato repetido{.Nombre = u"P1", .Historia = {}, .YaEsta = true};
  EXPECT_EQ(Numerar({repetido, repetido}, {0, 1}, e.t, 2, Repetidos::Sustituir).Traidos,
            (std::vector<Traido>{{.Otro = 1, .Numero = 1}, {.Otro = 2, .Numero = 3}}));
}

TEST(ReparoANumeracion, AllowsFiftyForTheGame) {
  EXPECT_EQ(Reparo(0, Nuevos(50)), "");
  EXPECT_EQ(Reparo(49, Nuevos(1)), "");
  EXPECT_EQ(Reparo(48, Nuevos(3)),
            "No caben todos: el juego solo puede ofrecer los 50 primeros personajes del archivo, y "
            "ya tiene 48. Elija menos, o elimine antes alguno de los suyos.");
}

TEST(ReparoANumeracion, AllowsAHundredThatTheGameDoesNotOffer) {
  EXPECT_EQ(Reparo(50, Nuevos(50, u"Default ")), "");
  EXPECT_EQ(Reparo(99, Nuevos(2, u"Default ")),
            "No caben todos: en el archivo caben 100 personajes, y ya tiene 99. Elija menos, o "
            "elimine antes alguno de los suyos.");
}

TEST(ReparoANumeracion, AllowsAReplacementBeyondTheLimit) {
  const Taller e{60};
  const std::vector<Candidato> candidatos{{.Nombre = u"P60", .Historia = {}, .YaEsta = true}};
  const Numeracion numeracion = Numerar(candidatos, {0}, e.t, 60, Repetidos::Sustituir);
  EXPECT_EQ(ReparoANumeracion(numeracion, candidatos, 60), u"");
}

TEST(TraerPersonajes, AddsTheChosenOnesWithTheirPhrasesAndWritesNothing) {
  Traslado e{2, FichaDe("Lola") + FichaDe("Paco") + FichaDe("Eva")};
  const std::string antes = e.carpeta.Read("Jugadores.dat");
  e.Traer({0, 2});
  EXPECT_EQ(e.port.TakeEvents(),
            (Textos{"file[Traer personajes]", "choice of 3[]",
                    "box: Se han traído 2 personajes. Para conservarlos, pulse «Guardar en "
                    "disco»."}));
  EXPECT_EQ(Entradas(e.d.List1), (Textos{"1. P1", "2. P2", "3. Lola", "4. Eva"}));
  EXPECT_EQ(e.d.NumPersonajes, 4);
  EXPECT_EQ(e.Datos(4), (Textos{"Eva", "50", "Una historia."}));
  EXPECT_EQ(e.Frase(4, 1, 1), "frase de Eva");
  EXPECT_TRUE(HayCambios(e.d, e.t));
  EXPECT_EQ(e.carpeta.Read("Jugadores.dat"), antes);
  EXPECT_EQ(e.carpeta.Names(), (Textos{"Jugadores.dat", "otro.dat"}));
}

TEST(TraerPersonajes, LeavesNoPhraseOfAnEarlierCharacterInItsPlace) {
  Traslado e{2, FichaDe("Lola")};
  List1_Click(e.d, e.t, e.port, 1);
  e.port.Confirms(true);
  Command1_Click(e.d, e.t, e.port, 1);
  e.Traer({0});
  EXPECT_EQ(e.Nombre(2), "Lola");
  EXPECT_TRUE(e.NuncaLlenada(2, 5, 1));
}

TEST(TraerPersonajes, ReplacesTheOneOfThatNameOnYes) {
  Traslado e{3, FichaDe("P2")};
  List1_Click(e.d, e.t, e.port, 1);
  e.port.Answers(true);
  e.Traer({0});
  EXPECT_EQ(e.port.TakeEvents(),
            (Textos{"file[Traer personajes]", "choice of 1[]",
                    "yesno[Traer personajes]: Ya tiene un personaje que se llama P2. ¿Sustituirlo "
                    "por el del archivo? Con «No» se queda el que tiene; con «Cancelar» no se trae "
                    "ninguno.",
                    "box: Se ha traído un personaje. Para conservarlo, pulse «Guardar en "
                    "disco»."}));
  EXPECT_EQ(e.d.NumPersonajes, 3);
  EXPECT_EQ(Entradas(e.d.List1), (Textos{"1. P1", "2. P2", "3. P3"}));
  EXPECT_EQ(Campos(e.d), (Textos{"P2", "50", "Una historia."})) << "it is the one that is shown";
  EXPECT_EQ(Entradas(e.d.List3).front(), "frase de P2");
  EXPECT_EQ(e.d.List3.ListIndex, 1);
  EXPECT_EQ(e.Datos(3), (Textos{"P3", "30", "H3"}));
}

TEST(TraerPersonajes, LeavesTheOneOfThatNameOnNo) {
  Traslado e{3, FichaDe("P2") + FichaDe("Lola")};
  e.port.Answers(false);
  e.Traer({0, 1});
  EXPECT_EQ(e.Datos(2), (Textos{"P2", "20", "H2"}));
  EXPECT_EQ(e.Nombre(4), "Lola");
  EXPECT_EQ(e.d.NumPersonajes, 4);
  e.port.Answers(false);
  e.Traer({0});
  EXPECT_EQ(e.Ultimo(), "box: No se ha traído ningún personaje.");
}

TEST(TraerPersonajes, BringsNothingOnCancel) {
  Traslado e{3, FichaDe("P2") + FichaDe("Lola")};
  const Table antes = e.t;
  e.port.Answers(std::nullopt);
  e.Traer({0, 1});
  e.port.Opens(e.Otro()).Chooses({});
  TraerPersonajes(e.d, e.t, e.port);
  e.port.Opens({});
  TraerPersonajes(e.d, e.t, e.port);
  EXPECT_EQ(e.Ultimo(), "file[Traer personajes]");
  EXPECT_EQ(e.t, antes);
  EXPECT_EQ(e.d.NumPersonajes, 3);
  EXPECT_FALSE(HayCambios(e.d, e.t));
}

TEST(TraerPersonajes, NamesAllRepeatedOnesOnceUpToTheTenth) {
  std::string bytes = FichaDe("P1");
  for (int i = 1; i <= 12; ++i) bytes += FichaDe("P" + std::to_string(i));
  Traslado e{12, bytes};
  e.port.Answers(std::nullopt);
  e.Traer({0, 1, 2, 3});
  EXPECT_EQ(e.Ultimo(),
            "yesno[Traer personajes]: Ya tiene personajes que se llaman P1, P2 y P3. "
            "¿Sustituirlos por los del archivo? Con «No» se quedan los que tiene; con «Cancelar» "
            "no se trae ninguno.");
  e.port.Answers(std::nullopt);
  e.Traer({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
  EXPECT_NE(e.Ultimo().find("P8, P9, P10 y 2 más."), std::string::npos);
}

TEST(TraerPersonajes, CallsACharacterWithoutANameSo) {
  Traslado e{1, FichaDe("")};
  e.t.Personajes[1].Nombre = u"";
  e.port.Answers(std::nullopt);
  e.Traer({0});
  EXPECT_NE(e.Ultimo().find("que se llama (sin nombre)."), std::string::npos);
}

TEST(TraerPersonajes, LetsTheUserChooseAgainAmongTooMany) {
  Traslado e{49, FichaDe("Lola") + FichaDe("Eva")};
  e.port.Opens(e.Otro()).Chooses({0, 1}).Chooses({1});
  TraerPersonajes(e.d, e.t, e.port);
  const Textos sucesos = e.port.TakeEvents();
  ASSERT_EQ(sucesos.size(), 5U);
  EXPECT_EQ(sucesos.at(2),
            "box: No caben todos: el juego solo puede ofrecer los 50 primeros personajes del "
            "archivo, y ya tiene 49. Elija menos, o elimine antes alguno de los suyos.");
  EXPECT_EQ(sucesos.at(3), "choice of 2[0 1]");
  EXPECT_EQ(e.d.NumPersonajes, 50);
  EXPECT_EQ(e.Nombre(50), "Eva");
}

TEST(TraerPersonajes, KeepsTextsThatHaveBeenTyped) {
  Traslado e{2, FichaDe("P2")};
  List1_Click(e.d, e.t, e.port, 1);
  e.d.Text3 = u"a medias";
  e.port.Answers(true);
  e.Traer({0});
  EXPECT_EQ(Campos(e.d), (Textos{"P2", "20", "a medias"}));
  EXPECT_EQ(e.Datos(2), (Textos{"P2", "50", "Una historia."}));
}

TEST(TraerPersonajes, DemandsThatTheOwnFileIsLoadedFirst) {
  Traslado e{2, FichaDe("Lola")};
  Dialog1 vacio;
  Form_Load(vacio);
  TraerPersonajes(vacio, e.t, e.port);
  EXPECT_EQ(e.port.TakeEvents(),
            (Textos{"box: Pulse antes «Cargar de disco». Si no, al guardar se perderían los "
                    "personajes que tiene."}));
}

TEST(TraerPersonajes, FillsAnEditorWithoutAFileOfItsOwn) {
  Traslado e{0, FichaDe("Lola")};
  e.Traer({0});
  EXPECT_EQ(Entradas(e.d.List1), (Textos{"1. Lola"}));
  EXPECT_EQ(e.d.List1.ListIndex, -1);
  GuardarPersonajes(e.d, e.t, e.port);
  EXPECT_FALSE(HayCambios(e.d, e.t));
  EXPECT_EQ(e.carpeta.Read("Jugadores.dat").substr(0, 14), "Datos>\r\nLola\r\n");
}

TEST(TraerPersonajes, StartsAtTheFirstRecordIfTheCountIsBelowZero) {
  Traslado e{0, FichaDe("Lola")};
  e.d.NumPersonajes = -1;
  e.Traer({0});
  EXPECT_EQ(Entradas(e.d.List1), (Textos{"1. Lola"}));
  EXPECT_EQ(e.d.NumPersonajes, 1);
}

TEST(TraerPersonajes, ReportsAFileThatCannotBeUsed) {
  Traslado{2, FichaDe("Lola") + "Datos>\r\nEva\r\n"}.EsperarRechazo(
      ", línea 9: el archivo se acaba y falta el valor de ordaguero del personaje.");
  Traslado{2, "esto no es un archivo de personajes\r\n"}.EsperarRechazo(
      ", línea 1: hay una frase antes del primer personaje.");
  Traslado{2, std::string((std::size_t{1} << 20U) + 1, 'x')}.EsperarRechazo(
      ", línea 1: la línea es demasiado larga.");
  Traslado{2, FichaDe("Lola") + FichaDe("T\xC3\xADo")}.EsperarRechazo(
      ", línea 8: el archivo parece guardado en UTF-8, y así sus acentos se ven mal: guárdelo en "
      "Windows-1252 (ANSI).");
  std::string muchos;
  for (int i = 0; i < 101; ++i) muchos += FichaDe("Lola");
  Traslado{2, muchos}.EsperarRechazo(", línea 601: hay más de 100 personajes.");
}

TEST(TraerPersonajes, ReportsAMissingFileAndAFolder) {
  Traslado e{2};
  std::filesystem::remove(e.Otro());
  e.EsperarRechazo(": no se encuentra el archivo.");
  std::filesystem::create_directory(e.Otro());
  e.EsperarRechazo(": no es un archivo.");
}

}  // namespace
}  // namespace tasca::test
