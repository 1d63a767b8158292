// The sentences, seat by seat and lance by lance.
#include "ui/mesa/spoken.h"

#include <string_view>

#include "base/text.h"
#include "cards/deck.h"
#include "ui/mesa/palabras.h"

namespace tasca {

std::u16string_view SitioHablado(Seat asiento) {
  switch (asiento) {
    case 2:
      return u", de la pareja contraria, a su derecha";
    case 3:
      return u", de su pareja, enfrente";
    case 4:
      return u", de la pareja contraria, a su izquierda";
    default:
      return u", usted";
  }
}

namespace {

std::u16string ConMayuscula(std::u16string texto) {
  if (!texto.empty() && texto[0] >= u'a' && texto[0] <= u'z') {
    texto[0] = static_cast<char16_t>(texto[0] - u'a' + u'A');
  }
  return texto;
}

// "Cuatro cartas tapadas.", "Cartas: Rey de copas, una tapada."
std::u16string CartasHabladas(const AsientoVisto& asiento) {
  std::u16string abiertas;
  int tapadas = 0;
  for (const Naipe& naipe : asiento.Naipes) {
    if (!naipe.Hay) continue;
    if (naipe.Carta == 0) {
      ++tapadas;
    } else {
      abiertas += Join(abiertas.empty() ? u" Cartas: " : u", ", NombreDeCarta(naipe.Carta));
    }
  }
  const std::u16string boca = tapadas == 1 ? u" tapada" : u" tapadas";
  if (!abiertas.empty()) {
    return tapadas == 0 ? abiertas + u"." : Join(abiertas, u", ", EnPalabras(tapadas), boca, u".");
  }
  if (tapadas == 0) return u" Sin cartas.";
  const std::u16string_view cartas = tapadas == 1 ? u" carta" : u" cartas";
  return Join(u" ", ConMayuscula(EnPalabras(tapadas)), cartas, boca, u".");
}

std::u16string DistintivosHablados(const AsientoVisto& asiento) {
  std::u16string dichos;
  for (const std::u16string& dicho : {ParesEscritos(asiento.Pares), JuegoEscrito(asiento.Juego)}) {
    if (!dicho.empty()) dichos += Join(u" ", ConMayuscula(dicho), u".");
  }
  if (asiento.CartasCambiadas) {
    dichos += Join(u" ", ConMayuscula(CambioEscrito(*asiento.CartasCambiadas)), u".");
  }
  return dichos;
}

std::u16string AsientoHablado(const Escena& escena, Seat asiento) {
  const AsientoVisto& visto = escena.Asientos[asiento];
  std::u16string frase = visto.Nombre;
  frase += SitioHablado(asiento);
  frase += visto.EsMano ? u", es mano." : u".";
  if (asiento != AsientoHumano) frase += CartasHabladas(visto);
  frase += DistintivosHablados(visto);
  if (!visto.Bocadillo.empty()) frase += Join(u" Dice: «", visto.Bocadillo, u"».");
  if (asiento == AsientoHumano && escena.Toca == Turno::Jugador) frase += u" Le toca.";
  return frase;
}

std::u16string LanceHablado(const CeldaPizarra& celda) {
  std::u16string estado = EstadoEscrito(celda);
  if (celda.Estado == EstadoLance::PorJugar) estado = u"por jugar";
  if (celda.Estado == EstadoLance::NoSeJugo) estado = u"no se jugó";
  if (celda.Estado == EstadoLance::Envite && celda.De) {
    estado = Join(celda.Piedras, u" de la pareja ", *celda.De);
    if (celda.Vistas > 0)
      estado += Join(u" sobre ", celda.Vistas, celda.Vistas == 1 ? u" vista" : u" vistas");
  } else if (celda.De) {
    estado += Join(u" de la pareja ", *celda.De);
  }
  const std::u16string_view marca = celda.Marca == MarcaLance::Ninguna     ? u""
                                    : celda.Marca == MarcaLance::Siguiente ? u", el siguiente"
                                                                           : u", en juego";
  return Join(NombreDeLance(celda.Lance), marca, u": ", estado);
}

// "ninguna piedra", "una piedra", "2 piedras"; `articulo` is "un" or "una".
std::u16string Cuenta(int numero, std::u16string_view articulo, std::u16string_view cosa) {
  if (numero > 1) return Join(numero, u" ", cosa, u"s");
  const std::u16string_view ninguno = articulo == u"un" ? u"ningún" : u"ninguna";
  return Join(numero == 1 ? articulo : ninguno, u" ", cosa);
}

std::u16string ParejaHablada(const Escena& escena, Pareja pareja) {
  const TanteoVisto& tanteo = escena.Tanteo[pareja];
  return Join(ParejaEscrita(pareja), u". ", Cuenta(tanteo.Piedras, u"una", u"piedra"), u", ",
              Cuenta(tanteo.Juegos, u"un", u"juego"), u", ", Cuenta(tanteo.Vacas, u"una", u"vaca"));
}

}  // namespace

std::vector<Frase> LaMesaHablada(const Escena& escena) {
  std::vector<Frase> frases;
  for (Seat asiento = 1; asiento <= 4; ++asiento) {
    frases.push_back({Parte::Asiento, asiento, AsientoHablado(escena, asiento)});
  }
  for (int hueco = 1; hueco <= 4; ++hueco) {
    const Naipe& naipe = escena.Asientos[AsientoHumano].Naipes[hueco];
    if (!naipe.Hay || naipe.Carta == 0) continue;
    frases.push_back(
        {Parte::Carta, hueco, Join(u"Su carta ", hueco, u": ", NombreDeCarta(naipe.Carta))});
  }
  for (const CeldaPizarra& celda : escena.Pizarra) {
    frases.push_back({Parte::Lance, static_cast<int>(celda.Lance), LanceHablado(celda)});
  }
  for (const Pareja pareja : {1, 0}) {
    frases.push_back({Parte::Tanteo, pareja, ParejaHablada(escena, pareja)});
  }
  return frases;
}

}  // namespace tasca
