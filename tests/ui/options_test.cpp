// The chosen folder, and the arguments that are no options.
#include "ui/options.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/ui/variable.h"

namespace tasca::test {
namespace {

namespace fs = std::filesystem;
using Words = std::vector<const char*>;
using Texts = std::vector<std::string_view>;

constexpr ProgramOptions Elige{
    .Name = "prueba", .Usage = "", .About = "", .TakesArguments = true, .TakesFolder = true};

std::optional<fs::path> Chosen(const Words& argumentos) {
  Words todos{"prueba"};
  todos.insert(todos.end(), argumentos.begin(), argumentos.end());
  return ChosenFolder(static_cast<int>(todos.size()), todos.data());
}

Texts OperandsOf(const Words& argumentos) {
  Words todos{"prueba"};
  todos.insert(todos.end(), argumentos.begin(), argumentos.end());
  return Operands(Elige, static_cast<int>(todos.size()), todos.data());
}

TEST(ChosenFolder, IsTheOneOfTheOptionOrTheVariable) {
  const Variable nada{"TASCA_CARPETA", nullptr};
  EXPECT_EQ(Chosen({}), std::nullopt);
  EXPECT_EQ(Chosen({"/otra"}), std::nullopt);
  EXPECT_EQ(Chosen({"--carpeta", "/una"}), "/una");
  EXPECT_EQ(Chosen({"--carpeta=/una"}), "/una");
  EXPECT_EQ(Chosen({"--carpeta=/una", "--carpeta", "/otra"}), "/otra");
  const Variable variable{"TASCA_CARPETA", "/de la variable"};
  EXPECT_EQ(Chosen({}), "/de la variable");
  EXPECT_EQ(Chosen({"--carpeta", "/una"}), "/una");
  const Variable vacia{"TASCA_CARPETA", ""};
  EXPECT_EQ(Chosen({}), std::nullopt);
}

TEST(ChosenFolder, IsSeenFromTheCurrentFolder) {
  const Variable nada{"TASCA_CARPETA", nullptr};
  EXPECT_EQ(Chosen({"--carpeta", "una"}), fs::current_path() / "una");
  const Variable variable{"TASCA_CARPETA", "otra"};
  EXPECT_EQ(Chosen({}), fs::current_path() / "otra");
}

TEST(Operands, AreTheArgumentsWithoutTheFolder) {
  EXPECT_EQ(OperandsOf({}), Texts{});
  EXPECT_EQ(OperandsOf({"a", "--carpeta", "b", "c"}), (Texts{"a", "c"}));
  EXPECT_EQ(OperandsOf({"--carpeta=b", "c"}), Texts{"c"});
  EXPECT_EQ(OperandsOf({"--carpeta"}), Texts{});
}

}  // namespace
}  // namespace tasca::test
