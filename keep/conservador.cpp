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

std::optional<std::u16string> Conservador::Cronica() const {
  return archivoCronica_.Leer(SumaDePartida(ultima_));
}

// The chronicle comes first: what it holds of a step that is not kept is left out when it is read.
void Conservador::Guardar(Game& g, const Apunte& apunte) {
  Anotar(archivo_.PorQueNo());
  if (archivo_.PorQueNo().empty()) {
    std::string bytes = EscribirPartida(g.t, g.rnd);
    const bool cambia = bytes != ultima_;
    if (cambia || apunte.Nuevo || !apunte.Texto.empty()) {
      archivoCronica_.Anotar(apunte, SumaDePartida(bytes));
    }
    if (cambia) archivo_.Guardar(ultima_ = std::move(bytes));
  }
  if (motivo_.empty() || std::exchange(avisado_, true)) return;
  g.port.MsgBox(g.t,
                Join(u"Esta partida no se guarda para otro día: ", motivo_, u" Se juega igual."));
}

// The chronicle must not be missing while the match is there.
void Conservador::Olvidar() {
  ultima_.clear();
  if (!archivo_.PorQueNo().empty()) return;
  archivo_.Quitar();
  Esperar();
  archivoCronica_.Quitar();
}

void Conservador::Anotar(const std::u16string& motivo) {
  if (motivo_.empty()) motivo_ = motivo;
}

}  // namespace tasca
