// The manual's Markdown as roff.
#include "tools/man/roff.h"

#include <gtest/gtest.h>

namespace tasca::test {
namespace {

TEST(RoffOf, WritesHeadingsAndParagraphs) {
  EXPECT_EQ(RoffOf("# El programa\n\n## Al empezar\n\nUna línea\ny otra.\n\nDespués.\n"),
            ".SH \"El programa\"\n.SS \"Al empezar\"\n.PP\nUna línea\ny otra.\n.PP\nDespués.\n");
}

TEST(RoffOf, WritesListsAndQuotes) {
  EXPECT_EQ(RoffOf("- uno\n  y más\n- dos\n\n12. doce\n"),
            ".IP \\(bu 4\nuno\ny más\n.IP \\(bu 4\ndos\n.IP 12. 4\ndoce\n");
  EXPECT_EQ(RoffOf("> en corto\n> y bien\n\nLargo.\n"),
            ".PP\n.RS 4\nen corto\n.br\ny bien\n.br\n.RE\n.PP\nLargo.\n");
}

TEST(RoffOf, WritesARowOfATableUnderItsFirstCell) {
  EXPECT_EQ(RoffOf("| Tecla | Qué hace |\n|---|---|\n| F1 | abre |\n| Q | deja |\n"),
            ".TP\nF1\nabre\n.TP\nQ\ndeja\n");
  EXPECT_EQ(RoffOf("| A | B | C |\n|---|---|---|\n| 1 | 2 | 3 |\n| 4 | | 5 |\n"),
            ".TP\n1\nB: 2; C: 3\n.TP\n4\nC: 5\n");
}

TEST(RoffOf, WritesLettersAndLinks) {
  EXPECT_EQ(RoffOf("**Con *dos* letras** y `a-b`; [el mus](#el-mus).\n"),
            ".PP\n\\fBCon \\fIdos\\fR letras\\fR y \\fBa\\-b\\fR; el mus.\n");
  EXPECT_EQ(RoffOf("3 * 4 y [nada]\n"), ".PP\n3 * 4 y [nada]\n");
}

TEST(RoffOf, LetsNoTextBeARequest) {
  EXPECT_EQ(RoffOf(".so otra\n"), ".PP\n\\&.so otra\n");
  EXPECT_EQ(RoffOf("'x \\n\n"), ".PP\n\\&'x \\en\n");
  EXPECT_EQ(RoffOf("```\n.nada\n# no\n```\n"), ".PP\n.RS 4\n.nf\n\\&.nada\n# no\n.fi\n.RE\n");
}

}  // namespace
}  // namespace tasca::test
