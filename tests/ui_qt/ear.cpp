// The filter of what is said.
#include "tests/ui_qt/ear.h"

#include <QCoreApplication>
#include <utility>

#include "tests/ui_qt/player.h"
#include "ui/qt/announcer.h"

namespace tasca::test {

Ear::Ear() { QCoreApplication::instance()->installEventFilter(this); }

std::vector<std::string> Ear::TakeHeard() { return std::exchange(oido_, {}); }

bool Ear::eventFilter(QObject* /*objeto*/, QEvent* suceso) {
  const auto* const dicho = dynamic_cast<SaidEvent*>(suceso);
  if (dicho != nullptr) oido_.push_back(Utf8(dicho->Texto));
  return false;
}

}  // namespace tasca::test
