// The windows' comings and goings.
#include "ui/qt/program.h"

#include <QCoreApplication>
#include <utility>

#include "match/phase_machine.h"
#include "match/start.h"
#include "sound/effects.h"
#include "ui/qt/application.h"
#include "ui/qt/boxes.h"

namespace tasca {

Program::Program(std::filesystem::path carpeta) {
  t_.Carpeta = std::move(carpeta);
  cambio_.setSingleShot(true);
  QObject::connect(&cambio_, &QTimer::timeout, &cambio_, [this] {
    enPaso_ = false;
    OpenDlgInicio();
  });
  QObject::connect(&avisoSonido_, &QSocketNotifier::activated, &avisoSonido_,
                   [this] { AttendSound(); });
}

void Program::OpenDlgInicio() {
  Run([this] {
    auto nueva = std::make_unique<DlgInicioForm>(
        DlgInicioForm::Events{.Run = [this](const std::function<void()>& suceso) { Run(suceso); },
                              .CbOK_Click = [this] { CbOK_Click(); },
                              .Left = [this] { Exit(0); }});
    Form_Load(nueva->State(), g_);
    nueva->ShowState();
    nueva->show();
    dlgInicio_ = std::move(nueva);
    port_.SetStartWindow(dlgInicio_.get());
    form1_.reset();
  });
}

SessionEnd Program::AtSessionEnd() {
  return {.MayCome = [](const auto&) { return true; }, .Comes = [this] { Exit(0); }};
}

// The dialog is still in the middle of its button's click: it is deleted once that is over.
void Program::CbOK_Click() {
  Run([this] {
    if (!tasca::CbOK_Click(dlgInicio_->State(), g_)) return dlgInicio_->ShowState();
    OpenForm1();
    dlgInicio_->setEnabled(false);  // A second Enter may be on its way to it.
    dlgInicio_->hide();
    dlgInicio_.release()->deleteLater();
  });
}

void Program::OpenForm1() {
  Form_Load(g_);
  form1_ = std::make_unique<Form1>(
      Form1::Events{
          .Text1_KeyDown = [this](Integer& tecla, Integer shift) { KeyDown(tecla, shift); },
          .Sonido_Click = [this](bool encendido) { port_.Mp1().TurnOn(encendido); },
          .Closed = [this] { Exit(0); }},
      port_.Mp1().IsOn());
  form1_->ShowTexts(t_);
  form1_->showMaximized();
  port_.SetMainWindow(form1_.get());
}

void Program::KeyDown(Integer& KeyCode, Integer Shift) {
  if (enPaso_ || terminando_) {
    KeyCode = 0;
    return;
  }
  enPaso_ = true;
  const bool sigue = Run([&] { Text1_KeyDown(g_, KeyCode, Shift); });
  enPaso_ = false;
  if (!sigue) {
    KeyCode = 0;
    return;
  }
  form1_->ShowTexts(t_);
  form1_->FocusInput();
  if (!port_.TakeChangePlayers()) return;
  enPaso_ = true;
  cambio_.start();
}

// Comes between two keys or while a box is open, in the middle of a step then: the rules change
// nothing but the sound's own fields.
void Program::AttendSound() {
  constexpr int parado = 0;
  if (port_.Mp1().TakeEnd()) Run([this] { Mp1_FinReproduccion(g_, parado); });
}

bool Program::Run(const std::function<void()>& paso) {
  if (terminando_) return false;
  const std::optional<Ending> fin = EndingOf(paso);
  if (!fin) return true;
  if (!fin->Mensaje.empty()) ShowEnding(fin->Mensaje);
  Exit(fin->Estado);
  return false;
}

void Program::ShowEnding(std::u16string_view mensaje) {
  if (form1_) form1_->ShowTexts(t_);
  ShowError(port_.Window(), mensaje);
}

void Program::Exit(int estado) {
  if (terminando_) return;
  terminando_ = true;
  QCoreApplication::exit(estado);
}

}  // namespace tasca
