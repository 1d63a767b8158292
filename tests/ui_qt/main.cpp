// Runs the tests with a QApplication on Qt's offscreen platform.
#include <gtest/gtest.h>

#include <QApplication>
#include <QProxyStyle>

namespace {

// Switches the movements off, as a desktop does. A test that is about them has a style of its own.
class StillStyle : public QProxyStyle {
 public:
  int styleHint(StyleHint cual, const QStyleOption* opcion, const QWidget* control,
                QStyleHintReturn* devuelto) const override {
    if (cual == SH_Widget_Animation_Duration) return 0;
    return QProxyStyle::styleHint(cual, opcion, control, devuelto);
  }
};

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  const QApplication aplicacion{argc, argv};
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setStyle(new StillStyle);
  // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks): the application owns its style.
  return RUN_ALL_TESTS();
}
