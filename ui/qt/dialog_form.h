#pragma once
// The bidding dialog's window: modal, of fixed size, answered only by its buttons.
// The letters P, E, M, O and Q press "Paso", "Envido", "Envido Más", "Órdago" and "Quiero".
#include <QDialog>
#include <QPushButton>
#include <array>

#include "table/dialog.h"
#include "ui/qt/run_box.h"

namespace tasca {

class DialogForm : public LateHiding<QDialog> {
 public:
  // Shows the prepared `dialogo` and passes pressed buttons on to it. `dialogo` must outlive it.
  DialogForm(QWidget* padre, Dialog& dialogo);

  // Esc and the close box do nothing.
  void reject() override {}

 protected:
  void closeEvent(QCloseEvent* suceso) override;
  void changeEvent(QEvent* suceso) override;
  void keyPressEvent(QKeyEvent* suceso) override;
  bool eventFilter(QObject* objeto, QEvent* suceso) override;

 private:
  void TellButtons();
  void BuildButton(int indice);
  // Sets the size of the window and of its buttons from the font.
  void Place();
  // Moves the focus from button `desde` by an arrow key. False if `tecla` is no arrow key.
  bool MoveFocus(int desde, int tecla);

  Dialog& dialogo_;
  std::array<QPushButton*, 4> command1_{};
};

}  // namespace tasca
