#pragma once
// A line that tells the user why something has been refused; a screen reader reads it at once.
#include <QLabel>
#include <string_view>

namespace tasca {

class StatusLine : public QLabel {
 public:
  explicit StatusLine(QWidget* padre);

  void ShowText(std::u16string_view texto);
};

}  // namespace tasca
