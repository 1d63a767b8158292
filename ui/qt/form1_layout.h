#pragma once
// The arrangement of the main window as a layout: the picture beside the texts, above them, or
// none.
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "ui/mesa/window_layout.h"

namespace tasca {

class InputLine;

// The geometry of its parts comes from PartesDe. Parts without a place are hidden.
class Form1Layout : public QLayout {
 public:
  // The widgets of the window, which owns them.
  struct Parts {
    QWidget* Mesa;
    QWidget* Tanteo;
    QLabel* RotuloTexto3;
    QLineEdit* Texto3;
    QPlainTextEdit* Texto2;
    QLabel* RotuloTexto1;
    InputLine* Texto1;
    QLabel* Ayuda;
  };

  Form1Layout(QWidget* ventana, const Parts& partes);
  Form1Layout(const Form1Layout&) = delete;
  Form1Layout& operator=(const Form1Layout&) = delete;
  ~Form1Layout() override;

  // Whether the player wants the picture.
  void ShowPicture(bool quiere);

  // The interface of QLayout. It owns the items, not the widgets.
  void addItem(QLayoutItem* elemento) override;
  int count() const override;
  QLayoutItem* itemAt(int indice) const override;
  QLayoutItem* takeAt(int indice) override;
  QSize sizeHint() const override;
  QSize minimumSize() const override;
  void setGeometry(const QRect& sitio) override;

 private:
  // What PartesDe needs to know of the window and its controls.
  MedidasVentana Measures(const QRect& sitio) const;

  Parts partes_;
  QList<QLayoutItem*> elementos_;
  bool quiereMesa_ = true;
  bool colocando_ = false;  // setGeometry runs: the controls' own resizes must not start it again
};

}  // namespace tasca
