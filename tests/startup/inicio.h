#pragma once
// The start-up dialog with a temporary folder.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/errors.h"
#include "startup/dlg_inicio.h"
#include "tests/support/draw_list.h"
#include "tests/support/errors.h"
#include "tests/support/scripted_port.h"
#include "tests/support/tables.h"
#include "tests/support/temp_folder.h"

namespace tasca::test {

// A record of the character file with one phrase: six lines.
inline std::string Registro(const std::string& nombre, const std::string& historia) {
  return "Datos>\r\n" + nombre + "\r\n050\r\n" + historia + "\r\nQMus>\r\nmus\r\n";
}

// A file with the two default sets and `ofrecidos` more characters. Number 3 is "Nombre 3", has the
// story "Historia 3" and the list position 1.
inline std::string Personajes(int ofrecidos) {
  std::string archivo = Registro("Default indirecto", "-") + Registro("Default directo", "-");
  for (int i = 3; i < 3 + ofrecidos; ++i) {
    archivo += Registro("Nombre " + std::to_string(i), "Historia " + std::to_string(i));
  }
  return archivo;
}

// The dialog, its table, its port and a generator.
struct Inicio {
  TempFolder carpeta;
  Table t;
  Rnd rnd;
  ScriptedPort port;
  DlgInicio d;

  // The dialog is not loaded, and the folder is empty.
  Inicio() { t.Carpeta = carpeta.Path(); }
  // Loads this character file.
  explicit Inicio(const std::string& archivo) : Inicio{} { Cargar(archivo); }
  // Loads a file that offers this many characters.
  explicit Inicio(int ofrecidos) : Inicio{Personajes(ofrecidos)} {}

  void Cargar(const std::string& archivo) {
    carpeta.Write("Jugadores.dat", archivo);
    Cargar();
  }
  void Cargar() {
    Game g{t, rnd, port};
    Form_Load(d, g);
  }

  // Selects list positions; 0 is "Aleatorio".
  void Elegir(int companero, int contrario1, int contrario2) {
    Combo1_Click(d, companero);
    Combo2_Click(d, contrario1);
    Combo3_Click(d, contrario2);
  }

  // Presses "Aceptar", with exactly these draws. True if the choice is accepted.
  bool Aceptar(std::initializer_list<float> sacadas = {}) {
    DrawList lista{sacadas};
    Game g{t, lista.Get(), port};
    return CbOK_Click(d, g);
  }
};

}  // namespace tasca::test
