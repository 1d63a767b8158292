// Opening the manual.
#include "ui/qt/manual.h"

#include <utility>

namespace tasca {

Manual::Manual(std::function<Asunto()> asunto) : asunto_{std::move(asunto)} {}

void Manual::Open() {
  if (!ventana_) ventana_ = std::make_unique<ManualWindow>();
  const std::string_view ancla = AnchorOf(asunto_());
  ventana_->show();
  ventana_->ShowSection(QString::fromUtf8(ancla.data(), static_cast<qsizetype>(ancla.size())));
  ventana_->BringUp();
}

}  // namespace tasca
