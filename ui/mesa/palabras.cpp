// The table's own words.
#include "ui/mesa/palabras.h"

#include <array>

#include "base/text.h"

namespace tasca {
namespace {

std::u16string EnviteEscrito(const CeldaPizarra& celda) {
  if (celda.Vistas == 0) return Join(u"envite ", celda.Piedras);
  const std::u16string_view vistas = celda.Vistas == 1 ? u" vista + " : u" vistas + ";
  return Join(celda.Vistas, vistas, celda.Piedras);
}

std::u16string Afirmado(std::u16string_view de, Declarado que) {
  if (que == Declarado::SinSaber) return {};
  return Join(de, que == Declarado::Si ? u" sí" : u" no");
}

}  // namespace

std::u16string_view NombreDeLance(NumeroLance lance) {
  switch (lance) {
    case NumeroLance::Grande:
      return u"Grande";
    case NumeroLance::Pequena:
      return u"Pequeña";
    case NumeroLance::Pares:
      return u"Pares";
    case NumeroLance::Juego:
      return u"Juego";
    case NumeroLance::Punto:
      return u"Punto";
  }
  return {};
}

std::u16string EstadoEscrito(const CeldaPizarra& celda) {
  switch (celda.Estado) {
    case EstadoLance::PorJugar:
    case EstadoLance::NoSeJugo:
      return u"—";
    case EstadoLance::Declaran:
      return u"declaran";
    case EstadoLance::Envite:
      return EnviteEscrito(celda);
    case EstadoLance::Ordago:
      return u"¡órdago!";
    case EstadoLance::Queridas:
      return Join(celda.Piedras, celda.Piedras == 1 ? u" querida" : u" queridas");
    case EstadoLance::OrdagoQuerido:
      return u"órdago querido";
    case EstadoLance::NoQuerida:
      return u"no querida";
    case EstadoLance::NoHay:
      return u"no hay";
    case EstadoLance::EnPaso:
      return u"en paso";
    case EstadoLance::SinEnvite:
      return u"sin envite";
  }
  return {};
}

std::u16string ParesEscritos(Declarado pares) { return Afirmado(u"pares", pares); }

std::u16string JuegoEscrito(Declarado juego) { return Afirmado(u"juego", juego); }

std::u16string CambioEscrito(int cartas) { return Join(u"cambió ", cartas); }

std::u16string ParejaEscrita(Pareja pareja) {
  return Join(u"Pareja ", pareja, pareja == 1 ? u": nosotros" : u": ellos");
}

std::u16string VecesEscritas(int veces) { return Join(u"× ", veces); }

std::u16string EnPalabras(int numero) {
  constexpr std::array<std::u16string_view, 5> numeros{u"ninguna", u"una", u"dos", u"tres",
                                                       u"cuatro"};
  if (numero < 0 || numero >= static_cast<int>(numeros.size())) return ToText(numero);
  return std::u16string{numeros.at(static_cast<std::size_t>(numero))};
}

}  // namespace tasca
