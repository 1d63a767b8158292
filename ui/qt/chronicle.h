#pragma once
// The chronicle's key. Builds its window when it is first asked for.
#include <memory>
#include <utility>

#include "ui/qt/chronicle_window.h"
#include "ui/qt/key_everywhere.h"

namespace tasca {

// F6 opens the chronicle from every window and box of the application.
class Chronicle {
 public:
  explicit Chronicle(ChronicleWindow::Source texto) : texto_{std::move(texto)} {}

  // Opens the window, or brings it to the front.
  void Open();
  // Shows in an open window what a step has added.
  void Refresh();
  // nullptr until it has been opened.
  const ChronicleWindow* Window() const { return ventana_.get(); }

 private:
  ChronicleWindow::Source texto_;
  std::unique_ptr<ChronicleWindow> ventana_;
  KeyEverywhere f6_{Qt::Key_F6, [this] { Open(); }, [this] { return ventana_.get(); }};
};

}  // namespace tasca
