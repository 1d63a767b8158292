#pragma once
// The game's connection to the program tasca-sound. The platform's code is in connection_posix.cpp.
#include <filesystem>
#include <optional>
#include <string>

namespace tasca {

class Connection {
 public:
  Connection();
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;
  ~Connection();

  // Closes the connection and starts the program with a new one as its standard input. Its output
  // is discarded, because the sound libraries print diagnostics. False on failure.
  bool Start(const std::filesystem::path& programa);
  // Closes the connection, so that Descriptor() becomes readable and Receive() returns "".
  void HangUp();
  // Closes the connection and ends the program.
  void Close();
  bool IsOpen() const { return conexion_ >= 0; }

  // Sends one packet without blocking. False if there is no connection, or on failure.
  bool Send(const std::string& paquete) const;
  // The next packet; "" if the other end has closed the connection; nothing if no packet waits.
  std::optional<std::string> Receive() const;

  // A descriptor for the event loop, the same for all connections: readable while Receive() has
  // something to return.
  int Descriptor() const { return vigia_; }

 private:
  // Opens a new socket pair and returns the program's end of it, or -1.
  int Open();

  int vigia_ = -1;     // epoll descriptor that watches conexion_
  int conexion_ = -1;  // our end of the socket pair
  int proceso_ = 0;    // the program's process, 0 for none
};

}  // namespace tasca
