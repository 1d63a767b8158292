// A match goes on to the same end although its program is killed at random moments. A kill costs at
// most the last step. TASCA_KILLS sets the number of kills.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "tests/kept_kills/keeping_program.h"
#include "tests/support/temp_folder.h"

namespace tasca::test {
namespace {

int KillsWanted() {
  constexpr int EnLaSuite = 60;
  const char* const pedidas = std::getenv("TASCA_KILLS");      // NOLINT(concurrency-mt-unsafe)
  return pedidas == nullptr ? EnLaSuite : std::atoi(pedidas);  // NOLINT(cert-err34-c)
}

// Before the first state of a match, or after its last one.
constexpr int SinPartida = -1;

class KeptKills : public testing::Test {
 protected:
  KeptKills() {
    std::filesystem::copy(TASCA_SOURCE_DIR "/tests/traces/folder/Jugadores.dat",
                          carpeta_.Path() / "Jugadores.dat");
    carpeta_.Write("mus.ini", "20\r\n3\r\n3\r\nAna>\r\n");
  }

  // The checksums of all states of the match, played without a kill.
  void PlayWhole() {
    const TempFolder estado;
    KeepingProgram programa{carpeta_.Path(), estado.Path()};
    for (auto linea = programa.NextLine(); linea && *linea != "end"; linea = programa.NextLine()) {
      const std::string suma = linea->substr(linea->find(' ') + 1);
      EXPECT_TRUE(lugar_.emplace(suma, std::ssize(lugar_)).second) << "a state that repeats itself";
    }
  }
  int Last() const { return static_cast<int>(lugar_.size()) - 1; }

  // Whether a program that starts now may find the match at this place: at the last state that was
  // told, before it if its save was killed, or after it if the kill was faster than the line.
  bool MayStartAt(int lugar) const {
    const bool alFinal = visto_ == Last() || haAcabado_;
    if (alFinal && (lugar == SinPartida || lugar == 0)) return true;
    return std::abs(lugar - visto_) <= 1;
  }

  // Checks a line of a program and notes it. False for the last line of a match.
  bool Note(const std::string& linea) {
    if (linea == "end") {
      EXPECT_EQ(visto_, Last());
      haAcabado_ = true;
      return false;
    }
    const std::string que = linea.substr(0, linea.find(' '));
    const auto suma = lugar_.find(linea.substr(que.size() + 1));
    const int lugar = suma == lugar_.end() ? -2 : suma->second;
    if (que == "step") {
      EXPECT_EQ(lugar, visto_ + 1);
    } else {
      EXPECT_TRUE(MayStartAt(que == "new" ? SinPartida : lugar))
          << linea << ", state " << lugar << " after " << visto_;
    }
    visto_ = lugar;
    haAcabado_ = false;
    return true;
  }

  // Notes up to `cuantas` lines. False if the match has ended.
  bool NoteLines(KeepingProgram& programa, int cuantas) {
    for (; cuantas > 0; --cuantas) {
      const auto linea = programa.NextLine();
      if (!linea) return true;
      if (!Note(*linea)) return false;
    }
    return true;
  }

  // A number from 0 to n - 1.
  int Any(int n) { return static_cast<int>(azar_() % static_cast<unsigned>(n)); }

  // Starts a program and kills it within its next steps.
  void PlayAndKill() {
    constexpr int Todas = 1'000'000;
    KeepingProgram programa{carpeta_.Path(), estado_.Path()};
    NoteLines(programa, Any(12));
    std::this_thread::sleep_for(std::chrono::microseconds{Any(4000)});
    programa.Kill();
    NoteLines(programa, Todas);
  }

  TempFolder carpeta_;
  TempFolder estado_;
  std::map<std::string, int> lugar_;  // the place of a state in the match by its checksum
  int visto_ = SinPartida;            // the last state that was told
  bool haAcabado_ = false;
  std::mt19937 azar_{1};
};

TEST_F(KeptKills, CostAtMostTheLastStep) {
  PlayWhole();
  ASSERT_GT(Last(), 100);
  int partidas = 0;
  for (int muertes = KillsWanted(); muertes > 0 && !HasFailure(); --muertes) {
    PlayAndKill();
    partidas += haAcabado_ ? 1 : 0;
  }
  KeepingProgram ultimo{carpeta_.Path(), estado_.Path()};
  EXPECT_FALSE(NoteLines(ultimo, Last() + 2)) << "the match is played to its end";
  EXPECT_FALSE(ultimo.NextLine());
  EXPECT_EQ(estado_.Names(), std::vector<std::string>{"en-uso"});
  RecordProperty("matches", partidas);
}

}  // namespace
}  // namespace tasca::test
