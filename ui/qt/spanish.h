#pragma once
// The toolkit's own few words in Spanish, whatever translations are installed.
#include <QTranslator>

namespace tasca {

class Spanish : public QTranslator {
 public:
  using QTranslator::QTranslator;
  bool isEmpty() const override { return false; }
  QString translate(const char* contexto, const char* texto, const char* aclaracion,
                    int n) const override;
};

}  // namespace tasca
