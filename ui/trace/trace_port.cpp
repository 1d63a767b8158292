// Each question is an event whose answer is the next input line.
#include "ui/trace/trace_port.h"

#include "table/dialog.h"

namespace tasca {

void TracePort::MsgBox(const Table& t, std::u16string_view texto) { events_.MsgBox(t, texto); }

bool TracePort::YesNoBox(const Table& t, Pregunta /*sobre*/, const YesNoQuestion& pregunta) {
  events_.YesNoBox(t, pregunta);
  return input_.AnswerYesNo();
}

std::u16string TracePort::InputBox(const Table& t, Pregunta /*sobre*/,
                                   const InputQuestion& pregunta) {
  events_.InputBox(t, pregunta);
  return input_.AnswerText();
}

void TracePort::ShowDialog(const Table& t, Dialog& dialogo) {
  events_.ShowDialog(t, dialogo);
  Command1_Click(dialogo, input_.AnswerDialog(dialogo));
}

void TracePort::OpenSound(const Table& t, std::u16string_view archivo) {
  events_.Sound(t, archivo);
}

void TracePort::StopSound(const Table& t) { events_.SoundStop(t); }

}  // namespace tasca
