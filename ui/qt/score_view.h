#pragma once
// The drawn score as a widget with the window's background.
#include <QWidget>
#include <optional>

#include "scene/scene.h"
#include "ui/mesa/pieces.h"
#include "ui/qt/mesa_colors.h"
#include "ui/qt/mesa_letters.h"
#include "ui/qt/mesa_pictures.h"
#include "ui/qt/motion.h"

namespace tasca {

// It takes neither focus nor keys. Its height decides whether the parejas stand side by side.
class ScoreView : public QWidget {
 public:
  explicit ScoreView(QWidget* padre);

  // Shows another score. New stones drop as on the table.
  void ShowScene(const Escena& escena);
  // Whether the player wants movements.
  void SetMotion(bool quiere) { quiereMovimiento_ = quiere; }
  // True while something is on its way.
  bool Moves() const { return movimiento_.Runs(); }

 protected:
  void changeEvent(QEvent* suceso) override;
  void paintEvent(QPaintEvent* suceso) override;
  void resizeEvent(QResizeEvent* suceso) override;

 private:
  // Places the pieces for the size, the font and the colours of the widget, and repaints it.
  void LayOut();

  Escena escena_;
  std::vector<Pieza> piezas_;
  MesaColors colores_;
  std::optional<MesaLetters> letras_;
  MesaPictures dibujos_;
  Motion movimiento_{*this};
  bool quiereMovimiento_ = true;
};

}  // namespace tasca
