#pragma once
// Prints the main window's texts as lines: transcript, hand and score.
#include <string>
#include <string_view>

#include "table/table.h"
#include "ui/spoken/recital.h"
#include "ui/terminal/console.h"

namespace tasca {

class Screen {
 public:
  explicit Screen(Console& consola) : consola_{consola} {}

  // Prints what has changed since the last call: new lines of the transcript, hand, score. The
  // unfinished last line of the transcript, its prompt, comes last.
  void Show(const Table& t);

  // Prints the last hand and score again.
  void Repeat();

  // A step begins: its lines take the place of those that "repite" prints.
  void StepBegins() { recital_.EmpiezaPaso(); }
  // Carries out one of the words for listening: "repite", "cartas", "tanteo" and "mano". False for
  // any other text.
  bool Tell(const Table& t, std::u16string_view orden);

 private:
  Console& consola_;
  Recital recital_;
  // As last printed.
  std::u16string text1_;
  std::u16string text2_;
  std::u16string text3_;
};

// Prints the chronicle of the match, or that it is empty.
void PrintChronicle(Console& consola, std::u16string_view cronica);

}  // namespace tasca
