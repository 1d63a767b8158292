// The two events of the bidding dialog.
#include "table/dialog.h"

namespace tasca {

void Form_Activate(Dialog& dialogo) {
  dialogo.Visible = true;
  dialogo.Foco = 0;
  const bool contraOrdago = dialogo.Modo == ModoDialogo::RespuestaOrdago;
  for (const int indice : {2, 3}) {
    dialogo.Command1[indice].Visible = !contraOrdago;
    dialogo.Command1[indice].Enabled = !contraOrdago;
  }
  if (dialogo.Modo == ModoDialogo::Apertura) dialogo.Command1[1].Caption = u"Envido";
  if (dialogo.Modo == ModoDialogo::Respuesta || contraOrdago)
    dialogo.Command1[1].Caption = u"Quiero";
}

void Command1_Click(Dialog& dialogo, Integer Index) {
  dialogo.Resultado = Index;
  dialogo.Visible = false;
}

}  // namespace tasca
