// A text box whose text has no padding, read from its document on every query.
#include "ui/qt/accessible.h"

#include <QAccessibleWidget>
#include <QPlainTextEdit>
#include <algorithm>
#include <vector>

#include "ui/qt/dialog1_form.h"
#include "ui/qt/form1.h"
#include "ui/spoken/sentences.h"

namespace tasca {
namespace {

// The positions are those in the text without padding.
class UnpaddedText : public QAccessibleWidget, public QAccessibleTextInterface {
 public:
  explicit UnpaddedText(QPlainTextEdit& caja)
      : QAccessibleWidget{&caja, QAccessible::EditableText}, caja_{caja} {}

  void* interface_cast(QAccessible::InterfaceType clase) override {
    if (clase == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(clase);
  }
  QString text(QAccessible::Text clase) const override {
    return clase == QAccessible::Value ? All() : QAccessibleWidget::text(clase);
  }
  QAccessible::State state() const override {
    QAccessible::State estado = QAccessibleWidget::state();
    estado.multiLine = true;
    estado.selectableText = true;
    estado.readOnly = caja_.isReadOnly();
    estado.editable = !estado.readOnly;
    return estado;
  }

  QString text(int desde, int hasta) const override { return All().mid(desde, hasta - desde); }
  int characterCount() const override { return static_cast<int>(Places().size()); }
  int cursorPosition() const override { return ToSpoken(caja_.textCursor().position()); }
  void setCursorPosition(int sitio) override { Select(sitio, sitio); }

  int selectionCount() const override { return caja_.textCursor().hasSelection() ? 1 : 0; }
  void selection(int indice, int* desde, int* hasta) const override {
    const QTextCursor cursor = caja_.textCursor();
    *desde = indice == 0 ? ToSpoken(cursor.selectionStart()) : 0;
    *hasta = indice == 0 ? ToSpoken(cursor.selectionEnd()) : 0;
  }
  void addSelection(int desde, int hasta) override { Select(desde, hasta); }
  void removeSelection(int indice) override {
    if (indice == 0) setCursorPosition(cursorPosition());
  }
  void setSelection(int indice, int desde, int hasta) override {
    if (indice == 0) Select(desde, hasta);
  }

  QRect characterRect(int sitio) const override {
    QTextCursor cursor{caja_.document()};
    cursor.setPosition(ToDocument(sitio));
    const QRect antes = caja_.cursorRect(cursor);
    cursor.movePosition(QTextCursor::NextCharacter);
    const QRect letra = antes.united(caja_.cursorRect(cursor));
    return letra.translated(caja_.viewport()->mapToGlobal(QPoint{}));
  }
  int offsetAtPoint(const QPoint& punto) const override {
    return ToSpoken(caja_.cursorForPosition(caja_.viewport()->mapFromGlobal(punto)).position());
  }
  void scrollToSubstring(int desde, int /*hasta*/) override {
    setCursorPosition(desde);
    caja_.ensureCursorVisible();
  }
  QString attributes(int /*sitio*/, int* desde, int* hasta) const override {
    *desde = 0;
    *hasta = characterCount();
    return {};
  }

 private:
  QString All() const {
    return QString::fromStdU16String(SinRelleno(caja_.toPlainText().toStdU16String()));
  }
  std::vector<int> Places() const { return SitiosSinRelleno(caja_.toPlainText().toStdU16String()); }
  int ToSpoken(int sitio) const {
    const std::vector<int> sitios = Places();
    return static_cast<int>(std::lower_bound(sitios.begin(), sitios.end(), sitio) - sitios.begin());
  }
  int ToDocument(int sitio) const {
    const std::vector<int> sitios = Places();
    const bool alFinal = sitio < 0 || sitio >= static_cast<int>(sitios.size());
    return alFinal ? caja_.document()->characterCount() - 1
                   : sitios.at(static_cast<std::size_t>(sitio));
  }
  void Select(int desde, int hasta) {
    QTextCursor cursor{caja_.document()};
    cursor.setPosition(ToDocument(desde));
    cursor.setPosition(ToDocument(hasta), QTextCursor::KeepAnchor);
    caja_.setTextCursor(cursor);
  }

  QPlainTextEdit& caja_;
};

QAccessibleInterface* DescribeText(const QString& /*clase*/, QObject* objeto) {
  if (objeto == nullptr || !objeto->isWidgetType()) return nullptr;
  auto* const caja = dynamic_cast<QPlainTextEdit*>(objeto);
  const bool esDelJuego =
      dynamic_cast<Transcript*>(objeto) != nullptr || dynamic_cast<InputLine*>(objeto) != nullptr;
  if (esDelJuego) return new UnpaddedText{*caja};
  const bool esVentana =
      dynamic_cast<Form1*>(objeto) != nullptr || dynamic_cast<Dialog1Form*>(objeto) != nullptr;
  if (!esVentana) return nullptr;
  return new QAccessibleWidget{qobject_cast<QWidget*>(objeto), QAccessible::Window};
}

}  // namespace

void DescribeTexts() { QAccessible::installFactory(DescribeText); }

}  // namespace tasca
