#pragma once
// What differs between the five lances. The betting is the same for all (lances/bidding.h).
// A lance also has its phases (table/phases.h), an element of Apuesta and Declaracion
// (table/table.h) and their resets (cards/hand.cpp, match/start.cpp), its count (count/count.cpp),
// its cell on the slate (scene/slate.cpp) and its name there (ui/mesa/palabras.cpp).
#include <string_view>

#include "table/dialog.h"
#include "table/game.h"

namespace tasca {

// The texts and rules of one lance.
struct Lance {
  NumeroLance Numero;
  std::u16string_view Encabezado;  // heading written at the start of the opening, with line breaks
  bool EncabezadoReemplaza;        // the heading replaces the transcript (otherwise it is appended)
  bool EmpiezaSinEnvite;           // the opening first sets SeguirLance to 0

  std::u16string_view TituloApertura;         // opening: caption of the bidding dialog
  std::u16string_view TituloCantidad;         // opening: title of the input box for the stones
  std::u16string_view TituloRespuesta;        // answer: caption of the bidding dialog
  std::u16string_view TituloCantidadAlSubir;  // answer: title of the input box for the stones
  std::u16string_view EnPaso;                 // text if all have passed, with the prompt
  std::u16string_view OrdagoGanado;           // accepted órdago: message box, before the pareja
  std::u16string_view Aviso;                  // prompt after an accepted or refused bet

  Fase SiEnvidan;                 // next phase after a bet: its answer
  Fase SiPasan;                   // next phase if all have passed
  Fase TrasRespuesta;             // next phase after an accepted or refused bet
  std::u16string_view YaContado;  // count: text if the lance has already been paid; may be ""
  std::u16string_view Envidadas;  // count: text after the stones of an accepted bet
  std::u16string_view UnaEnPaso;  // count: text for the stone of a lance en paso; may be ""

  int RefrescosAlRehusar;  // how often the scoreboard is rewritten after a refused bet
  bool DeclaraAlRehusar;   // a refused bet sets Declaracion to the pareja that bet
  bool AvisoTrasOrdago;    // a prompt is written after an accepted órdago

  bool (*PuedeHablar)(const Table& t, Seat asiento);             // whether the seat takes part
  Decision (*Decide)(const Table& t, Rnd& rnd, Seat asiento);    // opening of a computer seat
  Decision (*Responde)(const Table& t, Rnd& rnd, Seat asiento);  // answer of a computer seat
  Pareja (*Gana)(Game& g);                                       // the pareja that wins the lance
};

// PuedeHablar of the lances in which all seats take part.
inline bool HablanTodos(const Table& /*t*/, Seat /*asiento*/) { return true; }

// The prompts at the end of a step.
inline constexpr std::u16string_view AvisoContinuar = u"Pulse enter para continuar";
inline constexpr std::u16string_view AvisoContar = u"Pulse enter para contar";

}  // namespace tasca
