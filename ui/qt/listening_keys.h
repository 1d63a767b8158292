#pragma once
// The keys for listening: F2 to F5 in the main window and in its boxes.
#include <QObject>
#include <QWidget>
#include <array>
#include <functional>

namespace tasca {

// What the player can ask to hear.
enum class Escucha { Ultimo, Mano, Tanteo, QuienEsMano };

// An entry of the menu "Juego" with its key.
struct ListeningEntry {
  Escucha Que;
  Qt::Key Tecla;
  const char* Nombre;  // the object name
  const char* Texto;
};

inline constexpr std::array<ListeningEntry, 4> ListeningEntries{
    {{Escucha::Ultimo, Qt::Key_F2, "EscucharUltimo", "&Repetir lo último\tF2"},
     {Escucha::Mano, Qt::Key_F3, "EscucharMano", "&Decir sus cartas\tF3"},
     {Escucha::Tanteo, Qt::Key_F4, "EscucharTanteo", "Decir el &tanteo y los envites\tF4"},
     {Escucha::QuienEsMano, Qt::Key_F5, "EscucharQuienEsMano", "Decir quién es &mano\tF5"}}};

// Filters the keys in `ventana` and in the boxes over it: a shortcut would not work there. The
// other windows keep theirs.
class ListeningKeys : public QObject {
 public:
  ListeningKeys(QWidget& ventana, std::function<void(Escucha)> alPedir);

  bool eventFilter(QObject* objeto, QEvent* suceso) override;

 private:
  QWidget& ventana_;
  std::function<void(Escucha)> alPedir_;
};

}  // namespace tasca
