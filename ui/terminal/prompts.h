#pragma once
// Questions as prompts, their default in brackets. An answer that does not fit is explained, and
// the question is put again. All of these throw LeaveProgram at the end of the input.
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
  std::u16string_view SeContesta;  // a sentence: what the question wants
  bool EsOpcion = false;           // it means at least one of the options to choose from
};

class Prompts {
 public:
  // `orden` is given every line typed and says whether it was a command, such as "?", and no
  // answer.
  using Command = std::function<bool(const TypedLine&)>;
  Prompts(Console& consola, Command orden) : consola_{consola}, orden_{std::move(orden)} {}

  bool YesNo(std::u16string_view pregunta, bool porDefecto) const;
  // The number of the option chosen. `ofrece` stands in brackets, for `porDefecto`.
  int Choose(std::u16string_view pregunta, const std::vector<Option>& opciones,
             std::u16string_view ofrece, int porDefecto) const;
  // Any text; nothing typed leaves `porDefecto`.
  std::u16string Text(std::u16string_view pregunta, std::u16string_view porDefecto) const;
  // The same for a question that can be cancelled, with "-": the answer is then "".
  std::u16string TextOrCancel(std::u16string_view pregunta, std::u16string_view porDefecto) const;

 private:
  std::u16string Answer(std::u16string_view pregunta, std::u16string_view ofrece,
                        std::u16string_view seContesta,
                        const std::vector<Option>& opciones = {}) const;

  Console& consola_;
  Command orden_;
};

}  // namespace tasca
