// Fuzzes the checker of character files: it must report the line where each of the three readers
// stops, and the number of players on offer.
#include "characters/character_file.h"
#include "characters/check.h"
#include "fuzz/support/answers.h"
#include "fuzz/support/folder.h"
#include "fuzz/support/require.h"
#include "fuzz/support/target.h"
#include "startup/dlg_inicio.h"
#include "tests/characters/paradas.h"

namespace tasca::fuzz {
namespace {

using test::DiceEn;
using test::DondeDice;
using test::DondeSeDetiene;

void CheckDialog(Table& t, const Revision& revision) {
  DlgInicio d;
  Rnd rnd;
  FixedAnswers port;
  Game g{t, rnd, port};
  const auto where = DondeSeDetiene([&] { Form_Load(d, g); });
  Require(!where || DiceEn(revision, *where, u"el diálogo de inicio"),
          "the checker stops where the start-up dialog stops");
  Require(where || revision.Ofrecidos == static_cast<int>(d.Combo1.List.size()) - 1,
          "the checker counts the players on offer");
}

}  // namespace

void Run(std::string_view input) {
  static const Folder folder;
  static Table t;  // Fields left by an earlier run are not read.
  t.Carpeta = folder.Path();
  folder.Write("Jugadores.dat", input);
  const Revision revision = RevisarPersonajes(ArchivoPersonajes(t));
  Require(DondeDice(revision, u"el juego") == DondeSeDetiene([] { LeerPersonajes(t); }),
          "the checker stops where the game stops");
  Require(
      DondeDice(revision, u"el editor") == DondeSeDetiene([] { LeerPersonajesSinMayusculas(t); }),
      "the checker stops where the editor stops");
  CheckDialog(t, revision);
}

}  // namespace tasca::fuzz
