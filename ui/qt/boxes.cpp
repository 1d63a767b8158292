// Message, Yes/No and input boxes.
#include "ui/qt/boxes.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <algorithm>

#include "base/text.h"
#include "ui/qt/qt_text.h"
#include "ui/qt/run_box.h"
#include "ui/spoken/sentences.h"

namespace tasca {
namespace {

// A clicked button closes a QMessageBox without done(), so that it could not stay.
class MessageBox : public LateHiding<QMessageBox> {
 public:
  explicit MessageBox(QWidget* padre) : LateHiding{padre} {
    auto* const botones = findChild<QDialogButtonBox*>();
    disconnect(botones, nullptr, this, nullptr);
    connect(botones, &QDialogButtonBox::clicked, this, [this](QAbstractButton* boton) {
      pulsado_ = boton;
      done(Accepted);
    });
  }

  // The button that answered; nullptr if none did.
  const QAbstractButton* Pressed() const { return pulsado_; }

 private:
  const QAbstractButton* pulsado_ = nullptr;
};

// QMessageBox presses a button 100 ms after its letter, and Enter in between presses the default
// button; here the letter acts at once.
class LetterMessageBox : public MessageBox {
 public:
  using MessageBox::MessageBox;

 protected:
  void keyPressEvent(QKeyEvent* suceso) override {
    if (suceso->modifiers() == Qt::NoModifier || suceso->modifiers() == Qt::ShiftModifier) {
      for (QAbstractButton* const boton : buttons()) {
        if (boton->shortcut() == QKeySequence{Qt::ALT | static_cast<Qt::Key>(suceso->key())})
          return boton->click();
      }
    }
    QMessageBox::keyPressEvent(suceso);
  }
};

// QMessageBox takes Esc and the close box for "No"; here they do nothing.
class YesNoMessageBox : public LetterMessageBox {
 public:
  using LetterMessageBox::LetterMessageBox;
  void reject() override {}

