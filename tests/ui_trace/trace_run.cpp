// Runs traces and parses their output.
#include "tests/ui_trace/trace_run.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "base/code_page.h"
#include "characters/character_file.h"
#include "ui/trace/session.h"
#include "ui/utf8.h"

namespace tasca::test {
namespace {

using nlohmann::ordered_json;

std::string Record(const std::string& name, const std::string& ordaguero,
                   const std::string& slots) {
  std::string text = "Datos>\r\n" + name + "\r\n" + ordaguero + "\r\nUna historia.\r\n";
  for (const std::u16string_view etiqueta : EtiquetasMensaje) {
    const std::string tag = ToUtf8(etiqueta);
    const std::string amount = tag == "EnvM" ? "&" : "";
    text += tag + ">\r\n";
    for (const char slot : slots) text += tag + amount + slot + "\r\n";
  }
  return text;
}

std::string CharacterFile() {
  return Record("Default indirecto", "000", "I") + Record("Default directo", "000", "D") +
         Record("Berta", "010", "123") + Record("el Cojo", "050", "123") +
         Record("Dora", "090", "123") + Record(Encode(u"Ramón"), "040", "123");
}

}  // namespace

std::string TraceRun::Names() const {
  std::string names;
  for (const ordered_json& event : Events) {
    names += (names.empty() ? "" : " ") + event["event"].get<std::string>();
  }
  return names;
}

const ordered_json& TraceRun::First(std::string_view name) const {
  static const ordered_json none = ordered_json::object();
  const auto found = std::find_if(Events.begin(), Events.end(), [name](const ordered_json& event) {
    return event["event"] == name;
  });
  if (found != Events.end()) return *found;
  ADD_FAILURE() << "no event " << name << " in " << Names();
  return none;
}

const ordered_json& TraceRun::Last() const {
  static const ordered_json none = ordered_json::object();
  if (!Events.empty()) return Events.back();
  ADD_FAILURE() << "no event";
  return none;
}

TraceFolder::TraceFolder() { files_.Write("Jugadores.dat", CharacterFile()); }

TraceFolder::TraceFolder(int piedras, int juegos, int vacas) : TraceFolder{} {
  files_.Write("mus.ini", std::to_string(piedras) + "\r\n" + std::to_string(juegos) + "\r\n" +
                              std::to_string(vacas) + "\r\nAna> Nombre\r\n");
}

TraceRun TraceFolder::Play(const std::vector<std::string>& lines) const {
  std::stringstream in;
  for (const std::string& line : lines) in << line << '\n';
  std::ostringstream out;
  std::ostringstream err;
  TraceRun run;
  run.Status = RunTrace(files_.Path(), in, out, err);
  run.Out = out.str();
  run.Err = err.str();
  std::istringstream events{run.Out};
  for (std::string line; std::getline(events, line);) {
    run.Events.push_back(ordered_json::parse(line));
  }
  return run;
}

std::string Result(int button) { return R"({"result": )" + std::to_string(button) + "}"; }

}  // namespace tasca::test
