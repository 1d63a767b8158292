#pragma once
// Places a box before it opens over the main window, so that it hides nothing of its subject.
#include <QDialog>
#include <functional>

#include "ui/mesa/box_place.h"

namespace tasca {

// Puts a box of a window into its place when it is shown, and again should it turn out to be larger
// than it said; `alrededores` tells what lies around, in the window's coordinates.
class BoxPlacer : public QObject {
 public:
  BoxPlacer(QDialog& caja, std::function<Alrededores()> alrededores);

  bool eventFilter(QObject* objeto, QEvent* suceso) override;

 private:
  void Place(QSize tamano);

  QDialog& caja_;
  std::function<Alrededores()> alrededores_;
  QSize colocada_;
};

}  // namespace tasca
