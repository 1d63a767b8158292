// Runs the steps of a session and catches what they throw.
#include "match/session.h"

#include <cstdlib>
#include <utility>

#include "base/errors.h"
#include "base/keys.h"
#include "match/phase_machine.h"
#include "match/start.h"
#include "sound/effects.h"

namespace tasca {

Session::Session(std::filesystem::path carpeta, Port& port,
                 const std::optional<std::filesystem::path>& estado)
    : port_{port} {
  t_.Carpeta = std::move(carpeta);
  if (estado) conservador_.emplace(*estado);
}

void Session::Copiar(Instante& en) const {
  en.Mesa = t_;
  en.Generador = rnd_;
  en.Relato = cronica_;
  en.Inicio = inicio_;
  en.Situacion = situacion_;
  en.Final = final_;
}

void Session::Volver(const Instante& instante) {
  t_ = instante.Mesa;
  rnd_ = instante.Generador;
  cronica_ = instante.Relato;
  inicio_ = instante.Inicio;
  situacion_ = instante.Situacion;
  final_ = instante.Final;
}

Situacion Session::Retomar() {
  return Hacer([this] {
    const bool sigue = conservador_ && conservador_->Ofrecer(g_);
    if (!sigue) return Situacion::EnInicio;
    ReanudarCronica();
    Conservar();
    return Situacion::EnLaMesa;
  });
}

Situacion Session::AbrirInicio() {
  return Hacer([this] {
    if (situacion_ != Situacion::EnInicio) LevantarMesa();
    inicio_ = {};
    Form_Load(inicio_, g_);
    return Situacion::EnInicio;
  });
}

Situacion Session::EnInicio(const std::function<void()>& suceso) { return Atender(suceso); }

Situacion Session::Aceptar() {
  return Hacer([this] {
    if (!CbOK_Click(inicio_, g_)) return Situacion::EnInicio;
    Form_Load(g_);
    cronica_.Empezar();
    cronica_.EmpezarMano();
    AnotarPaso();
    Conservar();
    return Situacion::EnLaMesa;
  });
}

Situacion Session::Tecla(Integer& KeyCode, Integer Shift) {
  return Hacer([&] {
    if (conservador_) conservador_->Esperar();
    const bool abreMano =
        KeyCode == TeclaQ || (KeyCode == TeclaEnter && t_.Fase == Fase::EmpezarMano);
    if (abreMano) cronica_.EmpezarMano();
    Text1_KeyDown(g_, KeyCode, Shift);
    AnotarPaso();
    if (port_.TakeChangePlayers()) {
      cronica_.Cerrar();
      Olvidar();
      return Situacion::OtrosJugadores;
    }
    Conservar();
    return Situacion::EnLaMesa;
  });
}

Situacion Session::FinDeSonido(Integer estado) {
  return Atender([&] { Mp1_FinReproduccion(g_, estado); });
}

Situacion Session::Atender(const std::function<void()>& paso) {
  return Hacer([&] {
    paso();
    return situacion_;
  });
}

Situacion Session::Salir() {
  return Hacer([]() -> Situacion { throw LeaveProgram{}; });
}

// Steps may be nested: a sound may end while a question is open. If the inner step ends the game,
// the outer one must not change the situation.
Situacion Session::Hacer(const std::function<Situacion()>& paso) {
  if (situacion_ == Situacion::Fin) return situacion_;
  try {
    const Situacion siguiente = paso();
    if (situacion_ != Situacion::Fin) situacion_ = siguiente;
  } catch (const LeaveProgram& salida) {
    if (salida.PartidaAcabada) Olvidar();
    Acabar({.Estado = EXIT_SUCCESS, .Mensaje = {}, .PartidaAcabada = salida.PartidaAcabada});
  } catch (const RunTimeError& error) {
    Acabar({.Estado = EXIT_FAILURE, .Mensaje = error.Message(), .YaMostrado = error.Shown()});
  }
  return situacion_;
}

void Session::Acabar(Desenlace final) {
  if (situacion_ == Situacion::Fin) return;
  final_ = std::move(final);
  situacion_ = Situacion::Fin;
}

void Session::ReanudarCronica() {
  if (const auto escrito = conservador_->Cronica()) return cronica_.Reanudar(*escrito, t_);
  cronica_.Empezar(u"Se sigue con una partida de otra vez. La crónica empieza en esta mano.");
  if (t_.Fase != Fase::EmpezarMano) cronica_.EmpezarMano();
  AnotarPaso();
}

void Session::AnotarPaso() {
  cronica_.Anotar(t_);
  if (t_.Fase == Fase::EmpezarMano) cronica_.TerminarMano(t_);
}

void Session::Conservar() {
  const Apunte apunte = cronica_.TomarApunte();
  if (conservador_) conservador_->Guardar(g_, apunte);
}

void Session::Olvidar() {
  if (conservador_) conservador_->Olvidar();
}

void Session::LevantarMesa() {
  port_.StopSound(t_);
  static_cast<Form1State&>(t_) = {};
}

}  // namespace tasca
