// Sets up the table and writes the first transcript.
#include "match/start.h"

#include "base/text.h"
#include "cards/deck.h"
#include "cards/hand_text.h"
#include "characters/character_file.h"
#include "characters/speech.h"
#include "sound/effects.h"
#include "startup/seed.h"
#include "startup/settings.h"

namespace tasca {
namespace {

void FijarOrdagueros(Table& t) {
  for (Seat asiento = 1; asiento <= 4; ++asiento) {
    t.OrdagueroAsiento[asiento] = PersonajeDe(t, asiento).Ordaguero;
  }
  t.OrdagueroAsiento[AsientoHumano] = 0;
}

// The names of both parejas; "" if no character sits at seat 2.
std::u16string Titulo(const Table& t) {
  if (t.PersonajeAsiento[1] == 0) return {};
  return Join(u"Partida de", CrLf, Trim(t.NombreJugador), u" y ",
              PersonajeDe(t, 3).Nombre.Trimmed(), CrLf, u" contra ", CrLf,
              PersonajeDe(t, 2).Nombre.Trimmed(), u" y ", PersonajeDe(t, 4).Nombre.Trimmed(), CrLf,
              CrLf);
}

// Kept: between some pieces there are two blanks, between others none.
std::u16string DescripcionPartida(const Table& t) {
  std::u16string texto = u"Partida ";
  if (t.VacasPartida > 1) texto += Join(u"al mejor de ", t.VacasPartida, u" vacas, cada una ");
  if (t.VacasPartida == 1) texto += u" a una vaca ";
  if (t.JuegosVaca > 1) texto += Join(u" al mejor de ", t.JuegosVaca, u" juegos de");
  if (t.JuegosVaca == 1) texto += u" a un juego de ";
  return Join(texto, t.PiedrasJuego, u" piedras.", CrLf);
}

}  // namespace

void Form_Load(Game& g) {
  Table& t = g.t;
  static_cast<Form1State&>(t) = {};
  SembrarConHora(g);
  t.PersonajeAsiento[0] = 0;
  for (int i = 1; i <= 4; ++i) t.OrdenAsiento[i] = i;
  for (const NumeroLance lance : {NumeroLance::Pares, NumeroLance::Juego}) {
    t.Declaracion[lance] = SinDeclaracion;
  }
  t.ManoPorDecidir = true;
  t.PiedrasJuego = 35;
  t.JuegosVaca = 3;
  t.VacasPartida = 3;
  LeerParametrosPartida(t);
  LeerPersonajes(t);
  FijarOrdagueros(t);
  CrearBaraja(t, g.rnd);
  SonidoCartas(g, SonidoBarajado);
  for (Seat asiento = 1; asiento <= 4; ++asiento) Repartir(g, asiento, 4);
  MostrarManos(t, AsientoHumano);
  t.Fase = Fase::Mus;
  EmpezarRelato(t, Join(Titulo(t), DescripcionPartida(t), u"Sus cartas son ", CrLf, TextoMano(t),
                        CrLf, u"Pulse enter para empezar"));
}

}  // namespace tasca
