// What a step has added to the transcript.
#include "match/added_text.h"

#include <gtest/gtest.h>

#include "tests/support/tables.h"

namespace tasca::test {
namespace {

struct Anadido {
  std::u16string_view Antes;
  std::u16string_view Ahora;
  std::u16string_view Nuevo;
  bool Reemplaza = false;
};

TEST(AddedText, IsWhatFollowsWithItsLineBreak) {
  for (const Anadido& caso : {
           Anadido{u"", u"La grande\r\n", u"La grande\r\n"},
           Anadido{u"La grande\r\n", u"La grande\r\n", u""},
           Anadido{u"La grande", u"La grande\r\nAna: Paso", u"\r\nAna: Paso"},
           Anadido{u"a\r\nPulse enter para continuar\r\nb", u"a\r\n\r\nb\r\nc", u"\r\nc"},
           Anadido{u"La grande\r\n", u"Pequeña\r\n", u"Pequeña\r\n", true},
           Anadido{u"Pulse enter para continuar", u"La grande", u"La grande", true},
           Anadido{u"La grande", u"", u"", true},
       }) {
    const NewText nuevo = AddedText(caso.Antes, caso.Ahora);
    EXPECT_EQ(Utf8(nuevo.Texto), Utf8(caso.Nuevo)) << Utf8(caso.Ahora);
    EXPECT_EQ(nuevo.Replaces, caso.Reemplaza) << Utf8(caso.Ahora);
  }
}

}  // namespace
}  // namespace tasca::test
