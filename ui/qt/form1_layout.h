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

class Form1Layout : public QLayout {
 public:
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

  void addItem(QLayoutItem* elemento) override;
  int count() const override;
  QLayoutItem* itemAt(int indice) const override;
  QLayoutItem* takeAt(int indice) override;
  QSize sizeHint() const override;
  QSize minimumSize() const override;
  void setGeometry(const QRect& sitio) override;

 private:
  MedidasVentana Measures(const QRect& sitio) const;

  Parts partes_;
  QList<QLayoutItem*> elementos_;
  bool quiereMesa_ = true;
  bool colocando_ = false;
};

}  // namespace tasca
