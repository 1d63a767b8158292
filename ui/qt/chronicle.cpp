// Opening the chronicle.
#include "ui/qt/chronicle.h"

namespace tasca {

void Chronicle::Open() {
  if (!ventana_) ventana_ = std::make_unique<ChronicleWindow>(texto_);
  ventana_->BringUp();
  ventana_->Refresh();
}

void Chronicle::Refresh() {
  if (ventana_ && ventana_->isVisible()) ventana_->Refresh();
}

}  // namespace tasca
