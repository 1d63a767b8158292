#pragma once
// The owner and the permissions of files.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

namespace tasca::test {

// Fails the test if the file cannot be examined. Follows links.
inline struct stat StatusOf(const std::filesystem::path& ruta) {
  struct stat datos {};
  EXPECT_EQ(::stat(ruta.c_str(), &datos), 0);
  return datos;
}

// The permission bits, with setuid, setgid and sticky.
inline mode_t PermissionsOf(const std::filesystem::path& ruta) {
  return StatusOf(ruta).st_mode & 07777U;
}

struct Owner {
  uid_t User = 0;
  gid_t Group = 0;

  bool operator==(const Owner&) const = default;
};

inline Owner OwnerOf(const std::filesystem::path& ruta) {
  const struct stat datos = StatusOf(ruta);
  return {datos.st_uid, datos.st_gid};
}

}  // namespace tasca::test
