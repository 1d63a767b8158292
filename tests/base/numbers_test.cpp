// Numbers in text.
#include "base/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <locale>
#include <string>
#include <vector>

#include "tests/support/tables.h"

namespace tasca {
namespace {

using test::Utf8;

struct Caso {
  std::u16string Texto;
  double Numero;
};

void ExpectNumbers(const std::vector<Caso>& casos) {
  for (const Caso& caso : casos) {
    EXPECT_DOUBLE_EQ(LeadingNumber(caso.Texto), caso.Numero) << "'" << Utf8(caso.Texto) << "'";
  }
}

TEST(LeadingNumber, ReadsDigitsSignAndPoint) {
  ExpectNumbers({{u"0", 0},
                 {u"7", 7},
                 {u"007", 7},
                 {u"12", 12},
                 {u"2.5", 2.5},
                 {u"-3", -3},
                 {u"+4", 4},
                 {u"-0.25", -0.25}});
}

TEST(LeadingNumber, ReadsAnExponent) {
  ExpectNumbers({{u"1e1", 10}, {u"1E1", 10}, {u"2.5e2", 250}, {u"-1e3", -1000}, {u"3e2x", 300}});
}

TEST(LeadingNumber, IgnoresAnExponentWithoutDigits) {
  ExpectNumbers({{u"4e", 4}, {u"4ex", 4}, {u"4 e2", 4}, {u"4d2", 4}, {u"4ee2", 4}});
}

TEST(LeadingNumber, ReadsNoSignInAnExponent) {
  ExpectNumbers({{u"4e+2", 4}, {u"25e-1", 25}, {u"1e-999", 1}});
}

TEST(LeadingNumber, IgnoresAPointWithoutDigits) { ExpectNumbers({{u"5.", 5}, {u"5.e2", 5}}); }

TEST(LeadingNumber, SkipsBlanksInFrontOnly) {
  ExpectNumbers({{u" 7", 7}, {u"   -7", -7}, {u"1 3", 1}, {u"- 7", 0}, {u"\t7", 0}});
}

TEST(LeadingNumber, IgnoresWhatFollows) {
  ExpectNumbers({{u"12abc", 12}, {u"35 piedras", 35}, {u"3,5", 3}, {u"1.2.3", 1.2}, {u"5-2", 5}});
}

TEST(LeadingNumber, IsZeroWithoutDigits) {
  ExpectNumbers({{u"", 0},
                 {u"   ", 0},
                 {u"abc", 0},
                 {u"-", 0},
                 {u"+", 0},
                 {u"--3", 0},
                 {u"e5", 0},
                 {u".5", 0},
                 {u"inf", 0},
                 {u"nan", 0},
                 {u"\uFF13", 0}});  // a full-width three
}

TEST(LeadingNumber, ReadsNoHexadecimal) { ExpectNumbers({{u"0x10", 0}, {u"&H10", 0}}); }

TEST(LeadingNumber, IsTheGreatestDoubleBeyondTheRange) {
  constexpr double Maximo = std::numeric_limits<double>::max();
  ExpectNumbers({{u"1e999", Maximo},
                 {u"1e99999999999999999999", Maximo},
                 {std::u16string(400, u'9'), Maximo},
                 {u"-1e999", -Maximo}});
}

TEST(LeadingNumber, IsZeroWhenTooSmall) {
  ExpectNumbers({{u"0." + std::u16string(400, u'0') + u"1", 0}, {u"0e999", 0}});
}

TEST(LeadingNumber, CombinesManyZerosWithAnExponent) {
  ExpectNumbers(
      {{u"0." + std::u16string(400, u'0') + u"1e401", 1}, {std::u16string(400, u'0') + u"7", 7}});
}

// A locale with a decimal comma and a point between thousands.
class ComaDecimal : public std::numpunct<char> {
 protected:
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(LeadingNumber, IgnoresTheLocale) {
  const std::locale antes =
      std::locale::global(std::locale{std::locale::classic(), new ComaDecimal});
  ExpectNumbers({{u"2.5", 2.5}, {u"1.000", 1}, {u"2,5", 2}});
  std::locale::global(antes);
}

TEST(LeadingWhole, ReadsBlanksSignAndDigits) {
  EXPECT_EQ(LeadingWhole(u"040"), 40);
  EXPECT_EQ(LeadingWhole(u"100"), 100);
  EXPECT_EQ(LeadingWhole(u"7"), 7);
  EXPECT_EQ(LeadingWhole(u" 7"), 7);
  EXPECT_EQ(LeadingWhole(u"-05"), -5);
  EXPECT_EQ(LeadingWhole(u"+9"), 9);
  EXPECT_EQ(LeadingWhole(u"12a"), 12);
  EXPECT_EQ(LeadingWhole(u"1e2"), 1);
  EXPECT_EQ(LeadingWhole(u"1.9"), 1);
  EXPECT_EQ(LeadingWhole(u"999999999"), 999999999);
}

TEST(LeadingWhole, IsZeroWithoutDigits) {
  for (const auto* const texto : {u"", u"   ", u"abc", u"-", u"- 5", u".5"}) {
    EXPECT_EQ(LeadingWhole(texto), 0) << Utf8(texto);
  }
}

TEST(RoundHalfEven, TakesHalvesToTheEvenNeighbour) {
  EXPECT_EQ(RoundHalfEven(0.5), 0);
  EXPECT_EQ(RoundHalfEven(1.5), 2);
  EXPECT_EQ(RoundHalfEven(2.5), 2);
  EXPECT_EQ(RoundHalfEven(3.5), 4);
  EXPECT_EQ(RoundHalfEven(-0.5), 0);
  EXPECT_EQ(RoundHalfEven(-1.5), -2);
  EXPECT_EQ(RoundHalfEven(-2.5), -2);
}

TEST(RoundHalfEven, TakesTheNearestOtherwise) {
  EXPECT_EQ(RoundHalfEven(2.49), 2);
  EXPECT_EQ(RoundHalfEven(2.51), 3);
  EXPECT_EQ(RoundHalfEven(-2.51), -3);
}

TEST(CInt, Rounds) {
  EXPECT_EQ(CInt(2.5), 2);
  EXPECT_EQ(CInt(3.5), 4);
  EXPECT_EQ(CInt(-0.4), 0);
}

TEST(CInt, TakesWhatRoundsIntoTheRange) {
  EXPECT_EQ(CInt(32767), 32767);
  EXPECT_EQ(CInt(32767.4), 32767);
  EXPECT_EQ(CInt(-32768), -32768);
  EXPECT_EQ(CInt(-32768.5), -32768);
}

TEST(CInt, OverflowsOutsideTheRange) {
  EXPECT_THROW(CInt(32767.5), RunTimeError);
  EXPECT_THROW(CInt(32768), RunTimeError);
  EXPECT_THROW(CInt(-32768.6), RunTimeError);
  EXPECT_THROW(CInt(-32769), RunTimeError);
  EXPECT_THROW(CInt(1e10), RunTimeError);
  EXPECT_THROW(CInt(HUGE_VAL), RunTimeError);
  EXPECT_THROW(CInt(-HUGE_VAL), RunTimeError);
  EXPECT_THROW(CInt(std::nan("")), RunTimeError);
}

}  // namespace
}  // namespace tasca
