// Builds the state of a Mersenne Twister from its next outputs.
#include "tests/support/draw_list.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <random>
#include <sstream>

namespace tasca::test {
namespace {

constexpr float Pasos = 0x1p24F;
constexpr int BitsPalabra = 32;

// The word of the state that is tempered into `salida`. Inverts the four tempering steps.
std::uint32_t Untemper(std::uint32_t salida) {
  std::uint32_t x = salida;
  x ^= x >> 18U;
  x ^= (x << 15U) & 0xEFC60000U;
  std::uint32_t y = x;
  for (int i = 0; i < BitsPalabra / 7 + 1; ++i) y = x ^ ((y << 7U) & 0x9D2C5680U);
  std::uint32_t z = y;
  for (int i = 0; i < BitsPalabra / 11 + 1; ++i) z = y ^ (z >> 11U);
  return z;
}

std::mt19937 MotorQueDa(std::initializer_list<float> sacadas) {
  std::array<std::uint32_t, std::mt19937::state_size> palabras{};
  std::size_t i = 0;
  for (const float sacada : sacadas) {
    const float pasos = sacada * Pasos;
    EXPECT_TRUE(sacada >= 0.0F && sacada < 1.0F && std::floor(pasos) == pasos)
        << sacada << " is not a valid draw";
    palabras.at(i++) = Untemper(static_cast<std::uint32_t>(pasos) << 8U);
  }
  std::stringstream estado;
  for (const std::uint32_t palabra : palabras) estado << palabra << ' ';
  estado << 0;  // the position of the next word
  std::mt19937 motor;
  estado >> motor;
  return motor;
}

}  // namespace

float DrawBelow(float limite) {
  const float pasos = std::floor(limite * Pasos);
  return (pasos / Pasos < limite ? pasos : pasos - 1) / Pasos;
}

float DrawFrom(float limite) { return std::ceil(limite * Pasos) / Pasos; }

DrawList::DrawList(std::initializer_list<float> sacadas)
    : rnd_{MotorQueDa(sacadas)}, previstas_{sacadas.size()} {}

DrawList::~DrawList() { EXPECT_EQ(rnd_.Draws(), previstas_) << "wrong number of draws"; }

}  // namespace tasca::test
