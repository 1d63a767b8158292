// The data files of the game: format, widths, and the wording of the phrases.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "base/code_page.h"
#include "base/text.h"
#include "characters/character_file.h"
#include "characters/speech.h"
#include "startup/dlg_inicio.h"
#include "startup/settings.h"
#include "table/table.h"
#include "tests/support/draw_list.h"
#include "tests/support/scripted_port.h"
#include "tests/support/tables.h"

namespace tasca::test {
namespace {

using Textos = std::vector<std::string>;
const Textos Ninguno;

std::filesystem::path CarpetaDatos() { return std::filesystem::path{TASCA_SOURCE_DIR} / "data"; }

std::string BytesDe(const std::string& nombre) {
  std::ifstream flujo{CarpetaDatos() / nombre, std::ios::binary};
  return {std::istreambuf_iterator<char>{flujo}, {}};
}

// Splits at CR LF. The last element is what follows the last CR LF.
Textos Lineas(const std::string& bytes) {
  Textos lineas;
  std::size_t desde = 0;
  for (auto fin = bytes.find("\r\n"); fin != std::string::npos; fin = bytes.find("\r\n", desde)) {
    lineas.push_back(bytes.substr(desde, fin - desde));
    desde = fin + 2;
  }
  lineas.push_back(bytes.substr(desde));
  return lineas;
}

// The lines of a character: its record, then for each kind a marker and three phrases.
enum class Clase { Datos, Nombre, Ordaguero, Historia, Marca, Frase };
constexpr std::size_t LineasPorPersonaje = 4 + 14 * 4;

Clase ClaseDe(std::size_t posicion) {
  if (posicion < 4) return static_cast<Clase>(posicion);
  return posicion % 4 == 0 ? Clase::Marca : Clase::Frase;
}

// The lines of the character file for which `falla` is true, with their numbers.
Textos LineasQue(const std::function<bool(Clase, const std::string&)>& falla) {
  Textos lineas = Lineas(BytesDe("Jugadores.dat"));
  lineas.pop_back();
  Textos malas;
  for (std::size_t i = 0; i < lineas.size(); ++i) {
    if (falla(ClaseDe(i % LineasPorPersonaje), lineas[i])) {
      malas.push_back(std::to_string(i + 1) + ": " + Utf8(Decode(lineas[i])));
    }
  }
  return malas;
}

int CuantosPersonajes() {
  return static_cast<int>(Lineas(BytesDe("Jugadores.dat")).size() / LineasPorPersonaje);
}

Table MesaConDatos() {
  Table t;
  t.Carpeta = CarpetaDatos();
  LeerPersonajes(t);
  return t;
}

std::vector<std::u16string> NombresLeidos() {
  const Table t = MesaConDatos();
  std::vector<std::u16string> nombres;
  for (int personaje = 1; personaje <= CuantosPersonajes(); ++personaje) {
    nombres.emplace_back(t.Personajes[personaje].Nombre.Trimmed());
  }
  return nombres;
}

struct FraseLeida {
  int Personaje;
  MessageCategory Categoria;
  std::u16string Texto;
};

std::vector<FraseLeida> Frases() {
  const Table t = MesaConDatos();
  std::vector<FraseLeida> frases;
  for (int personaje = 1; personaje <= CuantosPersonajes(); ++personaje) {
    for (int i = 0; i < 14 * 3; ++i) {
      const auto categoria = static_cast<MessageCategory>(i / 3 + 1);
      const auto texto = Mensaje(t, personaje, categoria, i % 3 + 1).Trimmed();
      frases.push_back({personaje, categoria, std::u16string{texto}});
    }
  }
  return frases;
}

// The phrases, as the game reads them, for which `falla` is true.
Textos FrasesQue(const std::function<bool(const FraseLeida&)>& falla) {
  Textos malas;
  for (const FraseLeida& frase : Frases()) {
    if (!falla(frase)) continue;
    malas.push_back("character " + std::to_string(frase.Personaje) + ", kind " +
                    std::to_string(static_cast<int>(frase.Categoria)) + ": " + Utf8(frase.Texto));
  }
  return malas;
}

TEST(ShippedFile, EndsEveryLineInCrLf) {
  const std::string bytes = BytesDe("Jugadores.dat");
  const auto lineas = std::ssize(Lineas(bytes));
  EXPECT_TRUE(bytes.ends_with("\r\n"));
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n') + 1, lineas);
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\r') + 1, lineas);
}

TEST(ShippedFile, HasNoControlOrUndefinedBytes) {
  EXPECT_EQ(LineasQue([](Clase, const std::string& linea) {
              return std::any_of(linea.begin(), linea.end(), [](char letra) {
                constexpr std::string_view SinLetra{"\x7F\x81\x8D\x8F\x90\x9D\xA0\xAD"};
                const auto byte = static_cast<unsigned char>(letra);
                return byte < ' ' || SinLetra.find(letra) != std::string_view::npos;
              });
            }),
            Ninguno);
}

TEST(ShippedFile, HasTheSameMarkersInOrderForEveryCharacter) {
  EXPECT_EQ(Lineas(BytesDe("Jugadores.dat")).size() % LineasPorPersonaje, 1U);
  std::size_t marcas = 0;
  EXPECT_EQ(LineasQue([&marcas](Clase clase, const std::string& linea) {
              if (clase == Clase::Datos) return linea != "Datos>";
              if (clase != Clase::Marca) return false;
              return linea != Utf8(EtiquetasMensaje.at(marcas++ % 14)) + ">";
            }),
            Ninguno);
}

TEST(ShippedFile, HasTheMarkerSignInMarkersAlone) {
  EXPECT_EQ(LineasQue([](Clase clase, const std::string& linea) {
              const bool esMarca = clase == Clase::Datos || clase == Clase::Marca;
              return !esMarca && linea.find('>') != std::string::npos;
            }),
            Ninguno);
}

TEST(ShippedFile, PadsPhrasesTo100BytesAndTrimsOtherLines) {
  EXPECT_EQ(LineasQue([](Clase clase, const std::string& linea) {
              if (linea.empty() || linea.front() == ' ') return true;
              return clase == Clase::Frase ? linea.size() != 100 : linea.back() == ' ';
            }),
            Ninguno);
}

TEST(ShippedFile, FitsNamesAndWholeStoriesIntoTheirWidths) {
  EXPECT_EQ(LineasQue([](Clase clase, const std::string& linea) {
              if (clase == Clase::Nombre) return linea.size() > 100;
              return clase == Clase::Historia && (linea.size() > 200 || !linea.ends_with('.'));
            }),
            Ninguno);
}

TEST(ShippedFile, GivesOrdagueroThreeDigitsBetween5And95) {
  EXPECT_EQ(LineasQue([](Clase clase, const std::string& linea) {
              if (clase != Clase::Ordaguero) return false;
              const bool sonCifras = linea.find_first_not_of("0123456789") == std::string::npos;
              return linea.size() != 3 || !sonCifras || linea < "005" || linea > "095";
            }),
            Ninguno);
}

TEST(ShippedFile, FillsEverySlotOfEveryCharacter) {
  EXPECT_EQ(Frases().size(), static_cast<std::size_t>(CuantosPersonajes()) * 14 * 3);
  EXPECT_EQ(FrasesQue([](const FraseLeida& frase) {
              return frase.Texto.empty() || frase.Texto.find(u'\0') != std::u16string::npos;
            }),
            Ninguno);
}

TEST(ShippedFile, HasAnAmpersandWhereAnAmountComesAndNowhereElse) {
  EXPECT_EQ(FrasesQue([](const FraseLeida& frase) {
              return Contains(frase.Texto, u"&") != (frase.Categoria == MessageCategory::EnvM);
            }),
            Ninguno);
  EXPECT_EQ(LineasQue([](Clase clase, const std::string& linea) {
              return clase != Clase::Frase && linea.find('&') != std::string::npos;
            }),
            Ninguno);
}

TEST(ShippedFile, BalancesExclamationQuestionAndQuotationMarks) {
  EXPECT_EQ(FrasesQue([](const FraseLeida& frase) {
              const auto cuenta = [&frase](char16_t letra) {
                return std::count(frase.Texto.begin(), frase.Texto.end(), letra);
              };
              return cuenta(u'¡') != cuenta(u'!') || cuenta(u'¿') != cuenta(u'?') ||
                     cuenta(u'«') != cuenta(u'»');
            }),
            Ninguno);
}

TEST(ShippedFile, HasNoPhraseTwice) {
  std::set<std::u16string> dichas;
  EXPECT_EQ(
      FrasesQue([&dichas](const FraseLeida& frase) { return !dichas.insert(frase.Texto).second; }),
      Ninguno);
}

TEST(ShippedFile, StartsEachPhraseOfTheIndirectSetAndNoOtherWithQue) {
  EXPECT_EQ(FrasesQue([](const FraseLeida& frase) {
              if (frase.Personaje == 1) return !frase.Texto.starts_with(u"que ");
              return frase.Texto.starts_with(u"que");
            }),
            Ninguno);
}

// "Envido, que ...", "No hay mus, primo, que ...": at a real table this is rare.
TEST(ShippedFile, FollowsTheKeyWordByQueInFewerThanOneOfEightPhrases) {
  const std::regex formula{
      "(mus|pares|juego|sí|no|aso|nvido|nvido &|rdago|uiero),( [^,:;.!?]+,)? (¡)?que "};
  const auto deJugador = [](const FraseLeida& frase) { return frase.Personaje > 2; };
  const std::size_t todas = FrasesQue(deJugador).size();
  const Textos explicadas = FrasesQue([&](const FraseLeida& frase) {
    return deJugador(frase) && std::regex_search(Utf8(frase.Texto), formula);
  });
  EXPECT_EQ(todas, 16U * 14 * 3);
  EXPECT_LT(explicadas.size() * 8, todas) << testing::PrintToString(explicadas);
}

TEST(ShippedFile, HasNoRefusalOfMusThatBeginsLikeAnAcceptance) {
  EXPECT_EQ(FrasesQue([](const FraseLeida& frase) {
              return frase.Categoria == MessageCategory::NMus &&
                     (frase.Texto.starts_with(u"Mus,") || frase.Texto.starts_with(u"Mus no"));
            }),
            Ninguno);
}

TEST(ShippedFile, HasExclamationsInAtMostHalfOfPacasPhrases) {
  const std::vector<std::u16string> nombres = NombresLeidos();
  const auto paca = std::find(nombres.begin(), nombres.end(), u"Paca la pescadera");
  ASSERT_NE(paca, nombres.end());
  const int personaje = static_cast<int>(paca - nombres.begin()) + 1;
  const Textos gritos = FrasesQue([personaje](const FraseLeida& frase) {
    return frase.Personaje == personaje && Contains(frase.Texto, u"¡");
  });
  EXPECT_GT(gritos.size(), 0U);
  EXPECT_LE(gritos.size(), 14U * 3 / 2) << testing::PrintToString(gritos);
}

TEST(ShippedFile, StartsWithTheTwoDefaultSetsAndHasNoOther) {
  const std::vector<std::u16string> nombres = NombresLeidos();
  ASSERT_GE(nombres.size(), 2U);
  EXPECT_EQ(Utf8(nombres[0]), "Default estilo indirecto");
  EXPECT_EQ(Utf8(nombres[1]), "Default estilo directo");
  EXPECT_TRUE(std::none_of(nombres.begin() + 2, nombres.end(), [](const std::u16string& nombre) {
    return Contains(nombre, u"Default");
  }));
}

TEST(ShippedFile, OffersSixteenCharactersOfDifferentNames) {
  const std::vector<std::u16string> nombres = NombresLeidos();
  EXPECT_EQ(nombres.size(), 18U);
  EXPECT_EQ(std::set<std::u16string>(nombres.begin(), nombres.end()).size(), nombres.size());
}

TEST(ShippedFile, IsWrittenBackByteForByte) {
  Table t;
  t.Carpeta = CarpetaDatos();
  const int cuantos = LeerPersonajesSinMayusculas(t);
  EXPECT_EQ(TextoPersonajes(t, cuantos), BytesDe("Jugadores.dat"));
}

TEST(ShippedFile, HasTwoNamesThatTheCountContractsToDel) {
  const std::vector<std::u16string> nombres = NombresLeidos();
  const auto empiezan = [&nombres](std::u16string_view principio) {
    return std::count_if(nombres.begin(), nombres.end(), [principio](const std::u16string& nombre) {
      return nombre.starts_with(principio);
    });
  };
  EXPECT_GE(empiezan(u"el "), 2);
  // A name such as "elena" would become "delena".
  EXPECT_EQ(empiezan(u"el"), empiezan(u"el "));
}

TEST(ShippedFile, OffersAllOtherCharactersWithTheirStories) {
  Table t;
  t.Carpeta = CarpetaDatos();
  Rnd rnd;
  ScriptedPort port;
  Game g{t, rnd, port};
  DlgInicio d;
  Form_Load(d, g);
  std::vector<std::u16string> ofrecidos{u"Default estilo indirecto", u"Default estilo directo"};
  int sinHistoria = 0;
  for (std::size_t i = 1; i < d.Combo1.List.size(); ++i) {
    ofrecidos.push_back(d.Combo1.List[i].Texto);
    if (!d.HistoriaInicio[d.Combo1.List[i].Personaje].Trimmed().ends_with(u'.')) ++sinHistoria;
  }
  EXPECT_EQ(ofrecidos, NombresLeidos());
  EXPECT_EQ(sinHistoria, 0);
}

TEST(ShippedFile, GivesTheBoticariaTheParesPhraseOfThePreview) {
  const std::vector<std::u16string> nombres = NombresLeidos();
  const auto boticaria = std::find(nombres.begin(), nombres.end(), u"La boticaria");
  ASSERT_NE(boticaria, nombres.end());
  const int personaje = static_cast<int>(boticaria - nombres.begin()) + 1;
  const Table t = MesaConDatos();
  EXPECT_EQ(Utf8(Mensaje(t, personaje, MessageCategory::TPar, 1).Trimmed()), "Sí, como bueyes");
}

struct FraseDicha {
  MessageCategory Categoria;
  int Cantidad;
  std::string Directo;
  std::string Indirecto;
};

class ShippedDefaults : public testing::TestWithParam<FraseDicha> {};

// The human's line in both styles.
TEST_P(ShippedDefaults, GiveTheHumanAPlainLine) {
  const auto dice = [](bool directo) {
    Table t = MesaConDatos();
    t.NombreJugador = u"Ana";
    t.EstiloDirecto = directo;
    DrawList rnd{};
    DiceJugador(t, rnd, AsientoHumano, GetParam().Categoria, GetParam().Cantidad);
    return Utf8(t.Text2);
  };
  EXPECT_EQ(dice(true), "Ana: " + GetParam().Directo + "\r\n");
  EXPECT_EQ(dice(false), "Ana dice " + GetParam().Indirecto + "\r\n");
}

INSTANTIATE_TEST_SUITE_P(
    ShippedFile, ShippedDefaults,
    testing::Values(
        FraseDicha{MessageCategory::QMus, SinCantidad, "Quiero mus", "que quiere mus"},
        FraseDicha{MessageCategory::NMus, SinCantidad, "No quiero mus", "que no quiere mus"},
        FraseDicha{MessageCategory::TPar, SinCantidad, "Sí tengo pares", "que tiene pares"},
        FraseDicha{MessageCategory::NPar, SinCantidad, "No tengo pares", "que no tiene pares"},
        FraseDicha{MessageCategory::TJue, SinCantidad, "Sí tengo juego", "que tiene juego"},
        FraseDicha{MessageCategory::NJue, SinCantidad, "No tengo juego", "que no tiene juego"},
        FraseDicha{MessageCategory::Paso, SinCantidad, "Paso", "que pasa"},
        FraseDicha{MessageCategory::Envi, SinCantidad, "Envido", "que envida"},
        FraseDicha{MessageCategory::EnvM, 1, "Envido 1", "que envida 1"},
        FraseDicha{MessageCategory::EnvM, 30, "Envido 30", "que envida 30"},
        FraseDicha{MessageCategory::Orda, SinCantidad, "¡Órdago!", "que echa un órdago"},
        FraseDicha{MessageCategory::NQui, SinCantidad, "No quiero", "que no quiere"},
        FraseDicha{MessageCategory::SQui, SinCantidad, "Quiero", "que quiere"}));

TEST(ShippedFile, SetsTheDefaultMatchParameters) {
  Table t;
  t.Carpeta = CarpetaDatos();
  LeerParametrosPartida(t);
  EXPECT_EQ(t.PiedrasJuego, 35);
  EXPECT_EQ(t.JuegosVaca, 3);
  EXPECT_EQ(t.VacasPartida, 3);
}

TEST(ShippedFile, HasTheDefaultPlayerNameInTheSettings) {
  const Textos lineas = Lineas(BytesDe("mus.ini"));
  ASSERT_EQ(lineas.size(), 5U);
  EXPECT_EQ(Utf8(Decode(lineas[3])), "Jugador 1> Nombre del último jugador");
  EXPECT_EQ(lineas[4], "");
  EXPECT_EQ(Utf8(LeerIni(MesaConDatos())), "Jugador 1");
}

}  // namespace
}  // namespace tasca::test
