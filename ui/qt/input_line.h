#pragma once
// The input line of the table: it shows the hand, takes the keys that drive the game, and grows
// when it has several lines to show.
#include <QPlainTextEdit>
#include <functional>

namespace tasca {

class InputLine : public QPlainTextEdit {
 public:
  // Asked first about every key; true when it has been used up.
  using KeyHandler = std::function<bool(const QKeyEvent&)>;

  InputLine(QWidget* padre, KeyHandler alPulsar);

  // Replaces what stands there, what was typed included. The same text keeps its cursor.
  void ShowText(const QString& texto);

 protected:
  void keyPressEvent(QKeyEvent* suceso) override;
  void insertFromMimeData(const QMimeData* datos) override;
  void resizeEvent(QResizeEvent* suceso) override;
  void changeEvent(QEvent* suceso) override;

 private:
  void FitHeight();

  KeyHandler alPulsar_;
};

}  // namespace tasca
