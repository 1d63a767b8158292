#pragma once
// The bidding dialog's window: modal, of fixed size, and answered only by its buttons.
#include <QDialog>
#include <QPushButton>
#include <array>

#include "table/dialog.h"

namespace tasca {

class DialogForm : public QDialog {
 public:
  // Shows `dialogo` as it has been prepared, and passes the presses on to it.
  DialogForm(QWidget* padre, Dialog& dialogo);

  // Its close box and Esc do nothing.
  void reject() override {}

 protected:
  void closeEvent(QCloseEvent* suceso) override;
  bool eventFilter(QObject* objeto, QEvent* suceso) override;

 private:
  void BuildButton(int indice);
  void Place();
  bool MoveFocus(int desde, int tecla);

  Dialog& dialogo_;
  std::array<QPushButton*, 4> command1_{};
};

}  // namespace tasca
