// The name of a seat after "de" in the count.
#include <gtest/gtest.h>

#include "count/count.h"
#include "tests/count/recuento.h"

namespace tasca::test {
namespace {

// Only one seat has a par. Names are used.
struct RecuentoPar : Recuento {
  explicit RecuentoPar(Seat asiento) {
    DarMano(t, asiento, "7 7 5 4");
    t.Apuesta[NumeroLance::Pares] = 0;
    t.UsarNombres = true;
    principio_ = GrandeYPequenaPagadas + "La pareja " + std::to_string(ParejaDe(asiento)) +
                 " se saca  una del par ";
  }

  // The seat's name in the line of the pares, from "de" on.
  std::string Nombrado() {
    const std::string texto = Contar();
    EXPECT_TRUE(texto.starts_with(principio_)) << texto;
    const std::string resto = texto.substr(std::min(principio_.size(), texto.size()));
    return resto.substr(0, resto.find("\r\n"));
  }

 private:
  std::string principio_;
};

TEST(ContarMano, NamesSeatsByTheirNumberWithoutNames) {
  for (Seat asiento = 1; asiento <= 4; ++asiento) {
    RecuentoPar mano{asiento};
    mano.t.UsarNombres = false;
    mano.t.NombreJugador = u"Jugador 1";
    EXPECT_EQ(mano.Nombrado(), "del jugador " + std::to_string(asiento));
  }
}

TEST(ContarMano, NamesTheHuman) {
  struct Caso {
    std::u16string_view Nombre;
    std::string Nombrado;
  };
  const std::vector<Caso> casos{
      {u"Ana", "de Ana"},
      {u"Jugador 1", "del Jugador 1"},
      {u"el mejor jugador", "del el mejor jugador"},
      {u"JUGADOR", "de JUGADOR"},
      {u"Jugadora", "del Jugadora"},
      {u"ugado", "de ugado"},
      {u"el Rubio", "de el Rubio"},  // no "del" for the human
      {u" Ana ", "de  Ana "},        // not trimmed
  };
  for (const Caso& caso : casos) {
    RecuentoPar mano{1};
    mano.t.NombreJugador = caso.Nombre;
    EXPECT_EQ(mano.Nombrado(), caso.Nombrado);
  }
}

TEST(ContarMano, NamesTheHumanByTheNameOfTheMatchNotOfTheRecord) {
  RecuentoPar mano{1};
  mano.t.Personajes[0].Nombre = u"Otra";
  EXPECT_EQ(mano.Nombrado(), "de Ana");
}

TEST(ContarMano, NamesTheCharacterThatSitsAtTheSeat) {
  EXPECT_EQ(RecuentoPar{2}.Nombrado(), "de Berta");
  EXPECT_EQ(RecuentoPar{3}.Nombrado(), "del Cojo");
  EXPECT_EQ(RecuentoPar{4}.Nombrado(), "de Dora");
}

TEST(ContarMano, ContractsDeEl) {
  struct Caso {
    std::u16string_view Nombre;
    std::string Nombrado;
  };
  const std::vector<Caso> casos{
      {u"el Tío Pepe", "del Tío Pepe"},
      {u"El Tío Pepe", "de El Tío Pepe"},
      {u"EL Tío Pepe", "de EL Tío Pepe"},
      {u"La boticaria", "de La boticaria"},
      {u"Jugador 2", "de Jugador 2"},
      {u"Manuel el Rubio", "de Manuel el Rubio"},
      {u"  el Tío Pepe  ", "de el Tío Pepe"},  // the name begins with blanks
      {u"el", "del"},
      {u"e", "de e"},
  };
  for (const Caso& caso : casos) {
    RecuentoPar mano{4};
    mano.t.Personajes[5].Nombre = caso.Nombre;
    EXPECT_EQ(mano.Nombrado(), caso.Nombrado);
  }
}

// The first two letters are tested, not the word.
TEST(ContarMano, Kept_ContractsNamesThatOnlyBeginWithEl) {
  RecuentoPar mano{2};
  mano.t.Personajes[3].Nombre = u"elena";
  EXPECT_EQ(mano.Nombrado(), "delena");
}

TEST(ContarMano, ContractsAfterEveryPhraseOfPares) {
  Recuento mano;
  mano.t.UsarNombres = true;
  mano.t.Personajes[5].Nombre = u"el Tuerto";
  DarMano(mano.t, 2, "7 7 7 4");
  DarMano(mano.t, 4, "7 7 5 5");
  mano.t.Apuesta[NumeroLance::Pares] = 0;
  EXPECT_EQ(mano.Contar(), GrandeYPequenaPagadas +
                               "La pareja 0 se saca  dos de las medias de Berta y tres de los "
                               "dúplex del Tuerto\r\n" +
                               PuntoYaContado + Tanteo(0, 5));
}

TEST(ContarMano, ContractsAfterEveryPhraseOfJuego) {
  Recuento mano;
  mano.t.UsarNombres = true;
  mano.t.Personajes[3].Nombre = u"el Tuerto";
  mano.t.Personajes[5].Nombre = u"el Zurdo";
  DarMano(mano.t, 2, "R C 7 4");
  DarMano(mano.t, 4, "R C S 5");
  mano.t.SeJuegaPunto = false;
  EXPECT_EQ(mano.Contar(), GrandeYPequenaPagadas +
                               "\r\nLa pareja 0 se saca tres de la treintayuna del Tuerto y dos "
                               "del juego del Zurdo" +
                               Tanteo(0, 5));
}

}  // namespace
}  // namespace tasca::test
