#pragma once
// The other end of Connection: how tasca-sound hears from the game, and how it limits its own time.
// The platform's code is in game_link_posix.cpp.
#include <optional>
#include <string>
#include <string_view>

namespace tasca {

// What WaitForGame has seen.
enum class Heard { Packet, Nothing, Interrupted };

// Waits for a packet, or for the end of the connection, at most so many milliseconds; -1 is for
// ever.
Heard WaitForGame(int milisegundos);

// The next packet; nothing once the game has closed the connection. Blocks.
std::optional<std::string> ReceiveFromGame();

// Ignores errors: a game that has ended needs no answer.
void SendToGame(std::string_view paquete);

// Ends the program if it lives for over ten seconds: a call into the sound system hangs.
class Watchdog {
 public:
  Watchdog();
  Watchdog(const Watchdog&) = delete;
  Watchdog& operator=(const Watchdog&) = delete;
  ~Watchdog();
};

}  // namespace tasca
