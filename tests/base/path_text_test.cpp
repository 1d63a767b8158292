// Paths as text for messages.
#include "base/path_text.h"

#include <gtest/gtest.h>

#include "tests/support/tables.h"

namespace tasca {
namespace {

using test::Utf8;

TEST(PathText, IsThePathUnchanged) {
  EXPECT_EQ(Utf8(PathText("/casa/el tío/mus.ini")), "/casa/el tío/mus.ini");
}

TEST(PathText, ReadsNamesThatAreNotUtf8AsWindows1252) {
  EXPECT_EQ(Utf8(PathText("/casa/el t\xEDo/mus.ini")), "/casa/el tío/mus.ini");
  EXPECT_EQ(Utf8(PathText("/t\xEDo/maño/ma\xF1o.ini")), "/tío/maño/maño.ini");
  EXPECT_EQ(Utf8(PathText("ma\xF1o.ini")), "maño.ini");
}

TEST(PlaceInFile, NamesTheFileAndTheLineIfThereIsOne) {
  EXPECT_EQ(Utf8(PlaceInFile("/tío/mus.ini", 4)), "/tío/mus.ini, línea 4: ");
  EXPECT_EQ(Utf8(PlaceInFile("mus.ini", 0)), "mus.ini: ");
}

}  // namespace
}  // namespace tasca
