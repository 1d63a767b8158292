#pragma once
// A box that is about to open over the main window is put where it hides nothing that it is about.
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
