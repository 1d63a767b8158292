#pragma once
// Makes screen readers say a text at once, whatever has the focus. Qt 6.4 has no event for that,
// and its event of a changed description does not carry the description. So each text becomes a
// notification in a status bar that only screen readers see: they say it when it is shown, without
// the name of its role, and keep it on the braille line for a moment.
#include <QAccessible>
#include <QEvent>
#include <QObject>
#include <QString>
#include <QStringList>
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

class Announcer : public QObject {
 public:
  // The status bar belongs to `ventana`, which must outlive the announcer.
  explicit Announcer(QWidget& ventana);
  Announcer(const Announcer&) = delete;
  Announcer& operator=(const Announcer&) = delete;
  ~Announcer() override;

  // Says `texto`. "" says nothing. Before the window has been active for the first time the text
  // waits for that: screen readers stop speaking when the window before it is deactivated.
  void Say(const QString& texto);

  bool eventFilter(QObject* objeto, QEvent* suceso) override;

 private:
  void Tell(const QString& texto);
  // Shows the notification. Requires an assistive technology.
  void Notify(const QString& texto);

  QWidget& ventana_;
  bool haLlegado_ = false;  // the window has been active
  QStringList porDecir_;
  QAccessible::Id barra_ = 0;  // 0 until something is said
  // The last texts: screen readers ask for them after a while.
  std::deque<QAccessible::Id> dichos_;
};

}  // namespace tasca
