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

class Prompts {
 public:
  // `orden` is given every line typed and says whether it was a command, such as "?", and no
  // answer.
  using Command = std::function<bool(std::u16string_view)>;
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
  std::u16string Answer(std::u16string_view pregunta, std::u16string_view ofrece) const;

  Console& consola_;
  Command orden_;
};

}  // namespace tasca
