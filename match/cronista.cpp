// Notes the table before each question.
#include "match/cronista.h"

namespace tasca {

void Cronista::MsgBox(const Table& t, std::u16string_view texto) {
  cronica_.AnotarAviso(t, texto);
  cara_.MsgBox(t, texto);
}

bool Cronista::YesNoBox(const Table& t, Pregunta sobre, const YesNoQuestion& pregunta) {
  cronica_.Anotar(t);
  if (sobre == Pregunta::OtraPartida) cronica_.TerminarMano(t);
  const bool si = cara_.YesNoBox(t, sobre, pregunta);
  if (sobre == Pregunta::CambiarJugadores && !si) {
    cronica_.Empezar(u"Otra partida con los mismos jugadores.");
  }
  return si;
}

std::u16string Cronista::InputBox(const Table& t, Pregunta sobre, const InputQuestion& pregunta) {
  cronica_.Anotar(t);
  return cara_.InputBox(t, sobre, pregunta);
}

void Cronista::ShowDialog(const Table& t, Dialog& dialogo) {
  cronica_.Anotar(t);
  cara_.ShowDialog(t, dialogo);
}

void Cronista::OpenSound(const Table& t, std::u16string_view archivo) {
  cara_.OpenSound(t, archivo);
}

void Cronista::StopSound(const Table& t) { cara_.StopSound(t); }

TimeOfDay Cronista::Now() { return cara_.Now(); }

void Cronista::ChangePlayers() { cara_.ChangePlayers(); }

}  // namespace tasca
