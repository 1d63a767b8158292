// The drawn table at six moments, compared with pictures and places on file (pictures/). The
// letters are blocks of a font of the test, so that no font of the system changes anything.
// TASCA_PICTURES=write writes the files anew instead.
#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <array>
#include <ostream>
#include <string>
#include <vector>

#include "tests/support/tables.h"
#include "tests/ui_qt/block_font.h"
#include "tests/ui_qt/moments.h"
#include "tests/ui_qt/picture_file.h"
#include "tests/ui_qt/picture_places.h"
#include "tests/ui_qt/player.h"
#include "ui/mesa/window_layout.h"
#include "ui/qt/mesa_letters.h"
#include "ui/qt/mesa_painter.h"
#include "ui/qt/mesa_view.h"
#include "ui/qt/score_view.h"

namespace tasca::test {
namespace {

constexpr int Pixeles = 13;

bool AreWritten() { return qEnvironmentVariable("TASCA_PICTURES") == QLatin1String{"write"}; }

QString OnFile(const std::string& nombre) {
  return QStringLiteral(TASCA_SOURCE_DIR "/tests/ui_qt/pictures/") + QString::fromStdString(nombre);
}

QString InBuild(const std::string& nombre) {
  return QStringLiteral(TASCA_PICTURES_DIR "/") + QString::fromStdString(nombre);
}

struct Theme {
  const char* Nombre;
  QRgb Ventana, Texto;
};
constexpr std::array<Theme, 2> Themes{
    {{"light", 0xFFEFF0F1, 0xFF232629}, {"dark", 0xFF2A2E32, 0xFFFCFCFC}}};

// The window's parts with fixed heights for what the desktop's style decides.
PartesVentana PartsOf(QSize tamano) {
  MedidasVentana v;
  v.Ancho = tamano.width();
  v.Alto = tamano.height();
  v.Menu = 22;
  v.Letra = Pixeles;
  v.AltoTanteo = 32;
  v.AnchoRotulo = 230;
  v.AltoRotulo = 18;
  v.AltoAyuda = 20;
  v.AltoLinea = 22;
  v.MargenTexto = 16;
  return PartesDe(v, 2 * v.AltoLinea);
}

QRect Rounded(const Rect& r) { return ToQt(r).toRect(); }

// A part of the window in a size. The size comes last: whatever moves is at its end then.
template <class View>
void PaintPart(QImage& ventana, View& vista, const Escena& escena, const Rect& donde,
               const QPalette& paleta) {
  vista.setPalette(paleta);
  vista.setFont(BlockFont(Pixeles));
  vista.ShowScene(escena);
  vista.resize(Rounded(donde).size());
  vista.render(&ventana, Rounded(donde).topLeft());
}

// The window without its texts.
QImage PictureOf(const Escena& escena, QSize tamano, const Theme& tema) {
  QPalette paleta;
  paleta.setColor(QPalette::Window, QColor{tema.Ventana});
  paleta.setColor(QPalette::WindowText, QColor{tema.Texto});
  QImage ventana{tamano, QImage::Format_RGB32};
  ventana.fill(QColor{tema.Ventana});
  const PartesVentana partes = PartsOf(tamano);
  MesaView mesa{nullptr, [] {}};
  PaintPart(ventana, mesa, escena, partes.Mesa, paleta);
  ScoreView marcador{nullptr};
  PaintPart(ventana, marcador, escena, partes.Tanteo, paleta);
  return ventana;
}

// Where everything lies, one piece a line.
std::string PlacesOf(const Escena& escena, QSize tamano) {
  const PartesVentana partes = PartsOf(tamano);
  MesaLetters letras{BlockFont(Pixeles)};
  const auto sitio = [](const Rect& r) {
    const QSizeF medida = Rounded(r).size();
    return Rect{0, 0, medida.width(), medida.height()};
  };
  const Lamina hoja = LaminaDe(escena, sitio(partes.Mesa), letras.Pixels(), letras.Measure());
  return PlacesOfSheet(hoja) + "score\n" +
         PlacesOfPieces(
             MarcadorDe(escena, sitio(partes.Tanteo), letras.Pixels(), letras.Measure()));
}

void ExpectPicture(const QImage& vista, const std::string& nombre) {
  const QImage esperada{OnFile(nombre + ".png")};
  ASSERT_EQ(esperada.size(), vista.size()) << nombre;
  // Rounding may differ here and there. A card that is moved by a pixel has hundreds of them.
  constexpr int perdonados = 20;
  const Comparison c = Compare(vista, esperada);
  if (c.Distintos <= perdonados) return;
  const QString actual = InBuild(nombre + "-actual.png");
  const QString diferencia = InBuild(nombre + "-difference.png");
  EXPECT_TRUE(vista.save(actual) && c.Dibujo.save(diferencia));
  ADD_FAILURE() << nombre << ": " << c.Distintos << " pixels differ, see " << Utf8(actual)
                << " and " << Utf8(diferencia);
}

void WriteText(const QString& archivo, const std::string& texto) {
  QFile salida{archivo};
  ASSERT_TRUE(salida.open(QIODevice::WriteOnly)) << Utf8(archivo);
  ASSERT_EQ(salida.write(QByteArray::fromStdString(texto)), static_cast<qint64>(texto.size()));
}

std::string ReadText(const QString& archivo) {
  QFile entrada{archivo};
  EXPECT_TRUE(entrada.open(QIODevice::ReadOnly)) << Utf8(archivo);
  return entrada.readAll().toStdString();
}

struct Caso {
  QSize Tamano;
  Instante Cual;

  // "start_800x600".
  std::string Nombre() const {
    return Cual.Nombre + "_" + std::to_string(Tamano.width()) + "x" +
           std::to_string(Tamano.height());
  }
  friend std::ostream& operator<<(std::ostream& s, const Caso& caso) { return s << caso.Nombre(); }
};

std::vector<Caso> Casos() {
  std::vector<Caso> casos;
  for (const QSize tamano : {QSize{800, 600}, {1280, 800}}) {
    for (const Instante& instante : SeisInstantes()) casos.push_back({tamano, instante});
  }
  return casos;
}

class GoldenPictures : public testing::TestWithParam<Caso> {
 protected:
  QSize tamano_ = GetParam().Tamano;
  std::string nombre_ = GetParam().Nombre();
  Escena escena_ = EscenaDe(GetParam().Cual.Mesa, GetParam().Cual.Cuando);
};

TEST_P(GoldenPictures, KeepTheirPlaces) {
  const std::string lugares = PlacesOf(escena_, tamano_);
  const QString archivo = OnFile(nombre_ + ".txt");
  if (AreWritten()) WriteText(archivo, lugares);
  EXPECT_EQ(lugares, ReadText(archivo));
}

TEST_P(GoldenPictures, KeepTheirLooks) {
  for (const Theme& tema : Themes) {
    const QImage vista = PictureOf(escena_, tamano_, tema);
    const std::string nombre = nombre_ + "_" + tema.Nombre;
    if (AreWritten()) {
      EXPECT_TRUE(WithFewColours(vista).save(OnFile(nombre + ".png"), nullptr, 0));
    }
    ExpectPicture(vista, nombre);
  }
}

INSTANTIATE_TEST_SUITE_P(Windows, GoldenPictures, testing::ValuesIn(Casos()));

}  // namespace
}  // namespace tasca::test
