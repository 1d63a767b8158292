#pragma once
// Shared by the game's and the editor's programs: the toolkit's settings, the event loop, and the
// conversion of exceptions into exit statuses. No exception passes through the event loop.
#include <QApplication>
#include <QTimer>
#include <QTranslator>
#include <functional>
#include <optional>
#include <string>

#include "ui/qt/early_fonts.h"
#include "ui/qt/session_end.h"

namespace tasca {

// EarlyFonts is a base so that it starts before QApplication.
class Application : private EarlyFonts, public QApplication {
 public:
  // Removes the toolkit's own options from the arguments. Without a display it ends the program
  // with status 1 and a line on standard error.
  Application(int& argc, char** argv);

  // Runs the event loop, which calls `abrir` first. Returns the exit status. Passes the end of the
  // desktop session on to `fin`.
  int Run(const std::function<void()>& abrir, SessionEnd fin);

 protected:
  bool event(QEvent* suceso) override;

 private:
  static void SetIconOnce();

  QTranslator castellano_;
  QTimer icono_;
  SessionEnd fin_;
};

// How the program ends.
struct Ending {
  int Estado;              // exit status
  std::u16string Mensaje;  // the error that has not been shown yet, or ""
};

// Runs `paso` and catches what it throws. Returns the ending that the exception asks for, or
// nothing if it throws none: LeaveProgram ends with 0, any other exception with 1.
std::optional<Ending> EndingOf(const std::function<void()>& paso);

}  // namespace tasca
