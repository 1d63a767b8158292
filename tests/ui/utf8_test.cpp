// The conversion between UTF-16 and UTF-8.
#include "ui/utf8.h"

#include <gtest/gtest.h>

namespace tasca {
namespace {

struct Pair {
  std::u16string_view Text;
  std::string_view Bytes;
};

TEST(Utf8, WritesAndReadsEveryLengthOfCharacter) {
  for (const Pair& pair : {Pair{u"", ""}, Pair{u"\u007F", "\x7F"}, Pair{u"\u0080", "\xC2\x80"},
                           Pair{u"\u07FF", "\xDF\xBF"}, Pair{u"\u0800", "\xE0\xA0\x80"},
                           Pair{u"\uD7FF", "\xED\x9F\xBF"}, Pair{u"\uE000", "\xEE\x80\x80"},
                           Pair{u"\uFFFD", "\xEF\xBF\xBD"}, Pair{u"\U00010000", "\xF0\x90\x80\x80"},
                           Pair{u"\U000103FF\U00010400", "\xF0\x90\x8F\xBF\xF0\x90\x90\x80"},
                           Pair{u"\U0010FFFF", "\xF4\x8F\xBF\xBF"}}) {
    EXPECT_EQ(ToUtf8(pair.Text), pair.Bytes);
    EXPECT_EQ(FromUtf8(pair.Bytes), pair.Text);
  }
}

TEST(Utf8, WritesALoneSurrogateAsTheReplacementCharacter) {
  for (const char16_t half : {u'\xD800', u'\xDBFF', u'\xDC00', u'\xDFFF'}) {
    EXPECT_EQ(ToUtf8(std::u16string{half}), "\uFFFD");
    EXPECT_EQ(ToUtf8(std::u16string{half, u'a'}), "\uFFFDa");
  }
  EXPECT_EQ(ToUtf8(u"\xDC00\xD800"), "\uFFFD\uFFFD");
  EXPECT_EQ(ToUtf8(u"\xD800\xD800\xDC00"), "\uFFFD\U00010000");
}

TEST(Utf8, ReadsInvalidBytesAsReplacementCharacters) {
  EXPECT_EQ(FromUtf8("a\xC3"), u"a\uFFFD");
  EXPECT_EQ(FromUtf8("\xFFz"), u"\uFFFDz");
  EXPECT_EQ(FromUtf8("\xED\xA0\x80z").back(), u'z');
  EXPECT_EQ(FromUtf8("\xED\xA0\x80z").front(), u'\uFFFD') << "a surrogate is not a character";
}

}  // namespace
}  // namespace tasca