 protected:
  void closeEvent(QCloseEvent* suceso) override { suceso->ignore(); }
  void keyPressEvent(QKeyEvent* suceso) override {
    if (suceso->matches(QKeySequence::Cancel)) return suceso->accept();
    LetterMessageBox::keyPressEvent(suceso);
  }
};

QString TituloDe(std::u16string_view titulo) {
  return ToDisplay(titulo.empty() ? TituloAplicacion : titulo);
}

// Makes the box wide enough for its title and the window's buttons. Some questions have no text but
// their title. Not wider than the screen.
QSpacerItem* RoomForTitle(const QDialog& caja) {
  const int letra = caja.fontMetrics().averageCharWidth();
  const int ancho = caja.fontMetrics().horizontalAdvance(caja.windowTitle()) + 20 * letra;
  const int cabe = caja.screen()->availableSize().width() * 4 / 5;
  return new QSpacerItem{std::min(ancho, cabe), 0, QSizePolicy::Minimum, QSizePolicy::Minimum};
}

void LeaveRoomForTitle(QMessageBox& caja) {
  auto* const rejilla = qobject_cast<QGridLayout*>(caja.layout());
  if (rejilla == nullptr) return;
  rejilla->addItem(RoomForTitle(caja), rejilla->rowCount(), 0, 1, rejilla->columnCount());
}

QLabel* TextOf(const QMessageBox& caja) {
  return caja.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
}

// Keeps the focus off an empty text.
void SkipEmptyText(const QMessageBox& caja) {
  if (!caja.text().isEmpty()) return;
  auto* const etiqueta = TextOf(caja);
  if (etiqueta != nullptr) etiqueta->setTextInteractionFlags(Qt::NoTextInteraction);
}

// Screen readers get the text without the padding of its cards.
void TellText(QLabel* etiqueta, std::u16string_view texto) {
  if (etiqueta != nullptr) etiqueta->setAccessibleName(ToDisplay(SinRelleno(texto)));
}

void Prepare(QMessageBox& caja, const char* nombre, std::u16string_view titulo,
             std::u16string_view texto) {
  caja.setObjectName(QString::fromLatin1(nombre));
  caja.setWindowTitle(TituloDe(titulo));
  caja.setTextFormat(Qt::PlainText);
  caja.setText(ToDisplay(texto));
  SkipEmptyText(caja);
  TellText(TextOf(caja), texto);
}

// Screen readers say a box's title and text, but of its buttons only the one with the focus.
std::u16string ConBotones(std::u16string_view texto) {
  return Join(texto, texto.empty() ? u"" : u"\r\n", u"Sí, s; No, n");
}

void ShowBox(QWidget* padre, QMessageBox::Icon icono, std::u16string_view texto) {
  MessageBox caja{padre};
  Prepare(caja, "MsgBox", {}, texto);
  caja.setIcon(icono);
  auto* const aceptar = caja.addButton(QStringLiteral("Aceptar"), QMessageBox::AcceptRole);
  LeaveRoomForTitle(caja);
  RunBox(caja, aceptar);
}

}  // namespace

void ShowMessage(QWidget* padre, std::u16string_view texto) {
  ShowBox(padre, QMessageBox::NoIcon, texto);
}

void ShowError(QWidget* padre, std::u16string_view texto) {
  ShowBox(padre, QMessageBox::Critical, texto);
}

std::optional<bool> AskYesNo(QWidget* padre, const YesNoQuestion& pregunta) {
  YesNoMessageBox caja{padre};
  Prepare(caja, "YesNoBox", pregunta.Titulo, pregunta.Texto);
  caja.setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
  caja.setIcon(pregunta.ConIcono ? QMessageBox::Question : QMessageBox::NoIcon);
  auto* const si = caja.addButton(QStringLiteral("&Sí"), QMessageBox::YesRole);
  auto* const no = caja.addButton(QStringLiteral("&No"), QMessageBox::NoRole);
  auto* const porDefecto = pregunta.PorDefecto ? si : no;
  caja.setDefaultButton(porDefecto);
  TellText(TextOf(caja), ConBotones(pregunta.Texto));
  LeaveRoomForTitle(caja);
  RunBox(caja, porDefecto);
  if (caja.Pressed() == nullptr) return std::nullopt;
  return caja.Pressed() == si;
}

std::optional<bool> AskYesNoCancel(QWidget* padre, std::u16string_view texto,
                                   std::u16string_view titulo) {
  LetterMessageBox caja{padre};
  Prepare(caja, "YesNoCancelBox", titulo, texto);
  auto* const si = caja.addButton(QStringLiteral("&Sí"), QMessageBox::YesRole);
  auto* const no = caja.addButton(QStringLiteral("&No"), QMessageBox::NoRole);
  auto* const cancelar = caja.addButton(QStringLiteral("Cancelar"), QMessageBox::RejectRole);
  caja.setDefaultButton(no);
  caja.setEscapeButton(cancelar);
  LeaveRoomForTitle(caja);
  RunBox(caja, no);
  if (caja.Pressed() == nullptr || caja.Pressed() == cancelar) return std::nullopt;
  return caja.Pressed() == si;
}

bool AskOkCancel(QWidget* padre, std::u16string_view texto, std::u16string_view titulo) {
  MessageBox caja{padre};
  Prepare(caja, "OkCancelBox", titulo, texto);
  auto* const aceptar = caja.addButton(QStringLiteral("Aceptar"), QMessageBox::AcceptRole);
  caja.addButton(QStringLiteral("Cancelar"), QMessageBox::RejectRole);
  caja.setDefaultButton(aceptar);
  LeaveRoomForTitle(caja);
  RunBox(caja, aceptar);
  return caja.Pressed() == aceptar;
}

std::u16string AskText(QWidget* padre, std::u16string_view texto, std::u16string_view titulo,
                       std::u16string_view porDefecto, const AnswerHelper& ayuda) {
  LateHiding<QInputDialog> caja{padre};
  caja.setObjectName(QStringLiteral("InputBox"));
  caja.setWindowTitle(TituloDe(titulo));
  caja.setInputMode(QInputDialog::TextInput);
  caja.setLabelText(ToLabel(texto));
  caja.setTextValue(ToDisplay(porDefecto));
  caja.setOkButtonText(QStringLiteral("Aceptar"));
  caja.setCancelButtonText(QStringLiteral("Cancelar"));
  if (auto* const etiqueta = caja.findChild<QLabel*>()) {
    etiqueta->setTextFormat(Qt::PlainText);
    TellText(etiqueta, texto);
  }
  for (QPushButton* const boton : caja.findChildren<QPushButton*>()) boton->setIcon({});
  auto* const campo = caja.findChild<QLineEdit*>();
  if (auto* const filas = qobject_cast<QBoxLayout*>(caja.layout())) {
    if (ayuda) filas->insertWidget(filas->indexOf(campo), ayuda(*campo));
    filas->addItem(RoomForTitle(caja));
  }
  const int respuesta = RunBox(caja, campo);
  return respuesta == QDialog::Accepted ? FromInput(caja.textValue()) : std::u16string{};
}

}  // namespace tasca
