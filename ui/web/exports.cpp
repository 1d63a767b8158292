// The functions that tasca.mjs calls. Texts come as UTF-8 and go as UTF-8 with a NUL at the end;
// each result lives until the next call.
#include <emscripten/em_js.h>
#include <emscripten/emscripten.h>

#include <vector>

#include "ui/mesa/layout.h"
#include "ui/spoken/on_demand.h"
#include "ui/spoken/sentences.h"
#include "ui/utf8.h"
#include "ui/web/archivos.h"
#include "ui/web/manual_json.h"
#include "ui/web/mesa_json.h"
#include "ui/web/tasca.h"

// clang-format off
EM_JS(double, anchoEnLaPagina, (const char16_t* texto, int largo, double factor, int negrita), {
  const desde = texto >> 1;
  const letras = String.fromCharCode.apply(null, HEAPU16.subarray(desde, desde + largo));
  return Module['mide'](letras, factor, negrita !== 0);
});
// clang-format on

namespace tasca {

// A game and the last result.
struct Pagina {
  Tasca Juego{""};
  std::string Resultado;
};

namespace {

double Mide(std::u16string_view texto, Letra letra) {
  return anchoEnLaPagina(texto.data(), static_cast<int>(texto.size()), letra.Factor,
                         letra.Negrita ? 1 : 0);
}

const char* Dejar(Pagina& p, std::string resultado) {
  p.Resultado = std::move(resultado);
  return p.Resultado.c_str();
}

// The view after a step, or {"imposible": why}.
template <class Paso>
const char* Dar(Pagina& p, const Paso& paso) {
  try {
    return Dejar(p, paso(p.Juego));
  } catch (const Imposible& error) {
    Json json;
    json.Object([&] { json.Field("imposible", error.what()); });
    return Dejar(p, json.Text());
  }
}

TimeOfDay Hora(int segundos) {
  return {.Hora = segundos / 3600, .Minuto = segundos / 60 % 60, .Segundo = segundos % 60};
}

// Takes numbers from the front of an array.
class Numeros {
 public:
  explicit Numeros(const double* desde) : siguiente_{desde} {}
  double Uno() { return *siguiente_++; }
  Rect Lado() {
    const double x = Uno();
    const double y = Uno();
    const double ancho = Uno();
    return {.X = x, .Y = y, .Ancho = ancho, .Alto = Uno()};
  }
  std::vector<Rect> Lados() {
    std::vector<Rect> lados;
    for (int faltan = static_cast<int>(Uno()); faltan > 0; --faltan) lados.push_back(Lado());
    return lados;
  }

 private:
  const double* siguiente_;
};

std::u16string Escuchado(const Tasca& juego, int que) {
  if (que == 0) return Seguido(juego.Ultimos());
  const Escena escena = juego.Vista();
  if (que == 1) return ManoDicha(escena);
  return que == 2 ? TanteoDicho(escena) : ManoDichaPorNombre(escena);
}

}  // namespace
}  // namespace tasca

using namespace tasca;  // NOLINT(google-build-using-namespace): the functions below are C

