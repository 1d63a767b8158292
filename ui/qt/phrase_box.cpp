// A label, a guarded text box with its status line, and two buttons.
#include "ui/qt/phrase_box.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/qt/guarded_text.h"
#include "ui/qt/qt_text.h"
#include "ui/qt/run_box.h"
#include "ui/qt/status_line.h"

namespace tasca {

std::u16string AskPhrase(QWidget* padre, std::u16string_view texto, std::u16string_view titulo,
                         std::u16string_view porDefecto, int maximo) {
  QDialog caja{padre};
  caja.setObjectName(QStringLiteral("InputBox"));
  caja.setWindowTitle(ToDisplay(titulo));
  auto* const etiqueta = new QLabel{ToLabel(texto), &caja};
  etiqueta->setTextFormat(Qt::PlainText);
  auto* const estado = new StatusLine{&caja};
  // The longest reason takes two lines.
  estado->setMinimumHeight(2 * estado->fontMetrics().lineSpacing());
  const auto alRechazar = [estado](std::u16string_view reparo) {
    estado->ShowText(reparo);
    if (!reparo.empty()) QApplication::beep();
  };
  auto* const frase = new GuardedText{&caja, maximo, 1, alRechazar};
  frase->setObjectName(QStringLiteral("Text1"));
  frase->setMinimumWidth(60 * caja.fontMetrics().averageCharWidth());
  frase->ShowText(porDefecto);
  frase->selectAll();
  etiqueta->setBuddy(frase);
  auto* const botones = new QDialogButtonBox{&caja};
  botones->addButton(QStringLiteral("Aceptar"), QDialogButtonBox::AcceptRole)->setDefault(true);
  botones->addButton(QStringLiteral("Cancelar"), QDialogButtonBox::RejectRole);
  QObject::connect(botones, &QDialogButtonBox::accepted, &caja, &QDialog::accept);
  QObject::connect(botones, &QDialogButtonBox::rejected, &caja, &QDialog::reject);
  QVBoxLayout filas{&caja};
  for (QWidget* const fila : std::initializer_list<QWidget*>{etiqueta, frase, estado, botones}) {
    filas.addWidget(fila);
  }
  return RunBox(caja, frase) == QDialog::Accepted ? frase->Text() : std::u16string{};
}

}  // namespace tasca
