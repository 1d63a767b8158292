#pragma once
// The search of a window that shows a text: a field, the buttons "Anterior" and "Siguiente", and
// the notice that nothing was found. Ctrl+F, F3 and Shift+F3 work in the whole window.
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QWidget>
#include <functional>

namespace tasca {

// A small button with an arrow and an accessible name.
QToolButton* ArrowButton(QWidget* padre, const char* nombre, Qt::ArrowType flecha,
                         const QString& dicho);

class SearchBar : public QWidget {
 public:
  // Selects the next occurrence, or the one before. False if there is none.
  using Finder = std::function<bool(const QString& buscado, bool haciaAtras)>;

  // `dicho` is the field's accessible name.
  SearchBar(QWidget* ventana, const QString& dicho, Finder alBuscar);

 private:
  void AddShortcuts(QWidget* ventana);
  void Search(bool haciaAtras);

  Finder alBuscar_;
  QLabel* aviso_;
  QLineEdit* buscado_;
  QToolButton* anterior_;
  QToolButton* siguiente_;
};

}  // namespace tasca
