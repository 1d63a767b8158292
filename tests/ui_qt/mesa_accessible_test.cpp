// The drawn table as a screen reader finds it.
#include "ui/qt/mesa_accessible.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>
#include <map>
#include <string>
#include <vector>

#include "cards/hand_text.h"
#include "tests/support/tables.h"
#include "tests/ui_qt/moments.h"
#include "tests/ui_qt/player.h"
#include "ui/mesa/spoken.h"
#include "ui/qt/form1.h"
#include "ui/qt/mesa_painter.h"

namespace tasca::test {
namespace {

class SpokenTable : public testing::Test {
 protected:
  SpokenTable() {
    ventana_.resize(1280, 800);
    ventana_.show();
    QCoreApplication::processEvents();
  }

  QAccessibleInterface* LaMesa() {
    return QAccessible::queryAccessibleInterface(Control<QWidget>(&ventana_, "Mesa"));
  }

  std::vector<std::string> Heard() {
    std::vector<std::string> frases;
    const QAccessibleInterface* const mesa = LaMesa();
    for (int i = 0; i < mesa->childCount(); ++i) {
      EXPECT_EQ(mesa->child(i)->role(), QAccessible::StaticText);
      EXPECT_TRUE(mesa->child(i)->isValid());
      frases.push_back(Utf8(mesa->child(i)->text(QAccessible::Name)));
    }
    return frases;
  }

  void Show(const Table& t, Momento momento) { ventana_.ShowTable(t, momento); }

  Form1 ventana_{
      {.Text1_KeyDown = [](Integer&, Integer) {}, .Sonido_Click = [](bool) {}, .Closed = [] {}}};
};

TEST_F(SpokenTable, IsAGroupOfItsOwn) {
  Show(MesaDePrueba(), Momento::Reposo);
  EXPECT_EQ(LaMesa()->role(), QAccessible::Grouping);
  EXPECT_EQ(Utf8(LaMesa()->text(QAccessible::Name)), "La mesa");
  EXPECT_FALSE(LaMesa()->state().focusable);
  EXPECT_EQ(LaMesa()->parent()->object(), &ventana_);
}

TEST_F(SpokenTable, IsSeenWithItsWindowAndPlacedWhereItIsDrawn) {
  const auto cell = [this](int indice) { return LaMesa()->child(indice); };
  Show(MesaDePrueba(), Momento::Reposo);
  ventana_.hide();
  EXPECT_TRUE(cell(0)->state().invisible);
  ventana_.resize(1000, 800);
  ventana_.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&ventana_));
  EXPECT_FALSE(cell(0)->state().invisible);
  const int grande = 8;  // after four seats and four cards
  for (int lance = grande; lance < grande + 3; ++lance) {
    EXPECT_LE(cell(lance)->rect().right(), cell(lance + 1)->rect().left()) << lance;
  }
}

// The start of a hand, a bet to be answered, the count.
TEST_F(SpokenTable, KeepsInStepWithTheScene) {
  Table t = MesaDePrueba();
  t.Manos[1] = {20, 18, 16, 1};
  Show(t, Momento::Reposo);
  const std::vector<std::string> alPrincipio = Heard();
  ASSERT_EQ(alPrincipio.size(), 14U) << "four seats, four cards, four lances, two scores";
  EXPECT_EQ(alPrincipio[0], "Ana, usted, es mano.");
  EXPECT_EQ(alPrincipio[1],
            "Jugador 2, de la pareja contraria, a su derecha. Cuatro cartas tapadas.");
  EXPECT_EQ(alPrincipio[4], "Su carta 1: Rey de copas");

  t.Fase = Fase::RespuestaPequena;
  t.SeguirLance = 4;
  t.ParejaEnvite = 0;
  Show(t, Momento::Pregunta);
  EXPECT_EQ(Heard()[9], "Pequeña, en juego: 4 de la pareja 0");
  EXPECT_EQ(Heard()[0], "Ana, usted, es mano. Le toca.");

  t.Fase = Fase::EmpezarMano;
  t.SeguirLance = 0;
  t.Manos[2] = {40, 39, 38, 37};
  t.SeJuegaPunto = true;
  t.Piedras = {3, 12};
  MostrarManos(t, TodosLosAsientos);
  Show(t, Momento::Reposo);
  ASSERT_EQ(Heard().size(), 15U) << "the punto comes with them";
  EXPECT_NE(Heard()[1].find("Cartas: Rey de bastos, Caballo de bastos, Sota de bastos, Siete de "
                            "bastos."),
            std::string::npos);
  EXPECT_EQ(Heard()[13], "Pareja 1: nosotros. 12 piedras, ningún juego, ninguna vaca");
}

using Tree = std::vector<std::string>;

