// Searching in a document, forwards and backwards.
#include "ui/qt/text_search.h"

#include <gtest/gtest.h>

#include <QTextDocument>

namespace tasca::test {
namespace {

struct Documento : testing::Test {
  // The position of what is found from a selection, or -1.
  int Hallado(int desde, int hasta, const char* que, bool haciaAtras) {
    QTextCursor aqui{&texto_};
    aqui.setPosition(desde);
    aqui.setPosition(hasta, QTextCursor::KeepAnchor);
    const auto hallado = FindText(aqui, QString::fromUtf8(que), haciaAtras);
    return hallado ? hallado->selectionStart() : -1;
  }

  QTextDocument texto_{QStringLiteral("aa b Árbol a")};
};

TEST_F(Documento, IsSearchedForwardsAfterTheSelection) {
  EXPECT_EQ(Hallado(0, 0, "a", false), 0);
  EXPECT_EQ(Hallado(0, 1, "a", false), 1);
  EXPECT_EQ(Hallado(1, 2, "a", false), 5) << "an accent does not matter";
  EXPECT_EQ(Hallado(5, 6, "a", false), 11);
  EXPECT_EQ(Hallado(11, 12, "a", false), 0) << "from the end it goes on at the start";
}

TEST_F(Documento, IsSearchedBackwardsBeforeTheSelection) {
  EXPECT_EQ(Hallado(11, 12, "a", true), 5);
  EXPECT_EQ(Hallado(5, 6, "a", true), 1);
  EXPECT_EQ(Hallado(1, 2, "a", true), 0);
  EXPECT_EQ(Hallado(0, 1, "a", true), 11) << "from the start it goes on at the end";
}

TEST_F(Documento, IsNotFoundInVain) {
  EXPECT_EQ(Hallado(0, 0, "olmo", false), -1);
  EXPECT_EQ(Hallado(0, 0, "", false), -1);
  EXPECT_EQ(Hallado(4, 5, "", true), -1);
}

}  // namespace
}  // namespace tasca::test
