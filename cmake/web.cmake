# The compilation to WebAssembly: flags, and the header-only libraries of the system, of which only
# their own headers may be seen.
set(foreign ${CMAKE_BINARY_DIR}/foreign)
file(MAKE_DIRECTORY ${foreign})
foreach(header IN ITEMS nlohmann utf8 utf8.h)
  file(CREATE_LINK /usr/include/${header} ${foreign}/${header} SYMBOLIC)
endforeach()
include_directories(SYSTEM ${foreign})
add_library(nlohmann_json::nlohmann_json INTERFACE IMPORTED)

# The exceptions of WebAssembly: smaller and faster than those made of JavaScript.
add_compile_options(-fwasm-exceptions)
add_link_options(-fwasm-exceptions -sALLOW_MEMORY_GROWTH -sDYNAMIC_EXECUTION=0)
