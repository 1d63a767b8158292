#pragma once
// The program with windows: the start-up dialog, then the main window, and back when the player
// wants other companions.
#include <QSocketNotifier>
#include <QTimer>
#include <filesystem>
#include <functional>
#include <memory>

#include "match/session.h"
#include "ui/qt/application.h"
#include "ui/qt/dlg_inicio_form.h"
#include "ui/qt/form1.h"
#include "ui/qt/qt_port.h"
#include "ui/qt/session_end.h"

namespace tasca {

class Program {
 public:
  // `carpeta` is where the game's files lie.
  explicit Program(std::filesystem::path carpeta);

  // Opens the start-up dialog, in place of the main window if there is one. Wants to be called from
  // the event loop, which it ends with the exit status when the program is over.
  void OpenDlgInicio();
  // Nothing would be lost with the session: the program ends at once, with status 0.
  SessionEnd AtSessionEnd();

 private:
  void CbOK_Click();
  void OpenForm1();
  void KeyDown(Integer& KeyCode, Integer Shift);
  void AttendSound();
  // Does something of the session; false when it has ended the program.
  bool Run(const std::function<Situacion()>& paso);
  void ShowEnding(const Ending& fin);
  void Exit(int estado);

  QtPort port_;
  Session sesion_;
  std::unique_ptr<DlgInicioForm> dlgInicio_;
  std::unique_ptr<Form1> form1_;
  QTimer cambio_;  // the change of windows, right after the key that asked for it
  QSocketNotifier avisoSonido_{port_.Mp1().Descriptor(), QSocketNotifier::Read};
  bool enPaso_ = false;
  bool terminando_ = false;
};

}  // namespace tasca
