// Message boxes and the bidding dialog as prompts.
#include "ui/terminal/terminal_port.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <utility>

#include "base/errors.h"
#include "base/text.h"
#include "table/dialog.h"
#include "ui/manual/brief.h"

namespace tasca {
namespace {

std::vector<Option> OfferedButtons(const Dialog& dialogo) {
  std::vector<Option> ofrecidos;
  int indice = 0;
  for (const DialogButton& boton : dialogo.Command1) {
    if (boton.Visible && boton.Enabled)
      ofrecidos.push_back({indice, std::u16string{boton.Caption}});
    ++indice;
  }
  return ofrecidos;
}

// "La grande: 0 Paso, 1 Envido, ..."
std::u16string BiddingPrompt(const Dialog& dialogo, const std::vector<Option>& ofrecidos) {
  std::u16string texto{dialogo.Caption};
  std::u16string_view separador = u": ";
  for (const Option& boton : ofrecidos) {
    texto += Join(std::exchange(separador, u", "), boton.Numero, u" ", boton.Texto);
  }
  return texto;
}

}  // namespace

TimeOfDay LocalTime() {
  const std::time_t ahora = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
  ::tzset();
  std::tm local{};
  ::localtime_r(&ahora, &local);
  constexpr int UltimoSegundo = 59;  // tm_sec is 60 in a leap second
  return {.Hora = local.tm_hour,
          .Minuto = local.tm_min,
          .Segundo = std::min(local.tm_sec, UltimoSegundo)};
}

TerminalPort::TerminalPort(Console& consola, Screen& pantalla, Clock reloj, MediaPlayer* mp1)
    : consola_{consola},
      pantalla_{pantalla},
      preguntas_{consola, [this](const TypedLine& linea) { return Obey(linea); }},
      reloj_{reloj},
      mp1_{mp1} {}

bool TerminalPort::Obey(const TypedLine& linea) {
  const std::u16string orden = Fold(linea.Texto);
  if (orden == u"salir") throw LeaveProgram{};
  if (orden == u"?") {
    Help(linea.SeContesta);
    return true;
  }
  if (orden == u"cronica" && !linea.EsOpcion) {
    PrintChronicle(consola_, cronica_());
    return true;
  }
  const bool seAtiende = !linea.EsOpcion && mesa_ != nullptr && pantalla_.Tell(*mesa_, orden);
  if (seAtiende) return true;
  // In the answer to a bet "q" is short for "Quiero".
  if (orden != u"q" || linea.EsOpcion) return false;
  consola_.Line(Join(linea.SeContesta, u" Para abandonar la mano con q, conteste antes."));
  return true;
}

void TerminalPort::Help(std::u16string_view seContesta) {
  pantalla_.Repeat();
  for (const std::string_view ancla : anclas_) consola_.Line(BriefOf(ancla));
  consola_.Line(seContesta);
  consola_.Line(
      u"Enter da la respuesta que está entre corchetes.\n"
      u"salir, o Ctrl+D, deja el juego.");
}

void TerminalPort::ShowTable(const Table& t) {
  pantalla_.Show(t);
  mesa_ = &t;
}

void TerminalPort::MsgBox(const Table& t, std::u16string_view texto) {
  ShowTable(t);
  consola_.Line(Join(u"[", texto, u"]"));
}

bool TerminalPort::YesNoBox(const Table& t, Pregunta sobre, const YesNoQuestion& pregunta) {
  ShowTable(t);
  anclas_ = {AnchorOf(AsuntoDe(sobre))};
  return preguntas_.YesNo(pregunta.Texto.empty() ? pregunta.Titulo : pregunta.Texto,
                          pregunta.PorDefecto);
}

std::u16string TerminalPort::InputBox(const Table& t, Pregunta sobre,
                                      const InputQuestion& pregunta) {
  ShowTable(t);
  anclas_ = {AnchorOf(AsuntoDe(sobre))};
  return preguntas_.TextOrCancel(Join(pregunta.Titulo, CrLf, pregunta.Texto), pregunta.PorDefecto);
}

void TerminalPort::ShowDialog(const Table& t, Dialog& dialogo) {
  ShowTable(t);
  anclas_ = {AnchorOf(AsuntoDe(t.Fase)), AnchorOf(Asunto::Envite)};
  const std::vector<Option> ofrecidos = OfferedButtons(dialogo);
  const int boton = preguntas_.Choose(BiddingPrompt(dialogo, ofrecidos), ofrecidos,
                                      ToText(dialogo.Foco), dialogo.Foco);
  Command1_Click(dialogo, boton);
}

void TerminalPort::OpenSound(const Table& t, std::u16string_view archivo) {
  if (mp1_ != nullptr) mp1_->Open(t.Carpeta, archivo, t.Mp1);
}

void TerminalPort::StopSound(const Table& /*t*/) {
  if (mp1_ != nullptr) mp1_->Stop();
}

}  // namespace tasca
