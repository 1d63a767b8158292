#pragma once
// What the programs with windows share: the toolkit set up for a long, quiet evening, and the two
// ways in which a rule ends the program. No exception passes through the event loop.
#include <QApplication>
#include <QTranslator>
#include <functional>
#include <optional>
#include <string>

#include "ui/qt/session_end.h"

namespace tasca {

class Application : public QApplication {
 public:
  // Without a screen it ends the program, with status 1 and a line on standard error.
  Application(int& argc, char** argv);

  // Runs `abrir` from the event loop, and the loop to its end; the exit status. The end of the
  // desktop's session is passed on to `fin`.
  int Run(const std::function<void()>& abrir, SessionEnd fin);

 protected:
  bool event(QEvent* suceso) override;

 private:
  QTranslator castellano_;
  SessionEnd fin_;
};

// The end of the program: its exit status, and the message that is still to be shown, or "".
struct Ending {
  int Estado;
  std::u16string Mensaje;
};

// Runs something of the rules; the ending that it has asked for, if any.
std::optional<Ending> EndingOf(const std::function<void()>& paso);

}  // namespace tasca
