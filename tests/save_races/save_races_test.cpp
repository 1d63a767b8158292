// Several programs save concurrently in one folder and are killed at random. Every file always has
// the complete content of one writer, and no save fails. TASCA_SAVES sets the number of rounds per
// program.
#include <gtest/gtest.h>
#include <poll.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "base/code_page.h"
#include "characters/character_file.h"
#include "startup/settings.h"
#include "tests/save_races/saving_program.h"
#include "tests/save_races/writers_text.h"
#include "tests/support/temp_folder.h"

namespace tasca::test {
namespace {

constexpr int Seconds = 1000;  // in milliseconds

// The number of rounds that each program saves on average.
int RoundsOfEach() {
  constexpr int EnLaSuite = 10;
  const char* const pedidas = std::getenv("TASCA_SAVES");      // NOLINT(concurrency-mt-unsafe)
  return pedidas == nullptr ? EnLaSuite : std::atoi(pedidas);  // NOLINT(cert-err34-c)
}

class SaveRaces : public testing::TestWithParam<int> {
 protected:
  // Writer 0 writes the initial files.
  SaveRaces() {
    t_->Carpeta = carpeta_.Path();
    for (int numero = GetParam(); numero >= 0; --numero) {
      personajes_ = FillCast(*t_, numero);
      repartos_.insert(TextoPersonajes(*t_, personajes_));
      for (int otro = 0; otro <= GetParam(); ++otro) ajustes_.insert(Settings(numero, otro));
    }
    carpeta_.Write("mus.ini", Settings(0, 0));
    carpeta_.Write("Jugadores.dat", TextoPersonajes(*t_, personajes_));
    carpeta_.Write("Jugadores.bak", TextoPersonajes(*t_, personajes_));
  }

  static std::string Settings(int numero, int anterior) {
    const auto linea = [](int escritor) {
      return Encode(WritersName(escritor)) + "> Nombre del \xFAltimo jugador\r\n";
    };
    return "35\r\n3\r\n3\r\n" + linea(numero) + linea(anterior);
  }

  void StartAll() {
    for (int numero = 1; numero <= GetParam(); ++numero) {
      programas_.push_back(std::make_unique<SavingProgram>(carpeta_.Path().string(), numero));
    }
  }

  // Waits until a program has saved, for at most a minute. Returns the number of new rounds.
  int WaitForRounds() {
    std::vector<pollfd> esperados;
    for (const auto& programa : programas_) {
      esperados.push_back({.fd = programa->Output(), .events = POLLIN, .revents = 0});
    }
    EXPECT_GT(::poll(esperados.data(), esperados.size(), 60 * Seconds), 0) << "no program saves";
    int rondas = 0;
    for (std::size_t i = 0; i < esperados.size(); ++i) {
      if (esperados.at(i).revents != 0) rondas += programas_.at(i)->TakeRounds();
    }
    return rondas;
  }

  void ExpectWholeFiles() const {
    EXPECT_TRUE(ajustes_.contains(carpeta_.Read("mus.ini")));
    EXPECT_TRUE(repartos_.contains(carpeta_.Read("Jugadores.dat")));
    EXPECT_TRUE(repartos_.contains(carpeta_.Read("Jugadores.bak")));
  }

  // A number from 0 to `hasta` - 1.
  std::size_t Any(std::size_t hasta) { return azar_() % hasta; }

  // Kills a random program at a random step of its save. Reading the files takes about as long as a
  // save, so that it serves as a random delay.
  void KillOne() {
    for (std::size_t veces = Any(8); veces > 0; --veces) ExpectWholeFiles();
    programas_.at(Any(programas_.size()))->Restart();
  }

  TempFolder carpeta_;
  std::unique_ptr<Table> t_ = std::make_unique<Table>();
  int personajes_ = 0;
  std::set<std::string> ajustes_;   // the possible contents of the settings
  std::set<std::string> repartos_;  // the possible contents of the character file and its copy
  std::vector<std::unique_ptr<SavingProgram>> programas_;
  std::mt19937 azar_{static_cast<unsigned>(GetParam())};
};

TEST_P(SaveRaces, LeaveWholeFilesAndNoErrors) {
  const int rondas = GetParam() * RoundsOfEach();
  const int bastantes = 2 * GetParam();
  StartAll();
  for (int guardadas = 0, muertes = 0; guardadas < rondas || muertes < bastantes;) {
    guardadas += WaitForRounds();
    ExpectWholeFiles();
    if (HasFailure()) return;
    if (Any(4) > 0) continue;
    KillOne();
    ++muertes;
  }
  programas_.clear();
  ExpectWholeFiles();
  GuardarIni(*t_, WritersName(0));
  EscribirPersonajes(*t_, personajes_);
  EXPECT_EQ(carpeta_.Names(),
            (std::vector<std::string>{"Jugadores.bak", "Jugadores.dat", "mus.ini"}));
}

INSTANTIATE_TEST_SUITE_P(Programs, SaveRaces, testing::Values(2, 4, 8),
                         testing::PrintToStringParamName{});

}  // namespace
}  // namespace tasca::test
