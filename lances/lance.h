#pragma once
// What tells one lance from another. The betting itself is the same for all five
// (lances/bidding.h).
#include <string_view>

#include "table/dialog.h"
#include "table/game.h"

namespace tasca {

struct Lance {
  NumeroLance Numero;
  std::u16string_view Encabezado;  // written when the opening starts, line breaks included
  bool EncabezadoReemplaza;        // the heading replaces the transcript (otherwise it is appended)
  bool EmpiezaSinEnvite;           // the opening first sets SeguirLance to 0

  std::u16string_view TituloApertura;         // the dialog's caption while nobody has bet
  std::u16string_view TituloCantidad;         // the input box's title then
  std::u16string_view TituloRespuesta;        // the dialog's caption when a bet is answered
  std::u16string_view TituloCantidadAlSubir;  // the input box's title then
  std::u16string_view EnPaso;                 // written when all have passed, prompt included
  std::u16string_view OrdagoGanado;  // the box after an accepted órdago, before the pareja
  std::u16string_view Aviso;         // the prompt after a settled bet

  Fase SiEnvidan;                 // the phase that follows a bet: its answer
  Fase SiPasan;                   // the phase that follows when all have passed
  Fase TrasRespuesta;             // the phase that follows a bet accepted or refused
  std::u16string_view YaContado;  // the count's line when there is nothing left to pay; "" without
  std::u16string_view Envidadas;  // the count, after the stones of an accepted bet
  std::u16string_view UnaEnPaso;  // the count, when the lance in paso gives a stone; "" without

  int RefrescosAlRehusar;  // how often the scoreboard is rewritten after a refused bet
  bool DeclaraAlRehusar;   // a refused bet gives the lance to the bettor's pareja at the count
  bool AvisoTrasOrdago;    // the prompt is written after an accepted órdago

  bool (*PuedeHablar)(const Table& t, Seat asiento);
  Decision (*Decide)(const Table& t, Rnd& rnd, Seat asiento);    // a computer seat opens
  Decision (*Responde)(const Table& t, Rnd& rnd, Seat asiento);  // a computer seat answers
  Pareja (*Gana)(Game& g);                                       // who wins the lance
};

// PuedeHablar of the lances in which everybody speaks.
inline bool HablanTodos(const Table& /*t*/, Seat /*asiento*/) { return true; }

// The prompts that end a step.
inline constexpr std::u16string_view AvisoContinuar = u"Pulse enter para continuar";
inline constexpr std::u16string_view AvisoContar = u"Pulse enter para contar";

}  // namespace tasca
