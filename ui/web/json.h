#pragma once
// Writes JSON, as UTF-8.
#include <concepts>
#include <string>
#include <string_view>

#include "ui/mesa/rect.h"

namespace tasca {

class Json {
 public:
  const std::string& Text() const { return texto_; }

  // A value: the whole text, an element of a list, or after Key the value of a field. A narrow text
  // is UTF-8. Of a real number five decimals are kept. A rectangle is [x, y, width, height].
  void Value(std::u16string_view texto);
  void Value(std::string_view utf8);
  void Value(const char* utf8) { Value(std::string_view{utf8}); }
  void Value(std::same_as<bool> auto verdad) { Raw(verdad ? "true" : "false"); }
  void Value(int numero);
  void Value(double numero);
  void Value(const Rect& donde);
  void Null() { Raw("null"); }

  void Key(std::string_view clave);

  // An object: `dentro` writes its fields.
  template <class Dentro>
  void Object(const Dentro& dentro) {
    Open('{');
    dentro();
    Close('}');
  }
  // A list: `uno` writes each element.
  template <class Rango, class Uno>
  void List(const Rango& rango, const Uno& uno) {
    Open('[');
    for (const auto& elemento : rango) uno(elemento);
    Close(']');
  }

  // Fields of an object.
  template <class T>
  void Field(std::string_view clave, const T& valor) {
    Key(clave);
    Value(valor);
  }
  template <class Dentro>
  void ObjectField(std::string_view clave, const Dentro& dentro) {
    Key(clave);
    Object(dentro);
  }
  template <class Rango, class Uno>
  void ListField(std::string_view clave, const Rango& rango, const Uno& uno) {
    Key(clave);
    List(rango, uno);
  }
  // A list of values.
  template <class Rango>
  void ListField(std::string_view clave, const Rango& rango) {
    ListField(clave, rango, [this](const auto& valor) { this->Value(valor); });
  }

 private:
  void Raw(std::string_view texto);
  void Open(char signo);
  void Close(char signo);

  std::string texto_;
  bool sigue_ = false;  // a value stands before, so that a comma comes first
};

}  // namespace tasca
