// save-once characters|settings|match|offer FOLDER NAME: saves a file of one character as the
// editor does, accepts the start-up dialog with that player's name, keeps a match with that name,
// or goes on with the match that is kept. Calls getppid before and after the save, so that the
// save's calls can be found in a trace. Prints the message to the player. Exit status: 0 after a
// save, 3 if it failed and the program continues, 1 if the program ends, 2 for wrong usage.
#include <unistd.h>

#include <exception>
#include <iostream>
#include <memory>
#include <string>
#include <string_view>

#include "base/code_page.h"
#include "base/errors.h"
#include "characters/editor.h"
#include "keep/conservador.h"
#include "startup/dlg_inicio.h"
#include "tests/save_faults/kept_match.h"
#include "tests/support/quiet_port.h"
#include "ui/utf8.h"

namespace {

constexpr int Saved = 0;
constexpr int Ended = 1;
constexpr int WentOn = 3;

class GamePort : public tasca::test::QuietPort {
 public:
  std::u16string Told;
  void MsgBox(const tasca::Table& /*t*/, std::u16string_view texto) override { Told += texto; }
  bool YesNoBox(const tasca::Table& /*t*/, tasca::Pregunta /*sobre*/,
                const tasca::YesNoQuestion& /*pregunta*/) override {
    return true;
  }
};

class EditorsPort : public tasca::EditorPort {
 public:
  std::u16string Told;
  void MsgBox(std::u16string_view texto) override { Told += texto; }
  bool OkCancelBox(std::u16string_view /*texto*/, std::u16string_view /*titulo*/) override {
    return false;
  }
  std::u16string InputBox(std::u16string_view /*texto*/, std::u16string_view /*titulo*/,
                          std::u16string_view /*porDefecto*/) override {
    return {};
  }
  std::optional<bool> YesNoCancelBox(std::u16string_view /*texto*/,
                                     std::u16string_view /*titulo*/) override {
    return {};
  }
  std::filesystem::path FileBox(std::u16string_view /*titulo*/) override { return {}; }
  std::vector<int> ChoiceBox(const std::vector<tasca::Candidato>& /*candidatos*/,
                             const std::vector<int>& /*elegidos*/) override {
    return {};
  }
  void Beep() override {}
};

void Mark() { static_cast<void>(::getppid()); }

int SaveSettings(tasca::Table& t, const std::u16string& nombre) {
  GamePort port;
  tasca::Rnd rnd;
  tasca::Game g{t, rnd, port};
  const auto d = std::make_unique<tasca::DlgInicio>();
  // A sanitizer makes additional system calls at the first use of a stream type. This reads the
  // settings before the first mark.
  Form_Load(*d, g);
  Combo1_Click(*d, 1);
  Combo2_Click(*d, 2);
  Combo3_Click(*d, 3);
  d->Text2 = nombre;
  Mark();
  const bool aceptado = CbOK_Click(*d, g);
  Mark();
  std::cout << tasca::ToUtf8(port.Told);
  if (!aceptado) return Ended;
  return port.Told.empty() ? Saved : WentOn;
}

// The second call of Guardar reports an error of the first.
int SaveMatch(const tasca::Table& t, const std::u16string& nombre) {
  GamePort port;
  tasca::Rnd rnd;
  const auto mesa = tasca::test::MatchOf(nombre);
  tasca::Game g{*mesa, rnd, port};
  Mark();
  tasca::Conservador conservador{t.Carpeta};
  conservador.Guardar(g);
  conservador.Esperar();
  conservador.Guardar(g);
  Mark();
  std::cout << tasca::ToUtf8(port.Told);
  return port.Told.empty() ? Saved : WentOn;
}

int OfferMatch(tasca::Table& t) {
  GamePort port;
  tasca::Rnd rnd;
  const std::filesystem::path estado = t.Carpeta;
  tasca::Game g{t, rnd, port};
  Mark();
  const bool sigue = tasca::Conservador{estado}.Ofrecer(g);
  Mark();
  std::cout << tasca::ToUtf8(port.Told);
  return sigue ? Saved : WentOn;
}

int SaveCharacters(tasca::Table& t, const std::u16string& nombre) {
  EditorsPort port;
  tasca::Dialog1 d;
  d.NumPersonajes = 1;
  t.Personajes[1].Nombre = nombre;
  Mark();
  GuardarPersonajes(d, t, port);
  Mark();
  std::cout << tasca::ToUtf8(port.Told);
  return HayCambios(d, t) ? WentOn : Saved;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) return 2;
  const auto mesa = std::make_unique<tasca::Table>();
  mesa->Carpeta = argv[2];
  const std::u16string nombre = tasca::Decode(argv[3]);
  try {
    const std::string_view que = argv[1];
    if (que == "match") return SaveMatch(*mesa, nombre);
    if (que == "offer") return OfferMatch(*mesa);
    return que == "settings" ? SaveSettings(*mesa, nombre) : SaveCharacters(*mesa, nombre);
  } catch (const tasca::RunTimeError& error) {
    std::cout << tasca::ToUtf8(error.Message());
  } catch (const std::exception& error) {
    std::cout << error.what();
  }
  return Ended;
}
