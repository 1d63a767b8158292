// Runs strace and reads its output.
#include "tests/save_faults/tracer.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <map>
#include <set>

#include "tests/support/temp_folder.h"

namespace tasca::test {
namespace {

// A process can have only one tracer, and LeakSanitizer traces too.
std::string Traced(const std::string& opciones, const std::string& orden) {
  return "ASAN_OPTIONS=detect_leaks=0 strace " + opciones + " " + orden;
}

// Recognises the calls of UBSan's vptr check, which probes memory through a pipe. A save uses no
// pipe.
class SanitizersPipe {
 public:
  bool Makes(const std::string& linea) {
    const std::string nombre = linea.substr(0, linea.find('('));
    if (nombre == "pipe2") {
      const std::size_t coma = linea.find(',');
      const std::size_t primero = linea.find('[') + 1;
      extremos_ = {linea.substr(primero, coma - primero),
                   linea.substr(coma + 2, linea.find(']') - coma - 2)};
      return true;
    }
    if (nombre != "write" && nombre != "close") return false;
    const std::size_t desde = nombre.size() + 1;
    const std::string extremo = linea.substr(desde, linea.find_first_of(",)") - desde);
    return nombre == "close" ? extremos_.erase(extremo) > 0 : extremos_.contains(extremo);
  }

 private:
  std::set<std::string> extremos_;
};

}  // namespace

Outcome RunCommand(const std::string& orden) {
  Outcome fin;
  // NOLINTNEXTLINE(cert-env33-c): a fixed command in a folder of the test's own.
  std::FILE* const tubo = ::popen((orden + " 2>/dev/null").c_str(), "re");
  if (tubo == nullptr) return {.Status = -1, .Output = {}};
  std::array<char, 256> trozo{};
  while (std::fgets(trozo.data(), trozo.size(), tubo) != nullptr) fin.Output += trozo.data();
  const int estado = ::pclose(tubo);
  fin.Status = WIFEXITED(estado) ? WEXITSTATUS(estado) : 128 + WTERMSIG(estado);
  return fin;
}

bool MachineTraces() { return RunCommand("strace -o /dev/null true").Status == 0; }

bool IsAboutFiles(const Call& llamada) {
  static const std::set<std::string> otras{
      "brk",    "mmap",  "munmap",      "madvise",      "mprotect",      "clone",
      "clone3", "futex", "sigaltstack", "rt_sigaction", "rt_sigprocmask"};
  return !otras.contains(llamada.Name);
}

std::vector<Call> CallsOf(const std::string& opciones, const std::string& orden) {
  const TempFolder carpeta;
  const std::string traza = (carpeta.Path() / "trace").string();
  EXPECT_EQ(RunCommand(Traced(opciones + " -o " + traza, orden)).Status, 0);
  std::ifstream lineas{traza};
  std::map<std::string, int> cuenta;
  std::vector<Call> llamadas;
  int marcas = 0;
  SanitizersPipe tubo;
  for (std::string linea; std::getline(lineas, linea);) {
    const std::string nombre = linea.substr(0, linea.find('('));
    const int veces = ++cuenta[nombre];
    if (nombre == "getppid") {
      ++marcas;
    } else if (!tubo.Makes(linea) && marcas == 1) {
      llamadas.push_back({nombre, veces, linea});
    }
  }
  EXPECT_EQ(marcas, 2);
  return llamadas;
}

Outcome RunWithFault(const std::string& opciones, const std::string& orden, const Call& llamada,
                     const std::string& fallo) {
  const std::string inyeccion = " -e inject=" + llamada.Name + ":" + fallo +
                                ":when=" + std::to_string(llamada.Count) + " -o /dev/null";
  return RunCommand(Traced(opciones + inyeccion, orden));
}

}  // namespace tasca::test
