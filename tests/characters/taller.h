#pragma once
// The editor at work in a folder of its own.
#include <string>
#include <vector>

#include "base/text.h"
#include "characters/character_file.h"
#include "characters/editor.h"
#include "tests/support/scripted_editor_port.h"
#include "tests/support/tables.h"
#include "tests/support/temp_folder.h"

namespace tasca::test {

using Textos = std::vector<std::string>;

// What the program ends with when nothing is selected, or there is no such place.
inline constexpr auto IndiceFuera =
    "El índice está fuera del intervalo. El programa va a terminar su ejecución.";

// What it ends with when a number does not fit.
inline constexpr auto Desbordamiento =
    "Desbordamiento: el número no está entre -32768 y 32767. El programa va a terminar su "
    "ejecución.";

// The editor over a folder of its own. Character n is "Pn", Ordaguero 10 x n, story "Hn", and its
// phrases are "n-category-slot".
struct Taller {
  TempFolder carpeta;
  Table t;
  ScriptedEditorPort port;
  Dialog1 d;

  explicit Taller(int personajes = 0) {
    t.Carpeta = carpeta.Path();
    Form_Load(d);
    if (personajes == 0) return;
    for (int n = 1; n <= personajes; ++n) Llenar(n);
    EscribirPersonajes(t, personajes);
    Command3_Click(d, t, port, 1);
    port.TakeEvents();
  }

  void Llenar(int n) {
    t.Personajes[n].Nombre = Join(u"P", n);
    t.Personajes[n].Ordaguero = 10 * n;
    t.Personajes[n].Historia = Join(u"H", n);
    for (int categoria = 1; categoria <= 14; ++categoria) {
      for (int hueco = 1; hueco <= 3; ++hueco) {
        t.Mensajes[n][categoria][hueco] = Join(n, u"-", categoria, u"-", hueco);
      }
    }
  }

  std::string Nombre(int n) const { return Utf8(t.Personajes[n].Nombre.Trimmed()); }
  // Name, Ordaguero and story.
  Textos Datos(int n) const {
    const Personaje& personaje = t.Personajes[n];
    return {Nombre(n), Utf8(ToText(personaje.Ordaguero)), Utf8(personaje.Historia.Trimmed())};
  }
  // All 42 phrases, and those of Llenar.
  Textos FrasesDe(int n) const {
    Textos frases;
    for (int i = 0; i < 14 * 3; ++i) frases.push_back(Frase(n, i / 3 + 1, i % 3 + 1));
    return frases;
  }
  static Textos FrasesLlenas(int n) {
    Textos frases;
    for (int i = 0; i < 14 * 3; ++i) {
      frases.push_back(Utf8(Join(n, u"-", i / 3 + 1, u"-", i % 3 + 1)));
    }
    return frases;
  }
  std::string Frase(int n, int categoria, int hueco) const {
    return Utf8(t.Mensajes[n][categoria][hueco].Trimmed());
  }
  bool NuncaLlenada(int n, int categoria, int hueco) const {
    return t.Mensajes[n][categoria][hueco] == FixedText<AnchoFrase>{};
  }
};

// What a list shows.
inline Textos Entradas(const ListBox& lista) {
  Textos entradas;
  for (const std::u16string& entrada : lista.List) entradas.push_back(Utf8(entrada));
  return entradas;
}

// The three text boxes.
inline Textos Campos(const Dialog1& d) { return {Utf8(d.Text1), Utf8(d.Text2), Utf8(d.Text3)}; }

// A phrase in its full width.
inline std::string Rellena(const std::string& frase) {
  return frase + std::string(100 - frase.size(), ' ');
}

}  // namespace tasca::test
