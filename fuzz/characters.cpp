// Fuzzes the three readers of the character file: the game, the editor and the start-up dialog. The
// dialog is then accepted with three companions drawn at random.
#include "base/errors.h"
#include "characters/character_file.h"
#include "fuzz/support/answers.h"
#include "fuzz/support/folder.h"
#include "fuzz/support/require.h"
#include "fuzz/support/target.h"
#include "startup/dlg_inicio.h"

namespace tasca::fuzz {
namespace {

// A RunTimeError is a valid outcome.
template <class Reader>
void Try(const Reader& reader) {
  try {
    reader();
  } catch (const RunTimeError&) {
    return;
  }
}

void CheckSeats(const Table& t) {
  const auto& characters = t.PersonajeAsiento;
  for (int seat = 2; seat <= 4; ++seat) {
    const int character = characters[seat - 1];
    Require(character >= 1 && character <= MaximoHistorias, "only who is on offer sits down");
  }
  Require(characters[1] != characters[2] && characters[2] != characters[3] &&
              characters[1] != characters[3],
          "nobody sits at two seats");
}

void TryDialog(Table& t) {
  DlgInicio d;
  Rnd rnd;
  FixedAnswers port;
  Game g{t, rnd, port};
  Form_Load(d, g);
  Require(CbOK_Click(d, g), "the dialog accepts a draw of three companions");
  CheckSeats(t);
}

}  // namespace

void Run(std::string_view input) {
  static const Folder folder;
  static Table t;  // Fields left by an earlier run are not read.
  t.Carpeta = folder.Path();
  folder.Write("Jugadores.dat", input);
  Try([] { LeerPersonajes(t); });
  Try([] {
    const int count = LeerPersonajesSinMayusculas(t);
    Require(count >= 0 && count <= MaximoPersonajes, "no more than a hundred characters");
  });
  Try([] { TryDialog(t); });
}

}  // namespace tasca::fuzz
