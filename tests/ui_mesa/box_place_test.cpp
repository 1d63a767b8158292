// Where boxes open.
#include "ui/mesa/box_place.h"

#include <gtest/gtest.h>

namespace tasca::test {
namespace {

Alrededores UnaVentana() {
  Alrededores a;
  a.Ventana = {0, 0, 800, 600};
  a.Libre = {300, 100, 300, 200};
  a.Nunca = {{250, 320, 350, 100}, {250, 430, 350, 120}};
  a.MejorNo = {{0, 100, 200, 100}};
  return a;
}

TEST(SitioDeCaja, IsTheMiddleOfTheFreeCloth) {
  EXPECT_EQ(SitioDeCaja(200, 100, UnaVentana()), (Rect{350, 150, 200, 100}));
}

// 300.3 + 300.1 - 300.3 is not 300.1.
TEST(SitioDeCaja, IsTheMiddleOfAFreeClothWithFractions) {
  Alrededores a = UnaVentana();
  a.Libre = {300.3, 100, 300.1, 200};
  EXPECT_EQ(SitioDeCaja(200, 100, a), (Rect{350, 150, 200, 100}));
}

TEST(SitioDeCaja, CoversNeitherTheCardsNorTheSlate) {
  const Alrededores a = UnaVentana();
  for (const auto& [ancho, alto] : {std::pair{320, 150}, {400, 250}, {500, 300}, {190, 320}}) {
    const Rect caja = SitioDeCaja(ancho, alto, a);
    EXPECT_EQ(Union(a.Ventana, caja), a.Ventana);
    for (const Rect& nunca : a.Nunca) EXPECT_FALSE(SeCruzan(caja, nunca)) << ancho << "x" << alto;
  }
}

TEST(SitioDeCaja, SparesWhatIsBetterSeen) {
  Alrededores a = UnaVentana();
  a.Libre = {};
  a.MejorNo = {{0, 0, 800, 300}};
  a.Nunca = {{0, 300, 500, 300}};
  const Rect caja = SitioDeCaja(250, 200, a);
  EXPECT_FALSE(SeCruzan(caja, a.MejorNo[0]));
  EXPECT_FALSE(SeCruzan(caja, a.Nunca[0]));
}

TEST(SitioDeCaja, StaysInAWindowWhereItCannotHelpCovering) {
  Alrededores a = UnaVentana();
  a.Nunca = {a.Ventana};
  const Rect caja = SitioDeCaja(700, 500, a);
  EXPECT_EQ(Union(a.Ventana, caja), a.Ventana);
  EXPECT_EQ(SitioDeCaja(900, 700, a), (Rect{0, 0, 900, 700}))
      << "its buttons may be lost, not its start";
}

}  // namespace
}  // namespace tasca::test
