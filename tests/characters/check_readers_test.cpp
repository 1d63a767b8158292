// Compares the checker with the readers on random files: the first line at which the checker
// reports a stop is the line at which the reader stops.
#include <gtest/gtest.h>

#include <functional>
#include <random>

#include "characters/character_file.h"
#include "characters/check.h"
#include "tests/characters/fichero.h"
#include "tests/characters/paradas.h"
#include "tests/startup/inicio.h"

namespace tasca::test {
namespace {

const Textos Piezas{"Datos>",   "Datos>",  "Datos>",    "Datos>",      "datos>", "Datos> x",
                    "x Datos>", "QMus>",   "qmus>",     "QMus>Datos>", "Otra>",  "Berta",
                    "Default",  "Default", "Default x", "050",         "",       "frase"};

// Up to 100 valid records, so that the limits of 50 and 100 are reached, then random lines.
std::string FicheroAlAzar(std::mt19937& azar) {
  const auto hasta = [&azar](std::size_t limite) { return azar() % limite; };
  std::string bytes;
  const std::size_t buenos = hasta(3) == 0 ? 0 : 45 + hasta(56);
  for (std::size_t i = 0; i < buenos; ++i) bytes += "Datos>\nDefault\n050\nHistoria\n";
  for (std::size_t lineas = hasta(30); lineas > 0; --lineas) {
    bytes += Piezas.at(hasta(Piezas.size())) + "\n";
  }
  return bytes;
}

// Tries a thousand files. Between 100 and 900 of them must stop the reader.
void CompararDondeSeDetiene(std::u16string_view lector, const std::function<void(Table&)>& leer) {
  std::mt19937 azar{1};
  int detenidos = 0;
  for (int i = 0; i < 1000; ++i) {
    Inicio inicio;
    inicio.carpeta.Write("Jugadores.dat", FicheroAlAzar(azar));
    const auto donde = DondeSeDetiene([&] { leer(inicio.t); });
    const Revision revision = RevisarPersonajes(ArchivoPersonajes(inicio.t));
    detenidos += donde ? 1 : 0;
    EXPECT_EQ(DondeDice(revision, lector), donde) << inicio.carpeta.Read("Jugadores.dat");
  }
  EXPECT_GT(detenidos, 100);
  EXPECT_LT(detenidos, 900);
}

TEST(RevisarPersonajes, StopsWhereTheGamesReaderStops) {
  CompararDondeSeDetiene(u"el juego", [](Table& t) { LeerPersonajes(t); });
}

TEST(RevisarPersonajes, StopsWhereTheEditorsReaderStops) {
  CompararDondeSeDetiene(u"el editor", [](Table& t) { LeerPersonajesSinMayusculas(t); });
}

TEST(RevisarPersonajes, FindsWhatStopsTheStartUpDialog) {
  std::mt19937 azar{2};
  int detenidos = 0;
  for (int i = 0; i < 1000; ++i) {
    const std::string bytes = FicheroAlAzar(azar);
    Inicio inicio;
    const auto donde = DondeSeDetiene([&inicio, &bytes] { inicio.Cargar(bytes); });
    const Revision revision = RevisarPersonajes(ArchivoPersonajes(inicio.t));
    detenidos += donde ? 1 : 0;
    EXPECT_TRUE(!donde || DiceEn(revision, *donde, u"el diálogo de inicio")) << bytes;
  }
  EXPECT_GT(detenidos, 100);
  EXPECT_LT(detenidos, 900);
}

TEST(RevisarPersonajes, CountsThePlayersThatTheStartUpDialogOffers) {
  std::mt19937 azar{3};
  int comparados = 0;
  for (int i = 0; i < 1000; ++i) {
    const std::string bytes = FicheroAlAzar(azar);
    Inicio inicio;
    const bool seDetiene = DondeSeDetiene([&] { inicio.Cargar(bytes); }).has_value();
    const int ofrecidos = static_cast<int>(inicio.d.Combo1.List.size()) - 1;
    const int contados = RevisarPersonajes(ArchivoPersonajes(inicio.t)).Ofrecidos;
    EXPECT_TRUE(seDetiene || contados == ofrecidos) << bytes;
    comparados += seDetiene ? 0 : 1;
  }
  EXPECT_GT(comparados, 100);
}

}  // namespace
}  // namespace tasca::test
