// Reading a worked example line by line.
#include "ui/manual/ejemplo.h"

#include <stdexcept>
#include <utility>

#include "ui/manual/card_reference.h"
#include "ui/manual/pieces.h"

namespace tasca {
namespace {

[[noreturn]] void Refuse(std::string_view linea) {
  throw std::invalid_argument{"not a line of an example: " + std::string{linea}};
}

int NumberOrRefuse(std::string_view texto, std::string_view linea) {
  const std::optional<int> numero = WholeNumber(texto);
  if (!numero) Refuse(linea);
  return *numero;
}

// The text before `separador` and the text after it, which is "" if there is no separator.
std::pair<std::string_view, std::string_view> CutAt(std::string_view texto,
                                                    std::string_view separador) {
  const std::size_t donde = texto.find(separador);
  if (donde == std::string_view::npos) return {WithoutBlanks(texto), {}};
  return {WithoutBlanks(texto.substr(0, donde)),
          WithoutBlanks(texto.substr(donde + separador.size()))};
}

std::optional<NumeroLance> LanceOfName(std::string_view nombre) {
  if (nombre == "grande") return NumeroLance::Grande;
  if (nombre == "pequeña") return NumeroLance::Pequena;
  if (nombre == "pares") return NumeroLance::Pares;
  if (nombre == "juego") return NumeroLance::Juego;
  if (nombre == "punto") return NumeroLance::Punto;
  return std::nullopt;
}

// "1 envido 4".
Habla HablaOf(std::string_view texto, std::string_view linea) {
  const auto [asiento, palabras] = CutAt(texto, " ");
  Habla habla{.Asiento = NumberOrRefuse(asiento, linea), .Palabras = palabras};
  if (palabras == "paso" || palabras == "no quiero") return habla;
  if (palabras == "envido" || palabras == "quiero") {
    habla.Decide = Decision::Envido;
  } else if (palabras == "órdago") {
    habla.Decide = Decision::Ordago;
  } else {
    const auto [verbo, cuantas] = CutAt(palabras, " ");
    if (verbo != "envido" && verbo != "sube") Refuse(linea);
    habla.Decide = Decision::EnvidoMas;
    habla.Piedras = NumberOrRefuse(cuantas, linea);
  }
  return habla;
}

// "pareja 1, 2 piedras", or "pareja 1" alone.
Cobro CobroOf(std::string_view texto, std::string_view linea) {
  const auto [quien, cuanto] = CutAt(texto, ",");
  const auto [pareja, numero] = CutAt(quien, " ");
  if (pareja != "pareja") Refuse(linea);
  Cobro cobro{.De = NumberOrRefuse(numero, linea)};
  if (!cuanto.empty()) cobro.Piedras = NumberOrRefuse(CutAt(cuanto, " ").first, linea);
  return cobro;
}

LanceEjemplo LanceOf(std::string_view linea) {
  const auto [jugado, resultado] = CutAt(linea, "=>");
  const auto [nombre, dicho] = CutAt(jugado, ":");
  const auto [cobros, porque] = CutAt(resultado, "|");
  const std::optional<NumeroLance> numero = LanceOfName(nombre);
  if (!numero || porque.empty()) Refuse(linea);
  LanceEjemplo lance;
  lance.Numero = *numero;
  lance.Porque = porque;
  if (dicho == "todos paso") {
    lance.Modo = ModoEjemplo::TodosPasan;
  } else if (dicho == "sin envite") {
    lance.Modo = ModoEjemplo::SinEnvite;
  } else if (!dicho.empty()) {
    lance.Modo = ModoEjemplo::Hablado;
    for (const auto habla : SplitAt(dicho, ",")) lance.Hablas.push_back(HablaOf(habla, linea));
  }
  if (cobros == "no se cuenta") return lance;
  for (const auto cobro : SplitAt(cobros, ";")) lance.Cobros.push_back(CobroOf(cobro, linea));
  return lance;
}

// "16 a 1".
TanteoEjemplo TanteoOf(std::string_view texto, std::string_view linea) {
  const auto [nuestras, suyas] = CutAt(texto, " a ");
  return {NumberOrRefuse(nuestras, linea), NumberOrRefuse(suyas, linea)};
}

// "la pareja 1 gana el juego por 36 a 30".
void ReadResultado(Ejemplo& ejemplo, std::string_view texto, std::string_view linea) {
  const auto [quien, tanteo] = CutAt(texto, " gana el juego por ");
  if (!quien.starts_with("la pareja ")) Refuse(linea);
  ejemplo.GanaElJuego = NumberOrRefuse(quien.substr(std::string_view{"la pareja "}.size()), linea);
  ejemplo.Despues = TanteoOf(tanteo, linea);
}

void ReadMano(Ejemplo& ejemplo, Seat asiento, std::string_view cartas, std::string_view linea) {
  if (asiento < 1 || asiento > 4) Refuse(linea);
  for (const auto nombre : SplitAt(cartas, " ")) {
    const int carta = CardOfName(nombre);
    if (carta == 0) Refuse(linea);
    ejemplo.Manos[asiento].push_back(carta);
  }
}

void ReadLine(Ejemplo& ejemplo, std::string_view linea) {
  const auto [clave, valor] = CutAt(linea, ":");
  if (linea.starts_with("mano ")) {
    ejemplo.Mano = NumberOrRefuse(CutAt(linea, " ").second, linea);
  } else if (clave == "piedras") {
    ejemplo.Antes = TanteoOf(valor, linea);
  } else if (clave == "tanteo") {
    ejemplo.Despues = TanteoOf(valor, linea);
  } else if (clave == "resultado") {
    ReadResultado(ejemplo, valor, linea);
  } else if (const auto asiento = WholeNumber(clave)) {
    ReadMano(ejemplo, *asiento, valor, linea);
  } else {
    ejemplo.Lances.push_back(LanceOf(linea));
  }
}

}  // namespace

Ejemplo LeerEjemplo(std::string_view texto) {
  Ejemplo ejemplo;
  for (const std::string_view linea : LinesOf(texto)) ReadLine(ejemplo, linea);
  return ejemplo;
}

}  // namespace tasca
