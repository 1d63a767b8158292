// Steps, their copies and their records.
#include "ui/web/tasca.h"

#include <utility>

#include "base/errors.h"
#include "base/keys.h"
#include "characters/editor.h"
#include "keep/partida_guardada.h"
#include "ui/web/archivos.h"

namespace tasca {
namespace {

void Exigir(bool posible, const char* que) {
  if (!posible) throw Imposible{que};
}

}  // namespace

Tasca::Tasca(std::filesystem::path carpeta) : carpeta_{std::move(carpeta)} {}

std::string Tasca::Abrir(std::string_view guardada, TimeOfDay hora) {
  sesion_.emplace(carpeta_, puerto_);
  recital_ = {};
  guardada_ = {};
  if (guardada.empty()) return Dar({.Hora = hora});
  if (Continuar(guardada)) return Contar();
  return Dar({.Hora = hora},
             u"La partida que se guardó está dañada o es de otra versión del juego, y no se puede "
             u"seguir.");
}

// The sounds of the open step were heard before.
bool Tasca::Continuar(std::string_view guardada) {
  std::optional<PartidaWeb> leida = LeerPartidaWeb(guardada);
  if (!leida) return false;
  sesion_->Copiar(*antes_);
  if (!LeerPartida(leida->Partida, antes_->Mesa, antes_->Generador)) return false;
  antes_->Relato.Reanudar(leida->Cronica, antes_->Mesa);
  antes_->Situacion = Situacion::EnLaMesa;
  sesion_->Volver(*antes_);
  guardada_ = std::move(*leida);
  const std::optional<PasoAbierto> paso = std::exchange(guardada_.Paso, std::nullopt);
  puerto_.Begin(paso ? paso->Hora : TimeOfDay{});
  guion_ = paso ? paso->Guion : std::vector<Entrada>{};
  if (paso) {
    paso_ = {.Que = Paso::Clase::Tecla,
             .KeyCode = paso->KeyCode,
             .Shift = paso->Shift,
             .Hora = paso->Hora};
    Correr();
  }
  puerto_.TakeCalls();
  return true;
}

std::string Tasca::Elige(int combo, int posicion) {
  ExigirInicio();
  DlgInicio& d = sesion_->Inicio();
  const int ofrecidos = static_cast<int>(d.Combo1.List.size());
  Exigir(combo >= 0 && combo < 3 && posicion >= 0 && posicion < ofrecidos, "no such entry");
  sesion_->EnInicio([&] {
    if (combo == 0) Combo1_Click(d, posicion);
    if (combo == 1) Combo2_Click(d, posicion);
    if (combo == 2) Combo3_Click(d, posicion);
  });
  return Contar();
}

std::string Tasca::Marca(int casilla, bool marcada) {
  ExigirInicio();
  Exigir(casilla == 0 || casilla == 1, "no such check box");
  sesion_->EnInicio([&] { Check1_Click(sesion_->Inicio(), casilla, marcada); });
  return Contar();
}

std::string Tasca::Estilo(int cual) {
  ExigirInicio();
  Exigir(cual == 0 || cual == 1, "no such style");
  sesion_->EnInicio([&] { Option1_Click(sesion_->Inicio(), cual); });
  return Contar();
}

std::string Tasca::Aceptar(std::u16string_view nombre, TimeOfDay hora) {
  ExigirInicio();
  Exigir(ReparoAlNombre(nombre).empty(), "not a name");
  return Dar({.Que = Paso::Clase::Aceptar, .Nombre = std::u16string{nombre}, .Hora = hora});
}

std::string Tasca::Tecla(Integer codigo, Integer mayusculas, TimeOfDay hora) {
  Exigir(sesion_ && Abierta() == nullptr && sesion_->Ahora() == Situacion::EnLaMesa,
         "no key is waited for");
  if (codigo == TeclaEnter || codigo == TeclaQ) recital_.EmpiezaPaso();
  return Dar({.Que = Paso::Clase::Tecla, .KeyCode = codigo, .Shift = mayusculas, .Hora = hora});
}

std::string Tasca::Responde(const Entrada& respuesta) {
  Exigir(Abierta() != nullptr && Vale(*Abierta(), respuesta),
         "no question is open that offers that");
  guion_.push_back(respuesta);
  sesion_->Volver(*antes_);
  Correr();
  return Contar();
}

// While a question is open, the end of a sound is a part of the step.
std::string Tasca::FinDeSonido(Integer estado, TimeOfDay hora) {
  Exigir(sesion_.has_value(), "the game is not open");
  if (sesion_->HaAcabado()) return Contar();
  if (Abierta() != nullptr) {
    guion_.push_back({.Clase = ClaseEntrada::FinDeSonido, .Numero = estado, .Hora = hora});
    sesion_->Volver(*antes_);
    Correr();
    return Contar();
  }
  puerto_.Begin(hora);
  puerto_.Run(guion_);
  sesion_->FinDeSonido(estado);
  Apuntar();
  return Contar();
}

void Tasca::TrasSonido(Integer estado) {
  if (sesion_->FinDeSonido(estado) == Situacion::Fin) throw LeaveProgram{};
}

// What is kept stays as it is, with its open step.
std::string Tasca::Salir() {
  Exigir(sesion_.has_value(), "the game is not open");
  sesion_->Salir();
  return Contar();
}

std::string Tasca::Dar(Paso paso, std::u16string_view aviso) {
  paso_ = std::move(paso);
  guion_.clear();
  sesion_->Copiar(*antes_);
  puerto_.Begin(paso_.Hora);
  const std::string ajustes = LeerArchivo(carpeta_ / "mus.ini");
  Correr();
  Novedades novedades{.Aviso = std::u16string{aviso}};
  if (LeerArchivo(carpeta_ / "mus.ini") != ajustes) novedades.Archivos = {"mus.ini"};
  return Contar(std::move(novedades));
}

// A step writes a file only when all its questions have been answered, so a run that is repeated
// does not write again.
void Tasca::Correr() {
  puerto_.Run(guion_);
  try {
    Ejecutar();
    guion_.clear();
    Apuntar();
  } catch (const SinRespuesta&) {  // The question is open now.
  }
}

void Tasca::Ejecutar() {
  if (paso_.Que == Paso::Clase::Abrir) {
    sesion_->AbrirInicio();
  } else if (paso_.Que == Paso::Clase::Aceptar) {
    sesion_->EnInicio([this] { sesion_->Inicio().Text2 = paso_.Nombre; });
    sesion_->Aceptar();
  } else {
    Integer KeyCode = paso_.KeyCode;
    if (sesion_->Tecla(KeyCode, paso_.Shift) == Situacion::OtrosJugadores) sesion_->AbrirInicio();
  }
}

// After an error the match before the step stays kept.
void Tasca::Apuntar() {
  if (sesion_->Ahora() == Situacion::EnLaMesa) {
    guardada_.Partida = EscribirPartida(sesion_->Mesa(), sesion_->Generador());
    guardada_.Cronica = sesion_->Relato().Escrito();
  } else if (!sesion_->HaAcabado() || sesion_->Final().PartidaAcabada) {
    guardada_ = {};
  }
}

std::string Tasca::Guardada() const {
  if (guardada_.Partida.empty()) return {};
  PartidaWeb partida = guardada_;
  if (puerto_.Open()) partida.Paso = {paso_.KeyCode, paso_.Shift, paso_.Hora, guion_};
  return EscribirPartidaWeb(partida);
}

Escena Tasca::Vista() const {
  const PreguntaAbierta* const pregunta = Abierta();
  if (pregunta == nullptr) return EscenaDe(sesion_->Mesa(), Momento::Reposo);
  const bool esAviso = pregunta->Clase == ClasePregunta::Aviso;
  return EscenaDe(sesion_->Mesa(), esAviso ? Momento::Aviso : Momento::Pregunta);
}

const PreguntaAbierta* Tasca::Abierta() const {
  const bool abierta = puerto_.Open() && !sesion_->HaAcabado();
  return abierta ? &*puerto_.Open() : nullptr;
}

std::u16string_view Tasca::ReparoAlNombre(std::u16string_view nombre) const {
  if (sesion_ && nombre == sesion_->Inicio().Text2) return {};
  if (nombre.size() > AnchoNombre) return NombreDemasiadoLargo;
  return ReparoAlTexto(nombre, static_cast<int>(nombre.size()), AnchoNombre);
}

std::string Tasca::Contar(Novedades novedades) {
  novedades.Sucesos = puerto_.TakeCalls();
  novedades.Dichos = recital_.Nuevos(sesion_->Mesa().Text2);
  return JsonDeVista(*sesion_, Abierta(), novedades);
}

void Tasca::ExigirInicio() const {
  Exigir(sesion_ && Abierta() == nullptr && sesion_->Ahora() == Situacion::EnInicio,
         "the start-up dialog is not open");
}

}  // namespace tasca
