// Runs the readers and the program, and collects their results.
#include "tests/bad_inputs/outcomes.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <memory>

#include "base/path_text.h"
#include "characters/character_file.h"
#include "startup/dlg_inicio.h"
#include "tests/support/errors.h"
#include "tests/support/quiet_port.h"
#include "tests/support/tables.h"
#include "tests/ui_trace/conversation.h"

namespace tasca::test {
namespace {

namespace fs = std::filesystem;
using nlohmann::ordered_json;

// Removes the folder's name and FinDelPrograma. Fails the test if the latter is missing.
std::string WithoutFolder(std::string mensaje, const fs::path& carpeta) {
  const std::string_view final{FinDelPrograma};
  EXPECT_TRUE(mensaje.ends_with(final)) << mensaje;
  if (mensaje.ends_with(final)) mensaje.resize(mensaje.size() - final.size());
  const std::string principio = Utf8(PathText(carpeta)) + "/";
  return mensaje.starts_with(principio) ? mensaje.substr(principio.size()) : mensaje;
}

// The result of an operation on a table of that folder, or its error.
std::string OutcomeOf(const fs::path& carpeta, const std::function<std::string(Table&)>& leer) {
  const auto t = std::make_unique<Table>();
  t->Carpeta = carpeta;
  std::string dice;
  const std::string error = ErrorOf([&] { dice = leer(*t); });
  return error.empty() ? dice : WithoutFolder(error, carpeta);
}

std::string Offered(Table& t) {
  const auto d = std::make_unique<DlgInicio>();
  Rnd rnd;
  QuietPort port;
  Game g{t, rnd, port};
  Form_Load(*d, g);
  return "offers " + std::to_string(d->Combo1.List.size() - 1);
}

std::string Answer(const ordered_json& pregunta) {
  if (pregunta["event"] == "dialog") return R"({"result": 1})";
  return pregunta["event"] == "inputbox" ? R"({"text": "2"})" : R"({"button": "no"})";
}

// The next input line of a player who always bets; nothing once the hand is over. Stores the first
// state in `primero`.
std::optional<std::string> NextLine(const TraceEvents& sucesos, ordered_json& primero) {
  if (sucesos.empty()) return R"({"start": {"clock": [0, 0, 0], "combos": [0, 0, 0]}})";
  const ordered_json& ultimo = sucesos.back();
  if (ultimo["event"] != "state") return Answer(ultimo);
  if (primero.is_null()) primero = ultimo;
  if (ultimo["Fase"] == -1) return std::nullopt;
  return R"({"key": 13})";
}

}  // namespace

std::ostream& operator<<(std::ostream& salida, const Outcomes& outcomes) {
  return salida << "dialog: " << outcomes.Dialog << "\ngame: " << outcomes.Game
                << "\neditor: " << outcomes.Editor << "\nprogram: " << outcomes.Program;
}

Outcomes OutcomesIn(const fs::path& carpeta) {
  const auto lee = [](Table& t) {
    LeerPersonajes(t);
    return std::string{"reads"};
  };
  const auto leeElEditor = [](Table& t) {
    return "reads " + std::to_string(LeerPersonajesSinMayusculas(t));
  };
  return {OutcomeOf(carpeta, Offered), OutcomeOf(carpeta, lee), OutcomeOf(carpeta, leeElEditor),
          Play(carpeta).Outcome};
}

Played Play(const fs::path& carpeta) {
  ordered_json primero;
  const Conversation partida = Converse(
      carpeta, [&primero](const TraceEvents& sucesos) { return NextLine(sucesos, primero); });
  EXPECT_EQ(partida.Err, "");
  if (partida.Status == 0) return {"plays", primero, partida.Out};
  const ordered_json fin = partida.Rest.empty() ? ordered_json{} : partida.Rest.back();
  EXPECT_EQ(partida.Status, 1);
  EXPECT_EQ(fin.value("reason", ""), "error");
  return {WithoutFolder(fin.value("text", ""), carpeta), primero, partida.Out};
}

Outcomes OutcomesOf(const std::string& archivo) {
  const TempFolder carpeta;
  carpeta.Write("Jugadores.dat", archivo);
  return OutcomesIn(carpeta.Path());
}

int MemoryGrownBy(const std::function<void()>& hacer) {
  const auto maximo = [] {
    rusage uso{};
    ::getrusage(RUSAGE_SELF, &uso);
    return uso.ru_maxrss / 1024;  // NOLINT(cppcoreguidelines-pro-type-union-access)
  };
  const pid_t hijo = ::fork();
  if (hijo == 0) {
    const auto medir = [&]() noexcept {  // an exception must not return into the test runner
      const long antes = maximo();
      hacer();
      return static_cast<int>(std::min(maximo() - antes, 255L));
    };
    ::_exit(medir());
  }
  int estado = 0;
  EXPECT_EQ(::waitpid(hijo, &estado, 0), hijo);
  EXPECT_TRUE(WIFEXITED(estado));
  return WEXITSTATUS(estado);
}

}  // namespace tasca::test
