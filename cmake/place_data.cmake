# Copies the game's files beside the programs, except those that the player has changed there (the
# characters, with the editor; the name, in "mus.ini"). A file counts as changed if it differs from
# the copy that PLACED keeps of the file last copied.
# cmake -DFROM=<data> -DTO=<programs' folder> -DPLACED=<folder of the copies> -P place_data.cmake

# Sets `same` to whether both files exist and have the same content.
function(compare_files one other same)
  execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${one} ${other}
    RESULT_VARIABLE result OUTPUT_QUIET ERROR_QUIET)
  if(result EQUAL 0)
    set(${same} TRUE PARENT_SCOPE)
  else()
    set(${same} FALSE PARENT_SCOPE)
  endif()
endfunction()

file(MAKE_DIRECTORY ${TO} ${PLACED})
file(GLOB data_files ${FROM}/*.dat ${FROM}/*.ini ${FROM}/*.mp3 ${FROM}/*.wav)
foreach(source IN LISTS data_files)
  get_filename_component(name ${source} NAME)
  compare_files(${source} ${PLACED}/${name} is_placed)
  compare_files(${TO}/${name} ${PLACED}/${name} is_untouched)
  if(is_untouched OR NOT EXISTS ${TO}/${name})
    file(COPY_FILE ${source} ${TO}/${name} ONLY_IF_DIFFERENT)
    file(COPY_FILE ${source} ${PLACED}/${name} ONLY_IF_DIFFERENT)
  elseif(NOT is_placed)
    message(STATUS "${TO}/${name} tiene cambios propios: se deja como está.")
  endif()
endforeach()
