// The functions of the module, called as the page calls them.
#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <memory>
#include <nlohmann/json.hpp>

#include "tests/support/temp_folder.h"
#include "tests/traces/read_file.h"
#include "ui/utf8.h"

namespace tasca {
struct Pagina;
}

using tasca::Pagina;

// Every letter is as wide as half the letters are high, and bold ones a tenth wider.
extern "C" double anchoEnLaPagina(const char16_t* /*texto*/, int largo, double factor,
                                  int negrita) {
  return 8.0 * largo * factor * (negrita != 0 ? 1.1 : 1);
}

extern "C" {
Pagina* tasca_nueva();
int tasca_largo(const Pagina* p);
const char* tasca_abrir(Pagina* p, const char* bytes, int cuantos, int segundos);
const char* tasca_elige(Pagina* p, int combo, int posicion);
const char* tasca_marca(Pagina* p, int casilla, int marcada);
const char* tasca_estilo(Pagina* p, int cual);
const char* tasca_aceptar(Pagina* p, const char* nombre, int segundos);
const char* tasca_tecla(Pagina* p, int codigo, int mayusculas, int segundos);
const char* tasca_responde(Pagina* p, int clase, int numero, const char* texto, int segundos);
const char* tasca_finDeSonido(Pagina* p, int estado, int segundos);
const char* tasca_salir(Pagina* p);
const char* tasca_guardada(Pagina* p);
const char* tasca_reparoAlNombre(Pagina* p, const char* nombre);
const char* tasca_lamina(Pagina* p, double ancho, double alto, double letra);
const char* tasca_marcador(Pagina* p, double ancho, double alto, double letra);
const char* tasca_reparto(Pagina* p, const double* medidas);
const char* tasca_sitioDeCaja(Pagina* p, const double* medidas);
const char* tasca_mesaHablada(Pagina* p);
const char* tasca_escucha(Pagina* p, int que);
const char* tasca_cronica(Pagina* p);
const char* tasca_manual(Pagina* p);
const char* tasca_version(Pagina* p);
const char* tasca_leerArchivo(Pagina* p, const char* nombre);
void tasca_ponArchivo(Pagina* p, const char* nombre, const char* bytes, int cuantos);
const char* tasca_revisar(Pagina* p, const char* bytes, int cuantos);
}

namespace tasca::test {
namespace {

using Objeto = nlohmann::json;

constexpr int Enter = 13;
constexpr int LasNueveYCuarto = (21 * 60 + 15) * 60;

// A page whose files are in the current folder, as in the module.
class Modulo : public testing::Test {
 protected:
  void SetUp() override {
    std::filesystem::current_path(carpeta_.Path());
    const std::string personajes = ReadFile(TASCA_SOURCE_DIR "/data/Jugadores.dat");
    tasca_ponArchivo(pagina_, "Jugadores.dat", personajes.data(),
                     static_cast<int>(personajes.size()));
    const std::string ini = "35\r\n3\r\n3\r\nLola> Nombre\r\n";
    tasca_ponArchivo(pagina_, "mus.ini", ini.data(), static_cast<int>(ini.size()));
    tasca_abrir(pagina_, "", 0, LasNueveYCuarto);
  }
  void TearDown() override { std::filesystem::current_path(antes_); }

  void Sentarse() { tasca_aceptar(pagina_, "Íñigo", LasNueveYCuarto); }
  Objeto Pulsar() { return Objeto::parse(tasca_tecla(pagina_, Enter, 0, LasNueveYCuarto)); }

