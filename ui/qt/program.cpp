// Opening and closing of the windows.
#include "ui/qt/program.h"

#include <QCoreApplication>
#include <utility>

#include "base/keys.h"
#include "ui/qt/boxes.h"
#include "ui/qt/help_menu.h"

namespace tasca {

Program::Program(std::filesystem::path carpeta, const std::optional<std::filesystem::path>& estado)
    : sesion_{std::move(carpeta), port_, estado} {
  cambio_.setSingleShot(true);
  QObject::connect(&cambio_, &QTimer::timeout, &cambio_, [this] {
    enPaso_ = false;
    OpenDlgInicio();
  });
  QObject::connect(&avisoSonido_, &QSocketNotifier::activated, &avisoSonido_,
                   [this] { AttendSound(); });
}

Program::Program(const GameFolder& carpeta, const std::optional<std::filesystem::path>& estado)
    : Program{carpeta.Files, estado} {
  port_.Mp1().Use({.Program = carpeta.SoundProgram, .Shipped = carpeta.Shipped});
  sesion_.NoGuardar(carpeta.NotSaved);
}

void Program::Open() {
  Situacion situacion{};
  if (!Run([&] { return situacion = sesion_.Retomar(); })) return;
  situacion == Situacion::EnLaMesa ? OpenForm1() : OpenDlgInicio();
}

void Program::OpenDlgInicio() {
  if (!Run([this] { return sesion_.AbrirInicio(); })) return;
  const auto hacer = [this](const std::function<void()>& suceso) {
    Run([&] { return sesion_.EnInicio(suceso); });
  };
  dlgInicio_ = std::make_unique<DlgInicioForm>(
      sesion_.Inicio(),
      DlgInicioForm::Events{
          .Run = hacer, .CbOK_Click = [this] { CbOK_Click(); }, .Left = [this] { Exit(0); }});
  dlgInicio_->ShowState();
  dlgInicio_->show();
  port_.SetStartWindow(dlgInicio_.get());
  form1_.reset();
}

SessionEnd Program::AtSessionEnd() {
  return {.MayCome = [](const auto&) { return true; }, .Comes = [this] { Exit(0); }};
}

// Called by the dialog's button, so the dialog must not be deleted before its event has ended.
void Program::CbOK_Click() {
  Situacion situacion{};
  if (!Run([&] { return situacion = sesion_.Aceptar(); })) return;
  if (situacion == Situacion::EnInicio) return dlgInicio_->ShowState();
  OpenForm1();
  dlgInicio_->setEnabled(false);  // A second Enter may be queued for it.
  dlgInicio_->hide();
  dlgInicio_.release()->deleteLater();
}

void Program::OpenForm1() {
  opciones_.Sonido = port_.Mp1().IsOn();
  form1_ = std::make_unique<Form1>(
      Form1::Events{
          .Text1_KeyDown = [this](Integer& tecla, Integer shift) { KeyDown(tecla, shift); },
          .Sonido_Click = [this](bool encendido) { port_.Mp1().TurnOn(encendido); },
          .Closed = [this] { Exit(0); },
          .Mesa_Click = [this](bool dibujada) { opciones_.Mesa = dibujada; },
          .Movimiento_Click = [this](bool encendido) { opciones_.Movimiento = encendido; },
          .Cronica_Click = [this] { cronica_.Open(); },
          .LetraMayor_Click = [this] { letra_.Larger(); },
          .LetraMenor_Click = [this] { letra_.Smaller(); },
          .LetraNormal_Click = [this] { letra_.Normal(); },
          .Salir_Click = [this] { Exit(0); },
          .Manual_Click = [this] { manual_.Open(); },
          .AcercaDe_Click = [this] { ShowMessage(port_.Window(), AboutText()); }},
      opciones_);
  form1_->ShowTable(sesion_.Mesa(), Momento::Reposo);
  form1_->showMaximized();
  port_.SetMainWindow(form1_.get());
}

Asunto Program::Subject() const {
  if (!form1_) return Asunto::Inicio;
  if (const auto pregunta = port_.Asking()) return AsuntoDe(*pregunta);
  return AsuntoDe(sesion_.Mesa().Fase);
}

void Program::KeyDown(Integer& KeyCode, Integer Shift) {
  if (enPaso_ || terminando_) {
    KeyCode = 0;
    return;
  }
  enPaso_ = true;
  Situacion situacion{};
  const bool sigue = Run([&] { return situacion = sesion_.Tecla(KeyCode, Shift); });
  enPaso_ = false;
  if (!sigue) {
    KeyCode = 0;
    return;
  }
  const bool haJugado = KeyCode == 0 || EsTeclaDeVerManos(KeyCode, Shift);
  if (haJugado) form1_->ShowTable(sesion_.Mesa(), Momento::Reposo);
  form1_->FocusInput();
  cronica_.Refresh();
  if (situacion != Situacion::OtrosJugadores) return;
  enPaso_ = true;
  cambio_.start();
}

// May be called while a box is open, in the middle of a step. FinDeSonido changes only the fields
// of the sound.
void Program::AttendSound() {
  constexpr int parado = 0;
  if (port_.Mp1().TakeEnd()) Run([this] { return sesion_.FinDeSonido(parado); });
}

bool Program::Run(const std::function<Situacion()>& paso) {
  if (terminando_) return false;
  Situacion situacion{};
  std::optional<Ending> fin = EndingOf([&] { situacion = paso(); });
  if (!fin && situacion != Situacion::Fin) return true;
  if (!fin) {
    const Desenlace& final = sesion_.Final();
    fin = {.Estado = final.Estado, .Mensaje = final.YaMostrado ? u"" : final.Mensaje};
  }
  ShowEnding(*fin);
  Exit(fin->Estado);
  return false;
}

void Program::ShowEnding(const Ending& fin) {
  if (fin.Mensaje.empty()) return;
  if (form1_) form1_->ShowTexts(sesion_.Mesa());
  ShowError(port_.Window(), fin.Mensaje);
}

void Program::Exit(int estado) {
  if (terminando_) return;
  terminando_ = true;
  port_.ProgramEnds();
  QCoreApplication::exit(estado);
}

}  // namespace tasca
