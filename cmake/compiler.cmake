# Flags that every target of ours is built with.
add_compile_options(-Wall -Wextra -Wconversion -Wshadow -Wpedantic -Werror)

# Draws are single-precision arithmetic, each operation rounded on its own.
add_compile_options(-ffp-contract=off)

# Array and container bounds of the standard library are checked in every build; it costs nothing here.
add_compile_definitions(_GLIBCXX_ASSERTIONS)

if(TASCA_SANITIZE)
  set(sanitizers -fsanitize=address,undefined,float-cast-overflow)
  # Only clang sees a value that does not survive a conversion, such as a wrapped 16-bit number.
  if(CMAKE_CXX_COMPILER_ID STREQUAL Clang)
    list(APPEND sanitizers -fsanitize=implicit-conversion
      -fsanitize-ignorelist=${PROJECT_SOURCE_DIR}/cmake/system_headers.ignore)
  endif()
  add_compile_options(${sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(${sanitizers})
endif()

if(TASCA_COVERAGE)
  # Several tests at once count into the same files.
  add_compile_options(--coverage -fprofile-update=atomic)
  add_link_options(--coverage)
endif()

# The fuzzer sees which way our code takes; every fault that a sanitizer knows ends the run. To see what
# is compared with what would cost a third of the speed, and the words of the files are given to it.
if(TASCA_FUZZ)
  add_compile_options(
    -fsanitize=fuzzer-no-link,address,undefined,float-cast-overflow,implicit-conversion
    -fno-sanitize-recover=all -fno-sanitize-coverage=trace-cmp -fno-omit-frame-pointer
    -fsanitize-ignorelist=${PROJECT_SOURCE_DIR}/cmake/system_headers.ignore
    -fsanitize-ignorelist=${PROJECT_SOURCE_DIR}/fuzz/foreign.txt
    -fsanitize-coverage-ignorelist=${PROJECT_SOURCE_DIR}/fuzz/unwatched.txt)
  add_link_options(-fsanitize=address,undefined)
endif()

# All programs in one folder: it is the program's folder, where the game's files lie.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
