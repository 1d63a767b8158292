#pragma once
// A random generator that returns a fixed list of draws.
#include <initializer_list>

#include "base/rnd.h"

namespace tasca::test {

// The greatest draw below `limite`, and the smallest one at or above it: both sides of a threshold.
// `limite` is in (0, 1].
float DrawBelow(float limite);
float DrawFrom(float limite);

// A Rnd whose next draws are the listed ones: each in [0, 1) and a multiple of 2^-24, at most 624
// of them. Its destructor fails the test if more or fewer draws were made.
class DrawList {
 public:
  DrawList(std::initializer_list<float> sacadas);
  DrawList(const DrawList&) = delete;
  DrawList& operator=(const DrawList&) = delete;
  ~DrawList();

  operator Rnd&() { return rnd_; }  // NOLINT(google-explicit-constructor)
  Rnd& Get() { return rnd_; }

 private:
  Rnd rnd_;
  std::uint64_t previstas_;
};

}  // namespace tasca::test
