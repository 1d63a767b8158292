// Windows-1252.
#include "base/code_page.h"

#include <gtest/gtest.h>

#include <array>

#include "tests/support/tables.h"

namespace tasca {
namespace {

using test::Utf8;

struct Codigo {
  unsigned char Byte;
  char16_t Letra;
};

// The 27 codes that are not those of Latin-1.
constexpr std::array<Codigo, 27> Propios{{
    {0x80, u'\u20AC'},  // euro
    {0x82, u'\u201A'},  // low single quote
    {0x83, u'\u0192'},  // florin
    {0x84, u'\u201E'},  // low double quotes
    {0x85, u'\u2026'},  // ellipsis
    {0x86, u'\u2020'},  // dagger
    {0x87, u'\u2021'},  // double dagger
    {0x88, u'\u02C6'},  // circumflex
    {0x89, u'\u2030'},  // per mille
    {0x8A, u'\u0160'},  // S with caron
    {0x8B, u'\u2039'},  // left angle quote
    {0x8C, u'\u0152'},  // OE
    {0x8E, u'\u017D'},  // Z with caron
    {0x91, u'\u2018'},  // left single quote
    {0x92, u'\u2019'},  // right single quote
    {0x93, u'\u201C'},  // left double quotes
    {0x94, u'\u201D'},  // right double quotes
    {0x95, u'\u2022'},  // bullet
    {0x96, u'\u2013'},  // en dash
    {0x97, u'\u2014'},  // em dash
    {0x98, u'\u02DC'},  // small tilde
    {0x99, u'\u2122'},  // trade mark
    {0x9A, u'\u0161'},  // s with caron
    {0x9B, u'\u203A'},  // right angle quote
    {0x9C, u'\u0153'},  // oe
    {0x9E, u'\u017E'},  // z with caron
    {0x9F, u'\u0178'},  // Y with diaeresis
}};

constexpr std::array<unsigned char, 5> SinDefinir{0x81, 0x8D, 0x8F, 0x90, 0x9D};

TEST(DecodeByte, KnowsTheCodesThatAreNotLatin1) {
  for (const Codigo& codigo : Propios) {
    EXPECT_EQ(DecodeByte(codigo.Byte), codigo.Letra) << int{codigo.Byte};
  }
}

TEST(DecodeByte, KeepsTheFiveUndefinedCodes) {
  for (const unsigned char byte : SinDefinir) EXPECT_EQ(DecodeByte(byte), char16_t{byte});
}

TEST(DecodeByte, IsLatin1ForTheRest) {
  for (unsigned byte = 0; byte <= 0xFF; ++byte) {
    if (byte >= 0x80 && byte <= 0x9F) continue;
    EXPECT_EQ(DecodeByte(static_cast<unsigned char>(byte)), static_cast<char16_t>(byte));
  }
}

TEST(Decode, ReadsSpanish) {
  EXPECT_EQ(Utf8(Decode("\xBFQu\xE9 tal, se\xF1or? \x93\xC1nimo\x94 \x80")),
            "¿Qué tal, señor? “Ánimo” €");
  EXPECT_EQ(Decode(""), u"");
}

TEST(Encode, RoundTripsEveryByte) {
  std::string todos;
  for (int byte = 0; byte <= 0xFF; ++byte) todos += static_cast<char>(byte);
  const std::u16string texto = Decode(todos);
  EXPECT_EQ(texto.size(), 256U);
  EXPECT_EQ(Encode(texto), todos);
}

TEST(Encode, KnowsTheCodesThatAreNotLatin1) {
  for (const Codigo& codigo : Propios) {
    EXPECT_EQ(Encode({&codigo.Letra, 1}), std::string(1, static_cast<char>(codigo.Byte)));
  }
}

TEST(Encode, WritesAQuestionMarkForWhatTheCodePageLacks) {
  EXPECT_EQ(Encode(u"a\u0161\u03B1b"), "a\x9A?b");  // an alpha
  EXPECT_EQ(Encode(u"\u0080\u0099"), "??");         // C1 codes whose bytes are other characters
  EXPECT_EQ(Encode(u"\U0001F0A1"), "??");           // a surrogate pair
  EXPECT_EQ(Encode(u"\u0100\uFFFF"), "??");
}

TEST(InCodePage, HasTheCodesThatAreNotLatin1) {
  for (const Codigo& codigo : Propios) EXPECT_TRUE(InCodePage(codigo.Letra));
  for (const unsigned char byte : SinDefinir) EXPECT_TRUE(InCodePage(byte));
}

TEST(InCodePage, HasLatin1WithoutItsControlCodes) {
  for (const char16_t letra : {u'\0', u'\x7F', u'\u00A0', u'\u00FF'})
    EXPECT_TRUE(InCodePage(letra));
  for (const char16_t letra : {u'\u0080', u'\u009F'}) EXPECT_FALSE(InCodePage(letra));
}

TEST(InCodePage, HasNothingElse) {
  for (const char16_t letra : {u'\u0100', u'\u2015', u'\uFFFF'}) EXPECT_FALSE(InCodePage(letra));
}

}  // namespace
}  // namespace tasca
