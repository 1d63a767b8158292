// Builds the font, a TrueType file in memory, and registers it.
#include "tests/ui_qt/block_font.h"

#include <gtest/gtest.h>

#include <QDataStream>
#include <QFontDatabase>
#include <QIODevice>
#include <functional>
#include <map>

namespace tasca::test {
namespace {

// Units of the font file per height of a letter. Widths are whole sixteenths of it, so that every
// width is exact in the 64ths of a pixel in which FreeType counts.
constexpr quint16 PorLetra = 1024;
constexpr quint16 AnchoNormal = PorLetra * 9 / 16;
constexpr quint16 AnchoNegrita = PorLetra * 10 / 16;
constexpr qint16 Subida = 832;
constexpr qint16 Bajada = -192;
constexpr quint16 AltoBloque = 576;
constexpr quint16 Margen = 64;  // before and after a block
constexpr quint16 GlifoBloque = 1;
constexpr quint16 GlifoBlanco = 2;
constexpr quint16 Glifos = 3;
const QString Familia = QStringLiteral("Tasca Block");

// Big-endian, as TrueType is.
QByteArray Bytes(const std::function<void(QDataStream&)>& escribir) {
  QByteArray bytes;
  QDataStream salida{&bytes, QIODevice::WriteOnly};
  escribir(salida);
  while (bytes.size() % 4 != 0) bytes.append('\0');
  return bytes;
}

void Zeros(QDataStream& s, int veces) {
  for (int i = 0; i < veces; ++i) s << quint16{0};
}

QByteArray Head(bool negrita) {
  return Bytes([negrita](QDataStream& s) {
    s << quint32{0x00010000} << quint32{0x00010000} << quint32{0} << quint32{0x5F0F3CF5};
    s << quint16{0} << PorLetra << quint64{0} << quint64{0};
    s << qint16{0} << qint16{0} << qint16{PorLetra} << qint16{AltoBloque};
    s << static_cast<quint16>(negrita ? 1 : 0) << quint16{8} << qint16{2} << qint16{1} << qint16{0};
  });
}

QByteArray Hhea(quint16 ancho) {
  return Bytes([ancho](QDataStream& s) {
    s << quint32{0x00010000} << Subida << Bajada << qint16{0} << ancho;
    Zeros(s, 3);
    s << qint16{1};
    Zeros(s, 7);
    s << quint16{1};
  });
}

QByteArray Maxp() {
  return Bytes([](QDataStream& s) {
    s << quint32{0x00010000} << Glifos << quint16{4} << quint16{1};
    Zeros(s, 2);
    s << quint16{1};
    Zeros(s, 8);
  });
}

QByteArray Hmtx(quint16 ancho) {
  return Bytes([ancho](QDataStream& s) { s << ancho << qint16{0} << qint16{Margen} << qint16{0}; });
}

// Blanks are empty, everything else is a block: one glyph for many characters is format 13.
QByteArray Cmap() {
  struct Group {
    quint32 Desde, Hasta, Glifo;
  };
  constexpr std::array<Group, 3> grupos{
      {{0x20, 0x20, GlifoBlanco}, {0x21, 0x9F, GlifoBloque}, {0xA1, 0x2FFF, GlifoBloque}}};
  return Bytes([&grupos](QDataStream& s) {
    s << quint16{0} << quint16{1} << quint16{3} << quint16{10} << quint32{12};
    s << quint16{13} << quint16{0} << quint32{16 + 12 * grupos.size()} << quint32{0};
    s << static_cast<quint32>(grupos.size());
    for (const Group& g : grupos) s << g.Desde << g.Hasta << g.Glifo;
  });
}

QByteArray Glyf(quint16 ancho) {
  return Bytes([ancho](QDataStream& s) {
    const auto derecha = static_cast<qint16>(ancho - Margen);
    const auto largo = static_cast<qint16>(derecha - Margen);
    constexpr quint8 enElTrazo = 1;
    s << qint16{1} << qint16{Margen} << qint16{0} << derecha << qint16{AltoBloque};
    s << quint16{3} << quint16{0};
    for (int i = 0; i < 4; ++i) s << enElTrazo;
    s << qint16{Margen} << qint16{0} << largo << qint16{0};
    s << qint16{0} << qint16{AltoBloque} << qint16{0} << static_cast<qint16>(-AltoBloque);
  });
}

// Only the block has an outline.
QByteArray Loca(qsizetype bloque) {
  return Bytes([bloque](QDataStream& s) {
    s << quint32{0} << quint32{0} << static_cast<quint32>(bloque) << static_cast<quint32>(bloque);
  });
}

QByteArray Name(const QString& estilo) {
  const std::map<quint16, QString> nombres{{1, Familia}, {2, estilo}, {4, Familia + estilo}};
  return Bytes([&nombres](QDataStream& s) {
    s << quint16{0} << static_cast<quint16>(nombres.size());
    s << static_cast<quint16>(6 + 12 * nombres.size());
    quint16 donde = 0;
    for (const auto& [cual, texto] : nombres) {
      const auto largo = static_cast<quint16>(2 * texto.size());
      s << quint16{3} << quint16{1} << quint16{0x409} << cual << largo << donde;
      donde = static_cast<quint16>(donde + largo);
    }
    for (const auto& nombre : nombres) {
      for (const QChar letra : nombre.second) s << letra.unicode();
    }
  });
}

QByteArray FontFile(quint16 ancho, bool negrita) {
  const QByteArray glyf = Glyf(ancho);
  const std::map<QByteArray, QByteArray> tablas{
      {"cmap", Cmap()},
      {"glyf", glyf},
      {"head", Head(negrita)},
      {"hhea", Hhea(ancho)},
      {"hmtx", Hmtx(ancho)},
      {"loca", Loca(glyf.size())},
      {"maxp", Maxp()},
      {"name", Name(negrita ? QStringLiteral("Bold") : QStringLiteral("Regular"))}};
  const auto cuantas = static_cast<quint16>(tablas.size());
  QByteArray cuerpo;
  return Bytes([&](QDataStream& s) {
    s << quint32{0x00010000} << cuantas << quint16{128} << quint16{3} << quint16{0};
    for (const auto& [marca, datos] : tablas) {
      s.writeRawData(marca.constData(), 4);
      s << quint32{0} << static_cast<quint32>(12 + 16 * cuantas + cuerpo.size());
      s << static_cast<quint32>(datos.size());
      cuerpo += datos;
    }
    s.writeRawData(cuerpo.constData(), static_cast<int>(cuerpo.size()));
  });
}

bool Register(quint16 ancho, bool negrita) {
  return QFontDatabase::addApplicationFontFromData(FontFile(ancho, negrita)) >= 0;
}

}  // namespace

QFont BlockFont(int pixeles) {
  static const bool registrada = Register(AnchoNormal, false) && Register(AnchoNegrita, true);
  EXPECT_TRUE(registrada);
  QFont fuente{Familia};
  fuente.setPixelSize(pixeles);
  fuente.setHintingPreference(QFont::PreferNoHinting);
  return fuente;
}

}  // namespace tasca::test
