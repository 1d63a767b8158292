#pragma once
// The drawn score as a widget with the window's background.
#include <QWidget>
#include <optional>

#include "scene/scene.h"
#include "ui/mesa/pieces.h"
#include "ui/qt/card_painter.h"
#include "ui/qt/mesa_colors.h"
#include "ui/qt/mesa_letters.h"

namespace tasca {

class ScoreView : public QWidget {
 public:
  explicit ScoreView(QWidget* padre);

  void ShowScene(const Escena& escena);

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
  CardPainter cartas_;
};

}  // namespace tasca
