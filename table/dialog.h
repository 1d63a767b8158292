#pragma once
// The bidding dialog: four buttons whose captions and reach depend on what may be answered.
#include <string_view>

#include "base/array.h"
#include "base/integer.h"

namespace tasca {

// A decision, by the human's button or a computer seat's head. The same code means paso or no
// quiero, envido or quiero, depending on whether a bet stands.
enum class Decision {
  Callar = -3,  // answers nothing at all: a silent refusal
  Paso = 0,
  NoQuiero = 0,
  Envido = 1,
  Quiero = 1,
  EnvidoMas = 2,
  Ordago = 3,
};

// What the dialog is for.
enum class ModoDialogo {
  RespuestaOrdago = -2,  // answering an órdago
  Apertura = -1,         // no bet on the table
  Respuesta = 0,         // answering a bet of stones
};

struct DialogButton {
  std::u16string_view Caption;
  bool Visible = true;
  bool Enabled = true;
};

struct Dialog {
  std::u16string_view Caption = u"Dialog Caption";
  ModoDialogo Modo = ModoDialogo::Respuesta;
  Integer Resultado;  // index of the button last pressed; never reset by the dialog
  // Kept: button 0 says "Paso" also where it means no quiero.
  Array<DialogButton, 0, 3> Command1{DialogButton{u"Paso"}, DialogButton{u"Envido"},
                                     DialogButton{u"Envido Más"}, DialogButton{u"Órdago"}};
  int Foco = 0;  // the button that has the focus when the dialog opens
  bool Visible = false;
};

// Prepares the buttons for Modo and shows the form: "Paso" gets the focus; against an órdago only
// "Paso" and "Quiero" are left. An unknown Modo leaves the caption of button 1 as it is.
void Form_Activate(Dialog& dialogo);

// A press of button `Index` (0..3): notes it in Resultado and hides the form.
void Command1_Click(Dialog& dialogo, Integer Index);

}  // namespace tasca
