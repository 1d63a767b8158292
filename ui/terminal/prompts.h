#pragma once
// Questions as prompts, with the default answer in brackets. An invalid answer is explained and the
// question is repeated.
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/terminal/answers.h"
#include "ui/terminal/console.h"

namespace tasca {

// A line typed at a prompt.
struct TypedLine {
  std::u16string_view Texto;
  std::u16string_view SeContesta;  // a sentence that explains which answers are valid
  bool EsOpcion = false;           // it matches at least one of the options
};

// An empty line gives the default answer. Every question throws LeaveProgram at the end of the
// input and RunTimeError if the output cannot be written.
class Prompts {
 public:
  // Receives every line typed. Returns true if the line was a command, such as "?", that has been
  // carried out: the question is then repeated. May throw LeaveProgram.
  using Command = std::function<bool(const TypedLine&)>;
  Prompts(Console& consola, Command orden) : consola_{consola}, orden_{std::move(orden)} {}

  bool YesNo(std::u16string_view pregunta, bool porDefecto) const;
  // Returns the number of the chosen option. `ofrece` is the text in brackets, which names
  // `porDefecto`.
  int Choose(std::u16string_view pregunta, const std::vector<Option>& opciones,
             std::u16string_view ofrece, int porDefecto) const;
  // Returns the line typed, trimmed.
  std::u16string Text(std::u16string_view pregunta, std::u16string_view porDefecto) const;
  // As Text; "-" cancels the question and returns "".
  std::u16string TextOrCancel(std::u16string_view pregunta, std::u16string_view porDefecto) const;

 private:
  std::u16string Answer(std::u16string_view pregunta, std::u16string_view ofrece,
                        std::u16string_view seContesta,
                        const std::vector<Option>& opciones = {}) const;

  Console& consola_;
  Command orden_;
};

}  // namespace tasca