  std::filesystem::path antes_ = std::filesystem::current_path();
  TempFolder carpeta_;
  Pagina* pagina_ = tasca_nueva();  // lives as long as the program, as in the module
};

TEST_F(Modulo, TakesTextsAsUtf8) {
  Sentarse();
  const std::string ini = tasca_leerArchivo(pagina_, "mus.ini");
  EXPECT_EQ(ini.find("\xCD\xF1igo> "), ini.find("35") + 10) << "Windows-1252";
  EXPECT_STREQ(tasca_reparoAlNombre(pagina_, "Íñigo"), "");
  EXPECT_STRNE(tasca_reparoAlNombre(pagina_, "Íñigo 一"), "");
}

TEST_F(Modulo, TellsWhatIsImpossible) {
  EXPECT_TRUE(Objeto::parse(tasca_tecla(pagina_, Enter, 0, 0)).contains("imposible"));
  EXPECT_TRUE(Objeto::parse(tasca_elige(pagina_, 9, 0)).contains("imposible"));
  EXPECT_TRUE(Objeto::parse(tasca_marca(pagina_, 9, 0)).contains("imposible"));
  EXPECT_TRUE(Objeto::parse(tasca_estilo(pagina_, 9)).contains("imposible"));
  EXPECT_TRUE(Objeto::parse(tasca_responde(pagina_, 0, 0, "", 0)).contains("imposible"));
}

TEST_F(Modulo, GoesOnWithTheBytesThatItGave) {
  Sentarse();
  Objeto vista = Pulsar();
  ASSERT_FALSE(vista["pregunta"].is_null());
  const char* const bytes = tasca_guardada(pagina_);
  const std::string guardada{bytes, static_cast<std::size_t>(tasca_largo(pagina_))};
  const auto cuantos = static_cast<int>(guardada.size());
  const Objeto otra =
      Objeto::parse(tasca_abrir(tasca_nueva(), guardada.data(), cuantos, LasNueveYCuarto));
  EXPECT_EQ(otra["pregunta"], vista["pregunta"]);
  constexpr int No = 2;
  vista = Objeto::parse(tasca_responde(pagina_, No, 0, "", LasNueveYCuarto));
  EXPECT_EQ(vista["situacion"], "mesa");
  EXPECT_EQ(Objeto::parse(tasca_finDeSonido(pagina_, 0, 0))["situacion"], "mesa");
  EXPECT_EQ(Objeto::parse(tasca_salir(pagina_))["situacion"], "fin");
}

TEST_F(Modulo, SeedsTheGeneratorFromTheSeconds) {
  // At 21:15:07 the seed is 22 x 16 x 8, at 21:31:03 it is 22 x 32 x 4.
  const auto cartas = [this](int segundos) {
    tasca_abrir(pagina_, "", 0, 0);
    return Objeto::parse(tasca_aceptar(pagina_, "Ana", segundos))["textos"][0];
  };
  EXPECT_EQ(cartas((21 * 60 + 15) * 60 + 7), cartas((21 * 60 + 31) * 60 + 3));
  EXPECT_NE(cartas((21 * 60 + 15) * 60 + 7), cartas((21 * 60 + 15) * 60 + 8));
}

TEST_F(Modulo, LaysTheTableOutWithTheLettersOfThePage) {
  Sentarse();
  const Objeto lamina = Objeto::parse(tasca_lamina(pagina_, 900, 600, 16));
  EXPECT_EQ(lamina["suelo"], Objeto::parse("[0, 0, 900, 600]"));
  EXPECT_EQ(lamina["letra"], 16);
  EXPECT_EQ(lamina["toca"], "enter");
  EXPECT_FALSE(Objeto::parse(tasca_marcador(pagina_, 300, 200, 16))["piezas"].empty());
}

TEST_F(Modulo, TakesTheMeasuresOfTheWindowInTheirOrder) {
  const std::array medidas{1200.0, 800.0, 0.0,  16.0, 1.0,  24.0,
                           200.0,  20.0,  21.0, 22.0, 16.0, 60.0};
  const Objeto partes = Objeto::parse(tasca_reparto(pagina_, medidas.data()));
  EXPECT_EQ(partes["modo"], "alLado");
  EXPECT_EQ(partes["texto3"][3], 24) << "altoTanteo";
  EXPECT_EQ(partes["ayuda"][3], 21) << "altoAyuda";
  EXPECT_EQ(partes["texto1"][3], 60) << "altoTexto1";
}

TEST_F(Modulo, TakesTheRectanglesAroundABoxInTheirOrder) {
  const std::array libre{100.0, 50.0, 0.0, 0.0, 800.0, 600.0, 200.0, 200.0, 300.0, 300.0, 0.0, 0.0};
  EXPECT_STREQ(tasca_sitioDeCaja(pagina_, libre.data()), "[300,325,100,50]");
  // Without free cloth: the lower right corner, or the left half if the right one is never covered.
  const std::array nunca{100.0, 50.0, 0.0, 0.0,   800.0, 600.0, 0.0,   0.0,
                         0.0,   0.0,  1.0, 400.0, 0.0,   400.0, 600.0, 0.0};
  const Objeto caja = Objeto::parse(tasca_sitioDeCaja(pagina_, nunca.data()));
  EXPECT_LE(caja[0].get<int>() + 100, 400);
}

TEST_F(Modulo, AnswersWhatThePlayerAsksFor) {
  Sentarse();
  EXPECT_NE(std::string{tasca_escucha(pagina_, 0)}.find("Pulse enter para empezar"),
            std::string::npos);
  const std::string mano = tasca_escucha(pagina_, 1);
  EXPECT_EQ(std::count(mano.begin(), mano.end(), ','), 3) << "four cards";
  EXPECT_NE(tasca_escucha(pagina_, 2), mano);
  EXPECT_NE(std::string{tasca_escucha(pagina_, 3)}.find("mano"), std::string::npos);
  EXPECT_GT(Objeto::parse(tasca_mesaHablada(pagina_)).size(), 8);
  EXPECT_NE(std::string{tasca_cronica(pagina_)}.find("— Mano 1 —"), std::string::npos);
}

TEST_F(Modulo, HoldsTheManualAndItsVersion) {
  EXPECT_FALSE(Objeto::parse(tasca_manual(pagina_))["capitulos"].empty());
  EXPECT_NE(std::string{tasca_version(pagina_)}.find('.'), std::string::npos);
}

TEST_F(Modulo, ChecksACharacterFile) {
  EXPECT_EQ(Objeto::parse(tasca_revisar(pagina_, "hola", 4))["sirve"], false);
}

}  // namespace
}  // namespace tasca::test
