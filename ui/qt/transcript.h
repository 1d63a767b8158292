#pragma once
// The transcript Text2: a read-only text box that shows its end.
#include <QPlainTextEdit>

namespace tasca {

// Replaces the text from the first difference on, so that screen readers announce only what is new.
void ReplaceDifference(QTextDocument& documento, const QString& texto);

class Transcript : public QPlainTextEdit {
 public:
  explicit Transcript(QWidget* padre);

  // Replaces the text from the first difference on. Scrolls to the end.
  void ShowText(const QString& texto);
  // Scrolls one page forwards (1) or backwards (-1).
  void ScrollPages(int paginas);
  // Where the last line with anything in it stands, in the box's own coordinates.
  QRect LastLine() const;

 protected:
  void resizeEvent(QResizeEvent* suceso) override;

 private:
  // Also called after a resize, which would leave the view in the middle.
  void ScrollToEnd();
};

}  // namespace tasca
