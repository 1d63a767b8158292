#pragma once
// The drawn table as a widget. It takes neither focus nor keys. Its key cap can be clicked.
#include <QWidget>
#include <functional>
#include <optional>

#include "scene/scene.h"
#include "ui/mesa/layout.h"
#include "ui/qt/mesa_colors.h"
#include "ui/qt/mesa_letters.h"
#include "ui/qt/mesa_pictures.h"
#include "ui/qt/motion.h"

namespace tasca {

class MesaView : public QWidget {
 public:
  // `alPulsarEnter` is called for a click on the key cap while it is there.
  MesaView(QWidget* padre, std::function<void()> alPulsarEnter);

  // Shows another scene; paints only what differs. Between two steps cards slide and stones drop,
  // unless the desktop or SetMotion has switched that off. Nothing waits for it.
  void ShowScene(const Escena& escena);
  // Whether the player wants movements.
  void SetMotion(bool quiere) { quiereMovimiento_ = quiere; }
  // True while something is on its way.
  bool Moves() const { return movimiento_.Runs(); }
  const Escena& Scene() const { return escena_; }
  // Where everything lies, in the view's own coordinates.
  const Lamina& Sheet() const { return hoja_; }

 protected:
  bool event(QEvent* suceso) override;
  void changeEvent(QEvent* suceso) override;
  void paintEvent(QPaintEvent* suceso) override;
  void resizeEvent(QResizeEvent* suceso) override;
  void mousePressEvent(QMouseEvent* suceso) override;
  void mouseReleaseEvent(QMouseEvent* suceso) override;
  void mouseMoveEvent(QMouseEvent* suceso) override;

 private:
  // The scene laid out for the size and the font of the widget.
  Lamina LayOut();
  void Restart();
  std::vector<Movimiento> MovementsFrom(const Escena& escena,
                                        const std::vector<Pieza>& piezas) const;
  // Keeps only the pictures of cards in the sizes of this sheet.
  void ForgetOldCards();
  bool IsOnKeyCap(QPointF punto) const;

  std::function<void()> alPulsarEnter_;
  Escena escena_;
  Lamina hoja_;
  MesaColors colores_;
  std::optional<MesaLetters> letras_;
  MesaPictures dibujos_;
  Motion movimiento_{*this};
  bool quiereMovimiento_ = true;
  bool pulsada_ = false;
  qreal dpr_ = 0;  // of the last painting
};

}  // namespace tasca
