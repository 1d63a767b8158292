#pragma once
// The character editor with its table, its port and a temporary folder.
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

// The message of an index outside the bounds: nothing is selected, or there is no such entry.
inline constexpr auto IndiceFuera =
    "El índice está fuera del intervalo. El programa va a terminar su ejecución.";

// The event of the question before a character is deleted. `entrada` is its entry in the list.
inline std::string PreguntaEliminar(const std::string& entrada) {
  return "confirm[Eliminar jugador]: Confirme que desea eliminar el jugador " + entrada;
}

// The message of an overflow of a 16-bit Integer.
inline constexpr auto Desbordamiento =
    "Desbordamiento: el número no está entre -32768 y 32767. El programa va a terminar su "
    "ejecución.";

// Saves and loads `personajes` characters; with 0 the folder stays empty. Character n is named
// "Pn", has Ordaguero 10 n and the story "Hn", and its phrases are "n-category-slot".
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
  // The name, the Ordaguero and the story.
  Textos Datos(int n) const {
    const Personaje& personaje = t.Personajes[n];
    return {Nombre(n), Utf8(ToText(personaje.Ordaguero)), Utf8(personaje.Historia.Trimmed())};
  }
  // All 42 phrases of character n, now and as Llenar writes them.
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

// The entries of a list.
inline Textos Entradas(const ListBox& lista) {
  Textos entradas;
  for (const std::u16string& entrada : lista.List) entradas.push_back(Utf8(entrada));
  return entradas;
}

// The contents of the three text boxes.
inline Textos Campos(const Dialog1& d) { return {Utf8(d.Text1), Utf8(d.Text2), Utf8(d.Text3)}; }

// A phrase padded to its field.
inline std::string Rellena(const std::string& frase) {
  std::string rellena = frase;
  rellena.resize(AnchoFrase, ' ');
  return rellena;
}

}  // namespace tasca::test
