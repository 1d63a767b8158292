// The functions that tasca.mjs calls. Texts come as UTF-8 and go as UTF-8 with a NUL at the end;
// each result lives until the next call.
#include <deque>
#include <vector>

#include "ui/mesa/layout.h"
#include "ui/spoken/on_demand.h"
#include "ui/spoken/sentences.h"
#include "ui/utf8.h"
#include "ui/web/archivos.h"
#include "ui/web/manual_json.h"
#include "ui/web/mesa_json.h"
#include "ui/web/tasca.h"

// The width of a line of text, as the page measures it (mide.js).
extern "C" double anchoEnLaPagina(const char16_t* texto, int largo, double factor, int negrita);

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

// The attribute exports them from the module.
extern "C" {

[[gnu::used]] Pagina* tasca_nueva() {
  static std::deque<Pagina> todas;  // live as long as the module
  return &todas.emplace_back();
}
[[gnu::used]] int tasca_largo(const Pagina* p) { return static_cast<int>(p->Resultado.size()); }

[[gnu::used]] const char* tasca_abrir(Pagina* p, const char* bytes, int cuantos, int segundos) {
  const std::string guardada{bytes, static_cast<std::size_t>(cuantos)};
  return Dar(*p, [&](Tasca& juego) { return juego.Abrir(guardada, Hora(segundos)); });
}
[[gnu::used]] const char* tasca_elige(Pagina* p, int combo, int posicion) {
  return Dar(*p, [&](Tasca& juego) { return juego.Elige(combo, posicion); });
}
[[gnu::used]] const char* tasca_marca(Pagina* p, int casilla, int marcada) {
  return Dar(*p, [&](Tasca& juego) { return juego.Marca(casilla, marcada != 0); });
}
[[gnu::used]] const char* tasca_estilo(Pagina* p, int cual) {
  return Dar(*p, [&](Tasca& juego) { return juego.Estilo(cual); });
}
[[gnu::used]] const char* tasca_aceptar(Pagina* p, const char* nombre, int segundos) {
  return Dar(*p, [&](Tasca& juego) { return juego.Aceptar(FromUtf8(nombre), Hora(segundos)); });
}
[[gnu::used]] const char* tasca_tecla(Pagina* p, int codigo, int mayusculas, int segundos) {
  return Dar(*p, [&](Tasca& juego) { return juego.Tecla(codigo, mayusculas, Hora(segundos)); });
}
[[gnu::used]] const char* tasca_responde(Pagina* p, int clase, int numero, const char* texto,
                                         int segundos) {
  return Dar(*p, [&](Tasca& juego) {
    return juego.Responde({.Clase = static_cast<ClaseEntrada>(clase),
                           .Numero = numero,
                           .Texto = FromUtf8(texto),
                           .Hora = Hora(segundos)});
  });
}
[[gnu::used]] const char* tasca_finDeSonido(Pagina* p, int estado, int segundos) {
  return Dar(*p, [&](Tasca& juego) { return juego.FinDeSonido(estado, Hora(segundos)); });
}
[[gnu::used]] const char* tasca_salir(Pagina* p) {
  return Dar(*p, [](Tasca& juego) { return juego.Salir(); });
}

[[gnu::used]] const char* tasca_guardada(Pagina* p) { return Dejar(*p, p->Juego.Guardada()); }
[[gnu::used]] const char* tasca_reparoAlNombre(Pagina* p, const char* nombre) {
  return Dejar(*p, ToUtf8(p->Juego.ReparoAlNombre(FromUtf8(nombre))));
}

[[gnu::used]] const char* tasca_lamina(Pagina* p, double ancho, double alto, double letra) {
  const Escena escena = p->Juego.Vista();
  const Rect donde{.Ancho = ancho, .Alto = alto};
  return Dejar(*p, JsonDeLamina(LaminaDe(escena, donde, letra, Mide), escena.Toca));
}
[[gnu::used]] const char* tasca_marcador(Pagina* p, double ancho, double alto, double letra) {
  const Rect donde{.Ancho = ancho, .Alto = alto};
  return Dejar(*p, JsonDePiezas(MarcadorDe(p->Juego.Vista(), donde, letra, Mide)));
}
[[gnu::used]] const char* tasca_reparto(Pagina* p, const double* medidas) {
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
[[gnu::used]] const char* tasca_sitioDeCaja(Pagina* p, const double* medidas) {
  Numeros n{medidas};
  const double ancho = n.Uno();
  const double alto = n.Uno();
  Alrededores donde{.Ventana = n.Lado(), .Libre = n.Lado(), .Nunca = {}, .MejorNo = {}};
  donde.Nunca = n.Lados();
  donde.MejorNo = n.Lados();
  return Dejar(*p, JsonDeRect(SitioDeCaja(ancho, alto, donde)));
}

[[gnu::used]] const char* tasca_mesaHablada(Pagina* p) {
  return Dejar(*p, JsonDeFrases(LaMesaHablada(p->Juego.Vista())));
}
[[gnu::used]] const char* tasca_escucha(Pagina* p, int que) {
  return Dejar(*p, ToUtf8(Escuchado(p->Juego, que)));
}
[[gnu::used]] const char* tasca_cronica(Pagina* p) {
  return Dejar(*p, ToUtf8(p->Juego.Sesion().Relato().Texto()));
}
[[gnu::used]] const char* tasca_manual(Pagina* p) { return Dejar(*p, JsonDelManual()); }
[[gnu::used]] const char* tasca_version(Pagina* p) { return Dejar(*p, TASCA_VERSION); }

[[gnu::used]] const char* tasca_leerArchivo(Pagina* p, const char* nombre) {
  return Dejar(*p, LeerArchivo(nombre));
}
[[gnu::used]] void tasca_ponArchivo(Pagina* /*p*/, const char* nombre, const char* bytes,
                                    int cuantos) {
  EscribirArchivo(nombre, {bytes, static_cast<std::size_t>(cuantos)});
}
[[gnu::used]] const char* tasca_revisar(Pagina* p, const char* bytes, int cuantos) {
  return Dejar(*p, RevisarArchivo("", {bytes, static_cast<std::size_t>(cuantos)}));
}

}  // extern "C"

}  // namespace tasca
