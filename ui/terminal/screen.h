#pragma once
// The main window as lines: the transcript as it grows, the hand and the score when they change.
#include <string>

#include "table/table.h"
#include "ui/terminal/console.h"

namespace tasca {

class Screen {
 public:
  explicit Screen(Console& consola) : consola_{consola} {}

  // Prints what has changed since the last time. Of the transcript's last line the cursor stays
  // behind, so that its prompt is what the player reads last.
  void Show(const Table& t);

  // Prints the hand and the score again.
  void Repeat();

 private:
  Console& consola_;
  std::u16string text1_;
  std::u16string text2_;
  std::u16string text3_;
};

}  // namespace tasca
