# Fails when the pictures or the tables of strokes are not, byte for byte, what art/make_deck.py makes.
# cmake -DROOT=<the project's folder> -DWORK=<a folder of its own> -P deck_is_up_to_date.cmake
file(REMOVE_RECURSE "${WORK}")
execute_process(
  COMMAND python3 -B "${ROOT}/art/make_deck.py" "${WORK}" "${WORK}/deck_strokes.inc"
  RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "art/make_deck.py: ${status}")
endif()

function(must_be_equal made kept)
  execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files "${made}" "${kept}"
    RESULT_VARIABLE status ERROR_QUIET)
  if(NOT status EQUAL 0)
    message(SEND_ERROR "${kept} is not what the drawings make: build the target \"deck\".")
  endif()
endfunction()

foreach(folder cards icons)
  file(GLOB made RELATIVE "${WORK}/${folder}" "${WORK}/${folder}/*")
  file(GLOB kept RELATIVE "${ROOT}/art/${folder}" "${ROOT}/art/${folder}/*")
  if(NOT made STREQUAL kept)
    message(SEND_ERROR "art/${folder} holds ${kept}; the drawings make ${made}.")
  endif()
  foreach(picture IN LISTS made)
    must_be_equal("${WORK}/${folder}/${picture}" "${ROOT}/art/${folder}/${picture}")
  endforeach()
endforeach()
must_be_equal("${WORK}/deck_strokes.inc" "${ROOT}/ui/qt/deck_strokes.inc")
