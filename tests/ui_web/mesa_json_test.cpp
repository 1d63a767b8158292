// The drawn table as JSON.
#include "ui/web/mesa_json.h"

#include <gtest/gtest.h>

#include <map>
#include <nlohmann/json.hpp>
#include <random>
#include <set>

#include "tests/ui_mesa/scenes.h"

namespace tasca::test {
namespace {

using Objeto = nlohmann::json;

Objeto Unica(const Pieza& pieza) { return Objeto::parse(JsonDePiezas({pieza}))["piezas"][0]; }

constexpr Rect Sitio{.X = 1, .Y = 2, .Ancho = 3, .Alto = 4};

TEST(JsonDePiezas, NamesACardByItsPicture) {
  EXPECT_EQ(Unica(CartaPuesta{.Donde = Sitio, .Carta = 10, .Girada = true, .De = 2, .Hueco = 3}),
            Objeto::parse(R"({"pieza": "carta", "donde": [1, 2, 3, 4], "carta": 10,
                "dibujo": "rey-oros", "girada": true, "de": 2, "hueco": 3})"));
  EXPECT_EQ(Unica(CartaPuesta{.Donde = Sitio})["dibujo"], "dorso");
}

TEST(JsonDePiezas, WritesACellOfTheSlate) {
  EXPECT_EQ(Unica(CeldaPuesta{.Donde = Sitio,
                              .Lance = NumeroLance::Pequena,
                              .Marca = MarcaLance::Siguiente,
                              .EsLaPrimera = true,
                              .Estado = u"4",
                              .Tipo = {.Factor = 0.9, .Negrita = true},
                              .De = 0}),
            Objeto::parse(R"({"pieza": "celda", "donde": [1, 2, 3, 4], "lance": 2,
                "nombre": "Pequeña", "marca": "siguiente", "porJugar": false, "ordago": false,
                "primera": true, "estado": "4", "tipo": [0.9, true], "de": 0})"));
  CeldaPuesta deNadie;
  deNadie.Lance = NumeroLance::Grande;
  EXPECT_EQ(Unica(deNadie)["de"], nullptr);
}

TEST(JsonDePiezas, WritesABubbleWithItsPoint) {
  EXPECT_EQ(Unica(Bocadillo{.Donde = Sitio,
                            .Lineas = {u"paso", u"ya"},
                            .Letras = 1,
                            .De = 4,
                            .EsElUltimo = true,
                            .Punta = Lado::Derecha,
                            .PuntaX = 9,
                            .PuntaY = 8}),
            Objeto::parse(R"({"pieza": "bocadillo", "donde": [1, 2, 3, 4],
                "lineas": ["paso", "ya"], "letras": 1, "de": 4, "ultimo": true,
                "punta": "derecha", "puntaX": 9, "puntaY": 8})"));
}

TEST(JsonDePiezas, WritesTheOtherPieces) {
  EXPECT_EQ(Unica(Placa{.Donde = Sitio, .Nombre = u"Dora", .Tipo = {}, .De = 3, .EsMano = true}),
            Objeto::parse(R"({"pieza": "placa", "donde": [1, 2, 3, 4], "nombre": "Dora",
                "tipo": [1, false], "de": 3, "mano": true, "leToca": false})"));
  EXPECT_EQ(
      Unica(Distintivo{.Donde = Sitio, .Texto = u"no", .Clase = ClaseDistintivo::No, .Tipo = {}}),
      Objeto::parse(R"({"pieza": "distintivo", "donde": [1, 2, 3, 4], "texto": "no",
                "clase": "no", "tipo": [1, false]})"));
  EXPECT_EQ(Unica(Ficha{.Donde = Sitio, .Clase = ClaseFicha::Suya, .Forma = 2}),
            Objeto::parse(R"({"pieza": "ficha", "donde": [1, 2, 3, 4], "clase": "suya",
                "forma": 2})"));
  EXPECT_EQ(Unica(Monton{.Donde = Sitio, .Rotulo = Sitio, .Grosor = 3, .Texto = u"mazo"}),
            Objeto::parse(R"({"pieza": "monton", "donde": [1, 2, 3, 4], "rotulo": [1, 2, 3, 4],
                "grosor": 3, "texto": "mazo"})"));
  EXPECT_EQ(Unica(Adorno{.Donde = Sitio, .Clase = ClaseAdorno::Vaso})["clase"], "vaso");
  EXPECT_EQ(Unica(PizarraPuesta{.Donde = Sitio})["pieza"], "pizarra");
  EXPECT_EQ(Unica(TeclaPuesta{.Donde = Sitio})["texto"], "Enter");
  EXPECT_EQ(Unica(AvisoTurno{.Donde = Sitio})["texto"], "le toca");
  EXPECT_EQ(Unica(TextoPuesto{.Donde = Sitio, .Texto = u"vacas", .Tipo = {}, .ALaDerecha = true}),
            Objeto::parse(R"({"pieza": "texto", "donde": [1, 2, 3, 4], "texto": "vacas",
                "tipo": [1, false], "tenue": false, "derecha": true})"));
  EXPECT_EQ(Unica(SignoPareja{.Donde = Sitio, .De = 0})["de"], 0);
  EXPECT_EQ(Unica(Casilla{.Donde = Sitio, .EsVaca = true})["vaca"], true);
}

TEST(JsonDeLamina, WritesEveryPieceOfRandomScenes) {
  std::mt19937 azar{7};
  const AnchoDeTexto mide = LetrasCorrientes(16);
  std::set<std::string> clases;
  for (int vez = 0; vez < 50; ++vez) {
    const Escena escena = EscenaAlAzar(azar);
    const Lamina lamina = LaminaDe(escena, {.Ancho = 1400, .Alto = 900}, 16, mide);
    const Objeto escrita = Objeto::parse(JsonDeLamina(lamina, escena.Toca));
    ASSERT_EQ(escrita["piezas"].size(), lamina.Piezas.size());
    for (std::size_t i = 0; i < lamina.Piezas.size(); ++i) {
      EXPECT_NEAR(escrita["piezas"][i]["donde"][0].get<double>(), Lugar(lamina.Piezas[i]).X, 1e-4);
      clases.insert(escrita["piezas"][i]["pieza"]);
    }
  }
  EXPECT_EQ(clases.size(), 11U) << "all but the three of the score";
}

TEST(JsonDeLamina, TellsWhatTheGameWaitsFor) {
  EXPECT_EQ(Objeto::parse(JsonDeLamina({}, Turno::Enter))["toca"], "enter");
  EXPECT_EQ(Objeto::parse(JsonDeLamina({}, Turno::Jugador))["toca"], "jugador");
  EXPECT_EQ(Objeto::parse(JsonDeLamina({}, Turno::Nadie))["toca"], "nadie");
}

TEST(JsonDePartes, WritesTheParts) {
  const Objeto partes = Objeto::parse(JsonDePartes({.Modo = Reparto::Apilado, .Mesa = Sitio}));
  EXPECT_EQ(partes["modo"], "apilado");
  EXPECT_EQ(partes["mesa"], Objeto::parse("[1, 2, 3, 4]"));
  EXPECT_EQ(partes["ayuda"], Objeto::parse("[0, 0, 0, 0]"));
}

TEST(JsonDeFrases, SaysWhatEachSentenceIsAbout) {
  EXPECT_EQ(Objeto::parse(JsonDeFrases({{.De = Parte::Lance, .Indice = 2, .Texto = u"Pequeña."}})),
            Objeto::parse(R"([{"de": "lance", "indice": 2, "texto": "Pequeña."}])"));
}

TEST(JsonDeRect, IsAList) { EXPECT_EQ(JsonDeRect(Sitio), "[1,2,3,4]"); }

}  // namespace
}  // namespace tasca::test
