#pragma once
// Makes screen readers say a text at once. Qt 6.4 has no event for that; a new description of the
// control that has the focus is spoken as soon as it comes.
#include <QObject>
#include <QString>

namespace tasca {

class Announcer : public QObject {
 public:
  Announcer();

  // Says `texto`, or as soon as a control has the focus: a box that opens or closes leaves none for
  // a moment. Does nothing without an assistive technology.
  void Say(const QString& texto);
  // True while a text waits for a control with the focus.
  bool Waits() const { return !espera_.isEmpty(); }

 private:
  void SayWaiting();

  QString espera_;
};

}  // namespace tasca
