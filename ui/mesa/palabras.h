#pragma once
// The words shown or spoken for the table that do not come from the rules.
#include <string>
#include <string_view>

#include "scene/scene.h"

namespace tasca {

// The title of every window and box that has none of its own.
inline constexpr std::u16string_view TituloAplicacion = u"La tasca del tío Zarandel";

inline constexpr std::u16string_view PalabraMano = u"mano";
inline constexpr std::u16string_view PalabraLeToca = u"le toca";
inline constexpr std::u16string_view PalabraEnter = u"Enter";
inline constexpr std::u16string_view PalabraMazo = u"mazo";
inline constexpr std::u16string_view PalabraDescartes = u"descartes";
inline constexpr std::u16string_view PalabraJuegos = u"juegos";
inline constexpr std::u16string_view PalabraVacas = u"vacas";
inline constexpr std::u16string_view PalabraSinPiedras = u"sin piedras";
inline constexpr std::u16string_view PalabraLaMesa = u"La mesa";

// "Grande", "Pequeña", ...
std::u16string_view NombreDeLance(NumeroLance lance);

// What the slate says of a lance below its name: "en paso", "2 vistas + 4", "¡órdago!", "—".
std::u16string EstadoEscrito(const CeldaPizarra& celda);

// "pares sí", "juego no"; "" while nothing is known.
std::u16string ParesEscritos(Declarado pares);
std::u16string JuegoEscrito(Declarado juego);

// "cambió 3".
std::u16string CambioEscrito(int cartas);

// "Pareja 1: nosotros".
std::u16string ParejaEscrita(Pareja pareja);

// "× 7": the number of amarracos, written beside a single drawn one.
std::u16string VecesEscritas(int veces);

// "una", "dos", ..., "cuatro"; larger numbers in digits.
std::u16string EnPalabras(int numero);

}  // namespace tasca
