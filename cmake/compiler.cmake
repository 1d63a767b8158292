# Flags that every target of ours is built with.
add_compile_options(-Wall -Wextra -Wconversion -Wshadow -Wpedantic -Werror)

# Draws are single-precision arithmetic, each operation rounded on its own.
add_compile_options(-ffp-contract=off)

# Array and container bounds of the standard library are checked in every build; it costs nothing here.
add_compile_definitions(_GLIBCXX_ASSERTIONS)

if(TASCA_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# All programs in one folder: it is the program's folder, where the game's files lie.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
