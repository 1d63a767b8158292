// Writing JSON.
#include "ui/web/json.h"

#include <gtest/gtest.h>

#include <vector>

namespace tasca::test {
namespace {

template <class T>
std::string Written(const T& valor) {
  Json json;
  json.Value(valor);
  return json.Text();
}

TEST(Json, QuotesTextAsUtf8) {
  EXPECT_EQ(Written(u"«Órdago»"), "\"«Órdago»\"");
  EXPECT_EQ(Written("«Órdago»"), "\"«Órdago»\"");
}

TEST(Json, EscapesQuotesBackslashesAndControlCharacters) {
  EXPECT_EQ(Written(std::u16string_view{u"a\"b\\c\r\n\0\x1F", 9}),
            R"("a\"b\\c\u000d\u000a\u0000\u001f")");
}

TEST(Json, WritesNumbersAndTruth) {
  EXPECT_EQ(Written(-12), "-12");
  EXPECT_EQ(Written(true), "true");
  EXPECT_EQ(Written(false), "false");
}

TEST(Json, RoundsRealNumbersToFiveDecimals) {
  EXPECT_EQ(Written(3.0), "3");
  EXPECT_EQ(Written(0.5), "0.5");
  EXPECT_EQ(Written(-0.25), "-0.25");
  EXPECT_EQ(Written(1.0 / 3), "0.33333");
  EXPECT_EQ(Written(2.00001), "2.00001");
  EXPECT_EQ(Written(-0.000001), "0");
  EXPECT_EQ(Written(1234567.875), "1234567.875");
}

TEST(Json, WritesARectangleAsItsPlaceAndSize) {
  EXPECT_EQ(Written(Rect{.X = 1, .Y = 2.5, .Ancho = 3, .Alto = 4}), "[1,2.5,3,4]");
}

TEST(Json, SeparatesFieldsAndElementsByCommas) {
  Json json;
  json.Object([&] {
    json.Field("uno", 1);
    json.ObjectField("dos", [&] { json.Field("tres", u"3"); });
    json.ListField("lista", std::vector<std::u16string>{u"a", u"b"});
    json.ListField("vacia", std::vector<std::u16string>{});
    json.Key("nada");
    json.Null();
  });
  EXPECT_EQ(json.Text(),
            R"({"uno":1,"dos":{"tres":"3"},"lista":["a","b"],"vacia":[],"nada":null})");
}

TEST(Json, WritesAListOfObjects) {
  Json json;
  json.List(std::vector{1, 2}, [&](int n) { json.Object([&] { json.Field("n", n); }); });
  EXPECT_EQ(json.Text(), R"([{"n":1},{"n":2}])");
}

}  // namespace
}  // namespace tasca::test
