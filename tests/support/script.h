#pragma once
// The answers of a scripted port, taken one by one.
#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <utility>

namespace tasca::test {

// The next answer; where there is none, `siFalta` and a failed test.
template <class T>
T Tomar(std::deque<T>& respuestas, T siFalta, const std::string& pregunta) {
  if (respuestas.empty()) {
    ADD_FAILURE() << "nobody foresaw " << pregunta;
    return siFalta;
  }
  T respuesta = std::move(respuestas.front());
  respuestas.pop_front();
  return respuesta;
}

}  // namespace tasca::test
