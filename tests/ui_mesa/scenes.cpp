// The scenes.
#include "tests/ui_mesa/scenes.h"

#include <string>
#include <string_view>

namespace tasca::test {
namespace {

int Hasta(std::mt19937& azar, int maximo) {
  return static_cast<int>(azar() % static_cast<unsigned>(maximo + 1));
}

bool UnaDe(std::mt19937& azar, int veces) { return Hasta(azar, veces - 1) == 0; }

std::u16string Palabras(std::mt19937& azar, int maximo) {
  constexpr std::u16string_view letras = u"aeioumnrstl  WM.,¡";
  std::u16string texto;
  for (int i = Hasta(azar, maximo); i > 0; --i) {
    texto += letras[static_cast<std::size_t>(Hasta(azar, static_cast<int>(letras.size()) - 1))];
  }
  return texto;
}

AsientoVisto AsientoAlAzar(std::mt19937& azar, Seat asiento, bool abierto) {
  AsientoVisto visto;
  visto.Nombre = Palabras(azar, UnaDe(azar, 4) ? 100 : 25);
  const int cartas = UnaDe(azar, 5) ? Hasta(azar, 4) : 4;
  for (int hueco = 1; hueco <= cartas; ++hueco) {
    const bool seVe = asiento == AsientoHumano || abierto;
    visto.Naipes[hueco] = {.Hay = true, .Carta = seVe ? 1 + Hasta(azar, 39) : 0};
  }
  visto.Bocadillo = UnaDe(azar, 3) ? u"" : Palabras(azar, UnaDe(azar, 3) ? 130 : 40);
  visto.Pares = static_cast<Declarado>(Hasta(azar, 2));
  visto.Juego = static_cast<Declarado>(Hasta(azar, 2));
  if (UnaDe(azar, 4)) visto.CartasCambiadas = Hasta(azar, 4);
  return visto;
}

CeldaPizarra CeldaAlAzar(std::mt19937& azar, NumeroLance lance) {
  CeldaPizarra celda;
  celda.Lance = lance;
  celda.Marca = static_cast<MarcaLance>(Hasta(azar, 2));
  celda.Estado = static_cast<EstadoLance>(Hasta(azar, 10));
  celda.Piedras = 1 + Hasta(azar, UnaDe(azar, 3) ? 40 : 10);
  celda.Vistas = Hasta(azar, 12);
  if (!UnaDe(azar, 3)) celda.De = Hasta(azar, 1);
  return celda;
}

}  // namespace

Escena EscenaAlAzar(std::mt19937& azar) {
  Escena escena;
  const bool abierta = UnaDe(azar, 3);
  for (Seat asiento = 1; asiento <= 4; ++asiento) {
    escena.Asientos[asiento] = AsientoAlAzar(azar, asiento, abierta);
  }
  escena.Asientos[1 + Hasta(azar, 3)].EsMano = true;
  escena.Asientos[1 + Hasta(azar, 3)].HaHabladoElUltimo = true;
  escena.Toca = static_cast<Turno>(Hasta(azar, 2));
  const int lances = 4 + Hasta(azar, 1);
  for (int lance = 1; lance <= lances; ++lance) {
    escena.Pizarra.push_back(CeldaAlAzar(azar, static_cast<NumeroLance>(lance)));
  }
  escena.GrosorMazo = Hasta(azar, 3);
  escena.GrosorDescartes = Hasta(azar, 3);
  for (const Pareja pareja : {0, 1}) {
    escena.Tanteo[pareja] = {.Piedras = Hasta(azar, UnaDe(azar, 4) ? 200 : 40),
                             .Juegos = Hasta(azar, 2),
                             .Vacas = Hasta(azar, 2),
                             .JuegosParaVaca = 1 + Hasta(azar, 1),
                             .VacasParaPartida = 1 + Hasta(azar, 1)};
  }
  return escena;
}

Escena EscenaInicial() {
  Escena escena;
  for (Seat asiento = 1; asiento <= 4; ++asiento) {
    for (Naipe& naipe : escena.Asientos[asiento].Naipes) naipe.Hay = true;
  }
  Array<Naipe, 1, 4>& mano = escena.Asientos[AsientoHumano].Naipes;
  mano[1].Carta = 20;
  mano[2].Carta = 18;
  mano[3].Carta = 16;
  mano[4].Carta = 1;
  escena.Asientos[1].Nombre = u"Ana";
  escena.Asientos[2].Nombre = u"Berta";
  escena.Asientos[3].Nombre = u"el Cojo";
  escena.Asientos[4].Nombre = u"Dora";
  escena.Asientos[4].EsMano = true;
  escena.Toca = Turno::Enter;
  for (const NumeroLance lance :
       {NumeroLance::Grande, NumeroLance::Pequena, NumeroLance::Pares, NumeroLance::Juego}) {
    escena.Pizarra.emplace_back().Lance = lance;
  }
  escena.GrosorMazo = 3;
  for (TanteoVisto& tanteo : escena.Tanteo) {
    tanteo = {.Piedras = 0, .Juegos = 0, .Vacas = 0, .JuegosParaVaca = 2, .VacasParaPartida = 2};
  }
  return escena;
}

AnchoDeTexto LetrasCorrientes(double letra) {
  return [letra](std::u16string_view texto, Letra tipo) {
    const double una = tipo.Negrita ? 0.62 : 0.56;
    return static_cast<double>(texto.size()) * una * letra * tipo.Factor;
  };
}

}  // namespace tasca::test
