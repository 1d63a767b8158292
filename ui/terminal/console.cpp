// Writing and reading of lines.
#include "ui/terminal/console.h"

#include <istream>
#include <ostream>

#include "base/errors.h"
#include "ui/plain_text.h"
#include "ui/terminal/wrap.h"
#include "ui/utf8.h"

namespace tasca {

void Console::Line(std::u16string_view texto) {
  Prompt(texto);
  if (texto.empty()) lineaAbierta_ = true;
  EndLine();
}

void Console::Prompt(std::u16string_view texto) {
  EndLine();
  flujos_.Out << Wrap(PlainText(texto), flujos_.Width ? flujos_.Width() : 0);
  lineaAbierta_ = WholeLines(texto).size() < texto.size();
}

void Console::EndLine() {
  if (lineaAbierta_) flujos_.Out << '\n';
  lineaAbierta_ = false;
}

void Console::Error(std::u16string_view mensaje) {
  EndLine();
  flujos_.Out.flush();
  flujos_.Err << PlainText(mensaje) << '\n' << std::flush;
}

std::u16string Console::ReadLine() {
  if (!Flush()) throw RunTimeError{SalidaRota};
  if (espera_) espera_();
  std::string bytes;
  if (!std::getline(flujos_.In, bytes)) throw LeaveProgram{};
  if (flujos_.Echoes) {
    lineaAbierta_ = false;
  } else {
    EndLine();
  }
  if (bytes.ends_with('\r')) bytes.pop_back();
  return FromUtf8(bytes);
}

bool Console::Flush() { return static_cast<bool>(flujos_.Out.flush()); }

}  // namespace tasca
