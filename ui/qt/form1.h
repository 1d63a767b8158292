#pragma once
// The main window: the scoreboard Text3, the transcript Text2 and the input line Text1, with the
// drawn table beside them.
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QWidget>
#include <functional>
#include <string>
#include <utility>

#include "scene/scene.h"
#include "ui/mesa/box_place.h"
#include "ui/qt/announcer.h"
#include "ui/qt/form1_layout.h"
#include "ui/qt/input_line.h"
#include "ui/qt/listening_keys.h"
#include "ui/qt/mesa_view.h"
#include "ui/qt/score_view.h"
#include "ui/qt/transcript.h"
#include "ui/spoken/recital.h"

namespace tasca {

// Shows the texts of Form1State and reports events. It decides nothing about the game.
class Form1 : public QWidget {
 public:
  struct Events {
    // A key pressed in Text1. The receiver sets KeyCode to 0 if it has handled the key.
    std::function<void(Integer& KeyCode, Integer Shift)> Text1_KeyDown;
    // The player has switched the sound on or off.
    std::function<void(bool encendido)> Sonido_Click;
    std::function<void()> Closed;
    // The player puts the drawn table away or back.
    std::function<void(bool dibujada)> Mesa_Click = [](bool) {};
    // The player has switched the movements on or off.
    std::function<void(bool encendido)> Movimiento_Click = [](bool) {};
    // The entry of the menu "Juego".
    std::function<void()> Cronica_Click = [] {};
    // The entries of the menu "Opciones" for the size of the letters.
    std::function<void()> LetraMayor_Click = [] {};
    std::function<void()> LetraMenor_Click = [] {};
    std::function<void()> LetraNormal_Click = [] {};
    // The entries of the menu "Juego".
    std::function<void()> Salir_Click = [] {};
    // The entries of the menu "Ayuda".
    std::function<void()> Manual_Click = [] {};
    std::function<void()> AcercaDe_Click = [] {};
  };

  // The initial states of the entries of the menu "Opciones".
  struct Options {
    bool Sonido = true;
    bool Mesa = true;
    bool Movimiento = true;
  };

  explicit Form1(Events sucesos) : Form1{std::move(sucesos), Options{}} {}
  Form1(Events sucesos, const Options& opciones);

  // Shows the three texts. Replaces what the player has typed into Text1. Screen readers say the
  // new lines of Text2.
  void ShowTexts(const Form1State& estado);
  // The same, with the table drawn at that moment.
  void ShowTable(const Table& t, Momento momento);
  // Moves the focus to Text1.
  void FocusInput();
  // What a box over this window must not cover, and better does not.
  Alrededores Surroundings() const;

 protected:
  void keyPressEvent(QKeyEvent* suceso) override;
  void closeEvent(QCloseEvent* suceso) override;
  void changeEvent(QEvent* suceso) override;
  bool eventFilter(QObject* objeto, QEvent* suceso) override;

 private:
  Form1Layout* BuildLayout();
  QMenuBar* BuildMenu(const Options& opciones);
  void AddPictureEntries(QMenu& menu, const Options& opciones);
  void AddLetterEntries(QMenu& menu);
  void SetMotion(bool encendido);
  void ShowHelp();
  // Says what the player asks for, and shows it instead of the help until the next step.
  void Listen(Escucha que);
  std::u16string Asked(Escucha que) const;
  void CopyTexts(const Form1State& estado);
  void EnlargeTexts();
  void FitText3();
  void PressEnter();
  // Handles Page Up and Page Down, and reports any other key. True if the key has been handled.
  bool KeyInText1(const QKeyEvent& suceso);

  Events sucesos_;
  // The declaration order is the tab order.
  InputLine* text1_;
  Transcript* text2_;
  QLineEdit* text3_;
  QLabel* ayuda_;
  MesaView* mesa_;
  ScoreView* marcador_;
  Form1Layout* reparto_;
  Recital recital_;
  Announcer voz_{*this};
  ListeningKeys escucha_{*this, [this](Escucha que) { Listen(que); }};
  const bool escritorioMueve_;  // the desktop shows movements
  bool conSonido_;
  // As last shown in Text2 and Text3.
  std::u16string copiado2_;
  std::u16string copiado3_;
};

}  // namespace tasca