// By moment: every seat, the player's cards, the lances and the scores, in this order.
std::map<std::string, Tree> TreesOfThreeMoments() {
  return {
      {"start",
       {"Ana, usted.",
        "Salud la del Quejío, de la pareja contraria, a su derecha. Cuatro cartas tapadas.",
        "el Cojo, de su pareja, enfrente. Cuatro cartas tapadas.",
        "Dora, de la pareja contraria, a su izquierda, es mano. Cuatro cartas tapadas.",
        "Su carta 1: Rey de copas", "Su carta 2: Caballo de bastos", "Su carta 3: Sota de copas",
        "Su carta 4: As de espadas", "Grande: por jugar", "Pequeña: por jugar", "Pares: por jugar",
        "Juego: por jugar", "Pareja 1: nosotros. 12 piedras, ningún juego, ninguna vaca",
        "Pareja 0: ellos. 7 piedras, un juego, ninguna vaca"}},
      {"bet",
       {"Ana, usted. Dice: «Envido». Le toca.",
        ("Salud la del Quejío, de la pareja contraria, a su derecha. Cuatro cartas tapadas. Dice: "
         "«Esas dos y cinco más, que hoy me sobran chicas»."),
        "el Cojo, de su pareja, enfrente. Cuatro cartas tapadas.",
        ("Dora, de la pareja contraria, a su izquierda, es mano. Cuatro cartas tapadas. Dice: "
         "«Paso»."),
        "Su carta 1: Rey de copas", "Su carta 2: Caballo de bastos", "Su carta 3: Seis de copas",
        "Su carta 4: As de espadas", "Grande: 2 queridas",
        "Pequeña, en juego: 5 de la pareja 0 sobre 2 vistas", "Pares: por jugar",
        "Juego: por jugar", "Pareja 1: nosotros. 12 piedras, ningún juego, ninguna vaca",
        "Pareja 0: ellos. 7 piedras, un juego, ninguna vaca"}},
      {"count",
       {"Ana, usted. Pares no. Juego no.",
        ("Salud la del Quejío, de la pareja contraria, a su derecha. Cartas: Rey de oros, Rey de "
         "espadas, Cinco de espadas, Cuatro de bastos. Pares sí. Juego no."),
        ("el Cojo, de su pareja, enfrente. Cartas: Sota de oros, Siete de oros, Siete de bastos, "
         "Dos de espadas. Pares sí. Juego no. Dice: «Quiero»."),
        ("Dora, de la pareja contraria, a su izquierda, es mano. Cartas: Caballo de espadas, "
         "Caballo de oros, Cinco de copas, Cinco de oros. Pares sí. Juego no."),
        "Su carta 1: Rey de copas", "Su carta 2: Caballo de bastos", "Su carta 3: Seis de copas",
        "Su carta 4: As de espadas", "Grande: 2 queridas", "Pequeña: no querida",
        "Pares: 4 queridas", "Juego: no hay", "Punto: en paso",
        "Pareja 1: nosotros. 26 piedras, ningún juego, ninguna vaca",
        "Pareja 0: ellos. 13 piedras, un juego, ninguna vaca"}}};
}

TEST_F(SpokenTable, IsTheWholeTableAtThreeMoments) {
  const std::map<std::string, Tree> arboles = TreesOfThreeMoments();
  std::size_t vistos = 0;
  for (const Instante& instante : SeisInstantes()) {
    const auto arbol = arboles.find(instante.Nombre);
    if (arbol == arboles.end()) continue;
    Show(instante.Mesa, instante.Cuando);
    EXPECT_EQ(Heard(), arbol->second) << instante.Nombre;
    ++vistos;
  }
  EXPECT_EQ(vistos, arboles.size());
}

TEST_F(SpokenTable, HasLeavesInsideThePicture) {
  for (const Instante& instante : SeisInstantes()) {
    Show(instante.Mesa, instante.Cuando);
    for (int i = 0; i < LaMesa()->childCount(); ++i) {
      const QAccessibleInterface* const hoja = LaMesa()->child(i);
      const bool enSuSitio = hoja->parent() == LaMesa() && LaMesa()->indexOfChild(hoja) == i;
      const bool dentro = LaMesa()->rect().contains(hoja->rect());
      EXPECT_TRUE(hoja->childCount() == 0 && enSuSitio && dentro) << instante.Nombre << ", " << i;
    }
  }
}

TEST_F(SpokenTable, ForgetsWhatIsNoLongerThere) {
  Table t = MesaDePrueba();
  t.SeJuegaPunto = true;
  Show(t, Momento::Reposo);
  QAccessibleInterface* const ultima = LaMesa()->child(14);
  ASSERT_NE(ultima, nullptr);
  t.SeJuegaPunto = false;
  Show(t, Momento::Reposo);
  EXPECT_FALSE(ultima->isValid());
  EXPECT_EQ(LaMesa()->child(14), nullptr);
  EXPECT_EQ(LaMesa()->child(-1), nullptr);
}

TEST_F(SpokenTable, FindsWhatLiesUnderThePointer) {
  Table t = MesaDePrueba();
  t.Manos[1] = {20, 18, 16, 1};
  Show(t, Momento::Reposo);
  const auto* const vista = dynamic_cast<MesaView*>(Control<QWidget>(&ventana_, "Mesa"));
  const Rect mano = vista->Sheet().Mano;
  const QPoint primera = vista->mapToGlobal(QPoint{qRound(mano.X + 20), qRound(mano.CentroY())});
  QAccessibleInterface* const hallada = LaMesa()->childAt(primera.x(), primera.y());
  ASSERT_NE(hallada, nullptr);
  EXPECT_EQ(Utf8(hallada->text(QAccessible::Name)), "Su carta 1: Rey de copas");
  EXPECT_EQ(LaMesa()->indexOfChild(hallada), 4);
  EXPECT_EQ(hallada->parent(), LaMesa());
  EXPECT_TRUE(hallada->rect().contains(primera));
}

}  // namespace
}  // namespace tasca::test
