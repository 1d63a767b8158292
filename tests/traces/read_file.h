#pragma once
// A whole file in one text.
#include <filesystem>
#include <string>

namespace tasca::test {

// Throws std::runtime_error when the file cannot be read.
std::string ReadFile(const std::filesystem::path& file);

}  // namespace tasca::test
