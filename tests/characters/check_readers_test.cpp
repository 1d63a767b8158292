// The checker against the readers themselves, over files of lines drawn at random: where a reader
// stops the program, the checker has a fault that says so, and no fault says so of a line before.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <random>

#include "base/endings.h"
#include "characters/character_file.h"
#include "characters/check.h"
#include "tests/characters/fichero.h"
#include "tests/startup/inicio.h"

namespace tasca::test {
namespace {

const Textos Piezas{"Datos>",   "Datos>",  "Datos>",    "Datos>",      "datos>", "Datos> x",
                    "x Datos>", "QMus>",   "qmus>",     "QMus>Datos>", "Otra>",  "Berta",
                    "Default",  "Default", "Default x", "050",         "",       "frase"};

// A lead of good records, so that the limits of 50 and 100 come into play, and then anything.
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

// The line at which a reader ends the program, from its message.
std::optional<int> LineaDe(const RunTimeError& error) {
  const std::string mensaje = Utf8(error.Message());
  const std::string marca = ", línea ";
  const std::size_t en = mensaje.find(marca);
  return en == std::string::npos ? std::nullopt
                                 : std::optional{std::stoi(mensaje.substr(en + marca.size()))};
}

template <class Leer>
std::optional<int> DondeSeDetiene(const Leer& leer) {
  try {
    leer();
    return std::nullopt;
  } catch (const RunTimeError& error) {
    return LineaDe(error);
  }
}

bool Detiene(const Falta& falta, const std::string& lector) {
  const std::string texto = Utf8(falta.Texto);
  if (texto.find("y aquí se detiene el programa") == std::string::npos) return false;
  const std::size_t solo = texto.find("(solo para ");
  return solo == std::string::npos || texto.find(lector, solo) != std::string::npos;
}

// The first line at which the checker has the reader stop.
std::optional<int> DondeDice(const Revision& revision, const std::string& lector) {
  const auto primera =
      std::find_if(revision.Faltas.begin(), revision.Faltas.end(),
                   [&lector](const Falta& falta) { return Detiene(falta, lector); });
  return primera == revision.Faltas.end() ? std::nullopt : std::optional{primera->Linea};
}

bool DiceEn(const Revision& revision, int linea, const std::string& lector) {
  return std::any_of(revision.Faltas.begin(), revision.Faltas.end(), [&](const Falta& falta) {
    return falta.Linea == linea && Detiene(falta, lector);
  });
}

// A thousand files, of which neither few nor most stop the reader.
void CompararDondeSeDetiene(const std::string& lector, const std::function<void(Table&)>& leer) {
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
  CompararDondeSeDetiene("el juego", [](Table& t) { LeerPersonajes(t); });
}

TEST(RevisarPersonajes, StopsWhereTheEditorsReaderStops) {
  CompararDondeSeDetiene("el editor", [](Table& t) { LeerPersonajesSinMayusculas(t); });
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
    EXPECT_TRUE(!donde || DiceEn(revision, *donde, "el diálogo de inicio")) << bytes;
  }
  EXPECT_GT(detenidos, 100);
  EXPECT_LT(detenidos, 900);
}

TEST(RevisarPersonajes, CountsThePlayersThatTheStartUpDialogOffers) {
  std::mt19937 azar{3};
  for (int i = 0; i < 1000; ++i) {
    const std::string bytes = FicheroAlAzar(azar);
    Inicio inicio;
    const bool seDetiene = DondeSeDetiene([&] { inicio.Cargar(bytes); }).has_value();
    const int ofrecidos = static_cast<int>(inicio.d.Combo1.List.size()) - 1;
    const int contados = RevisarPersonajes(ArchivoPersonajes(inicio.t)).Ofrecidos;
    EXPECT_TRUE(seDetiene || contados == ofrecidos) << bytes;
  }
}

}  // namespace
}  // namespace tasca::test
