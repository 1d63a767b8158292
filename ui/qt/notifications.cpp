// The status bar and its notifications.
#include "ui/qt/notifications.h"

#include <utility>

namespace tasca {
namespace {

// A part of the tree that has neither a widget nor children.
class Unseen : public QAccessibleInterface {
 public:
  Unseen(QAccessibleInterface* padre, QAccessible::Role clase, QString nombre)
      : padre_{padre}, clase_{clase}, nombre_{std::move(nombre)} {}

  bool isValid() const override { return true; }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
  QAccessibleInterface* parent() const override { return padre_; }
  QAccessibleInterface* child(int /*indice*/) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface* /*hijo*/) const override { return -1; }
  QString text(QAccessible::Text clase) const override {
    return clase == QAccessible::Name ? nombre_ : QString{};
  }
  void setText(QAccessible::Text /*clase*/, const QString& /*texto*/) override {}
  QAccessible::Role role() const override { return clase_; }
  QRect rect() const override { return padre_->rect(); }
  QAccessible::State state() const override {
    QAccessible::State estado;
    estado.readOnly = true;
    return estado;
  }

 private:
  QAccessibleInterface* padre_;
  QAccessible::Role clase_;
  QString nombre_;
};

// A text that was said, as a label: a name of the notification itself would not be shown in
// braille.
class SaidText : public Unseen {
 public:
  // NOLINTBEGIN(clang-analyzer-cplusplus.NewDeleteLeaks): QAccessible owns what is registered.
  SaidText(QAccessibleInterface* barra, const QString& texto)
      : Unseen{barra, QAccessible::Notification, {}},
        rotulo_{QAccessible::registerAccessibleInterface(
            new Unseen{this, QAccessible::StaticText, texto})} {}
  // NOLINTEND(clang-analyzer-cplusplus.NewDeleteLeaks)
  SaidText(const SaidText&) = delete;
  SaidText& operator=(const SaidText&) = delete;
  ~SaidText() override { QAccessible::deleteAccessibleInterface(rotulo_); }

  int childCount() const override { return 1; }
  QAccessibleInterface* child(int indice) const override {
    return indice == 0 ? QAccessible::accessibleInterface(rotulo_) : nullptr;
  }
  int indexOfChild(const QAccessibleInterface* hijo) const override {
    return hijo == child(0) ? 0 : -1;
  }

 private:
  QAccessible::Id rotulo_;
};

}  // namespace

Notifications::~Notifications() {
  for (const QAccessible::Id dicho : dichos_) QAccessible::deleteAccessibleInterface(dicho);
  if (barra_ != 0) QAccessible::deleteAccessibleInterface(barra_);
}

// NOLINTBEGIN(clang-analyzer-cplusplus.NewDeleteLeaks): QAccessible owns what is registered.
QAccessible::Id Notifications::Show(const QString& texto) {
  if (barra_ == 0) {
    barra_ = QAccessible::registerAccessibleInterface(
        new Unseen{QAccessible::queryAccessibleInterface(&ventana_), QAccessible::StatusBar, {}});
  }
  constexpr std::size_t recordados = 20;
  if (dichos_.size() == recordados) {
    QAccessible::deleteAccessibleInterface(dichos_.front());
    dichos_.pop_front();
  }
  auto* const dicho = new SaidText{QAccessible::accessibleInterface(barra_), texto};
  dichos_.push_back(QAccessible::registerAccessibleInterface(dicho));
  QAccessibleEvent aviso{dicho, QAccessible::ObjectShow};
  QAccessible::updateAccessibility(&aviso);
  return dichos_.back();
}
// NOLINTEND(clang-analyzer-cplusplus.NewDeleteLeaks)

}  // namespace tasca
