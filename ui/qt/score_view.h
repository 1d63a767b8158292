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

class ScoreView : public QWidget {
 public:
  explicit ScoreView(QWidget* padre);

  // Shows another score. New stones drop as on the table.
  void ShowScene(const Escena& escena);
  void SetMotion(bool quiere) { quiereMovimiento_ = quiere; }
  // True while something is on its way.
  bool Moves() const { return movimiento_.Runs(); }

 protected:
  void changeEvent(QEvent* suceso) override;
  void paintEvent(QPaintEvent* suceso) override;
  void resizeEvent(QResizeEvent* suceso) override;

 private:
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
