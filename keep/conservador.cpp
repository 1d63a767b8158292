// Keeping, offering and forgetting of the match.
#include "keep/conservador.h"

#include <memory>
#include <utility>

#include "base/path_text.h"
#include "base/text.h"
#include "keep/partida_guardada.h"

namespace tasca {

bool Conservador::Ofrecer(Game& g) {
  if (!archivo_.PorQueNo().empty() || !archivo_.Hay()) return false;
  std::string bytes = archivo_.Leer();
  const auto guardada = std::make_unique<Table>(g.t);
  Rnd generador;
  if (!LeerPartida(bytes, *guardada, generador)) {
    Apartar(g);
    return false;
  }
  const YesNoQuestion pregunta{.Titulo = {},
                               .Texto = u"Hay una partida sin terminar. ¿Desea seguir con ella?"};
  if (!g.port.YesNoBox(g.t, Pregunta::SeguirPartida, pregunta)) {
    Olvidar();
    return false;
  }
  g.t = *guardada;
  g.rnd = generador;
  ultima_ = std::move(bytes);
  return true;
}

void Conservador::Apartar(Game& g) {
  const std::filesystem::path apartada = archivo_.Apartar();
  if (apartada.empty()) return;
  g.port.MsgBox(g.t, Join(u"La partida que se guardó está dañada o es de otra versión del juego, y "
                          u"no se puede seguir. Queda en ",
                          PathText(apartada), u"."));
}

void Conservador::Guardar(Game& g) {
  Anotar(archivo_.PorQueNo());
  if (archivo_.PorQueNo().empty()) {
    std::string bytes = EscribirPartida(g.t, g.rnd);
    if (bytes != ultima_) archivo_.Guardar(ultima_ = std::move(bytes));
  }
  if (motivo_.empty() || std::exchange(avisado_, true)) return;
  g.port.MsgBox(g.t,
                Join(u"Esta partida no se guarda para otro día: ", motivo_, u" Se juega igual."));
}

void Conservador::Olvidar() {
  ultima_.clear();
  if (archivo_.PorQueNo().empty()) archivo_.Quitar();
}

void Conservador::Anotar(const std::u16string& motivo) {
  if (motivo_.empty()) motivo_ = motivo;
}

}  // namespace tasca
