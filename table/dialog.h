#pragma once
// The state of the bidding dialog: four buttons, whose captions and visibility depend on the
// decision that is asked for.
#include <string_view>

#include "base/array.h"
#include "base/integer.h"

namespace tasca {

// A decision in a lance, of the human or of a computer seat. Codes 0 and 1 have two names: without
// a bet they mean paso and envido, as answers no quiero and quiero.
enum class Decision {
  Callar = -3,  // a refusal without a spoken line
  Paso = 0,
  NoQuiero = 0,
  Envido = 1,  // bets two stones
  Quiero = 1,
  EnvidoMas = 2,  // bets or raises by an amount
  Ordago = 3,
};

// The decision that the dialog asks for.
enum class ModoDialogo {
  RespuestaOrdago = -2,  // the answer to an órdago
  Apertura = -1,         // the opening: nobody has bet
  Respuesta = 0,         // the answer to a bet of stones
};

// One button of the dialog.
struct DialogButton {
  std::u16string_view Caption;
  bool Visible = true;
  bool Enabled = true;
};

// The dialog's controls. A face shows them and passes the events on.
struct Dialog {
  std::u16string_view Caption = u"Dialog Caption";
  ModoDialogo Modo = ModoDialogo::Respuesta;
  Integer Resultado;  // index (0..3) of the button last pressed; the dialog never resets it
  // Kept: button 0 is labelled "Paso" even where it means no quiero.
  Array<DialogButton, 0, 3> Command1{DialogButton{u"Paso"}, DialogButton{u"Envido"},
                                     DialogButton{u"Envido Más"}, DialogButton{u"Órdago"}};
  int Foco = 0;  // index of the button that gets the focus when the dialog opens
  bool Visible = false;
};

// Sets up the buttons for Modo and sets Visible. The focus is on "Paso". For RespuestaOrdago only
// "Paso" and "Quiero" are visible. An unknown Modo leaves the caption of button 1 unchanged.
void Form_Activate(Dialog& dialogo);

// Button `Index` (0..3) was pressed: stores it in Resultado and clears Visible.
void Command1_Click(Dialog& dialogo, Integer Index);

}  // namespace tasca
