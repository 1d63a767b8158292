#pragma once
// The game's program with windows: the start-up dialog, then the main window, and the dialog again
// when the player wants other companions.
#include <QSocketNotifier>
#include <QTimer>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

#include "match/session.h"
#include "ui/game_folder.h"
#include "ui/qt/application.h"
#include "ui/qt/chronicle.h"
#include "ui/qt/dlg_inicio_form.h"
#include "ui/qt/form1.h"
#include "ui/qt/key_everywhere.h"
#include "ui/qt/manual.h"
#include "ui/qt/qt_port.h"
#include "ui/qt/session_end.h"
#include "ui/qt/zoom.h"

namespace tasca {

class Program {
 public:
  // The match is kept in `estado`, as Session tells.
  Program(const GameFolder& carpeta, const std::optional<std::filesystem::path>& estado);
  // The same with all files in one folder.
  explicit Program(std::filesystem::path carpeta,
                   const std::optional<std::filesystem::path>& estado = std::nullopt);

  // Opens the main window with the match of the last time if there is one and the player goes on
  // with it, otherwise the start-up dialog. Must be called from the event loop.
  void Open();
  // Opens the start-up dialog and closes the main window if there is one. Must be called from the
  // event loop. The end of the game ends the loop with the exit status.
  void OpenDlgInicio();
  // The end of the desktop session ends the program at once with status 0; the match is kept.
  SessionEnd AtSessionEnd();

 private:
  void CbOK_Click();
  void OpenForm1();
  void KeyDown(Integer& KeyCode, Integer Shift);
  void AttendSound();
  // What the player is at, for the manual.
  Asunto Subject() const;
  // Runs an operation of the session. If the game has ended, shows the error, ends the program and
  // returns false.
  bool Run(const std::function<Situacion()>& paso);
  void ShowEnding(const Ending& fin);
  void Exit(int estado);

  Zoom letra_;  // before the windows, which must not outlive it
  QtPort port_;
  Session sesion_;
  std::unique_ptr<DlgInicioForm> dlgInicio_;
  std::unique_ptr<Form1> form1_;
  QTimer cambio_;  // opens the start-up dialog once the key event has been handled
  QSocketNotifier avisoSonido_{port_.Mp1().Descriptor(), QSocketNotifier::Read};
  Form1::Options opciones_;  // as the player has left them
  bool enPaso_ = false;
  bool terminando_ = false;
  Chronicle cronica_{[this] { return sesion_.Relato().Texto(); }};
  Manual manual_{[this] { return Subject(); }};
  KeyEverywhere salida_{Qt::CTRL | Qt::ALT | Qt::Key_Q, [this] { Exit(0); }};
};

}  // namespace tasca
