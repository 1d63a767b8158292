#pragma once
// A label for the reason why an input has been refused.
#include <QLabel>
#include <string_view>

#include "ui/qt/announcer.h"

namespace tasca {

class StatusLine : public QLabel {
 public:
  explicit StatusLine(QWidget* padre);

  // Replaces the text. A text other than "" is announced by screen readers at once.
  void ShowText(std::u16string_view texto);

 private:
  Announcer voz_{*this};
};

}  // namespace tasca
