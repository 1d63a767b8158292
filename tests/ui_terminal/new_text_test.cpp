// The new part of the transcript.
#include "ui/terminal/new_text.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "base/text.h"
#include "lances/lance.h"
#include "tests/support/tables.h"

namespace tasca {
namespace {

struct Caso {
  std::string_view Nombre;
  std::u16string_view Antes;
  std::u16string_view Ahora;
  std::u16string_view Nuevo;
  bool Reemplaza = false;
};

void Expect(const Caso& caso) {
  const NewText nuevo = NewPart(caso.Antes, caso.Ahora);
  EXPECT_EQ(test::Utf8(nuevo.Texto), test::Utf8(caso.Nuevo)) << caso.Nombre;
  EXPECT_EQ(nuevo.Replaces, caso.Reemplaza) << caso.Nombre;
}

TEST(NewPart, IsEverythingAtFirstAndNothingWhenNothingHasChanged) {
  Expect({"first", u"", u"La grande\r\n", u"La grande\r\n"});
  Expect({"unchanged", u"La grande\r\n", u"La grande\r\n", u""});
  Expect({"unchanged prompt", u"Pulse enter para continuar", u"Pulse enter para continuar", u""});
  Expect({"both empty", u"", u"", u""});
}

TEST(NewPart, IsTheAppendedText) {
  Expect({"a line", u"La grande\r\n", u"La grande\r\nAna: Paso\r\n", u"Ana: Paso\r\n"});
  Expect({"a prompt", u"a\r\n", u"a\r\nPulse enter para continuar", u"Pulse enter para continuar"});
  Expect({"lines and a prompt", u"a\r\n", u"a\r\nb\r\nc", u"b\r\nc"});
  Expect({"a blank line", u"a\r\n", u"a\r\n\r\nb", u"\r\nb"});
}

TEST(NewPart, IsTheWholeTextWhenItWasReplaced) {
  Expect({"another", u"La grande\r\nAna: Paso\r\n", u"Pequeña \r\n", u"Pequeña \r\n", true});
  Expect({"cleared", u"La grande\r\n", u"", u"", true});
  Expect({"the beginning of what was there", u"Berta: Mus\r\nAna: Mus\r\n", u"Berta: Mus\r\n",
          u"Berta: Mus\r\n", true});
  Expect({"one that starts alike", u"Ana: Mus\r\nBerta: Mus\r\n", u"Ana: Mus\r\nBerta: Paso\r\n",
          u"Ana: Mus\r\nBerta: Paso\r\n", true});
}

TEST(NewPart, IsOnlyTheAppendedTextWhenPromptsWereRemoved) {
  Expect({"in the middle", u"Ana: Sí\r\nPulse enter para continuar\r\nEl juego\r\nAna: Envido\r\n",
          u"Ana: Sí\r\n\r\nEl juego\r\nAna: Envido\r\nBerta: Quiero\r\n", u"Berta: Quiero\r\n"});
  Expect({"and nothing else", u"a\r\nPulse enter para continuar\r\nb\r\n", u"a\r\n\r\nb\r\n", u""});
  Expect({"twice", u"Pulse enter para continuar\r\naPulse enter para continuar\r\nb\r\n",
          u"\r\na\r\nb\r\nc", u"c"});
  Expect({"and another appended", u"a\r\nPulse enter para continuar\r\nb\r\n",
          u"a\r\n\r\nb\r\nPulse enter para continuar", u"Pulse enter para continuar"});
}

TEST(NewPart, IsTheWholeTextAfterNothingButAPrompt) {
  Expect({"another", u"Pulse enter para continuar", u"La grande\r\n", u"La grande\r\n", true});
}

TEST(NewPart, KeepsTheOtherPrompts) {
  Expect({"contar", u"a\r\nPulse enter para contar", u"a\r\n", u"a\r\n", true});
}

TEST(NewPart, OmitsALineBreakAfterThePlayersEnter) {
  Expect({"heading after a prompt", u"a\r\nPulse enter para continuar",
          u"a\r\nPulse enter para continuar\r\nEl juego", u"El juego"});
  Expect({"only one break", u"a", u"a\r\n\r\nb", u"\r\nb"});
  Expect({"a lone CR", u"a", u"a\rb", u"b"});
  Expect({"after a prompt taken out", u"a\r\nPulse enter para continuar", u"a\r\n\r\nEl juego",
          u"El juego"});
  Expect({"a line that goes on", u"El juego", u"El juegoAna: Paso\r\n", u"Ana: Paso\r\n"});
}

// Appends random pieces and removes prompts at random; each piece must be reported exactly once.
TEST(NewPart, ReportsEveryPieceExactlyOnce) {
  std::mt19937 motor{7};
  for (int vuelta = 0; vuelta < 300; ++vuelta) {
    std::u16string texto;
    std::u16string visto;
    std::u16string contado;
    std::u16string esperado;
    for (int pieza = 0; pieza < 12; ++pieza) {
      const std::u16string linea = Join(u"línea ", pieza, u"\r\n");
      const bool quitaAvisos = motor() % 4 == 0 && !visto.empty();
      if (quitaAvisos) texto = ReplaceAll(texto, AvisoContinuar, u"");
      const std::u16string nueva = motor() % 3 == 0 ? Join(linea, AvisoContinuar, CrLf) : linea;
      texto += nueva;
      esperado += nueva;
      contado += NewPart(visto, texto).Texto;
      visto = texto;
    }
    ASSERT_EQ(test::Utf8(contado), test::Utf8(esperado)) << vuelta;
  }
}

}  // namespace
}  // namespace tasca
