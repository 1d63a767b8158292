#pragma once
// The window of the manual: its contents, its text, and a search. It is a window of its own that
// can be used beside the game, also while a modal box is open.
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QTreeWidget>
#include <QWidget>

#include "ui/qt/manual_text.h"

namespace tasca {

class ManualWindow : public QWidget {
 public:
  ManualWindow();

  // Shows the section with this anchor.
  void ShowSection(const QString& ancla);

 protected:
  bool event(QEvent* suceso) override;

 private:
  // Search bar above, contents at the left, text at the right.
  void BuildLayout();
  QLayout* BuildBar();
  void Connect();
  void AddShortcuts();
  void FillContents();
  // Selects the section that is being read in the contents.
  void FollowText();
  // Selects the next place of the searched text, or says that there is none.
  void Search(bool haciaAtras);

  // The declaration order is the tab order.
  QToolButton* atras_;
  QToolButton* adelante_;
  QLineEdit* buscado_;
  QToolButton* anterior_;
  QToolButton* siguiente_;
  QLabel* aviso_;
  QTreeWidget* indice_;
  ManualText* texto_;
};

}  // namespace tasca
