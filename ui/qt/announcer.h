#pragma once
// Makes screen readers say a text at once, whatever has the focus. Qt 6.4 has no event for that,
// and its event of a changed description does not carry the description. So each text becomes a
// notification.
#include <QEvent>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QWidget>
#include <utility>

#include "ui/qt/notifications.h"

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
  ~Announcer() override = default;

  // Says `texto`. "" says nothing. Before the window has been active for the first time the text
  // waits for that: screen readers stop speaking when the window before it is deactivated.
  void Say(const QString& texto);

  bool eventFilter(QObject* objeto, QEvent* suceso) override;

 private:
  void Tell(const QString& texto);

  QWidget& ventana_;
  bool haLlegado_ = false;  // the window has been active
  QStringList porDecir_;
  Notifications avisos_{ventana_};
};

}  // namespace tasca
