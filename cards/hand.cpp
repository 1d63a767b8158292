// The start of a hand.
#include "cards/hand.h"

#include "base/text.h"
#include "cards/deck.h"
#include "cards/hand_text.h"
#include "characters/speech.h"
#include "sound/effects.h"

namespace tasca {
namespace {

void PasarLaMano(Table& t) {
  const Integer anterior = t.OrdenAsiento[1];
  for (int i = 1; i <= 3; ++i) t.OrdenAsiento[i] = t.OrdenAsiento[i + 1];
  t.OrdenAsiento[4] = anterior;
}

std::u16string QuienEsMano(const Table& t) {
  const Seat mano = t.OrdenAsiento[1];
  if (t.UsarNombres) return Join(PersonajeDe(t, mano).Nombre.Trimmed(), u" es mano", CrLf);
  return Join(u"El jugador ", mano, u" es mano.", CrLf);
}

}  // namespace

void EmpezarMano(Game& g) {
  Table& t = g.t;
  PasarLaMano(t);
  t.Text1.clear();
  EmpezarRelato(t);
  t.SeJuegaPunto = false;
  t.RondasMus = 0;
  for (const NumeroLance lance :
       {NumeroLance::Grande, NumeroLance::Pequena, NumeroLance::Pares, NumeroLance::Juego}) {
    t.Apuesta[lance] = 0;
  }
  for (const NumeroLance lance : {NumeroLance::Pares, NumeroLance::Juego}) {
    t.Declaracion[lance] = SinDeclaracion;
  }
  CrearBaraja(t, g.rnd);
  t.CartaSiguiente = 1;
  SonidoCartas(g, SonidoReparto);
  Barajar(t, g.rnd, CartasBaraja);
  for (Seat asiento = 1; asiento <= 4; ++asiento) Repartir(g, asiento, 4);
  MostrarManos(t, AsientoHumano);
  t.Fase = Fase::Mus;
  EmpezarRelato(t, Join(u"Sus cartas son", CrLf, TextoMano(t), CrLf, QuienEsMano(t),
                        u"pulse Enter para empezar"));
}

}  // namespace tasca
