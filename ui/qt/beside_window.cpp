// A window that modal boxes do not block.
#include "ui/qt/beside_window.h"

#include <QEvent>
#include <QGuiApplication>
#include <QShortcut>
#include <QWindow>

#include "ui/qt/accessible.h"

namespace tasca {

BesideWindow::BesideWindow() {
  DescribeTexts();
  connect(new QShortcut{Qt::Key_Escape, this}, &QShortcut::activated, this, &QWidget::close);
}

void BesideWindow::BringUp() {
  show();
  raise();
  activateWindow();
}

// A modal box blocks every window but its children. The window becomes one for as long as the box
// is open.
bool BesideWindow::event(QEvent* suceso) {
  if (suceso->type() == QEvent::WindowBlocked && windowHandle() != nullptr) {
    windowHandle()->setTransientParent(QGuiApplication::modalWindow());
  }
  return QWidget::event(suceso);
}

}  // namespace tasca
