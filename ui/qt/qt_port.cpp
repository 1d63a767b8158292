// Questions as modal boxes, the clock and the sounds.
#include "ui/qt/qt_port.h"

#include <QScopedValueRollback>
#include <QTime>
#include <utility>

#include "base/errors.h"
#include "ui/qt/answer_helpers.h"
#include "ui/qt/boxes.h"
#include "ui/qt/dialog_form.h"
#include "ui/qt/run_box.h"

namespace tasca {

void QtPort::SetStartWindow(QWidget* dlgInicio) {
  ventana_ = dlgInicio;
  form1_ = nullptr;
  mp1_.Stop();
}

void QtPort::SetMainWindow(Form1* form1) {
  ventana_ = form1;
  form1_ = form1;
}

// The player must see the current texts to answer a question.
void QtPort::ShowTable(const Table& t, Momento momento) {
  if (form1_ != nullptr) form1_->ShowTable(t, momento);
}

void QtPort::MsgBox(const Table& t, std::u16string_view texto) {
  ShowTable(t, Momento::Aviso);
  ShowMessage(ventana_, texto);
}

bool QtPort::YesNoBox(const Table& t, Pregunta sobre, const YesNoQuestion& pregunta) {
  ShowTable(t, Momento::Pregunta);
  const QScopedValueRollback<std::optional<Pregunta>> abierta{preguntando_, sobre};
  const std::optional<bool> respuesta = AskYesNo(ventana_, pregunta);
  if (!respuesta) throw LeaveProgram{};
  return *respuesta;
}

void QtPort::ShowDialog(const Table& t, Dialog& dialogo) {
  ShowTable(t, Momento::Pregunta);
  DialogForm forma{ventana_, dialogo};
  RunBox(forma, forma.focusWidget());
  if (dialogo.Visible) throw LeaveProgram{};
}

std::u16string QtPort::InputBox(const Table& t, Pregunta sobre, const InputQuestion& pregunta) {
  ShowTable(t, Momento::Pregunta);
  const QScopedValueRollback<std::optional<Pregunta>> abierta{preguntando_, sobre};
  AnswerHelper ayuda;
  if (sobre == Pregunta::Descarte) {
    ayuda = [&t](QLineEdit& campo) { return CardsToClick(campo, t.Manos[AsientoHumano]); };
  } else if (sobre == Pregunta::Cantidad) {
    ayuda = Steps;
  }
  std::u16string texto =
      AskText(ventana_, pregunta.Texto, pregunta.Titulo, pregunta.PorDefecto, ayuda);
  if (acabando_) throw LeaveProgram{};
  return texto;
}

void QtPort::OpenSound(const Table& t, std::u16string_view archivo) {
  mp1_.Open(t.Carpeta, archivo, t.Mp1);
}

void QtPort::StopSound(const Table& /*t*/) { mp1_.Stop(); }

TimeOfDay QtPort::Now() {
  const QTime ahora = QTime::currentTime();
  return {.Hora = ahora.hour(), .Minuto = ahora.minute(), .Segundo = ahora.second()};
}

}  // namespace tasca
