#pragma once
// The texts of boxes as screen readers get them: without padding where the box shows the game's
// texts, and as one run of attributes, without which Orca drops the last character of a line.
#include <QAccessibleWidget>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <utility>
#include <vector>

namespace tasca {

// All positions of the interface are those in the text without padding.
class UnpaddedText : public QAccessibleWidget, public QAccessibleTextInterface {
 public:
  explicit UnpaddedText(QWidget& caja) : QAccessibleWidget{&caja, QAccessible::EditableText} {}

  void* interface_cast(QAccessible::InterfaceType clase) override;
  QString text(QAccessible::Text clase) const override;
  QAccessible::State state() const override;

  QString text(int desde, int hasta) const override;
  int characterCount() const override;
  int cursorPosition() const override;
  void setCursorPosition(int sitio) override;
  int selectionCount() const override;
  void selection(int indice, int* desde, int* hasta) const override;
  void addSelection(int desde, int hasta) override;
  void removeSelection(int indice) override;
  void setSelection(int indice, int desde, int hasta) override;
  QRect characterRect(int sitio) const override;
  int offsetAtPoint(const QPoint& punto) const override;
  void scrollToSubstring(int desde, int hasta) override;
  QString attributes(int sitio, int* desde, int* hasta) const override;

 protected:
  // What the box does, in positions of the text that it shows and in points of the screen.
  virtual QString Shown() const = 0;
  virtual bool IsReadOnly() const = 0;
  virtual bool HasPadding() const { return true; }
  virtual int Cursor() const = 0;
  virtual std::pair<int, int> Selected() const = 0;  // equal if nothing is selected
  virtual void Select(int ancla, int cursor) = 0;
  virtual QRect PlaceOf(int sitio) const = 0;
  virtual int PositionAt(const QPoint& punto) const = 0;

  // The position in the shown text.
  int ToShown(int sitio) const;

 private:
  // The positions of the characters that are no padding.
  std::vector<int> Places() const;
  int ToSpoken(int sitio) const;
  // The end in the shown text of a run that begins at `desde`, without the padding after it.
  int EndInShown(int desde, int hasta) const;
};

// A box of several lines with the game's text.
class UnpaddedSheet : public UnpaddedText {
 public:
  explicit UnpaddedSheet(QPlainTextEdit& caja) : UnpaddedText{caja}, caja_{caja} {}

  QAccessible::State state() const override;

 protected:
  QString Shown() const override { return caja_.toPlainText(); }
  bool IsReadOnly() const override { return caja_.isReadOnly(); }
  int Cursor() const override { return caja_.textCursor().position(); }
  std::pair<int, int> Selected() const override;
  void Select(int ancla, int cursor) override;
  QRect PlaceOf(int sitio) const override;
  int PositionAt(const QPoint& punto) const override;

 private:
  QPlainTextEdit& caja_;
};

// A box of one line. Its padding is the game's if it cannot be written into.
class UnpaddedLine : public UnpaddedText, public QAccessibleEditableTextInterface {
 public:
  explicit UnpaddedLine(QLineEdit& caja) : UnpaddedText{caja}, caja_{caja} {}

  void* interface_cast(QAccessible::InterfaceType clase) override;
  void setText(QAccessible::Text clase, const QString& texto) override;
  void deleteText(int desde, int hasta) override { replaceText(desde, hasta, {}); }
  void insertText(int sitio, const QString& texto) override { replaceText(sitio, sitio, texto); }
  // Does nothing if the box is read-only.
  void replaceText(int desde, int hasta, const QString& texto) override;

 protected:
  QString Shown() const override { return caja_.text(); }
  bool IsReadOnly() const override { return caja_.isReadOnly(); }
  bool HasPadding() const override { return caja_.isReadOnly(); }
  int Cursor() const override { return caja_.cursorPosition(); }
  std::pair<int, int> Selected() const override;
  void Select(int ancla, int cursor) override;
  QRect PlaceOf(int sitio) const override;
  int PositionAt(const QPoint& punto) const override;

 private:
  QLineEdit& caja_;
};

}  // namespace tasca