extern "C" {

EMSCRIPTEN_KEEPALIVE Pagina* nueva() { return new Pagina; }
EMSCRIPTEN_KEEPALIVE int largo(const Pagina* p) { return static_cast<int>(p->Resultado.size()); }

EMSCRIPTEN_KEEPALIVE const char* abrir(Pagina* p, const char* bytes, int cuantos, int segundos) {
  const std::string guardada{bytes, static_cast<std::size_t>(cuantos)};
  return Dar(*p, [&](Tasca& juego) { return juego.Abrir(guardada, Hora(segundos)); });
}
EMSCRIPTEN_KEEPALIVE const char* elige(Pagina* p, int combo, int posicion) {
  return Dar(*p, [&](Tasca& juego) { return juego.Elige(combo, posicion); });
}
EMSCRIPTEN_KEEPALIVE const char* marca(Pagina* p, int casilla, int marcada) {
  return Dar(*p, [&](Tasca& juego) { return juego.Marca(casilla, marcada != 0); });
}
EMSCRIPTEN_KEEPALIVE const char* estilo(Pagina* p, int cual) {
  return Dar(*p, [&](Tasca& juego) { return juego.Estilo(cual); });
}
EMSCRIPTEN_KEEPALIVE const char* aceptar(Pagina* p, const char* nombre, int segundos) {
  return Dar(*p, [&](Tasca& juego) { return juego.Aceptar(FromUtf8(nombre), Hora(segundos)); });
}
EMSCRIPTEN_KEEPALIVE const char* tecla(Pagina* p, int codigo, int mayusculas, int segundos) {
  return Dar(*p, [&](Tasca& juego) { return juego.Tecla(codigo, mayusculas, Hora(segundos)); });
}
EMSCRIPTEN_KEEPALIVE const char* responde(Pagina* p, int clase, int numero, const char* texto,
                                          int segundos) {
  return Dar(*p, [&](Tasca& juego) {
    return juego.Responde({.Clase = static_cast<ClaseEntrada>(clase),
                           .Numero = numero,
                           .Texto = FromUtf8(texto),
                           .Hora = Hora(segundos)});
  });
}
EMSCRIPTEN_KEEPALIVE const char* finDeSonido(Pagina* p, int estado, int segundos) {
  return Dar(*p, [&](Tasca& juego) { return juego.FinDeSonido(estado, Hora(segundos)); });
}
EMSCRIPTEN_KEEPALIVE const char* salir(Pagina* p) {
  return Dar(*p, [](Tasca& juego) { return juego.Salir(); });
}

EMSCRIPTEN_KEEPALIVE const char* guardada(Pagina* p) { return Dejar(*p, p->Juego.Guardada()); }
EMSCRIPTEN_KEEPALIVE const char* reparoAlNombre(Pagina* p, const char* nombre) {
  return Dejar(*p, ToUtf8(p->Juego.ReparoAlNombre(FromUtf8(nombre))));
}

EMSCRIPTEN_KEEPALIVE const char* lamina(Pagina* p, double ancho, double alto, double letra) {
  const Escena escena = p->Juego.Vista();
  const Rect donde{.Ancho = ancho, .Alto = alto};
  return Dejar(*p, JsonDeLamina(LaminaDe(escena, donde, letra, Mide), escena.Toca));
}
EMSCRIPTEN_KEEPALIVE const char* marcador(Pagina* p, double ancho, double alto, double letra) {
  const Rect donde{.Ancho = ancho, .Alto = alto};
  return Dejar(*p, JsonDePiezas(MarcadorDe(p->Juego.Vista(), donde, letra, Mide)));
}
EMSCRIPTEN_KEEPALIVE const char* reparto(Pagina* p, const double* medidas) {
  Numeros n{medidas};
  MedidasVentana m;
  for (double* const medida : {&m.Ancho, &m.Alto, &m.Menu, &m.Letra}) *medida = n.Uno();
  m.QuiereMesa = n.Uno() != 0;
  for (double* const medida :
       {&m.AltoTanteo, &m.AnchoRotulo, &m.AltoRotulo, &m.AltoAyuda, &m.AltoLinea, &m.MargenTexto}) {
    *medida = n.Uno();
  }
  return Dejar(*p, JsonDePartes(PartesDe(m, n.Uno())));
}
EMSCRIPTEN_KEEPALIVE const char* sitioDeCaja(Pagina* p, const double* medidas) {
  Numeros n{medidas};
  const double ancho = n.Uno();
  const double alto = n.Uno();
  Alrededores donde{.Ventana = n.Lado(), .Libre = n.Lado(), .Nunca = {}, .MejorNo = {}};
  donde.Nunca = n.Lados();
  donde.MejorNo = n.Lados();
  return Dejar(*p, JsonDeRect(SitioDeCaja(ancho, alto, donde)));
}

EMSCRIPTEN_KEEPALIVE const char* mesaHablada(Pagina* p) {
  return Dejar(*p, JsonDeFrases(LaMesaHablada(p->Juego.Vista())));
}
EMSCRIPTEN_KEEPALIVE const char* escucha(Pagina* p, int que) {
  return Dejar(*p, ToUtf8(Escuchado(p->Juego, que)));
}
EMSCRIPTEN_KEEPALIVE const char* cronica(Pagina* p) {
  return Dejar(*p, ToUtf8(p->Juego.Sesion().Relato().Texto()));
}
EMSCRIPTEN_KEEPALIVE const char* manual(Pagina* p) { return Dejar(*p, JsonDelManual()); }
EMSCRIPTEN_KEEPALIVE const char* version(Pagina* p) { return Dejar(*p, TASCA_VERSION); }

EMSCRIPTEN_KEEPALIVE const char* leerArchivo(Pagina* p, const char* nombre) {
  return Dejar(*p, LeerArchivo(nombre));
}
EMSCRIPTEN_KEEPALIVE void ponArchivo(Pagina* /*p*/, const char* nombre, const char* bytes,
                                     int cuantos) {
  EscribirArchivo(nombre, {bytes, static_cast<std::size_t>(cuantos)});
}
EMSCRIPTEN_KEEPALIVE const char* revisar(Pagina* p, const char* bytes, int cuantos) {
  return Dejar(*p, RevisarArchivo("", {bytes, static_cast<std::size_t>(cuantos)}));
}

}  // extern "C"
