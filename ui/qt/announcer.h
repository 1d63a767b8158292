#pragma once
// Makes screen readers say a text at once, whatever has the focus. Qt 6.4 has no event for that,
// and its event of a changed description does not carry the description. So each text becomes a
// notification in a status bar that only screen readers see: they say it when it is shown, without
// the name of its role, and keep it on the braille line for a moment.
#include <QAccessible>
#include <QEvent>
#include <QString>
#include <QWidget>
#include <deque>
#include <utility>

namespace tasca {

// Sent to the window of an announcer with every text, also without an assistive technology.
class SaidEvent : public QEvent {
 public:
  explicit SaidEvent(QString texto) : QEvent{Clase()}, Texto{std::move(texto)} {}

  static QEvent::Type Clase() {
    static const int clase = QEvent::registerEventType();
    return static_cast<QEvent::Type>(clase);
  }

  QString Texto;
};

class Announcer {
 public:
  // The status bar belongs to `ventana`, which must outlive the announcer.
  explicit Announcer(QWidget& ventana) : ventana_{ventana} {}
  Announcer(const Announcer&) = delete;
  Announcer& operator=(const Announcer&) = delete;
  ~Announcer();

  // Says `texto`. "" says nothing.
  void Say(const QString& texto);

 private:
  // Shows the notification. Requires an assistive technology.
  void Notify(const QString& texto);

  QWidget& ventana_;
  QAccessible::Id barra_ = 0;  // 0 until something is said
  // The last texts: screen readers ask for them after a while.
  std::deque<QAccessible::Id> dichos_;
};

}  // namespace tasca
