// The character editor: phrases.
#include <gtest/gtest.h>

#include "tests/characters/taller.h"
#include "tests/support/errors.h"

namespace tasca::test {
namespace {

// Selects character 2, kind 9, phrase 3.
void ElegirFrase(Taller& e) {
  List1_Click(e.d, e.t, e.port, 1);
  List2_Click(e.d, e.t, 8);
  List3_Click(e.d, 2);
}

TEST(ModificarMensaje, AsksWithTheCurrentPhraseAsTheDefault) {
  Taller e{2};
  ElegirFrase(e);
  e.port.Types(u"  van & más  ");
  Command2_Click(e.d, e.t, e.port, 0);
  EXPECT_EQ(e.port.TakeEvents(),
            (Textos{"input[Mensaje envido & más]: Nuevo mensaje: (default 2-9-3)"}));
  EXPECT_EQ(Entradas(e.d.List3), (Textos{"2-9-1", "2-9-2", "van & más"}));
  EXPECT_EQ(Utf8(e.t.Mensajes[2][9][3].Full()).substr(0, 12), "van & más  ");
}

TEST(ModificarMensaje, AsksWithAnEmptyDefaultForAPhraseNeverFilled) {
  Taller e{2};
  ElegirFrase(e);
  e.t.Mensajes[2][9][3] = FixedText<AnchoFrase>{};
  e.port.Types(u"vale");
  Command2_Click(e.d, e.t, e.port, 0);
  EXPECT_EQ(e.port.TakeEvents(),
            (Textos{"input[Mensaje envido & más]: Nuevo mensaje: (default )"}));
}

TEST(ModificarMensaje, CutsTheAnswerThenTrimsIt) {
  Taller e{2};
  ElegirFrase(e);
  e.port.Types(std::u16string(99, u'a') + u"bc").Types(std::u16string(100, u' ') + u"x");
  Command2_Click(e.d, e.t, e.port, 0);
  EXPECT_EQ(e.Frase(2, 9, 3), std::string(99, 'a') + "b");
  EXPECT_EQ(Entradas(e.d.List3).at(2), std::string(99, 'a') + "b");
  Command2_Click(e.d, e.t, e.port, 0);
  EXPECT_EQ(e.Frase(2, 9, 3), "");
  EXPECT_EQ(Entradas(e.d.List3).at(2), "");
}

TEST(ModificarMensaje, Kept_CancellingClearsThePhrase) {
  Taller e{2};
  ElegirFrase(e);
  e.port.Types(u"");
  Command2_Click(e.d, e.t, e.port, 0);
  EXPECT_EQ(e.Frase(2, 9, 3), "");
  EXPECT_FALSE(e.NuncaLlenada(2, 9, 3));
  Command3_Click(e.d, e.t, e.port, 0);
  EXPECT_EQ(e.carpeta.Read("Jugadores.dat").find("2-9-3"), std::string::npos);
}

TEST(ModificarMensaje, EndsTheProgramWithoutASelection) {
  Taller sinPersonaje{1};  // character 1 is shown but not selected
  EXPECT_EQ(ErrorOf([&] { Command2_Click(sinPersonaje.d, sinPersonaje.t, sinPersonaje.port, 0); }),
            IndiceFuera);
  Taller sinFrase{1};
  List1_Click(sinFrase.d, sinFrase.t, sinFrase.port, 0);
  List2_Click(sinFrase.d, sinFrase.t, 0);
  EXPECT_EQ(ErrorOf([&] { Command2_Click(sinFrase.d, sinFrase.t, sinFrase.port, 0); }),
            IndiceFuera);
  Taller vacio;
  EXPECT_EQ(ErrorOf([&] { List3_KeyDown(vacio.d, vacio.t, vacio.port, 13); }), IndiceFuera);
}

TEST(List3_KeyDown, AsksForTheNewTextOnEnterAndF2Alone) {
  Taller e{2};
  ElegirFrase(e);
  e.port.Types(u"uno").Types(u"dos");
  List3_KeyDown(e.d, e.t, e.port, 13);
  EXPECT_EQ(e.Frase(2, 9, 3), "uno");
  List3_KeyDown(e.d, e.t, e.port, 113);
  EXPECT_EQ(e.Frase(2, 9, 3), "dos");
  for (const int tecla : {0, 12, 14, 32, 46, 112, 114}) List3_KeyDown(e.d, e.t, e.port, tecla);
  EXPECT_EQ(e.Frase(2, 9, 3), "dos");
}

TEST(EliminarMensaje, ClearsThePhrase) {
  Taller e{2};
  ElegirFrase(e);
  Command2_Click(e.d, e.t, e.port, 1);
  EXPECT_EQ(Entradas(e.d.List3), (Textos{"2-9-1", "2-9-2", ""}));
  EXPECT_EQ(e.Frase(2, 9, 3), "");
  EXPECT_FALSE(e.NuncaLlenada(2, 9, 3));
  EXPECT_EQ(e.port.TakeEvents(), Textos{});
}

TEST(EliminarMensaje, BeepsWithoutASelection) {
  Taller e{1};
  Command2_Click(e.d, e.t, e.port, 1);  // no character
  List1_Click(e.d, e.t, e.port, 0);
  List2_Click(e.d, e.t, 0);
  Command2_Click(e.d, e.t, e.port, 1);  // no phrase
  EXPECT_EQ(e.port.TakeEvents(), (Textos{"beep", "beep"}));
  EXPECT_EQ(e.Frase(1, 1, 1), "1-1-1");
}

struct Tecleado {
  std::u16string Texto;
  int Largo;
  std::string Reparo;
};

class ReparoAlTextoDe : public testing::TestWithParam<Tecleado> {};

TEST_P(ReparoAlTextoDe, RefusesWhatTheFileCannotHold) {
  const Tecleado& caso = GetParam();
  EXPECT_EQ(Utf8(ReparoAlTexto(caso.Texto, caso.Largo, 100)), caso.Reparo);
}

constexpr auto Linea = "Un texto no puede tener más de una línea.";
constexpr auto Control = "Un texto no lleva tabuladores ni caracteres de control.";
constexpr auto SinSitio = "El archivo no tiene sitio para ese carácter.";

INSTANTIATE_TEST_SUITE_P(
    Editor, ReparoAlTextoDe,
    testing::Values(Tecleado{u"¿Órdago & más? «ñ» “€” ~ÿ", 26, ""}, Tecleado{u"", 100, ""},
                    Tecleado{u"a", 100, ""},
                    Tecleado{u"a", 101, "El texto no puede ser más largo."},
                    Tecleado{u"uno\ndos", 7, Linea}, Tecleado{u"uno\r\n", 5, Linea},
                    Tecleado{u"a>b", 3,
                             "El signo > no puede guardarse: separa las partes del archivo."},
                    Tecleado{std::u16string{u"a\0b", 3}, 3, Control}, Tecleado{u"a\tb", 3, Control},
                    Tecleado{u"\u0081", 1, Control}, Tecleado{u"\u009F", 1, Control},
                    Tecleado{u"ł", 1, SinSitio}, Tecleado{u"日本", 2, SinSitio},
                    Tecleado{u"😀", 2, SinSitio}, Tecleado{u"\u2028", 1, SinSitio}));

}  // namespace
}  // namespace tasca::test
