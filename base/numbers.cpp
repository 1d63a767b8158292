// Reading numbers by their leading part, and rounding.
#include "base/numbers.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <system_error>

namespace tasca {
namespace {

bool IsDigit(char16_t letra) { return letra >= u'0' && letra <= u'9'; }

// Reads a text from left to right and copies what it accepts, as ASCII.
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
  bool Take(std::u16string_view letras) {
    if (resto_.empty() || letras.find(resto_.front()) == std::u16string_view::npos) return false;
    resto_.remove_prefix(1);
    return true;
  }

 private:
  std::u16string_view resto_;
};

}  // namespace

double LeadingNumber(std::u16string_view texto) {
  Scanner lector{texto};
  std::string mantisa;
  lector.SkipBlanks();
  lector.Sign(mantisa);
  if (!lector.Digits(mantisa)) return 0;
  if (lector.Take(u".")) {
    mantisa += '.';
    lector.Digits(mantisa);
  }
  std::string exponente = "e";
  if (lector.Take(u"eE")) {
    lector.Sign(exponente);
    if (lector.Digits(exponente)) mantisa += exponente;
  }
  double numero = 0;
  const auto leido = std::from_chars(mantisa.data(), mantisa.data() + mantisa.size(), numero);
  if (leido.ec != std::errc::result_out_of_range) return numero;
  const bool diminuto = mantisa.find("e-") != std::string::npos;
  return diminuto ? 0 : std::numeric_limits<double>::infinity();
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
