#pragma once
// A user whom permissions bind, also when the tests are run by root.
#include "tests/support/temp_folder.h"

namespace tasca::test {

// While it lives, the test works as that user, to whom the folder is handed over.
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
