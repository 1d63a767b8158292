#pragma once
// The answer queues of the scripted ports.
#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <utility>

namespace tasca::test {

// Removes and returns the next answer. If there is none, fails the test and returns `siFalta`.
template <class T>
T Tomar(std::deque<T>& respuestas, T siFalta, const std::string& pregunta) {
  if (respuestas.empty()) {
    ADD_FAILURE() << "no scripted answer to " << pregunta;
    return siFalta;
  }
  T respuesta = std::move(respuestas.front());
  respuestas.pop_front();
  return respuesta;
}

}  // namespace tasca::test
