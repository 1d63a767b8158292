// What each kind of piece is called there.
#include "tests/ui_qt/picture_places.h"

#include <iomanip>
#include <sstream>

#include "tests/support/tables.h"
#include "ui/mesa/palabras.h"

namespace tasca::test {
namespace {

struct Llamar {
  std::ostream& s;

  void operator()(const CartaPuesta& c) const {
    s << "card " << c.Carta << " of seat " << c.De << ", slot " << c.Hueco;
    if (c.Girada) s << ", on its side";
  }
  void operator()(const Placa& p) const {
    s << "plate " << p.De << " \"" << Utf8(p.Nombre) << '"';
    if (p.EsMano) s << ", mano";
    if (p.LeToca) s << ", its turn";
  }
  void operator()(const Bocadillo& b) const {
    s << "bubble " << b.De << " with its point at " << b.PuntaX << "," << b.PuntaY;
    for (const std::u16string& linea : b.Lineas) s << " \"" << Utf8(linea) << '"';
    if (b.EsElUltimo) s << ", the last";
  }
  void operator()(const Distintivo& d) const { s << "badge \"" << Utf8(d.Texto) << '"'; }
  void operator()(const PizarraPuesta& /*p*/) const { s << "slate"; }
  void operator()(const CeldaPuesta& c) const {
    s << "lance \"" << Utf8(std::u16string{NombreDeLance(c.Lance)}) << "\" \"" << Utf8(c.Estado)
      << '"';
    if (c.Marca != MarcaLance::Ninguna) s << ", marked";
    if (c.De) s << ", pareja " << *c.De;
  }
  void operator()(const Ficha& f) const {
    s << "stone of class " << static_cast<int>(f.Clase) << ", shape " << f.Forma;
  }
  void operator()(const Monton& m) const {
    s << "pile of " << m.Grosor << " \"" << Utf8(m.Texto) << '"';
  }
  void operator()(const TeclaPuesta& /*t*/) const { s << "key cap"; }
  void operator()(const AvisoTurno& /*a*/) const { s << "turn"; }
  void operator()(const TextoPuesto& t) const { s << "words \"" << Utf8(t.Texto) << '"'; }
  void operator()(const SignoPareja& p) const { s << "sign of pareja " << p.De; }
  void operator()(const Casilla& c) const {
    s << (c.EsVaca ? "vaca" : "juego") << (c.Ganada ? ", won" : ", open");
  }
  void operator()(const Adorno& a) const { s << "ornament " << static_cast<int>(a.Clase); }
};

void WritePlace(std::ostream& s, const Rect& r) {
  s << r.X << "," << r.Y << " " << r.Ancho << "x" << r.Alto << "  ";
}

std::ostringstream InHundredths() {
  std::ostringstream s;
  s << std::fixed << std::setprecision(2);
  return s;
}

}  // namespace

std::string PlacesOfPieces(const std::vector<Pieza>& piezas) {
  std::ostringstream s = InHundredths();
  for (const Pieza& pieza : piezas) {
    WritePlace(s, Lugar(pieza));
    std::visit(Llamar{s}, pieza);
    s << '\n';
  }
  return s.str();
}

std::string PlacesOfSheet(const Lamina& hoja) {
  std::ostringstream s = InHundredths();
  const auto escribir = [&s](const char* que, const Rect& r) {
    WritePlace(s, r);
    s << que << '\n';
  };
  escribir("wood", hoja.Madera);
  escribir("cloth", hoja.Pano);
  escribir("hand", hoja.Mano);
  escribir("Enter", hoja.Enter);
  escribir("free cloth", hoja.Libre);
  return s.str() + PlacesOfPieces(hoja.Piezas);
}

}  // namespace tasca::test
