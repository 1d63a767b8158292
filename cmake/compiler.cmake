# Compiler and linker flags of all targets.
add_compile_options(-Wall -Wextra -Wconversion -Wshadow -Wpedantic -Werror)

# No fused multiply-add: arithmetic on draws must give the same result on every machine.
add_compile_options(-ffp-contract=off)

# Bounds checks of the standard library's containers in every build. Their cost is not measurable
# here.
add_compile_definitions(_GLIBCXX_ASSERTIONS)

# Hardening against memory errors, in the native builds without sanitizers or coverage.
if(NOT TASCA_SANITIZE AND NOT TASCA_COVERAGE AND NOT TASCA_FUZZ AND NOT EMSCRIPTEN)
  set(TASCA_HARDENED ON)
  include(CheckCXXCompilerFlag)
  include(CheckPIESupported)
  check_pie_supported()
  set(CMAKE_POSITION_INDEPENDENT_CODE ON)
  # -fno-semantic-interposition keeps functions inlinable in position-independent code.
  add_compile_options(-fno-semantic-interposition -fstack-protector-strong)
  add_link_options(-Wl,-z,relro -Wl,-z,now)
  check_cxx_compiler_flag(-fcf-protection TASCA_HAS_CF_PROTECTION)  # x86 only
  if(TASCA_HAS_CF_PROTECTION)
    add_compile_options(-fcf-protection)
  endif()
  # _FORTIFY_SOURCE requires optimisation.
  add_compile_options($<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE$<SEMICOLON>-D_FORTIFY_SOURCE=3>)
endif()

if(TASCA_SANITIZE)
  set(sanitizers -fsanitize=address,undefined,float-cast-overflow)
  # Only clang detects implicit conversions that change a value, such as a truncation to 16 bits.
  if(CMAKE_CXX_COMPILER_ID STREQUAL Clang)
    list(APPEND sanitizers -fsanitize=implicit-conversion
      -fsanitize-ignorelist=${PROJECT_SOURCE_DIR}/cmake/system_headers.ignore)
  endif()
  add_compile_options(${sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(${sanitizers})
endif()

if(TASCA_COVERAGE)
  # Atomic, because several tests run at once and share the counters' files.
  add_compile_options(--coverage -fprofile-update=atomic)
  add_link_options(--coverage)
endif()

# Coverage-guided fuzzing; any finding of a sanitizer ends the run. Comparison tracing would cost a
# third of the speed; the dictionary fuzz/words replaces it.
if(TASCA_FUZZ)
  add_compile_options(
    -fsanitize=fuzzer-no-link,address,undefined,float-cast-overflow,implicit-conversion
    -fno-sanitize-recover=all -fno-sanitize-coverage=trace-cmp -fno-omit-frame-pointer
    -fsanitize-ignorelist=${PROJECT_SOURCE_DIR}/cmake/system_headers.ignore
    -fsanitize-ignorelist=${PROJECT_SOURCE_DIR}/fuzz/foreign.txt
    -fsanitize-coverage-ignorelist=${PROJECT_SOURCE_DIR}/fuzz/unwatched.txt)
  add_link_options(-fsanitize=address,undefined)
endif()

# All programs in one folder, beside the game's files.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
