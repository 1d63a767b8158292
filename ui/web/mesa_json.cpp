// One object for each piece.
#include "ui/web/mesa_json.h"

#include <array>

#include "ui/manual/card_reference.h"
#include "ui/mesa/palabras.h"
#include "ui/web/json.h"

namespace tasca {
namespace {

// The name of an enumerator, from a list of all names in their order.
template <class Clase, std::size_t N>
std::string_view NombreEn(const std::array<std::string_view, N>& nombres, Clase clase) {
  return nombres.at(static_cast<std::size_t>(clase));
}

// Writes the fields of a piece that are its own.
struct EscritorPiezas {
  Json& J;

  void Kind(std::string_view pieza, const Rect& donde) const {
    J.Field("pieza", pieza);
    J.Field("donde", donde);
  }

  void Letters(Letra tipo) const {
    J.Key("tipo");
    J.List(std::array{tipo}, [this](Letra letra) {
      J.Value(letra.Factor);
      J.Value(letra.Negrita);
    });
  }

  void OrNull(std::string_view clave, std::optional<int> numero) const {
    J.Key(clave);
    numero ? J.Value(*numero) : J.Null();
  }

  void operator()(const Adorno& p) const {
    Kind("adorno", p.Donde);
    J.Field("clase", NombreEn<ClaseAdorno, 3>({"estrella", "vaso", "aceitunas"}, p.Clase));
  }
  void operator()(const Monton& p) const {
    Kind("monton", p.Donde);
    J.Field("rotulo", p.Rotulo);
    J.Field("grosor", p.Grosor);
    J.Field("texto", p.Texto);
  }
  void operator()(const PizarraPuesta& p) const { Kind("pizarra", p.Donde); }
  void operator()(const CeldaPuesta& p) const {
    Kind("celda", p.Donde);
    J.Field("lance", static_cast<int>(p.Lance));
    J.Field("nombre", NombreDeLance(p.Lance));
    J.Field("marca", NombreEn<MarcaLance, 3>({"ninguna", "enJuego", "siguiente"}, p.Marca));
    J.Field("porJugar", p.PorJugar);
    J.Field("ordago", p.EsOrdago);
    J.Field("primera", p.EsLaPrimera);
    J.Field("estado", p.Estado);
    Letters(p.Tipo);
    OrNull("de", p.De);
  }
  void operator()(const Ficha& p) const {
    Kind("ficha", p.Donde);
    J.Field("clase",
            NombreEn<ClaseFicha, 5>({"piedra", "amarraco", "vista", "nuestra", "suya"}, p.Clase));
    J.Field("forma", p.Forma);
  }
  void operator()(const CartaPuesta& p) const {
    Kind("carta", p.Donde);
    J.Field("carta", p.Carta);
    J.Field("dibujo", p.Carta == 0 ? "dorso" : NameOfCard(p.Carta));
    J.Field("girada", p.Girada);
    J.Field("de", p.De);
    J.Field("hueco", p.Hueco);
  }
  void operator()(const Placa& p) const {
    Kind("placa", p.Donde);
    J.Field("nombre", p.Nombre);
    Letters(p.Tipo);
    J.Field("de", p.De);
    J.Field("mano", p.EsMano);
    J.Field("leToca", p.LeToca);
  }
  void operator()(const Distintivo& p) const {
    Kind("distintivo", p.Donde);
    J.Field("texto", p.Texto);
    J.Field("clase", NombreEn<ClaseDistintivo, 3>({"mano", "si", "no"}, p.Clase));
    Letters(p.Tipo);
  }
  void operator()(const Bocadillo& p) const {
    Kind("bocadillo", p.Donde);
    J.ListField("lineas", p.Lineas);
    J.Field("letras", p.Letras);
    J.Field("de", p.De);
    J.Field("ultimo", p.EsElUltimo);
    J.Field("punta", NombreEn<Lado, 3>({"abajo", "izquierda", "derecha"}, p.Punta));
    J.Field("puntaX", p.PuntaX);
    J.Field("puntaY", p.PuntaY);
  }
  void operator()(const TeclaPuesta& p) const {
    Kind("tecla", p.Donde);
    J.Field("texto", PalabraEnter);
  }
  void operator()(const AvisoTurno& p) const {
    Kind("turno", p.Donde);
    J.Field("texto", PalabraLeToca);
  }
  void operator()(const TextoPuesto& p) const {
    Kind("texto", p.Donde);
    J.Field("texto", p.Texto);
    Letters(p.Tipo);
    J.Field("tenue", p.Tenue);
    J.Field("derecha", p.ALaDerecha);
  }
  void operator()(const SignoPareja& p) const {
    Kind("signo", p.Donde);
    J.Field("de", p.De);
  }
  void operator()(const Casilla& p) const {
    Kind("casilla", p.Donde);
    J.Field("vaca", p.EsVaca);
    J.Field("ganada", p.Ganada);
  }
};

void EscribirPiezas(Json& json, const std::vector<Pieza>& piezas) {
  json.ListField("piezas", piezas, [&json](const Pieza& pieza) {
    json.Object([&] { std::visit(EscritorPiezas{json}, pieza); });
  });
}

}  // namespace

std::string JsonDeLamina(const Lamina& lamina, Turno toca) {
  Json json;
  json.Object([&] {
    json.Field("suelo", lamina.Suelo);
    json.Field("madera", lamina.Madera);
    json.Field("pano", lamina.Pano);
    json.Field("letra", lamina.Letra);
    json.Field("mano", lamina.Mano);
    json.Field("pizarra", lamina.Pizarra);
    json.Field("enter", lamina.Enter);
    json.Field("libre", lamina.Libre);
    json.Field("toca", NombreEn<Turno, 3>({"nadie", "jugador", "enter"}, toca));
    EscribirPiezas(json, lamina.Piezas);
  });
  return json.Text();
}

std::string JsonDePiezas(const std::vector<Pieza>& piezas) {
  Json json;
  json.Object([&] { EscribirPiezas(json, piezas); });
  return json.Text();
}

std::string JsonDePartes(const PartesVentana& partes) {
  Json json;
  json.Object([&] {
    json.Field("modo", NombreEn<Reparto, 3>({"alLado", "apilado", "soloTexto"}, partes.Modo));
    json.Field("mesa", partes.Mesa);
    json.Field("tanteo", partes.Tanteo);
    json.Field("rotuloTexto3", partes.RotuloTexto3);
    json.Field("texto3", partes.Texto3);
    json.Field("texto2", partes.Texto2);
    json.Field("rotuloTexto1", partes.RotuloTexto1);
    json.Field("texto1", partes.Texto1);
    json.Field("ayuda", partes.Ayuda);
  });
  return json.Text();
}

std::string JsonDeFrases(const std::vector<Frase>& frases) {
  Json json;
  json.List(frases, [&json](const Frase& frase) {
    json.Object([&] {
      json.Field("de", NombreEn<Parte, 4>({"asiento", "carta", "lance", "tanteo"}, frase.De));
      json.Field("indice", frase.Indice);
      json.Field("texto", frase.Texto);
    });
  });
  return json.Text();
}

std::string JsonDeRect(const Rect& donde) {
  Json json;
  json.Value(donde);
  return json.Text();
}

}  // namespace tasca
