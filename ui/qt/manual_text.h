#pragma once
// The text of the manual: the chapters as one document, with links between its headings.
#include <QTextBrowser>
#include <vector>

#include "ui/qt/manual_pictures.h"

namespace tasca {

class ManualText : public QTextBrowser {
 public:
  explicit ManualText(QWidget* padre);

  struct Entry {
    int Level = 1;  // 1 for a chapter
    QString Title;
    QString Anchor;
  };
  // The headings in their order.
  const std::vector<Entry>& Entries() const { return titulos_; }
  // The anchor of the heading above the first visible line; "" before the first heading.
  QString CurrentAnchor() const;

  // Scrolls to a heading, and remembers the way back.
  void GoTo(const QString& ancla);
  // Selects the next occurrence, or the one before, and starts again at the other end. Ignores case
  // and accents. False if there is none.
  bool Find(const QString& buscado, bool haciaAtras);
  // Makes the letters larger or smaller, within limits, and keeps the place.
  void Zoom(int pasos);
  // Sets the size of the letters from the application's and the zoom.
  void FitFont();

 protected:
  QVariant loadResource(int tipo, const QUrl& direccion) override;
  // Follows only links inside the manual.
  void doSetSource(const QUrl& direccion, QTextDocument::ResourceType tipo) override;
  void changeEvent(QEvent* suceso) override;
  void wheelEvent(QWheelEvent* suceso) override;

 private:
  // Reads the chapters. Again when the colours change: the text has those of its links.
  void Load();
  void NameHeadings();
  // The position in the document of the first visible line.
  int FirstVisible() const;
  void ScrollTo(int posicion);

  ManualPictures* dibujos_;
  std::vector<Entry> titulos_;
  int aumento_ = 0;
  bool cargando_ = false;
};

}  // namespace tasca
