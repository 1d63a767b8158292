// The console's output and input of lines.
#include "ui/terminal/console.h"

#include <gtest/gtest.h>

#include "base/errors.h"
#include "tests/ui_terminal/sessions.h"

namespace tasca::test {
namespace {

TEST(Console, EndsEveryLineOnce) {
  FakeConsole c;
  c.Consola.Line(u"uno");
  c.Consola.Line(u"dos\r\n");
  c.Consola.Line(u"");
  c.Consola.Line(u"tres\r\ncuatro");
  EXPECT_EQ(c.Take(), "uno\ndos\n\ntres\ncuatro\n");
}

TEST(Console, LeavesTheCursorAfterAPrompt) {
  FakeConsole c;
  c.Consola.Prompt(u"¿mus? ");
  EXPECT_EQ(c.Take(), "¿mus? ");
}

TEST(Console, StartsANewLineAfterAnOpenPrompt) {
  FakeConsole c;
  c.Consola.Prompt(u"uno");
  c.Consola.Prompt(u"dos");
  c.Consola.Line(u"tres");
  c.Consola.Prompt(u"cuatro");
  c.Consola.EndLine();
  c.Consola.EndLine();
  EXPECT_EQ(c.Take(), "uno\ndos\ntres\ncuatro\n");
}

TEST(Console, EndsThePromptsLineWithoutAnEcho) {
  FakeConsole c{"s\n"};
  c.Consola.Prompt(u"¿mus? ");
  c.Consola.ReadLine();
  EXPECT_EQ(c.Take(), "¿mus? \n");
}

TEST(Console, LeavesTheLineBreakToATerminalThatEchoes) {
  FakeConsole c{"s\n", true};
  c.Consola.Prompt(u"¿mus? ");
  c.Consola.ReadLine();
  c.Consola.Line(u"Ana: Mus");
  EXPECT_EQ(c.Take(), "¿mus? Ana: Mus\n");
}

TEST(Console, WrapsLinesAndPromptsAtTheCurrentWidth) {
  std::istringstream in;
  std::ostringstream out;
  std::size_t ancho = 12;
  Console consola{{.In = in, .Out = out, .Err = out, .Width = [&ancho] { return ancho; }}};
  consola.Line(u"Ana es mano\r\ny no se rinde");
  ancho = 9;
  consola.Prompt(u"¿Tiene   pares? [s/N] ");
  consola.EndLine();
  EXPECT_EQ(out.str(), "Ana es mano\ny no se\nrinde\n¿Tiene\npares?\n[s/N] \n");
}

TEST(Console, ReadsLinesWithEitherLineEndAndALastOneWithout) {
  FakeConsole c{"sí\r\n\nno"};
  EXPECT_EQ(c.Consola.ReadLine(), u"sí");
  EXPECT_EQ(c.Consola.ReadLine(), u"");
  EXPECT_EQ(c.Consola.ReadLine(), u"no");
  EXPECT_THROW(c.Consola.ReadLine(), LeaveProgram);
}

TEST(Console, ReadsInvalidUtf8) {
  FakeConsole c{"Jos\xE9\n"};
  EXPECT_EQ(c.Consola.ReadLine(), u"Jos\uFFFD");
}

TEST(Console, ReadsAVeryLongLine) {
  FakeConsole c{std::string(3'000'000, 'x') + "\n"};
  EXPECT_EQ(c.Consola.ReadLine().size(), 3'000'000U);
}

// Counts its flushes.
struct CountingBuffer : std::stringbuf {
  int sync() override {
    ++Flushes;
    return 0;
  }
  int Flushes = 0;
};

TEST(Console, FlushesBeforeAnError) {
  CountingBuffer buffer;
  std::ostream out{&buffer};
  std::istringstream in;
  std::ostringstream err;
  Console consola{{.In = in, .Out = out, .Err = err}};
  consola.Prompt(u"¿mus? ");
  consola.Error(u"Falta algo.");
  EXPECT_EQ(buffer.Flushes, 1);
}

TEST(Console, FlushesBeforeReading) {
  CountingBuffer buffer;
  std::ostream out{&buffer};
  std::istringstream in{"\n"};
  Console consola{{.In = in, .Out = out, .Err = out}};
  consola.Prompt(u"¿mus? ");
  EXPECT_EQ(buffer.Flushes, 0);
  consola.ReadLine();
  EXPECT_EQ(buffer.Flushes, 1);
}

TEST(Console, FailsWhenItsOutputCannotBeWritten) {
  FakeConsole c{"\n"};
  c.Out.setstate(std::ios::badbit);
  EXPECT_THROW(c.Consola.ReadLine(), RunTimeError);
  EXPECT_FALSE(c.Consola.Flush());
}

TEST(Console, WritesErrorsToStandardErrorWithoutControlCharacters) {
  FakeConsole c;
  c.Consola.Prompt(u"¿mus? ");
  c.Consola.Error(u"Falta \u0007algo.");
  EXPECT_EQ(c.Take(), "¿mus? \n");
  EXPECT_EQ(c.Err.str(), "Falta \uFFFDalgo.\n");
}

}  // namespace
}  // namespace tasca::test
