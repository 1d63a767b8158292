// Fuzzes the reader of kept matches: with any bytes, and with a match whose bytes are changed and
// whose checksum is valid. What it takes must be written back alike and be playable.
#include "keep/partida_guardada.h"

#include <array>
#include <memory>
#include <vector>

#include "base/errors.h"
#include "base/keys.h"
#include "base/text.h"
#include "fuzz/support/answers.h"
#include "fuzz/support/bytes.h"
#include "fuzz/support/folder.h"
#include "fuzz/support/require.h"
#include "fuzz/support/target.h"
#include "match/phase_machine.h"
#include "match/start.h"

namespace tasca::fuzz {
namespace {

// The header of a match: the format's name and number, and the checksum.
constexpr std::size_t Header = 24;

// A table and its generator. They are reused: constructing a Table for every input is slow.
struct Match {
  std::unique_ptr<Table> Mesa = std::make_unique<Table>();
  Rnd Generator;
};

// The values of a match after 0, 1, ... steps of its first hands.
std::vector<std::string> PlayedMatches() {
  constexpr int Steps = 32;
  const Folder folder;
  std::filesystem::copy(TASCA_SOURCE_DIR "/tests/traces/folder/Jugadores.dat",
                        folder.Path() / "Jugadores.dat");
  Match match;
  match.Mesa->Carpeta = folder.Path();
  match.Mesa->PersonajeAsiento = {0, 3, 4, 5};
  match.Mesa->UsarExpresiones = true;
  FixedAnswers answers;
  Game g{*match.Mesa, match.Generator, answers};
  Form_Load(g);
  std::vector<std::string> played;
  while (played.size() < Steps) {
    played.push_back(EscribirPartida(*match.Mesa, match.Generator).substr(Header));
    answers.Text = played.size() % 2 == 0 ? u"12" : u"";
    answers.Button = static_cast<int>(played.size()) % 3;
    Integer enter = TeclaEnter;
    Text1_KeyDown(g, enter, 0);
  }
  return played;
}

// Changes bytes of a match. Positions count from the end, where the table is; the characters and
// the generator come before it.
std::string Changed(std::string values, Bytes& bytes) {
  constexpr int Positions = 0x10000;
  while (!bytes.Empty()) {
    const auto distance = static_cast<std::size_t>(bytes.Below(Positions)) % values.size();
    values[values.size() - 1 - distance] = static_cast<char>(bytes.Below(256));
  }
  return values;
}

void Play(Match& match) {
  FixedAnswers answers;
  answers.Button = 2;
  answers.Text = u"2";
  Game g{*match.Mesa, match.Generator, answers};
  try {
    for (int step = 0; step < 8 && !answers.TakeChangePlayers(); ++step) {
      Integer enter = TeclaEnter;
      Text1_KeyDown(g, enter, 0);
    }
  } catch (const LeaveProgram&) {
  } catch (const RunTimeError& error) {
    Require(!Contains(error.Message(), u"ndice"), "no index is out of range in a match");
  }
}

// Reads, writes, reads again and plays.
void Take(const std::string& bytes) {
  static Match match;
  static Match again;
  if (!LeerPartida(bytes, *match.Mesa, match.Generator)) return;
  const std::string written = EscribirPartida(*match.Mesa, match.Generator);
  Require(LeerPartida(written, *again.Mesa, again.Generator), "what is written can be read");
  Require(*again.Mesa == *match.Mesa, "what is read again is the same match");
  Play(match);
}

}  // namespace

void Run(std::string_view input) {
  static const std::vector<std::string> played = PlayedMatches();
  Bytes bytes{input};
  const auto kind = static_cast<std::size_t>(bytes.Below(64));
  if (kind >= played.size()) {
    Take(std::string{bytes.Rest()});
    Take(ConCabecera(bytes.Rest()));
  } else {
    Take(ConCabecera(Changed(played[kind], bytes)));
  }
}

}  // namespace tasca::fuzz
