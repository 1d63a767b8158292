// The table in spoken words.
#include "ui/mesa/spoken.h"

#include <gtest/gtest.h>

#include "tests/support/tables.h"
#include "tests/ui_mesa/scenes.h"

namespace tasca::test {
namespace {

// What is said of one thing; "" when nothing is.
std::string Said(const Escena& escena, Parte de, int indice) {
  std::string dicho;
  for (const Frase& frase : LaMesaHablada(escena)) {
    if (frase.De == de && frase.Indice == indice) dicho += Utf8(frase.Texto);
  }
  return dicho;
}

TEST(LaMesaHablada, TellsEverySeat) {
  Escena escena = EscenaInicial();
  escena.Asientos[4].Pares = Declarado::Si;
  escena.Asientos[4].Juego = Declarado::No;
  EXPECT_EQ(Said(escena, Parte::Asiento, 4),
            "Dora, de la pareja contraria, a su izquierda, es mano. Cuatro cartas tapadas. Pares "
            "sí. Juego no.");
  EXPECT_EQ(Said(escena, Parte::Asiento, 2),
            "Berta, de la pareja contraria, a su derecha. Cuatro cartas tapadas.");
  EXPECT_EQ(Said(escena, Parte::Asiento, 3),
            "el Cojo, de su pareja, enfrente. Cuatro cartas tapadas.");
  EXPECT_EQ(Said(escena, Parte::Asiento, 1), "Ana, usted.");
}

TEST(LaMesaHablada, TellsWhatASeatHasJustDone) {
  Escena escena = EscenaInicial();
  escena.Asientos[2].Bocadillo = u"Envido";
  escena.Asientos[3].CartasCambiadas = 2;
  escena.Toca = Turno::Jugador;
  EXPECT_EQ(Said(escena, Parte::Asiento, 2),
            "Berta, de la pareja contraria, a su derecha. Cuatro cartas tapadas. Dice: «Envido».");
  EXPECT_EQ(Said(escena, Parte::Asiento, 3),
            "el Cojo, de su pareja, enfrente. Cuatro cartas tapadas. Cambió 2.");
  EXPECT_EQ(Said(escena, Parte::Asiento, 1), "Ana, usted. Le toca.");
}

TEST(LaMesaHablada, NamesNoCardThatLiesFaceDown) {
  Escena escena = EscenaInicial();
  escena.Asientos[2].Naipes[1].Carta = 20;
  escena.Asientos[2].Naipes[2].Carta = 21;
  escena.Asientos[2].Naipes[3] = {};
  EXPECT_EQ(Said(escena, Parte::Asiento, 2),
            "Berta, de la pareja contraria, a su derecha. Cartas: Rey de copas, As de espadas, una "
            "tapada.");
  escena.Asientos[2].Naipes = {};
  EXPECT_EQ(Said(escena, Parte::Asiento, 2),
            "Berta, de la pareja contraria, a su derecha. Sin cartas.");
}

TEST(LaMesaHablada, NamesThePlayersCardsInTheirPlaces) {
  Escena escena = EscenaInicial();
  escena.Asientos[1].Naipes[2] = {};
  EXPECT_EQ(Said(escena, Parte::Carta, 1), "Su carta 1: Rey de copas");
  EXPECT_EQ(Said(escena, Parte::Carta, 2), "");
  EXPECT_EQ(Said(escena, Parte::Carta, 4), "Su carta 4: As de oros");
  escena.Asientos[1].Naipes[4].Carta = 0;
  EXPECT_EQ(Said(escena, Parte::Carta, 4), "") << "it lies face down";
}

TEST(LaMesaHablada, TellsTheSlate) {
  Escena escena = EscenaInicial();
  escena.Pizarra[0] = {.Lance = NumeroLance::Grande, .Estado = EstadoLance::NoQuerida};
  escena.Pizarra[1] = {.Lance = NumeroLance::Pequena,
                       .Marca = MarcaLance::EnJuego,
                       .Estado = EstadoLance::Envite,
                       .Piedras = 4,
                       .Vistas = 2,
                       .De = 0};
  escena.Pizarra[2] = {.Lance = NumeroLance::Pares, .Estado = EstadoLance::SinEnvite, .De = 1};
  escena.Pizarra[3].Marca = MarcaLance::Siguiente;
  const auto dicho = [&](NumeroLance lance) {
    return Said(escena, Parte::Lance, static_cast<int>(lance));
  };
  EXPECT_EQ(dicho(NumeroLance::Grande), "Grande: no querida");
  EXPECT_EQ(dicho(NumeroLance::Pequena), "Pequeña, en juego: 4 de la pareja 0 sobre 2 vistas");
  EXPECT_EQ(dicho(NumeroLance::Pares), "Pares: sin envite de la pareja 1");
  EXPECT_EQ(dicho(NumeroLance::Juego), "Juego, el siguiente: por jugar");
}

TEST(LaMesaHablada, TellsTheScore) {
  Escena escena = EscenaInicial();
  escena.Tanteo[1].Piedras = 23;
  escena.Tanteo[1].Juegos = 1;
  escena.Tanteo[0].Piedras = 1;
  escena.Tanteo[0].Vacas = 2;
  EXPECT_EQ(Said(escena, Parte::Tanteo, 1),
            "Pareja 1: nosotros. 23 piedras, un juego, ninguna vaca");
  EXPECT_EQ(Said(escena, Parte::Tanteo, 0), "Pareja 0: ellos. una piedra, ningún juego, 2 vacas");
}

}  // namespace
}  // namespace tasca::test
