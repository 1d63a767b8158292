# Flags that every target of ours is built with.
add_compile_options(-Wall -Wextra -Wconversion -Wshadow -Wpedantic -Werror)

# Draws are single-precision arithmetic, each operation rounded on its own.
add_compile_options(-ffp-contract=off)

# Array and container bounds of the standard library are checked in every build; it costs nothing here.
add_compile_definitions(_GLIBCXX_ASSERTIONS)

# What players run: a fault of memory ends the program instead of being used against them. The
# sanitizers look for the same faults themselves, and coverage wants the plain code.
if(NOT TASCA_SANITIZE AND NOT TASCA_COVERAGE AND NOT TASCA_FUZZ)
  set(TASCA_HARDENED ON)
  include(CheckCXXCompilerFlag)
  include(CheckPIESupported)
  check_pie_supported()
  set(CMAKE_POSITION_INDEPENDENT_CODE ON)
  # Keeps functions of the same source inlinable in position-independent code.
  add_compile_options(-fno-semantic-interposition -fstack-protector-strong)
  add_link_options(-Wl,-z,relro -Wl,-z,now)
  check_cxx_compiler_flag(-fcf-protection TASCA_HAS_CF_PROTECTION)  # x86 alone has it
  if(TASCA_HAS_CF_PROTECTION)
    add_compile_options(-fcf-protection)
  endif()
  # Wants an optimised build.
  add_compile_options($<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE$<SEMICOLON>-D_FORTIFY_SOURCE=3>)
endif()

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
