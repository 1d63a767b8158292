// The pieces, one function each.
#include "ui/qt/mesa_painter.h"

#include <QPainterPath>
#include <algorithm>

#include "ui/mesa/palabras.h"
#include "ui/qt/mesa_signs.h"

namespace tasca {
namespace {

constexpr double BordeFino = 1.2;
constexpr double BordeMarcado = 2.6;
constexpr int ALaIzquierda = Qt::AlignLeft | Qt::AlignVCenter;
constexpr int ALaDerecha = Qt::AlignRight | Qt::AlignVCenter;

QColor Faded(QColor color, float opacidad) {
  color.setAlphaF(opacidad);
  return color;
}

// The point of a bubble, open at the bubble's side.
QPolygonF PointOf(const Bocadillo& b, double f) {
  const QRectF r = ToQt(b.Donde);
  const QPointF punta{b.PuntaX, b.PuntaY};
  constexpr double solape = 2;
  if (b.Punta == Lado::Abajo) {
    const double y = r.bottom() - solape;
    return {{{punta.x() - f * 0.6, y}, punta, {punta.x() + f * 0.6, y}}};
  }
  const double x = b.Punta == Lado::Izquierda ? r.left() + solape : r.right() - solape;
  return {{{x, punta.y() - f * 0.55}, punta, {x, punta.y() + f * 0.55}}};
}

}  // namespace

QRectF ToQt(const Rect& r) { return {r.X, r.Y, r.Ancho, r.Alto}; }

QRect CoveredBy(const Pieza& pieza, double letra) {
  const double alrededor = letra * 1.3 + 2;
  return ToQt(Dentro(Lugar(pieza), -alrededor)).toAlignedRect();
}

MesaPainter::MesaPainter(QPainter& p, const MesaColors& colores, MesaLetters& letras,
                         MesaPictures& dibujos)
    : p_{p},
      c_{colores},
      letras_{letras},
      dibujos_{dibujos},
      f_{letras.Pixels()},
      dpr_{p.device()->devicePixelRatioF()} {
  p_.setRenderHint(QPainter::Antialiasing);
}

// Most of what changes lies on the plain cloth, where one colour fills it.
void MesaPainter::PaintSurfaces(const Lamina& hoja, const QRegion& donde) {
  const QRegion liso{ToQt(Dentro(hoja.Pano, f_ * 1.6)).toAlignedRect()};
  for (const QRect& parte : donde& liso) p_.fillRect(parte, c_.Pano);
  const QRegion resto = donde - liso;
  if (resto.isEmpty()) return;
  p_.setClipRegion(resto);
  PaintBorders(hoja);
  p_.setClipRegion(donde);
}

// What lies under the next surface is left out.
void MesaPainter::PaintBorders(const Lamina& hoja) {
  const QRectF suelo = ToQt(hoja.Suelo);
  const QRectF madera = ToQt(hoja.Madera);
  const QRectF pano = ToQt(hoja.Pano);
  FillAround(suelo, ToQt(Dentro(hoja.Madera, f_ * 2.2)), c_.Suelo);
  PaintTiles(suelo);
  if (!c_.Contraste) {
    Box(madera.translated(1.5, 2.5), f_ * 2.2, Qt::NoBrush, QPen{QColor{0, 0, 0, 60}, 5});
  }
  BigBox(madera, f_ * 2.2, c_.Madera, QPen{c_.Canto, 2}, ToQt(Dentro(hoja.Pano, f_ * 1.6)));
  p_.setPen(QPen{c_.Veta, 2});
  const double tabla = 5 * f_;
  for (int i = 1; i * tabla < madera.height() - 2 * f_; ++i) {
    const double y = madera.top() + i * tabla;
    p_.drawLine(QLineF{madera.left() + 6, y, madera.right() - 6, y});
  }
  BigBox(pano, f_ * 1.6, c_.Pano, QPen{c_.Canto, 2}, {});
  const double m = f_ * 0.5;
  Box(pano.adjusted(m, m, -m, -m), f_ * 1.2, Qt::NoBrush, QPen{Faded(c_.PanoLinea, 0.75F), 1.3});
}

void MesaPainter::PaintTiles(const QRectF& suelo) {
  const double losa = f_ * 4.2;
  constexpr double junta = 1;
  p_.setRenderHint(QPainter::Antialiasing, false);
  for (int i = 1; i * losa < suelo.height(); ++i) {
    p_.fillRect(QRectF{suelo.left(), suelo.top() + i * losa, suelo.width(), junta}, c_.Junta);
  }
  for (int i = 1; i * losa < suelo.width(); ++i) {
    p_.fillRect(QRectF{suelo.left() + i * losa, suelo.top(), junta, suelo.height()}, c_.Junta);
  }
  p_.setRenderHint(QPainter::Antialiasing);
}

void MesaPainter::PaintPieces(const std::vector<Pieza>& piezas, const QRegion& donde) {
  for (const Pieza& pieza : piezas) {
    if (donde.intersects(CoveredBy(pieza, f_))) std::visit(*this, pieza);
  }
}

void MesaPainter::PaintMoving(const Fotograma& fotograma) {
  p_.save();
  p_.setOpacity(fotograma.Opacidad);
  const QPointF centro = ToQt(Lugar(fotograma.Que)).center();
  p_.translate(centro);
  p_.scale(fotograma.Estrecho, 1);
  p_.translate(-centro);
  std::visit(*this, fotograma.Que);
  p_.restore();
}

void MesaPainter::Box(const QRectF& r, double radio, const QBrush& relleno, const QPen& linea) {
  p_.setBrush(relleno);
  p_.setPen(linea);
  p_.drawRoundedRect(r, radio, radio);
}

// All of `r` but `hueco`.
void MesaPainter::FillAround(const QRectF& r, const QRectF& hueco, const QColor& relleno) {
  for (const QRect& parte : QRegion{r.toAlignedRect()} - QRegion{hueco.toAlignedRect()}) {
    p_.fillRect(parte, relleno);
  }
}

// Antialiasing only at the border: a big surface takes a third of the time so.
void MesaPainter::BigBox(const QRectF& r, double radio, const QColor& relleno, const QPen& linea,
                         const QRectF& hueco) {
  p_.setRenderHint(QPainter::Antialiasing, false);
  FillAround(r.adjusted(radio, 0, -radio, 0), hueco, relleno);
  FillAround(r.adjusted(0, radio, 0, -radio), hueco, relleno);
  p_.setPen(Qt::NoPen);
  p_.setBrush(relleno);
  for (const QPointF& esquina :
       {r.topLeft(), r.topRight() - QPointF{2 * radio, 0}, r.bottomLeft() - QPointF{0, 2 * radio},
        r.bottomRight() - QPointF{2 * radio, 2 * radio}}) {
    p_.drawEllipse(QRectF{esquina, QSizeF{2 * radio, 2 * radio}});
  }
  p_.setRenderHint(QPainter::Antialiasing);
  Box(r, radio, Qt::NoBrush, linea);
}

void MesaPainter::Write(const QRectF& r, std::u16string_view texto, Letra letra,
                        const QColor& color, int alineado) {
  p_.setFont(letras_.Font(letra));
  p_.setPen(color);
  p_.drawText(r, alineado | Qt::TextSingleLine | Qt::TextDontClip, OneLine(texto));
}

// The card's shadow, with a hole where the card hides it: blending takes longer than the card.
void MesaPainter::Shade(const QRectF& r, double alto) {
  const double baja = std::max(1.0, alto * 0.012);
  const double radio = alto * 0.042;
  QPainterPath sombra;
  sombra.addRoundedRect(r.translated(baja * 0.4, baja), radio, radio);
  sombra.addRect(r.adjusted(radio, radio, -radio, -radio));
  p_.fillPath(sombra, QColor{0, 0, 0, 70});
}

void MesaPainter::PaintBack(const QRectF& r, bool girada) {
  const double alto = girada ? r.width() : r.height();
  Shade(r, alto);
  DrawSharp(p_, r.topLeft(), dibujos_.Cartas.Back(qRound(alto), dpr_, c_.Oscuro, girada));
}

void MesaPainter::operator()(const CartaPuesta& carta) {
  const QRectF r = ToQt(carta.Donde);
  if (carta.Carta == 0) return PaintBack(r, carta.Girada);
  Shade(r, r.height());
  DrawSharp(p_, r.topLeft(),
            dibujos_.Cartas.Card(carta.Carta, qRound(r.height()), dpr_, c_.Oscuro));
}

void MesaPainter::operator()(const Monton& monton) {
  const QRectF r = ToQt(monton.Donde);
  for (int i = 0; i < monton.Grosor; ++i) {
    const QPointF sube{r.height() * 0.012 * i, r.height() * 0.016 * i};
    PaintBack(r.translated(-sube), false);
  }
  Write(ToQt(monton.Rotulo), monton.Texto, {0.9, false}, c_.PanoTexto);
}

void MesaPainter::operator()(const Adorno& adorno) {
  const QRectF r = ToQt(adorno.Donde);
  if (c_.Contraste) return;
  if (adorno.Clase == ClaseAdorno::Estrella) PaintStar(r);
  if (adorno.Clase == ClaseAdorno::Vaso) DrawGlass(p_, r, c_);
  if (adorno.Clase == ClaseAdorno::Aceitunas) DrawOlives(p_, r, c_);
}

// Kept as a picture: nearly every step repaints a part of it.
void MesaPainter::PaintStar(const QRectF& r) {
  QPixmap& estrella = dibujos_.Estrella;
  if (estrella.devicePixelRatio() != dpr_ || estrella.deviceIndependentSize() != r.size()) {
    estrella = QPixmap{(r.size() * dpr_).toSize()};
    estrella.setDevicePixelRatio(dpr_);
    estrella.fill(c_.Pano);
    QPainter pintor{&estrella};
    pintor.setRenderHint(QPainter::Antialiasing);
    DrawStar(pintor, QRectF{QPointF{}, r.size()}, c_);
  }
  DrawSharp(p_, r.topLeft(), estrella);
}

void MesaPainter::operator()(const PizarraPuesta& pizarra) {
  const QRectF r = ToQt(pizarra.Donde);
  Box(r, f_ * 0.5, c_.Canto, Qt::NoPen);
  Box(r.adjusted(3, 3, -3, -3), f_ * 0.35, c_.Pizarra, Qt::NoPen);
}

void MesaPainter::operator()(const CeldaPuesta& celda) {
  const QRectF r = ToQt(celda.Donde);
  if (!celda.EsLaPrimera) {
    p_.setPen(QPen{Faded(c_.TizaTenue, 0.5F), 1});
    p_.drawLine(QPointF{r.left(), r.top() + f_ * 0.6}, QPointF{r.left(), r.bottom() - f_ * 0.6});
  }
  const QRectF dentro = r.adjusted(2.5, 2.5, -2.5, -2.5);
  if (celda.EsOrdago) Box(dentro, f_ * 0.3, c_.Ordago, QPen{c_.Marca, BordeMarcado});
  const bool marcada = celda.Marca != MarcaLance::Ninguna;
  if (celda.Marca == MarcaLance::EnJuego && !celda.EsOrdago) {
    Box(dentro, f_ * 0.3, Qt::NoBrush, QPen{c_.Marca, BordeMarcado});
  }
  const std::u16string_view nombre = NombreDeLance(celda.Lance);
  const std::u16string titulo = marcada ? u"▸ " + std::u16string{nombre} : std::u16string{nombre};
  const QColor tiza = celda.PorJugar ? c_.TizaTenue : c_.Tiza;
  const QColor delTitulo = celda.EsOrdago ? c_.Si : marcada ? c_.Marca : tiza;
  Write({r.left(), r.top() + f_ * 0.25, r.width(), f_ * 1.4}, titulo, {1.06, marcada}, delTitulo);
  WriteState(celda, {r.left(), r.top() + f_ * 1.6, r.width(), f_ * 1.3}, tiza);
}

// The words in the middle of the cell, with the pareja's sign before them.
void MesaPainter::WriteState(const CeldaPuesta& celda, const QRectF& r, const QColor& color) {
  const double ancho = letras_.Measure()(celda.Estado, celda.Tipo);
  const double signo = celda.De ? f_ * 1.2 : 0;
  QRectF sitio{r.center().x() - (ancho + signo) / 2, r.top(), ancho + signo, r.height()};
  if (celda.De) {
    const QColor& suyo = *celda.De == 1 ? c_.PizarraNuestra : c_.PizarraSuya;
    DrawPareja(p_, {sitio.left() + f_ * 0.4, r.center().y()}, f_ * 0.36, *celda.De,
               celda.EsOrdago ? QColor{Qt::white} : suyo);
    sitio.setLeft(sitio.left() + signo);
  }
  Write(sitio, celda.Estado, celda.Tipo, celda.EsOrdago ? QColor{Qt::white} : color, ALaIzquierda);
}

void MesaPainter::operator()(const Ficha& ficha) {
  const QRectF r = ToQt(ficha.Donde);
  switch (ficha.Clase) {
    case ClaseFicha::Piedra:
      return DrawStone(p_, r, ficha.Forma, c_);
    case ClaseFicha::Amarraco:
      return DrawFive(p_, r, c_);
    case ClaseFicha::Vista:
      return Box(r.adjusted(0.5, 0.5, -0.5, -0.5), r.width() / 2, c_.PiedraLuz,
                 QPen{c_.PiedraBorde, 1});
    case ClaseFicha::Nuestra:
      DrawPareja(p_, r.center(), r.width() * 0.46, 1, c_.PizarraNuestra);
      return;
    case ClaseFicha::Suya:
      DrawPareja(p_, r.center(), r.width() * 0.44, 0, c_.PizarraSuya);
      return;
  }
}

void MesaPainter::operator()(const Placa& placa) {
  const QRectF r = ToQt(placa.Donde);
  const QPen linea = placa.LeToca ? QPen{c_.Marca, 3} : QPen{c_.PlacaBorde, BordeFino};
  Box(r, r.height() / 2, c_.Placa, linea);
  DrawPareja(p_, {r.left() + f_ * 1.05, r.center().y()}, f_ * 0.42, ParejaDe(placa.De),
             c_.De(ParejaDe(placa.De)));
  Write(r.adjusted(f_ * 1.8, 0, 0, 0), placa.Nombre, placa.Tipo, c_.PlacaTexto, ALaIzquierda);
  if (placa.EsMano) DrawHand(p_, {r.right() - f_ * 1.25, r.center().y()}, f_ * 1.6, c_);
}

void MesaPainter::operator()(const Distintivo& distintivo) {
  const QRectF r = ToQt(distintivo.Donde);
  if (distintivo.Clase == ClaseDistintivo::Mano) {
    Box(r, r.height() / 2, c_.Marca, Qt::NoPen);
    return Write(r, distintivo.Texto, distintivo.Tipo, c_.Tinta);
  }
  const bool si = distintivo.Clase == ClaseDistintivo::Si;
  Box(r, r.height() / 2, c_.PanoOscuro, si ? QPen{c_.PanoLinea, BordeFino} : QPen{Qt::NoPen});
  Write(r, distintivo.Texto, distintivo.Tipo, si ? c_.Si : c_.No);
}

void MesaPainter::operator()(const Bocadillo& bocadillo) {
  const QRectF r = ToQt(bocadillo.Donde);
  const QPen linea =
      bocadillo.EsElUltimo ? QPen{c_.Marca, BordeMarcado} : QPen{c_.PlacaBorde, BordeFino};
  Box(r, f_ * 0.7, c_.Placa, linea);
  const QPolygonF punta = PointOf(bocadillo, f_);
  p_.setPen(Qt::NoPen);
  p_.setBrush(c_.Placa);
  p_.drawPolygon(punta);
  p_.setPen(linea);
  p_.drawPolyline(punta);
  const double alto = f_ * 1.4;
  QRectF fila{r.left() + f_ * 0.68, r.top() + f_ * 0.52, r.width() - f_ * 0.68, alto};
  const Letra letra{bocadillo.Letras, false};
  for (const std::u16string& texto : bocadillo.Lineas) {
    Write(fila, texto, letra, c_.PlacaTexto, ALaIzquierda);
    fila.translate(0, alto);
  }
}

void MesaPainter::operator()(const TeclaPuesta& tecla) {
  const QRectF r = ToQt(tecla.Donde);
  const double grueso = f_ * 0.22;
  Box(r, f_ * 0.6, c_.Canto, Qt::NoPen);
  const QRectF tapa = r.adjusted(0, 0, 0, -grueso);
  Box(tapa, f_ * 0.6, c_.Placa, QPen{c_.PlacaBorde, BordeFino});
  const Letra letra{1.15, true};
  const double texto = letras_.Measure()(PalabraEnter, letra);
  const double flecha = f_ * 1.5;
  const double x = tapa.center().x() - (texto + flecha) / 2;
  Write({x, tapa.top(), texto, tapa.height()}, PalabraEnter, letra, c_.PlacaTexto);
  DrawReturn(p_, {x + texto + flecha * 0.62, tapa.center().y()}, f_ * 2.4, c_.PlacaTexto);
}

void MesaPainter::operator()(const AvisoTurno& aviso) {
  const QRectF r = ToQt(aviso.Donde);
  Box(r, r.height() / 2, c_.Marca, Qt::NoPen);
  p_.drawPolygon(QPolygonF{{{r.left() - f_ * 0.55, r.center().y()},
                            {r.left() + f_ * 0.3, r.center().y() - f_ * 0.55},
                            {r.left() + f_ * 0.3, r.center().y() + f_ * 0.55}}});
  Write(r, PalabraLeToca, {1, true}, c_.Tinta);
}

void MesaPainter::operator()(const TextoPuesto& texto) {
  Write(ToQt(texto.Donde), texto.Texto, texto.Tipo, texto.Tenue ? c_.TextoTenue : c_.Texto,
        texto.ALaDerecha ? ALaDerecha : ALaIzquierda);
}

void MesaPainter::operator()(const SignoPareja& signo) {
  const QRectF r = ToQt(signo.Donde);
  DrawPareja(p_, r.center(), r.width() / 2, signo.De, c_.De(signo.De));
}

void MesaPainter::operator()(const Casilla& casilla) {
  if (casilla.EsVaca) return DrawCow(p_, ToQt(casilla.Donde), casilla.Ganada, c_);
  DrawTally(p_, ToQt(casilla.Donde), casilla.Ganada, c_);
}

}  // namespace tasca
