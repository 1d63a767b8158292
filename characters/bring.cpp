// Brings characters of another file.
#include "characters/bring.h"

#include <algorithm>
#include <iterator>
#include <memory>

#include "base/errors.h"
#include "base/line_file.h"
#include "base/text.h"
#include "base/utf8_check.h"
#include "characters/character_file.h"
#include "characters/check.h"

namespace tasca {
namespace {

constexpr std::u16string_view TituloTraer = u"Traer personajes";

void RechazarUtf8(const std::filesystem::path& archivo) {
  LineReader lector{archivo};
  Utf8Detector detector;
  std::string bytes;
  for (int linea = 1; lector.NextBytes(bytes); ++linea) detector.AddLine(linea, bytes);
  if (detector.FirstLine() == 0) return;
  throw RunTimeError::InFile(archivo, detector.FirstLine(), Join(PareceUtf8, u"."));
}

// The first character of that name that none of `traidos` replaces; 0 if there is none.
int SitioDe(std::u16string_view nombre, const Table& t, int numPersonajes,
            const std::vector<Traido>& traidos) {
  for (int numero = 1; numero <= numPersonajes; ++numero) {
    const bool ocupado = std::any_of(traidos.begin(), traidos.end(),
                                     [=](const Traido& otro) { return otro.Numero == numero; });
    if (!ocupado && t.Personajes[numero].Nombre.Trimmed() == nombre) return numero;
  }
  return 0;
}

const Candidato& En(const std::vector<Candidato>& candidatos, int posicion) {
  return candidatos.at(static_cast<std::size_t>(posicion));
}

// "Ana", "Ana y Luis", "Ana, Luis y Eva"; the names after the tenth are only counted.
std::u16string Enumerar(const std::vector<std::u16string_view>& nombres) {
  constexpr int Bastantes = 10;
  const int total = static_cast<int>(nombres.size());
  const int dichos = std::min(total, Bastantes);
  std::u16string texto;
  for (int i = 0; i < dichos; ++i) {
    if (i > 0) texto += i == total - 1 ? u" y " : u", ";
    const std::u16string_view nombre = nombres.at(static_cast<std::size_t>(i));
    texto += nombre.empty() ? u"(sin nombre)" : nombre;
  }
  return total > dichos ? Join(texto, u" y ", total - dichos, u" más") : texto;
}

std::u16string PreguntaPorRepetidos(const std::vector<std::u16string_view>& nombres) {
  if (nombres.size() == 1) {
    return Join(u"Ya tiene un personaje que se llama ", Enumerar(nombres),
                u". ¿Sustituirlo por el del archivo? Con «No» se queda el que tiene; con "
                u"«Cancelar» no se trae ninguno.");
  }
  return Join(u"Ya tiene personajes que se llaman ", Enumerar(nombres),
              u". ¿Sustituirlos por los del archivo? Con «No» se quedan los que tiene; con "
              u"«Cancelar» no se trae ninguno.");
}

std::u16string Resultado(std::size_t traidos) {
  if (traidos == 0) return u"No se ha traído ningún personaje.";
  if (traidos == 1) {
    return u"Se ha traído un personaje. Para conservarlo, pulse «Guardar en disco».";
  }
  return Join(u"Se han traído ", static_cast<int>(traidos),
              u" personajes. Para conservarlos, pulse «Guardar en disco».");
}

// What to do with the chosen ones of the same name. Nothing if the user cancels.
std::optional<Repetidos> PreguntarPorRepetidos(const std::vector<Candidato>& candidatos,
                                               const std::vector<int>& elegidos, EditorPort& port) {
  std::vector<std::u16string_view> nombres;
  for (const int posicion : elegidos) {
    const Candidato& elegido = En(candidatos, posicion);
    const bool dicho = std::find(nombres.begin(), nombres.end(), elegido.Nombre) != nombres.end();
    if (elegido.YaEsta && !dicho) nombres.emplace_back(elegido.Nombre);
  }
  if (nombres.empty()) return Repetidos::Dejar;
  const std::optional<bool> sustituir =
      port.YesNoCancelBox(PreguntaPorRepetidos(nombres), TituloTraer);
  if (!sustituir) return std::nullopt;
  return *sustituir ? Repetidos::Sustituir : Repetidos::Dejar;
}

// Lets the user choose until the chosen ones fit. None if cancelled.
std::vector<int> ElegirLosQueCaben(const std::vector<Candidato>& candidatos, const Table& t,
                                   int numPersonajes, EditorPort& port) {
  std::vector<int> elegidos;
  while (true) {
    elegidos = port.ChoiceBox(candidatos, elegidos);
    const Numeracion numeracion =
        Numerar(candidatos, elegidos, t, numPersonajes, Repetidos::Sustituir);
    const std::u16string reparo = ReparoANumeracion(numeracion, candidatos, numPersonajes);
    if (reparo.empty()) return elegidos;
    port.MsgBox(reparo);
  }
}

void Copiar(Table& t, const Table& otros, const Numeracion& numeracion) {
  for (const Traido& traido : numeracion.Traidos) {
    t.Personajes[traido.Numero] = otros.Personajes[traido.Otro];
    t.Mensajes[traido.Numero] = otros.Mensajes[traido.Otro];
  }
}

void TraerDe(const Table& otros, int deOtros, Dialog1& d, Table& t, EditorPort& port) {
  const int numPersonajes = std::max<int>(d.NumPersonajes, 0);
  const std::vector<Candidato> candidatos = CandidatosDe(otros, deOtros, t, numPersonajes);
  const std::vector<int> elegidos = ElegirLosQueCaben(candidatos, t, numPersonajes, port);
  if (elegidos.empty()) return;
  const auto repetidos = PreguntarPorRepetidos(candidatos, elegidos, port);
  if (!repetidos) return;
  const Numeracion numeracion = Numerar(candidatos, elegidos, t, numPersonajes, *repetidos);
  CambiarPersonajes(d, t, numeracion.NumPersonajes, [&] { Copiar(t, otros, numeracion); });
  port.MsgBox(Resultado(numeracion.Traidos.size()));
}

}  // namespace

int LeerOtroArchivo(const std::filesystem::path& archivo, Table& otros) {
  otros.Carpeta = archivo.parent_path();
  otros.ArchivoDePersonajes = archivo.filename();
  const int cuantos = LeerPersonajesSinMayusculas(otros);
  RechazarUtf8(archivo);
  if (cuantos == 0) {
    throw RunTimeError::InFile(archivo, 0, u"no hay ningún personaje en el archivo.");
  }
  return cuantos;
}

std::vector<Candidato> CandidatosDe(const Table& otros, int deOtros, const Table& t,
                                    int numPersonajes) {
  std::vector<Candidato> candidatos;
  for (int otro = 1; otro <= deOtros; ++otro) {
    const std::u16string_view nombre = otros.Personajes[otro].Nombre.Trimmed();
    candidatos.push_back({.Nombre = std::u16string{nombre},
                          .Historia = std::u16string{otros.Personajes[otro].Historia.Trimmed()},
                          .YaEsta = SitioDe(nombre, t, numPersonajes, {}) > 0});
  }
  return candidatos;
}

Numeracion Numerar(const std::vector<Candidato>& candidatos, const std::vector<int>& elegidos,
                   const Table& t, int numPersonajes, Repetidos repetidos) {
  Numeracion numeracion{.Traidos = {}, .NumPersonajes = numPersonajes};
  for (const int posicion : elegidos) {
    const Candidato& elegido = En(candidatos, posicion);
    if (elegido.YaEsta && repetidos == Repetidos::Dejar) continue;
    const int sitio = SitioDe(elegido.Nombre, t, numPersonajes, numeracion.Traidos);
    numeracion.Traidos.push_back(
        {.Otro = posicion + 1, .Numero = sitio > 0 ? sitio : ++numeracion.NumPersonajes});
  }
  return numeracion;
}

std::u16string ReparoANumeracion(const Numeracion& numeracion,
                                 const std::vector<Candidato>& candidatos, int numPersonajes) {
  constexpr std::u16string_view Consejo = u" Elija menos, o elimine antes alguno de los suyos.";
  if (numeracion.NumPersonajes > MaximoPersonajes) {
    return Join(u"No caben todos: en el archivo caben ", MaximoPersonajes,
                u" personajes, y ya tiene ", numPersonajes, u".", Consejo);
  }
  const bool alguno =
      std::any_of(numeracion.Traidos.begin(), numeracion.Traidos.end(), [&](const Traido& traido) {
        return traido.Numero > std::max(numPersonajes, MaximoHistorias) &&
               !Contains(En(candidatos, traido.Otro - 1).Nombre, u"Default");
      });
  if (!alguno) return {};
  return Join(u"No caben todos: el juego solo puede ofrecer los ", MaximoHistorias,
              u" primeros personajes del archivo, y ya tiene ", numPersonajes, u".", Consejo);
}

void TraerPersonajes(Dialog1& d, Table& t, EditorPort& port) {
  if (!d.Cargado && FileExists(ArchivoPersonajes(t))) {
    return port.MsgBox(
        u"Pulse antes «Cargar de disco». Si no, al guardar se perderían los personajes que tiene.");
  }
  const std::filesystem::path archivo = port.FileBox(TituloTraer);
  if (archivo.empty()) return;
  const auto otros = std::make_unique<Table>();
  int deOtros = 0;
  try {
    deOtros = LeerOtroArchivo(archivo, *otros);
  } catch (const RunTimeError& error) {
    return port.MsgBox(error.WhatHappened());
  }
  TraerDe(*otros, deOtros, d, t, port);
}

}  // namespace tasca
