#pragma once
// The help key. Builds the manual's window when it is first asked for.
#include <QObject>
#include <functional>
#include <memory>

#include "ui/manual/asunto.h"
#include "ui/qt/manual_window.h"

namespace tasca {

// F1 opens the manual in every window and box of the application, at what the player is at.
class Manual : public QObject {
 public:
  // `asunto` tells what the player is at.
  explicit Manual(std::function<Asunto()> asunto);

  // Opens the window, or brings it to the front.
  void Open();
  // nullptr until it has been opened.
  const ManualWindow* Window() const { return ventana_.get(); }

  bool eventFilter(QObject* objeto, QEvent* suceso) override;

 private:
  std::function<Asunto()> asunto_;
  std::unique_ptr<ManualWindow> ventana_;
};

}  // namespace tasca
