// The least that a program with a text in a window does, to compare the start of the game with.
// Without any text it would not load a font, which takes 8 ms.
#include <QApplication>
#include <QDialog>
#include <QLabel>

int main(int argc, char** argv) {
  const QApplication aplicacion{argc, argv};
  QDialog vacio;
  new QLabel{QStringLiteral("La tasca del tío Zarandel"), &vacio};
  vacio.show();
  return QApplication::exec();
}
