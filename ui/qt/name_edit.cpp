// Validation of the player's name.
#include "ui/qt/name_edit.h"

#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QMetaObject>
#include <QValidator>
#include <algorithm>
#include <utility>

#include "characters/editor.h"
#include "startup/dlg_inicio.h"
#include "ui/qt/qt_text.h"

namespace tasca {

// QLineEdit undoes an edit that this finds invalid, and then emits inputRejected.
class NameEdit::Checker : public QValidator {
 public:
  explicit Checker(const NameEdit* de) : de_{*de} {}

  State validate(QString& nombre, int& /*cursor*/) const override {
    reparo_ = de_.ReparoA(nombre);
    return reparo_.empty() ? Acceptable : Invalid;
  }

  // Returns and clears the reason of the last refusal. inputRejected without one means that
  // QLineEdit has truncated a name that was too long.
  std::u16string_view TakeReparo() {
    const std::u16string_view reparo = std::exchange(reparo_, {});
    return reparo.empty() ? NombreDemasiadoLargo : reparo;
  }

 private:
  const NameEdit& de_;
  mutable std::u16string_view reparo_;
};

NameEdit::NameEdit(QWidget* padre, Refusal alRechazar)
    : QLineEdit{padre}, alRechazar_{std::move(alRechazar)}, validador_{new Checker{this}} {
  validador_->setParent(this);
  setMaxLength(AnchoNombre);
  setValidator(validador_);
  connect(this, &QLineEdit::inputRejected, this, [this] { alRechazar_(validador_->TakeReparo()); });
}

std::u16string NameEdit::Text() const {
  QString nombre = text();
  if (nombre == ToDisplay(mostrado_)) return mostrado_;
  return FromInput(nombre.remove(QChar::ReplacementCharacter));
}

void NameEdit::ShowText(std::u16string_view nombre) {
  if (nombre == Text()) return;
  mostrado_ = nombre;
  const QString visible = ToDisplay(nombre);
  setMaxLength(std::max(AnchoNombre, static_cast<int>(visible.size())));
  setText(visible);
}

// Characters of the shown name are accepted even if they are invalid: they come from the file.
std::u16string_view NameEdit::ReparoA(const QString& nombre) const {
  const QString propio = ToDisplay(mostrado_);
  for (const QChar letra : nombre) {
    if (propio.contains(letra)) continue;
    const std::u16string_view reparo = ReparoAlTexto(FromInput(letra), 1, 1);
    if (!reparo.empty()) return reparo;
  }
  return {};
}

NameEdit::Snapshot NameEdit::TakeSnapshot() const {
  return {.Texto = text(),
          .Cursor = cursorPosition(),
          .Desde = selectionStart(),
          .Largo = selectionLength()};
}

void NameEdit::Restore() {
  setText(antes_.Texto);
  setCursorPosition(antes_.Cursor);
  if (antes_.Desde >= 0) setSelection(antes_.Desde, antes_.Largo);
}

// A composition removes the selected text, which is restored if nothing is committed.
void NameEdit::inputMethodEvent(QInputMethodEvent* suceso) {
  const bool componia = componiendo_;
  if (!componia) antes_ = TakeSnapshot();
  const std::u16string_view reparo = ReparoA(suceso->commitString());
  QInputMethodEvent nada;
  QLineEdit::inputMethodEvent(reparo.empty() ? suceso : &nada);
  componiendo_ = reparo.empty() && !suceso->preeditString().isEmpty();
  const bool escrito = reparo.empty() && !suceso->commitString().isEmpty();
  if (escrito) antes_ = TakeSnapshot();
  if (componia && !componiendo_ && !escrito) Restore();
  if (!reparo.empty()) alRechazar_(reparo);
}

// A click sets the cursor after focusInEvent, which clears the selection: it is selected later
// then.
void NameEdit::focusInEvent(QFocusEvent* suceso) {
  QLineEdit::focusInEvent(suceso);
  const bool porClic = suceso->reason() == Qt::MouseFocusReason;
  QMetaObject::invokeMethod(this, "selectAll",
                            porClic ? Qt::QueuedConnection : Qt::DirectConnection);
}

}  // namespace tasca
