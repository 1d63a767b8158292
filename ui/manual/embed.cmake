# Writes the chapters of the manual, in the order of their names, as a C++ source.
# cmake -DFROM=<folder of the chapters> -DTO=<source to write> -P embed.cmake
file(GLOB chapters ${FROM}/*.md)
list(SORT chapters)
set(source "#include \"ui/manual/chapters.h\"\n\n#include <array>\n\nnamespace tasca {\n\n")
string(APPEND source "std::span<const std::string_view> ManualChapters() {\n")
list(LENGTH chapters count)
string(APPEND source "  static constexpr std::array<std::string_view, ${count}> chapters{\n")
foreach(chapter IN LISTS chapters)
  file(READ ${chapter} text)
  string(APPEND source "R\"manual(${text})manual\",\n")
endforeach()
string(APPEND source "  };\n  return chapters;\n}\n\n}  // namespace tasca\n")
file(WRITE ${TO} "${source}")
