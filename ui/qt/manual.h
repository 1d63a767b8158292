#pragma once
// The help key. Builds the manual's window when it is first asked for.
#include <functional>
#include <memory>

#include "ui/manual/asunto.h"
#include "ui/qt/key_everywhere.h"
#include "ui/qt/manual_window.h"

namespace tasca {

// F1 opens the manual in every window and box of the application, at what the player is at.
class Manual {
 public:
  // `asunto` tells what the player is at.
  explicit Manual(std::function<Asunto()> asunto);

  // Opens the window, or brings it to the front.
  void Open();
  // nullptr until it has been opened.
  const ManualWindow* Window() const { return ventana_.get(); }

 private:
  std::function<Asunto()> asunto_;
  std::unique_ptr<ManualWindow> ventana_;
  KeyEverywhere f1_{Qt::Key_F1, [this] { Open(); }, [this] { return ventana_.get(); }};
};

}  // namespace tasca
