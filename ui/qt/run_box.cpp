// The key filter of a modal box.
#include "ui/qt/run_box.h"

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <optional>

#include "ui/qt/box_place.h"
#include "ui/qt/form1.h"
#include "ui/qt/repeat_guard.h"

namespace tasca {
namespace {

// Filters every event of the application while the box is open.
class KeyGuard : public QObject {
 public:
  KeyGuard(QDialog& caja, QWidget* inicial) : caja_{caja}, inicial_{inicial} {
    QCoreApplication::instance()->installEventFilter(this);
  }

  bool eventFilter(QObject* objeto, QEvent* suceso) override {
    if (suceso->type() == QEvent::FocusIn && inicial_->hasFocus()) lista_ = true;
    const bool esTecla = suceso->type() == QEvent::KeyPress || suceso->type() == QEvent::Shortcut;
    const bool abierta = caja_.isVisible() && !contestada_;
    if (!esTecla || !IsOfTheBox(objeto) || (lista_ && abierta)) return false;
    if (abierta) GetReady();
    return true;
  }

  // Further keys would answer twice.
  void Answered() { contestada_ = true; }

 private:
  bool IsOfTheBox(QObject* objeto) const {
    const auto* const control = qobject_cast<QWidget*>(objeto);
    return control != nullptr && control->window() == &caja_;
  }

  void GetReady() {
    caja_.activateWindow();
    inicial_->setFocus();
  }

  QDialog& caja_;
  QWidget* inicial_;
  bool lista_ = false;
  bool contestada_ = false;
};

// Returns also when the program ends; then the box has no answer.
void WaitForAnswer(QDialog& caja, KeyGuard& guarda) {
  QEventLoop espera;
  std::optional<int> resultado;
  const auto contestar = [&](int cual) {
    if (!resultado) resultado = cual;
    guarda.Answered();
    espera.quit();
  };
  QObject::connect(&caja, &QDialog::finished, &espera, contestar);
  auto* const tardia = dynamic_cast<HidesLate*>(&caja);
  if (tardia != nullptr) tardia->Stay(contestar);
  caja.show();
  espera.exec(QEventLoop::DialogExec);
  if (tardia == nullptr) return;
  tardia->Stay(nullptr);
  if (resultado) caja.done(*resultado);
}

}  // namespace

int RunBox(QDialog& caja, QWidget* inicial) {
  std::optional<BoxPlacer> sitio;
  if (const auto* const form1 = dynamic_cast<Form1*>(caja.parentWidget())) {
    sitio.emplace(caja, [form1] { return form1->Surroundings(); });
  }
  const RepeatGuard repeticiones{caja};
  KeyGuard guarda{caja, inicial};
  inicial->setFocus();
  caja.setModal(true);
  WaitForAnswer(caja, guarda);
  return caja.result();
}

}  // namespace tasca
