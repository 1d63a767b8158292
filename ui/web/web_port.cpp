// Questions from the record, and sounds as values.
#include "ui/web/web_port.h"

#include <algorithm>

namespace tasca {

void WebPort::Begin(TimeOfDay hora) {
  comienzo_ = hora;
  sucesos_.clear();
  contados_ = 0;
}

void WebPort::Run(const std::vector<Entrada>& guion) {
  TakeChangePlayers();  // of an abandoned run
  guion_ = &guion;
  leidas_ = 0;
  hora_ = comienzo_;
  abierta_.reset();
  sucesos_.clear();
}

// A run repeats the calls of the run before it, and adds its own.
std::vector<Suceso> WebPort::TakeCalls() {
  const auto desde = static_cast<std::ptrdiff_t>(std::min(contados_, sucesos_.size()));
  contados_ = sucesos_.size();
  return {sucesos_.begin() + desde, sucesos_.end()};
}

// An answer that does not fit is left out: it can only come from a match kept by other rules.
const Entrada& WebPort::Answer(const PreguntaAbierta& pregunta) {
  while (leidas_ < guion_->size()) {
    const Entrada& entrada = (*guion_)[leidas_++];
    hora_ = entrada.Hora;
    if (Vale(pregunta, entrada)) return entrada;
    if (entrada.Clase == ClaseEntrada::FinDeSonido) alAcabarSonido_(entrada.Numero);
  }
  abierta_ = pregunta;
  throw SinRespuesta{};
}

void WebPort::MsgBox(const Table& /*t*/, std::u16string_view texto) {
  Answer({.Clase = ClasePregunta::Aviso, .Texto = std::u16string{texto}});
}

bool WebPort::YesNoBox(const Table& /*t*/, Pregunta sobre, const YesNoQuestion& pregunta) {
  const Entrada& respuesta = Answer({.Clase = ClasePregunta::SiNo,
                                     .Sobre = sobre,
                                     .Titulo = std::u16string{pregunta.Titulo},
                                     .Texto = std::u16string{pregunta.Texto},
                                     .Si = pregunta.PorDefecto,
                                     .ConIcono = pregunta.ConIcono});
  return respuesta.Clase == ClaseEntrada::Si;
}

std::u16string WebPort::InputBox(const Table& t, Pregunta sobre, const InputQuestion& pregunta) {
  return Answer({.Clase = ClasePregunta::Texto,
                 .Sobre = sobre,
                 .Titulo = std::u16string{pregunta.Titulo},
                 .Texto = std::u16string{pregunta.Texto},
                 .PorDefecto = std::u16string{pregunta.PorDefecto},
                 .SusCartas = t.Manos[AsientoHumano]})
      .Texto;
}

void WebPort::ShowDialog(const Table& /*t*/, Dialog& dialogo) {
  const Entrada& respuesta = Answer({.Clase = ClasePregunta::Envite,
                                     .Titulo = std::u16string{dialogo.Caption},
                                     .Dialogo = dialogo});
  Command1_Click(dialogo, respuesta.Numero);
}

void WebPort::OpenSound(const Table& t, std::u16string_view archivo) {
  sucesos_.push_back({.Archivo = std::u16string{archivo}, .Ajustes = t.Mp1});
}

void WebPort::StopSound(const Table& t) { sucesos_.push_back({.Calla = true, .Ajustes = t.Mp1}); }

}  // namespace tasca
