#pragma once
// The transcript of the table: what has been said and done, read-only, always showing its end.
#include <QPlainTextEdit>

namespace tasca {

class Transcript : public QPlainTextEdit {
 public:
  explicit Transcript(QWidget* padre);

  // Changes only what differs from what is shown, so that a screen reader reads what is new, and
  // scrolls to the end.
  void ShowText(const QString& texto);
  // Moves the view by whole pages, backwards with -1.
  void ScrollPages(int paginas);

 protected:
  void resizeEvent(QResizeEvent* suceso) override;

 private:
  void ScrollToEnd();
};

}  // namespace tasca
