#pragma once
// Runs a part of a test without root privileges.
#include "tests/support/temp_folder.h"

namespace tasca::test {

// During its lifetime a test started by root has the user id of nobody, so that file permissions
// apply. The folder and its entries are given to that user. Does nothing for other users.
class PlainUser {
 public:
  explicit PlainUser(const TempFolder& carpeta);
  PlainUser(const PlainUser&) = delete;
  PlainUser& operator=(const PlainUser&) = delete;
  ~PlainUser();

 private:
  bool eraRoot_;
};

}  // namespace tasca::test
