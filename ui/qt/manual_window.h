#pragma once
// The window of the manual: its contents, its text, and a search.
#include <QToolButton>
#include <QTreeWidget>

#include "ui/qt/beside_window.h"
#include "ui/qt/manual_text.h"
#include "ui/qt/search_bar.h"

namespace tasca {

class ManualWindow : public BesideWindow {
 public:
  ManualWindow();

  // Shows the section with this anchor.
  void ShowSection(const QString& ancla);

 protected:
  void changeEvent(QEvent* suceso) override;

 private:
  // Search bar above, contents at the left, text at the right.
  void BuildLayout();
  QLayout* BuildBar();
  void Connect();
  void AddShortcuts();
  void FillContents();
  // Selects the section that is being read in the contents.
  void FollowText();

  // The declaration order is the tab order.
  QToolButton* atras_;
  QToolButton* adelante_;
  SearchBar* busqueda_;
  QTreeWidget* indice_;
  ManualText* texto_;
};

}  // namespace tasca
