// The questions as the page gets them, and the answers that they accept.
#include "ui/web/pregunta.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

namespace tasca::test {
namespace {

using Objeto = nlohmann::json;

Objeto Escrita(const PreguntaAbierta& pregunta) {
  Json json;
  EscribirPregunta(json, pregunta);
  return Objeto::parse(json.Text());
}

PreguntaAbierta DeClase(ClasePregunta clase) { return {.Clase = clase}; }

PreguntaAbierta Envite(ModoDialogo modo) {
  Dialog dialogo;
  dialogo.Caption = u"La grande";
  dialogo.Modo = modo;
  Form_Activate(dialogo);
  return {.Clase = ClasePregunta::Envite, .Titulo = u"La grande", .Dialogo = dialogo};
}

TEST(EscribirPregunta, GivesAMessageBoxTheTitleOfTheGameAndOneButton) {
  const Objeto escrita = Escrita({.Clase = ClasePregunta::Aviso, .Texto = u"Hola,   usted  ."});
  EXPECT_EQ(escrita, Objeto::parse(R"({"clase": "aviso", "sobre": "Aviso",
      "titulo": "La tasca del tío Zarandel", "texto": "Hola,   usted  .", "hablado": "Hola, usted.",
      "botones": [{"indice": 0, "rotulo": "Aceptar", "letra": ""}], "foco": 0})"));
}

TEST(EscribirPregunta, PutsTheFocusOfAYesNoBoxOnItsDefault) {
  const PreguntaAbierta pregunta{.Clase = ClasePregunta::SiNo,
                                 .Sobre = Pregunta::Mus,
                                 .Titulo = u"¿mus?",
                                 .Si = false,
                                 .ConIcono = true};
  EXPECT_EQ(Escrita(pregunta), Objeto::parse(R"({"clase": "siNo", "sobre": "Mus",
      "titulo": "¿mus?", "texto": "", "hablado": "", "icono": true,
      "botones": [{"indice": 0, "rotulo": "Sí", "letra": "S"},
                  {"indice": 1, "rotulo": "No", "letra": "N"}], "foco": 1})"));
}

TEST(EscribirPregunta, OffersTheCardsOfADiscardBySlot) {
  PreguntaAbierta pregunta{.Clase = ClasePregunta::Texto,
                           .Sobre = Pregunta::Descarte,
                           .Titulo = u"Descarte",
                           .PorDefecto = u"4"};
  pregunta.SusCartas[1] = 10;  // the king of the first suit
  pregunta.SusCartas[4] = 11;  // the ace of the second
  const Objeto escrita = Escrita(pregunta);
  EXPECT_EQ(escrita["porDefecto"], "4");
  EXPECT_EQ(escrita["cartas"], Objeto::parse(R"([
      {"hueco": 1, "carta": 10, "dibujo": "rey-oros", "nombre": "Rey de oros"},
      {"hueco": 4, "carta": 11, "dibujo": "as-copas", "nombre": "As de copas"}])"));
  EXPECT_FALSE(escrita.contains("minimo"));
}

TEST(EscribirPregunta, LimitsAnAmount) {
  const Objeto escrita = Escrita({.Clase = ClasePregunta::Texto, .Sobre = Pregunta::Cantidad});
  EXPECT_EQ(escrita["minimo"], 1);
  EXPECT_EQ(escrita["maximo"], 32767);
  EXPECT_FALSE(escrita.contains("cartas"));
}

TEST(EscribirPregunta, GivesTheBiddingDialogItsFourButtonsAndLetters) {
  const Objeto escrita = Escrita(Envite(ModoDialogo::Apertura));
  EXPECT_EQ(escrita["titulo"], "La grande");
  EXPECT_EQ(escrita["modo"], -1);
  EXPECT_EQ(escrita["foco"], 0);
  EXPECT_EQ(escrita["hablado"], "Paso, Envido, Envido Más, Órdago");
  EXPECT_EQ(escrita["botones"], Objeto::parse(R"([
      {"indice": 0, "rotulo": "Paso", "letra": "P"}, {"indice": 1, "rotulo": "Envido", "letra": "E"},
      {"indice": 2, "rotulo": "Envido Más", "letra": "M"},
      {"indice": 3, "rotulo": "Órdago", "letra": "O"}])"));
}

TEST(EscribirPregunta, LeavesOutWhatAnOrdagoDoesNotOffer) {
  EXPECT_EQ(Escrita(Envite(ModoDialogo::RespuestaOrdago))["botones"], Objeto::parse(R"([
      {"indice": 0, "rotulo": "Paso", "letra": "P"},
      {"indice": 1, "rotulo": "Quiero", "letra": "Q"}])"));
}

TEST(Vale, AcceptsTheAnswersOfEachKindOnly) {
  using enum ClaseEntrada;
  struct Caso {
    ClasePregunta Pregunta;
    std::vector<ClaseEntrada> Valen;
  };
  for (const Caso& caso :
       {Caso{ClasePregunta::Aviso, {Aceptado}}, Caso{ClasePregunta::SiNo, {Si, No}},
        Caso{ClasePregunta::Texto, {Texto, Cancelado}}, Caso{ClasePregunta::Envite, {Boton}}}) {
    for (const ClaseEntrada clase : {Aceptado, Si, No, Texto, Cancelado, Boton, FinDeSonido}) {
      const bool vale = std::find(caso.Valen.begin(), caso.Valen.end(), clase) != caso.Valen.end();
      EXPECT_EQ(Vale(DeClase(caso.Pregunta), {.Clase = clase}), vale)
          << static_cast<int>(caso.Pregunta) << ' ' << static_cast<int>(clase);
    }
  }
}

TEST(Vale, AcceptsOnlyTheButtonsThatTheDialogOffers) {
  const PreguntaAbierta ordago = Envite(ModoDialogo::RespuestaOrdago);
  for (const int indice : {-1, 0, 1, 2, 3, 4}) {
    EXPECT_EQ(Vale(ordago, {.Clase = ClaseEntrada::Boton, .Numero = indice}),
              indice == 0 || indice == 1)
        << indice;
  }
}

}  // namespace
}  // namespace tasca::test
