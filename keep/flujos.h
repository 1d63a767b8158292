#pragma once
// The bytes of a kept match: numbers of 16 bits and texts of UTF-16 units, least significant byte
// first. The writer and the reader have the same functions, so that one list of fields serves both.
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "base/fixed_text.h"
#include "base/rnd.h"

namespace tasca {

// The values that a number may have, both ends included.
struct Intervalo {
  int Menor = INT16_MIN;
  int Mayor = INT16_MAX;
};

// Appends values. It checks no range.
class EscritorPartida {
 public:
  // An Integer, a bool or an enumerator.
  template <class T>
  void Numero(const T& numero, Intervalo /*posibles*/) {
    Entero(static_cast<std::uint16_t>(static_cast<int>(numero)), 2);
  }
  void Texto(std::u16string_view texto);
  template <std::size_t N>
  void Texto(const FixedText<N>& texto) {
    Texto(TrimRight(texto.Full()));
  }
  // The length of the list. The caller writes the elements.
  template <class T>
  void Lista(const std::vector<T>& lista) {
    Entero(lista.size(), 4);
  }
  void Generador(const Rnd& rnd);

  const std::string& Bytes() const { return bytes_; }

 private:
  void Entero(std::uint64_t numero, int cuantosBytes);

  std::string bytes_;
};

// Reads the values back. After the first invalid one it reads zeros and empty texts.
class LectorPartida {
 public:
  explicit LectorPartida(std::string_view bytes) : resto_{bytes} {}

  // Fails for a number outside `posibles`.
  template <class T>
  void Numero(T& numero, Intervalo posibles) {
    numero = static_cast<T>(EnteroEntre(posibles));
  }
  void Texto(std::u16string& texto);
  // Fails for a text that does not fit.
  template <std::size_t N>
  void Texto(FixedText<N>& campo) {
    std::u16string texto;
    Texto(texto);
    if (texto.size() > N) Fallar();
    campo = texto;
  }
  // Gives the list the length that was written. Fails for a length that the bytes cannot hold. The
  // caller reads the elements.
  template <class T>
  void Lista(std::vector<T>& lista) {
    lista.resize(Longitud());
  }
  void Generador(Rnd& rnd);

  // True if every value so far was valid.
  bool VaBien() const { return bien_; }
  // True if every value was valid and all bytes have been read.
  bool BienLeido() const;

 private:
  void Fallar() { bien_ = false; }
  std::uint64_t Entero(int cuantosBytes);
  int EnteroEntre(Intervalo posibles);
  std::size_t Longitud();
  std::string_view Trozo(std::size_t cuantos);

  std::string_view resto_;
  bool bien_ = true;
};

}  // namespace tasca
