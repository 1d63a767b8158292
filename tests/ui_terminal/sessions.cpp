// The data files, the sessions and the players.
#include "tests/ui_terminal/sessions.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <istream>
#include <streambuf>
#include <utility>

#include "base/code_page.h"
#include "base/text.h"
#include "characters/character_file.h"
#include "ui/terminal/terminal.h"

namespace tasca::test {
namespace {

std::u16string Record(std::u16string_view nombre, std::u16string_view historia) {
  std::u16string texto = Join(u"Datos>\r\n", nombre, u"\r\n050\r\n", historia, CrLf);
  for (const std::u16string_view etiqueta : EtiquetasMensaje) {
    for (int hueco = 1; hueco <= 3; ++hueco) {
      texto += hueco == 1 ? Join(etiqueta, u">", CrLf, etiqueta, CrLf) : Join(etiqueta, CrLf);
    }
  }
  return texto;
}

TimeOfDay TenPastNine() { return {.Hora = 9, .Minuto = 10, .Segundo = 0}; }

// An input stream that asks the player for each line when it is read.
class PlayerInput : public std::streambuf {
 public:
  PlayerInput(const std::ostringstream& salida, Player jugador, int maximo)
      : salida_{salida}, jugador_{std::move(jugador)}, quedan_{maximo} {}

 protected:
  int_type underflow() override {
    if (quedan_-- == 0) {
      ADD_FAILURE() << "the session does not end";
      return traits_type::eof();
    }
    const std::string todo = salida_.str();
    const auto respuesta = jugador_(todo.substr(todo.find_last_of('\n') + 1));
    if (!respuesta) return traits_type::eof();
    linea_ = *respuesta + '\n';
    setg(linea_.data(), linea_.data(), linea_.data() + linea_.size());
    return traits_type::to_int_type(linea_.front());
  }

 private:
  const std::ostringstream& salida_;
  Player jugador_;
  int quedan_;
  std::string linea_;
};

SessionResult Play(const TempFolder& carpeta, std::istream& in, std::ostringstream& out,
                   int teclado = -1) {
  std::ostringstream err;
  SessionResult resultado;
  resultado.Status =
      RunTerminal({.Files = carpeta.Path()},
                  {.In = in, .Out = out, .Err = err, .Keyboard = teclado}, TenPastNine);
  resultado.Out = out.str();
  resultado.Err = err.str();
  return resultado;
}

}  // namespace

std::string FakeConsole::Take() {
  std::string texto = Out.str();
  Out.str({});
  return texto;
}

void LlenarCarpeta(const TempFolder& carpeta) { LlenarCarpeta(carpeta, "35", "3", "3"); }

void LlenarCarpeta(const TempFolder& carpeta, std::string_view piedras, std::string_view juegos,
                   std::string_view vacas) {
  carpeta.Write("Jugadores.dat",
                Encode(Join(Record(u"Default indirecto", u"-"), Record(u"Default directo", u"-"),
                            Record(u"Berta", u"Guisa como nadie."),
                            Record(u"el Cojo", u"Perdió la pierna en una apuesta."),
                            Record(u"Dora", u"Prudente como una gata."),
                            Record(u"el Tuerto", u"Lo ve todo."))));
  std::string ajustes;
  for (const std::string_view linea : {piedras, juegos, vacas}) {
    ajustes += std::string{linea} + "\r\n";
  }
  carpeta.Write("mus.ini", ajustes + Encode(u"Ana> Nombre del último jugador\r\n"));
}

SessionResult PlayLines(const TempFolder& carpeta, const std::string& lineas) {
  std::istringstream in{lineas};
  std::ostringstream out;
  return Play(carpeta, in, out);
}

SessionResult PlayWith(const TempFolder& carpeta, const Player& jugador, int maximo) {
  std::ostringstream out;
  PlayerInput entrada{out, jugador, maximo};
  std::istream in{&entrada};
  return Play(carpeta, in, out);
}

SessionResult PlayHearing(const TempFolder& carpeta, const Player& jugador, int maximo) {
  std::array<int, 2> tubo{-1, -1};
  EXPECT_EQ(::pipe(tubo.data()), 0);
  ::close(tubo[1]);  // the keyboard is always readable: end of file
  std::ostringstream out;
  PlayerInput entrada{out, jugador, maximo};
  std::istream in{&entrada};
  SessionResult resultado = Play(carpeta, in, out, tubo[0]);
  ::close(tubo[0]);
  return resultado;
}

}  // namespace tasca::test
