#pragma once
// The game behind a page: what the page tells and what it is told (docs/web.md). A step that asks
// ends at the question; it runs again from its beginning when the answer has come.
#include <filesystem>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "match/session.h"
#include "scene/scene.h"
#include "ui/mesa/box_place.h"
#include "ui/mesa/text_fit.h"
#include "ui/mesa/window_layout.h"
#include "ui/spoken/recital.h"
#include "ui/web/partida_web.h"
#include "ui/web/vista.h"
#include "ui/web/web_port.h"

namespace tasca {

// The page has called something that is not possible now. Nothing has changed.
class Imposible : public std::logic_error {
 public:
  using std::logic_error::logic_error;
};

class Tasca {
 public:
  // `carpeta` holds the game's files.
  explicit Tasca(std::filesystem::path carpeta);

  // Steps. Each returns the view as JSON, and throws Imposible.
  std::string Abrir(std::string_view guardada, TimeOfDay hora);
  std::string Elige(int combo, int posicion);
  std::string Marca(int casilla, bool marcada);
  std::string Estilo(int cual);
  std::string Aceptar(std::u16string_view nombre, TimeOfDay hora);
  std::string Tecla(Integer codigo, Integer mayusculas, TimeOfDay hora);
  std::string Responde(const Entrada& respuesta);
  std::string FinDeSonido(Integer estado, TimeOfDay hora);
  std::string Salir();

  // The match to be kept; "" for none.
  std::string Guardada() const;

  // The table as it is seen now.
  Escena Vista() const;
  // The lines of the last step that has said any.
  const std::vector<std::u16string>& Ultimos() const { return recital_.Ultimos(); }
  const Session& Sesion() const { return *sesion_; }
  // The open question, or null.
  const PreguntaAbierta* Abierta() const;

  // Why the name cannot be typed, as a sentence; "" if it can.
  std::u16string_view ReparoAlNombre(std::u16string_view nombre) const;

 private:
  struct Paso {
    enum class Clase { Abrir, Aceptar, Tecla } Que = Clase::Abrir;
    Integer KeyCode{};
    Integer Shift{};
    std::u16string Nombre{};
    TimeOfDay Hora{};
  };

  // Runs a step. Copies the session first.
  std::string Dar(Paso paso, std::u16string_view aviso = {});
  // Runs the step from its beginning, with the answers given so far.
  void Correr();
  void Ejecutar();
  // Goes on with a kept match. False if that is not possible.
  bool Continuar(std::string_view guardada);
  // What is to be kept changes with each step that has ended.
  void Apuntar();
  std::string Contar(Novedades novedades = {});
  void ExigirInicio() const;
  // A sound has ended while the question was open.
  void TrasSonido(Integer estado);

  std::filesystem::path carpeta_;
  WebPort puerto_{[this](Integer estado) { TrasSonido(estado); }};
  std::optional<Session> sesion_;
  std::unique_ptr<Instante> antes_ = std::make_unique<Instante>();
  Paso paso_;
  std::vector<Entrada> guion_;
  PartidaWeb guardada_;  // without the open step
  Recital recital_;
};

}  // namespace tasca
