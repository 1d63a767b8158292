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

// Runs the opening step, and the answer step if the opening has left an unanswered bet.
void Abrir(Game& g, Step apertura, Step respuesta) {
  apertura(g);
  if (g.t.SeguirLance != 0) respuesta(g);
}

void EjecutarFase(Game& g) {
  switch (g.t.Fase) {
    case Fase::EmpezarMano:
      return EmpezarMano(g);
    case Fase::Mus:
      return FaseMus(g);
    case Fase::Grande:
      return Abrir(g, LanceGrande, EnviteGrande);
    case Fase::RespuestaGrande:
      return EnviteGrande(g);
    case Fase::Pequena:
      return Abrir(g, LancePequena, EnvitePequena);
    case Fase::RespuestaPequena:
      return EnvitePequena(g);
    case Fase::DeclaracionPares:
      return DeclaraPares(g);
    case Fase::Pares:
      return Abrir(g, LancePares, EnvitePares);
    case Fase::RespuestaPares:
      return EnvitePares(g);
    case Fase::DeclaracionJuego:
      return DeclaraJuego(g);
    case Fase::Juego:
      return Abrir(g, LanceJuego, EnviteJuego);
    case Fase::RespuestaJuego:
      return EnviteJuego(g);
    case Fase::Punto:
      return Abrir(g, LancePunto, EnvitePunto);
    case Fase::RespuestaPunto:
      return EnvitePunto(g);
    case Fase::Cuenta:
      return ContarMano(g);
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
  } else if (EsTeclaDeVerManos(KeyCode, Shift)) {
    MostrarManos(g.t, TodosLosAsientos);
  }
}

}  // namespace tasca
