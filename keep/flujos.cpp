// The encoding of numbers, texts and the generator.
#include "keep/flujos.h"

#include <algorithm>
#include <locale>
#include <sstream>

namespace tasca {
namespace {

// How many numbers the standard text form of the engine's state has. libstdc++ writes its words and
// the position of the next one, libc++ the words from the next one on.
#ifdef _LIBCPP_VERSION
constexpr std::size_t NumerosDelMotor = std::mt19937::state_size;
#else
constexpr std::size_t NumerosDelMotor = std::mt19937::state_size + 1;
#endif

// It is read back by the same standard library.
std::string TextoMotor(const std::mt19937& motor) {
  std::ostringstream texto;
  texto.imbue(std::locale::classic());
  texto << motor;
  return texto.str();
}

// The library's reader keeps words of more than 32 bits, which give draws above 1, and does not
// check the position.
bool EsDeUnMotor(std::istringstream texto) {
  std::vector<std::uint64_t> numeros;
  for (std::uint64_t numero = 0; texto >> numero;) numeros.push_back(numero);
  constexpr bool HayPosicion = NumerosDelMotor > std::mt19937::state_size;
  return texto.eof() && numeros.size() == NumerosDelMotor &&
         *std::max_element(numeros.begin(), numeros.end()) <= std::mt19937::max() &&
         (!HayPosicion || numeros.back() <= std::mt19937::state_size);
}

std::istringstream Clasico(const std::string& texto) {
  std::istringstream flujo{texto};
  flujo.imbue(std::locale::classic());
  return flujo;
}

}  // namespace

void EscritorPartida::Entero(std::uint64_t numero, int cuantosBytes) {
  for (int i = 0; i < cuantosBytes; ++i, numero >>= 8U) {
    bytes_ += static_cast<char>(static_cast<unsigned char>(numero & 0xFFU));
  }
}

void EscritorPartida::Texto(std::u16string_view texto) {
  Entero(texto.size(), 4);
  std::size_t sitio = bytes_.size();
  bytes_.resize(sitio + 2 * texto.size());
  for (const char16_t letra : texto) {
    bytes_[sitio++] = static_cast<char>(static_cast<unsigned char>(letra & 0xFFU));
    bytes_[sitio++] = static_cast<char>(static_cast<unsigned char>(letra >> 8U));
  }
}

void EscritorPartida::Generador(const Rnd& rnd) {
  const std::string motor = TextoMotor(rnd.Engine());
  Entero(rnd.Draws(), 8);
  Entero(motor.size(), 4);
  bytes_ += motor;
}

std::string_view LectorPartida::Trozo(std::size_t cuantos) {
  if (cuantos > resto_.size()) Fallar();
  if (!bien_) return {};
  const std::string_view trozo = resto_.substr(0, cuantos);
  resto_.remove_prefix(cuantos);
  return trozo;
}

bool LectorPartida::BienLeido() const { return bien_ && resto_.empty(); }

std::uint64_t LectorPartida::Entero(int cuantosBytes) {
  const std::string_view trozo = Trozo(static_cast<std::size_t>(cuantosBytes));
  std::uint64_t numero = 0;
  for (std::size_t i = trozo.size(); i > 0; --i) {
    numero = numero << 8U | static_cast<unsigned char>(trozo[i - 1]);
  }
  return numero;
}

int LectorPartida::EnteroEntre(Intervalo posibles) {
  constexpr int Vueltas = 1 << 16;
  const int leido = static_cast<int>(Entero(2));
  const int numero = leido > INT16_MAX ? leido - Vueltas : leido;
  if (numero < posibles.Menor || numero > posibles.Mayor) Fallar();
  return bien_ ? numero : 0;
}

// Every element takes at least two bytes.
std::size_t LectorPartida::Longitud() {
  const std::uint64_t longitud = Entero(4);
  if (longitud > resto_.size() / 2) Fallar();
  return bien_ ? static_cast<std::size_t>(longitud) : 0;
}

void LectorPartida::Texto(std::u16string& texto) {
  texto.clear();
  const std::string_view bytes = Trozo(2 * Longitud());
  texto.reserve(bytes.size() / 2);
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const auto menor = static_cast<unsigned char>(bytes[i]);
    const auto mayor = static_cast<unsigned char>(bytes[i + 1]);
    texto += static_cast<char16_t>(mayor << 8U | menor);
  }
}

void LectorPartida::Generador(Rnd& rnd) {
  const std::uint64_t sacados = Entero(8);
  const std::string texto{Trozo(static_cast<std::size_t>(Entero(4)))};
  std::mt19937 motor;
  if (!EsDeUnMotor(Clasico(texto)) || !(Clasico(texto) >> motor)) Fallar();
  rnd = Rnd{motor, sacados};
}

}  // namespace tasca
