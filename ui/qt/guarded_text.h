#pragma once
// A text box of the editor that accepts only what the character file can hold, whether typed,
// pasted or composed by an input method. An insertion is accepted or refused as a whole.
#include <QPlainTextEdit>
#include <functional>
#include <string>
#include <string_view>

namespace tasca {

class GuardedText : public QPlainTextEdit {
 public:
  // Called for every insertion, with the reason of a refusal or "" if it is accepted.
  using Refusal = std::function<void(std::u16string_view)>;

  // Accepts up to `maximo` characters and shows `filas` rows.
  GuardedText(QWidget* padre, int maximo, int filas, Refusal alRechazar);

  // The text. If the user has not edited it, exactly the one given to ShowText, including invalid
  // characters of a damaged file; otherwise without those. A text of NULs only gives "".
  std::u16string Text() const;
  void ShowText(std::u16string_view texto);

 protected:
  void keyPressEvent(QKeyEvent* suceso) override;
  void inputMethodEvent(QInputMethodEvent* suceso) override;
  void insertFromMimeData(const QMimeData* datos) override;
  // Getting the focus selects the whole text.
  void focusInEvent(QFocusEvent* suceso) override;

 private:
  struct Snapshot {
    QString Texto;
    int Ancla = 0;
    int Cursor = 0;
  };

  // Whether `insertado` may replace the selection. Calls alRechazar_.
  bool Accepts(const QString& insertado);
  QString Typed() const;
  Snapshot TakeSnapshot() const;
  // Restores text and selection from antes_.
  void Restore();

  int maximo_;
  int filas_;
  Refusal alRechazar_;
  std::u16string mostrado_;   // by ShowText
  Snapshot antes_;            // before the composition
  bool componiendo_ = false;  // an input method has a preedit text
};

}  // namespace tasca
