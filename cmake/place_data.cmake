# Puts the game's files beside the programs. What the player has changed there (the characters, by
# the editor; the name, in "mus.ini") is left as it is: it differs from what was put there last, of
# which PLACED keeps a copy.
# cmake -DFROM=<data> -DTO=<the programs' folder> -DPLACED=<a folder of its own> -P place_data.cmake

# Sets `same` to whether both files exist and hold the same.
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
