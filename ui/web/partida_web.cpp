// One list of fields for writing and reading.
#include "ui/web/partida_web.h"

#include <algorithm>

#include "keep/flujos.h"
#include "keep/sello.h"

namespace tasca {
namespace {

// Every change of the fields below needs a new number.
constexpr std::string_view CabeceraWeb = "tasca-web 1\n";

// The bytes as a text, for the streams, and back.
std::u16string Unidades(std::string_view bytes) {
  std::u16string texto(bytes.size(), u' ');
  std::transform(bytes.begin(), bytes.end(), texto.begin(),
                 [](char byte) { return static_cast<unsigned char>(byte); });
  return texto;
}

std::string Octetos(std::u16string_view texto) {
  std::string bytes(texto.size(), ' ');
  std::transform(texto.begin(), texto.end(), bytes.begin(), [](char16_t unidad) {
    return static_cast<char>(static_cast<unsigned char>(unidad));
  });
  return bytes;
}

template <class Flujo, class Hora>
void PasarHora(Flujo& f, Hora& hora) {
  f.Numero(hora.Hora, {0, 23});
  f.Numero(hora.Minuto, {0, 59});
  f.Numero(hora.Segundo, {0, 59});
}

template <class Flujo, class UnaEntrada>
void PasarEntrada(Flujo& f, UnaEntrada& entrada) {
  f.Numero(entrada.Clase, {0, static_cast<int>(ClaseEntrada::FinDeSonido)});
  f.Numero(entrada.Numero, {});
  f.Texto(entrada.Texto);
  PasarHora(f, entrada.Hora);
}

template <class Flujo, class Paso>
void PasarPaso(Flujo& f, Paso& paso) {
  f.Numero(paso.KeyCode, {});
  f.Numero(paso.Shift, {});
  PasarHora(f, paso.Hora);
  f.Lista(paso.Guion);
  for (auto& entrada : paso.Guion) PasarEntrada(f, entrada);
}

}  // namespace

std::string EscribirPartidaWeb(const PartidaWeb& partida) {
  EscritorPartida escritor;
  escritor.Texto(Unidades(partida.Partida));
  escritor.Texto(partida.Cronica);
  escritor.Numero(partida.Paso.has_value(), {});
  if (partida.Paso) PasarPaso(escritor, *partida.Paso);
  return Sellar(CabeceraWeb, escritor.Bytes());
}

std::optional<PartidaWeb> LeerPartidaWeb(std::string_view bytes) {
  const std::optional<std::string_view> valores = Abrir(CabeceraWeb, bytes);
  if (!valores) return std::nullopt;
  LectorPartida lector{*valores};
  PartidaWeb leida;
  std::u16string unidades;
  lector.Texto(unidades);
  leida.Partida = Octetos(unidades);
  lector.Texto(leida.Cronica);
  bool hayPaso = false;
  lector.Numero(hayPaso, {0, 1});
  if (hayPaso) PasarPaso(lector, leida.Paso.emplace());
  if (!lector.BienLeido()) return std::nullopt;
  return leida;
}

}  // namespace tasca
