// The dispatch from Fase to the steps of a hand.
#include "match/phase_machine.h"

#include "cards/hand.h"
#include "cards/hand_text.h"
#include "count/count.h"
#include "lances/grande.h"
#include "lances/juego.h"
#include "lances/pares.h"
#include "lances/pequena.h"
#include "lances/punto.h"
#include "mus/mus.h"

namespace tasca {
namespace {

using Step = void (*)(Game&);

// An opening step; a bet that it leaves standing is answered on the same Enter.
void Abrir(Game& g, Step apertura, Step respuesta) {
  apertura(g);
  if (g.t.SeguirLance != 0) respuesta(g);
}

void EjecutarFase(Game& g) {
  switch (g.t.Fase) {
    case -1:
      return EmpezarMano(g);
    case 0:
      return FaseMus(g);
    case 1:
      return Abrir(g, LanceGrande, EnviteGrande);
    case 2:
      return EnviteGrande(g);
    case 3:
      return Abrir(g, LancePequena, EnvitePequena);
    case 4:
      return EnvitePequena(g);
    case 5:
      return DeclaraPares(g);
    case 6:
      return Abrir(g, LancePares, EnvitePares);
    case 7:
      return EnvitePares(g);
    case 8:
      return DeclaraJuego(g);
    case 9:
      return Abrir(g, LanceJuego, EnviteJuego);
    case 10:
      return EnviteJuego(g);
    case 11:
      return Abrir(g, LancePunto, EnvitePunto);
    case 12:
      return EnvitePunto(g);
    case 13:
      return ContarMano(g);
    default:
      return;
  }
}

}  // namespace

void Text1_KeyDown(Game& g, Integer& KeyCode, Integer Shift) {
  if (KeyCode == TeclaEnter) {
    EjecutarFase(g);
    KeyCode = 0;
  } else if (KeyCode == TeclaQ) {
    KeyCode = 0;
    EmpezarMano(g);
  } else if (KeyCode == Tecla0 && Shift == MayusculasYControl) {
    MostrarManos(g.t, TodosLosAsientos);
  }
}

}  // namespace tasca
