// Reading the manual's own notation: examples, pictures, headings, sections in short.
#include <gtest/gtest.h>

#include <stdexcept>

#include "cards/deck.h"
#include "tests/manual/source.h"
#include "tests/support/tables.h"
#include "ui/manual/asunto.h"
#include "ui/manual/brief.h"
#include "ui/manual/card_reference.h"
#include "ui/manual/ejemplo.h"
#include "ui/manual/markup.h"
#include "ui/manual/pieces.h"

namespace tasca::test {
namespace {

TEST(LeerEjemplo, ReadsWhatIsSaidAndWhoIsPaid) {
  const Ejemplo ejemplo = LeerEjemplo(
      "mano 2\npiedras: 3 a 4\n1: rey-oros as-copas\n"
      "grande: 2 paso, 1 envido 5, 4 sube 2, 1 órdago => pareja 1, 6 piedras; pareja 0, 1 piedra | "
      "Sí.\n"
      "pares: sin envite => no se cuenta | No.\ntanteo: 16 a 1\n");
  EXPECT_EQ(ejemplo.Mano, 2);
  EXPECT_EQ(ejemplo.Antes->Nuestras, 3);
  EXPECT_EQ(ejemplo.Antes->Suyas, 4);
  EXPECT_EQ(ejemplo.Manos[1], (std::vector<int>{10, 11}));
  ASSERT_EQ(ejemplo.Lances.size(), 2U);
  const LanceEjemplo& grande = ejemplo.Lances[0];
  EXPECT_EQ(grande.Modo, ModoEjemplo::Hablado);
  ASSERT_EQ(grande.Hablas.size(), 4U);
  EXPECT_EQ(grande.Hablas[0].Decide, Decision::Paso);
  EXPECT_EQ(grande.Hablas[1].Decide, Decision::EnvidoMas);
  EXPECT_EQ(grande.Hablas[1].Piedras, 5);
  EXPECT_EQ(grande.Hablas[2].Asiento, 4);
  EXPECT_EQ(grande.Hablas[3].Decide, Decision::Ordago);
  ASSERT_EQ(grande.Cobros.size(), 2U);
  EXPECT_EQ(grande.Cobros[0].Piedras, 6);
  EXPECT_EQ(grande.Cobros[1].De, 0);
  EXPECT_EQ(grande.Porque, "Sí.");
  EXPECT_EQ(ejemplo.Lances[1].Modo, ModoEjemplo::SinEnvite);
  EXPECT_TRUE(ejemplo.Lances[1].Cobros.empty());
  EXPECT_EQ(ejemplo.Despues->Nuestras, 16);
  EXPECT_FALSE(ejemplo.GanaElJuego);
}

TEST(LeerEjemplo, ReadsTheEndOfAJuego) {
  const Ejemplo ejemplo = LeerEjemplo("resultado: la pareja 0 gana el juego por 30 a 36\n");
  EXPECT_EQ(ejemplo.GanaElJuego, 0);
  EXPECT_EQ(ejemplo.Despues->Suyas, 36);
}

bool IsRefused(const std::string& linea) {
  try {
    LeerEjemplo(linea);
    return false;
  } catch (const std::invalid_argument&) {
    return true;
  }
}

TEST(LeerEjemplo, RefusesWhatItDoesNotKnow) {
  for (const std::string linea :
       {"mano dos", "5: rey-oros", "1: rey-vasos", "grande => pareja 1", "mus => pareja 1 | Sí.",
        "grande: 1 canta => pareja 1 | Sí.", "grande: 1 sube => pareja 1 | Sí.",
        "grande => la otra | Sí.", "tanteo: 16", "resultado: gana 1", "hola"}) {
    EXPECT_TRUE(IsRefused(linea)) << linea;
  }
}

TEST(CardReference, NamesEveryCard) {
  for (int carta = 1; carta <= CartasBaraja; ++carta) {
    EXPECT_EQ(CardOfName(NameOfCard(carta)), carta);
  }
  EXPECT_EQ(NameOfCard(1), "as-oros");
  EXPECT_EQ(NameOfCard(40), "rey-bastos");
  EXPECT_EQ(CardOfName("rey"), 0);
  EXPECT_EQ(CardsInWords({10, 21}), "Rey de oros, As de espadas");
}

TEST(CardReference, ListsTheCardsOfAPicture) {
  EXPECT_EQ(CardsOfReference("carta:dos-oros"), (std::vector<int>{2}));
  EXPECT_EQ(CardsOfReference("mano:dos-oros,rey-bastos"), (std::vector<int>{2, 40}));
  for (const std::string_view mala :
       {"mano:", "mano:dos-oros,", "foto:dos-oros", "carta:dos", ""}) {
    EXPECT_TRUE(CardsOfReference(mala).empty()) << mala;
  }
}

TEST(Pieces, FormAnchorsFromTitles) {
  EXPECT_EQ(AnchorOfTitle("La pequeña"), "la-pequeña");
  EXPECT_EQ(AnchorOfTitle("Órdago, y más: «35 a juego»"), "órdago-y-más-35-a-juego");
}

TEST(Pieces, ReadWholeNumbers) {
  EXPECT_EQ(WholeNumber("12"), 12);
  EXPECT_EQ(WholeNumber("−2"), -2);
  for (const std::string_view malo : {"", "dos", "2 más", "−"}) EXPECT_FALSE(WholeNumber(malo));
}

TEST(Pieces, KnowHeadings) {
  EXPECT_EQ(HeadingOf("## La mano")->Level, 2);
  EXPECT_EQ(HeadingOf("## La mano")->Title, "La mano");
  for (const std::string_view linea : {"La mano", "#mano", "", "##"}) {
    EXPECT_FALSE(HeadingOf(linea)) << linea;
  }
}

TEST(ChapterMarkdown, WritesExamplesAndPicturesOut) {
  const std::string escrito = ChapterMarkdown(
      "Antes ![](carta:rey-oros) y ![](carta:as-oros).\n\n```ejemplo\nmano 4\n1: rey-oros\n"
      "2: rey-copas\n3: as-oros\n4: as-copas\n"
      "grande: 4 paso, 1 envido 4, 2 no quiero => pareja 1, 1 piedra | Por poco.\n"
      "tanteo: 1 a 0\n```\n\nDespués.\n",
      [](std::string_view referencia) { return "<" + std::string{referencia} + ">"; });
  EXPECT_EQ(escrito,
            "Antes <carta:rey-oros> y <carta:as-oros>.\n\n"
            "| Quién | Cartas |\n|---|---|\n"
            "| **Usted** | <mano:rey-oros><br/>Rey de oros |\n"
            "| **Contrario 1** | <mano:rey-copas><br/>Rey de copas |\n"
            "| **Compañero** | <mano:as-oros><br/>As de oros |\n"
            "| **Contrario 2**, mano | <mano:as-copas><br/>As de copas |\n\n"
            "- **Grande.** Contrario 2: «Paso»; Usted: «Envido 4»; Contrario 1: «No quiero». "
            "**1 piedra para la pareja 1.** Por poco.\n\n"
            "El tanteo queda en 1 a 0.\n\nDespués.\n");
}

TEST(PicturesOfCards, HaveTheNamesAsAlternativeText) {
  EXPECT_EQ(PicturesOfCards("mano:rey-oros,as-copas"),
            "![Rey de oros](carta:rey-oros) ![As de copas](carta:as-copas)");
}

TEST(Asunto, HasASectionForEverySubject) {
  const std::set<std::string> anclas = Anchors();
  std::set<std::string_view> distintas;
  for (int asunto = 0; asunto < Asuntos; ++asunto) {
    const std::string_view ancla = AnchorOf(static_cast<Asunto>(asunto));
    EXPECT_TRUE(anclas.contains(std::string{ancla})) << ancla;
    EXPECT_TRUE(distintas.insert(ancla).second) << ancla;
  }
}

TEST(Asunto, IsTheLanceOfThePhase) {
  const std::vector<std::pair<Fase, std::string_view>> secciones{
      {Fase::EmpezarMano, "el-recuento"},
      {Fase::Mus, "el-mus"},
      {Fase::Grande, "la-grande"},
      {Fase::RespuestaGrande, "la-grande"},
      {Fase::Pequena, "la-pequeña"},
      {Fase::RespuestaPequena, "la-pequeña"},
      {Fase::DeclaracionPares, "los-pares"},
      {Fase::Pares, "los-pares"},
      {Fase::RespuestaPares, "los-pares"},
      {Fase::DeclaracionJuego, "el-juego"},
      {Fase::Juego, "el-juego"},
      {Fase::RespuestaJuego, "el-juego"},
      {Fase::Punto, "el-punto"},
      {Fase::RespuestaPunto, "el-punto"},
      {Fase::Cuenta, "el-recuento"}};
  ASSERT_EQ(secciones.size(), 15U);
  for (const auto& [fase, ancla] : secciones) EXPECT_EQ(AnchorOf(AsuntoDe(fase)), ancla);
}

TEST(Asunto, IsTheMatterOfTheQuestion) {
  const std::vector<std::pair<Pregunta, std::string_view>> secciones{
      {Pregunta::SeguirPartida, "al-empezar"},
      {Pregunta::Mus, "el-mus"},
      {Pregunta::Descarte, "los-descartes"},
      {Pregunta::Pares, "los-pares"},
      {Pregunta::Juego, "el-juego"},
      {Pregunta::Cantidad, "envidar-más"},
      {Pregunta::OtraPartida, "juegos-vacas-y-partida"},
      {Pregunta::CambiarJugadores, "juegos-vacas-y-partida"}};
  for (const auto& [pregunta, ancla] : secciones) EXPECT_EQ(AnchorOf(AsuntoDe(pregunta)), ancla);
  EXPECT_EQ(AnchorOf(Asunto::Inicio), "al-empezar");
  EXPECT_EQ(AnchorOf(Asunto::Editor), "hacer-un-personaje");
}

TEST(BriefOf, IsShortPlainTextForEverySubject) {
  for (int asunto = 0; asunto < Asuntos; ++asunto) {
    const std::string_view ancla = AnchorOf(static_cast<Asunto>(asunto));
    const std::string breve = Utf8(BriefOf(ancla));
    EXPECT_FALSE(breve.empty()) << ancla;
    EXPECT_LE(LinesOf(breve).size(), 4U) << ancla;
    EXPECT_EQ(breve.find_first_of("*[]`#>"), std::string::npos) << breve;
  }
  EXPECT_EQ(BriefOf("no-hay"), u"");
}

TEST(BriefOf, IsTheQuoteOfThatSection) {
  EXPECT_EQ(
      Utf8(BriefOf("el-deje")),
      "El deje es lo que cobra en el acto quien envida y no es querido: 1 piedra, o lo que ya "
      "estaba visto.");
}

}  // namespace
}  // namespace tasca::test
