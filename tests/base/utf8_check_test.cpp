// The detection of UTF-8.
#include "base/utf8_check.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tasca::test {
namespace {

TEST(CheckUtf8, TakesTextWithoutHighBytesAsAscii) {
  EXPECT_EQ(CheckUtf8(""), Utf8Check::Ascii);
  EXPECT_EQ(CheckUtf8("mus\t\x7F\r\n"), Utf8Check::Ascii);
  EXPECT_EQ(CheckUtf8(std::string_view{"\0", 1}), Utf8Check::Ascii);
}

TEST(CheckUtf8, FindsTheFirstAndTheLastSequenceOfEachLength) {
  for (const std::string bytes :
       {"\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80", "\xEF\xBF\xBF",
        "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"}) {
    EXPECT_EQ(CheckUtf8(bytes), Utf8Check::MultiByte);
    std::string dos = "a" + bytes;
    dos += "b";
    dos += bytes;
    EXPECT_EQ(CheckUtf8(dos), Utf8Check::MultiByte);
  }
}

TEST(CheckUtf8, TakesAByteOrderMarkAsASequence) {
  EXPECT_EQ(CheckUtf8("\xEF\xBB\xBF"
                      "Datos"),
            Utf8Check::MultiByte);
}

TEST(CheckUtf8, RefusesWhatIsNotWellFormed) {
  const std::vector<std::string> malos{"\x80",
                                       "\xBF",
                                       "\xC0\x80",
                                       "\xC1\xBF",  // no lead byte
                                       "\xF5\x80\x80\x80",
                                       "\xFF",  //
                                       "\xE0\x9F\xBF",
                                       "\xF0\x8F\xBF\xBF",  // overlong
                                       "\xED\xA0\x80",
                                       "\xF4\x90\x80\x80",  // out of range
                                       "\xC3",
                                       "\xE2\x82",
                                       "\xF0\x9F\x98",  // cut
                                       "\xC3z",
                                       "\xE2z\xAC",
                                       "\xE2\x82z",
                                       "\xF0\x9F\x98z",  // broken
                                       "\xC3\xC3\xA1"};
  for (const std::string& bytes : malos) {
    EXPECT_EQ(CheckUtf8(bytes), Utf8Check::Invalid) << testing::PrintToString(bytes);
  }
}

TEST(CheckUtf8, RefusesOneBadByteAfterGoodSequences) {
  EXPECT_EQ(CheckUtf8("\xC3\xA1 \xE1"), Utf8Check::Invalid);
}

TEST(Utf8Detector, NamesTheFirstLineWithASequence) {
  Utf8Detector detector;
  detector.AddLine(1, "Datos>");
  EXPECT_EQ(detector.FirstLine(), 0);
  detector.AddLine(2, "t\xC3\xADo");
  detector.AddLine(3, "\xC3\xA1");
  EXPECT_EQ(detector.FirstLine(), 2);
}

TEST(Utf8Detector, FindsNothingInAFileWithAnInvalidLine) {
  for (const bool antes : {true, false}) {
    Utf8Detector detector;
    detector.AddLine(1, antes ? "\xED" : "\xC3\xAD");
    detector.AddLine(2, antes ? "\xC3\xAD" : "\xED");
    EXPECT_EQ(detector.FirstLine(), 0);
  }
}

}  // namespace
}  // namespace tasca::test
