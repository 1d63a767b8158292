// Parsing the number at the start of a text, and rounding.
#include "base/numbers.h"

#include <charconv>
#include <cmath>
#include <locale>
#include <sstream>
#include <string>

#include "base/text.h"

namespace tasca {
namespace {

bool IsDigit(char16_t letra) { return letra >= u'0' && letra <= u'9'; }

// Scans a text from left to right and appends the accepted characters to `copia` as ASCII.
class Scanner {
 public:
  explicit Scanner(std::u16string_view texto) : resto_{texto} {}

  void SkipBlanks() {
    while (!resto_.empty() && resto_.front() == u' ') resto_.remove_prefix(1);
  }
  void Sign(std::string& copia) {
    if (resto_.empty() || (resto_.front() != u'+' && resto_.front() != u'-')) return;
    if (resto_.front() == u'-') copia += '-';
    resto_.remove_prefix(1);
  }
  bool Digits(std::string& copia) {
    const std::size_t antes = copia.size();
    for (; !resto_.empty() && IsDigit(resto_.front()); resto_.remove_prefix(1)) {
      copia += static_cast<char>(resto_.front());
    }
    return copia.size() > antes;
  }
  // Accepts one of `marcas` if a digit follows, and the digits. Appends the mark as `copiada`.
  void DigitsAfter(std::u16string_view marcas, char copiada, std::string& copia) {
    const bool siguenCifras =
        resto_.size() > 1 && Contains(marcas, resto_.substr(0, 1)) && IsDigit(resto_[1]);
    if (!siguenCifras) return;
    copia += copiada;
    resto_.remove_prefix(1);
    Digits(copia);
  }

 private:
  std::u16string_view resto_;
};

}  // namespace

double LeadingNumber(std::u16string_view texto) {
  Scanner lector{texto};
  std::string cifras;
  lector.SkipBlanks();
  lector.Sign(cifras);
  if (!lector.Digits(cifras)) return 0;
  lector.DigitsAfter(u".", '.', cifras);
  lector.DigitsAfter(u"eE", 'e', cifras);
  std::istringstream flujo{cifras};
  flujo.imbue(std::locale::classic());
  double numero = 0;
  flujo >> numero;
  return numero;
}

int LeadingWhole(std::u16string_view texto) {
  Scanner lector{texto};
  std::string cifras;
  lector.SkipBlanks();
  lector.Sign(cifras);
  if (!lector.Digits(cifras)) return 0;
  int numero = 0;
  std::from_chars(cifras.data(), cifras.data() + cifras.size(), numero);
  return numero;
}

double RoundHalfEven(double numero) { return std::nearbyint(numero); }

Integer CInt(double numero) {
  const double entero = RoundHalfEven(numero);
  if (!(entero >= INT16_MIN && entero <= INT16_MAX)) ThrowOverflow();
  return static_cast<int>(entero);
}

}  // namespace tasca
