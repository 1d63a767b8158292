// tasca-icons FOLDER SIDE...: writes the icon as FOLDER/SIDE.png for each side in pixels.
#include <QGuiApplication>
#include <QPixmap>
#include <QString>
#include <iostream>

#include "ui/qt/window_icon.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication aplicacion{argc, argv};
  const QStringList argumentos = QCoreApplication::arguments();
  for (qsizetype i = 2; i < argumentos.size(); ++i) {
    const QString archivo = argumentos[1] + u'/' + argumentos[i] + QStringLiteral(".png");
    if (tasca::PaintIcon(argumentos[i].toInt()).save(archivo)) continue;
    std::cerr << "tasca-icons: " << archivo.toStdString() << " cannot be written\n";
    return 1;
  }
  return argumentos.size() > 2 ? 0 : 2;
}
