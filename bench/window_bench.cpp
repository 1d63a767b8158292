// bench_window WIDTH HEIGHT [MATCHES]: paints the main window on Qt's offscreen platform with its
// software rasteriser, and prints the time to its first painted frame, the times from a key to the
// painted frame over matches played at random, and the memory.
#include <QApplication>
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "base/errors.h"
#include "base/keys.h"
#include "match/session.h"
#include "table/dialog.h"
#include "ui/qt/form1.h"

namespace tasca {
namespace {

// Answers at random. The same seed gives the same match.
class RandomPort : public Port {
 public:
  explicit RandomPort(unsigned semilla) : azar_{semilla} {}

  void MsgBox(const Table& /*t*/, std::u16string_view /*texto*/) override {}
  bool YesNoBox(const Table& /*t*/, Pregunta sobre, const YesNoQuestion& /*pregunta*/) override {
    if (sobre == Pregunta::OtraPartida) throw LeaveProgram{};
    return Draw(2) == 0;
  }
  std::u16string InputBox(const Table& /*t*/, Pregunta sobre,
                          const InputQuestion& pregunta) override {
    if (sobre != Pregunta::Descarte) return std::u16string{pregunta.PorDefecto};
    return std::u16string{u"1234"}.substr(static_cast<std::size_t>(Draw(4)));
  }
  void ShowDialog(const Table& /*t*/, Dialog& dialogo) override {
    const bool respuestaOrdago = dialogo.Modo == ModoDialogo::RespuestaOrdago;
    Command1_Click(dialogo, Integer{Draw(respuestaOrdago ? 2 : 3)});
  }
  void OpenSound(const Table& /*t*/, std::u16string_view /*archivo*/) override {}
  void StopSound(const Table& /*t*/) override {}
  TimeOfDay Now() override { return {.Hora = 21, .Minuto = 0, .Segundo = Draw(60)}; }

 private:
  int Draw(int cuantos) { return std::uniform_int_distribution{0, cuantos - 1}(azar_); }

  std::mt19937 azar_;
};

using Clock = std::chrono::steady_clock;

double MillisecondsSince(Clock::time_point desde) {
  return std::chrono::duration<double, std::milli>{Clock::now() - desde}.count();
}

// Kibibytes of this process, shared pages divided by their users.
long Pss() {
  std::ifstream archivo{"/proc/self/smaps_rollup"};
  std::string palabra;
  long kibibytes = 0;
  while (archivo >> palabra) {
    if (palabra == "Pss:") archivo >> kibibytes;
  }
  return kibibytes;
}

struct Times {
  std::vector<double> Steps;
  std::vector<double> Openings;  // steps that lay the hands open
};

void Print(const char* nombre, std::vector<double> tiempos) {
  if (tiempos.empty()) return;
  std::sort(tiempos.begin(), tiempos.end());
  const auto en = [&](double parte) {
    return tiempos[static_cast<std::size_t>(parte * static_cast<double>(tiempos.size() - 1))];
  };
  std::cout << nombre << ": median " << en(0.5) << " ms, 99th " << en(0.99) << " ms, slowest "
            << tiempos.back() << " ms, of " << tiempos.size() << '\n';
}

void PlayMatch(const std::string& carpeta, QSize tamano, unsigned semilla, Times& tiempos) {
  RandomPort port{semilla};
  Session sesion{carpeta, port};
  if (sesion.AbrirInicio() == Situacion::Fin || sesion.Aceptar() != Situacion::EnLaMesa) {
    throw std::runtime_error{"no game starts in " + carpeta};
  }
  const auto antes = Clock::now();
  Form1 ventana{Form1::Events{.Text1_KeyDown = {}, .Sonido_Click = {}, .Closed = [] {}}};
  ventana.ShowTable(sesion.Mesa(), Momento::Reposo);
  ventana.resize(tamano);
  ventana.show();
  QCoreApplication::processEvents();
  if (semilla == 1) {
    std::cout << "first painted frame: " << MillisecondsSince(antes) << " ms\n";
  }
  while (true) {
    const bool tapadas = !HayManosAbiertas(sesion.Mesa());
    const auto pulsada = Clock::now();
    Integer tecla = TeclaEnter;
    if (sesion.Tecla(tecla, 0) != Situacion::EnLaMesa) return;
    ventana.ShowTable(sesion.Mesa(), Momento::Reposo);
    QCoreApplication::processEvents();
    const double tiempo = MillisecondsSince(pulsada);
    const bool seAbren = tapadas && HayManosAbiertas(sesion.Mesa());
    (seAbren ? tiempos.Openings : tiempos.Steps).push_back(tiempo);
  }
}

void Measure(const std::string& carpeta, QSize tamano, unsigned partidas) {
  std::cout << std::fixed << std::setprecision(1) << tamano.width() << " x " << tamano.height()
            << '\n';
  Times tiempos;
  for (unsigned semilla = 1; semilla <= partidas; ++semilla) {
    PlayMatch(carpeta, tamano, semilla, tiempos);
  }
  Print("key to painted frame", tiempos.Steps);
  Print("laying the hands open", tiempos.Openings);
  std::cout << "memory (PSS): " << static_cast<double>(Pss()) / 1024 << " MB\n";
}

}  // namespace
}  // namespace tasca

int main(int argc, char** argv) {
  try {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication aplicacion{argc, argv};
    const QStringList dichos = QCoreApplication::arguments();
    if (dichos.size() < 3 || dichos.size() > 4) {
      throw std::runtime_error{"usage: bench_window WIDTH HEIGHT [MATCHES]"};
    }
    const unsigned partidas = dichos.size() > 3 ? dichos[3].toUInt() : 1;
    tasca::Measure(QCoreApplication::applicationDirPath().toStdString(),
                   {dichos[1].toInt(), dichos[2].toInt()}, partidas);
    return EXIT_SUCCESS;
  } catch (const std::exception& error) {
    std::cerr << "bench_window: " << error.what() << '\n';
    return EXIT_FAILURE;
  }
}
