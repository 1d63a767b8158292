# Checks cmake/place_data.cmake: it updates the data files beside the programs, except those that
# the player has changed.
# cmake -DROOT=<the project's folder> -DWORK=<a folder to work in> -P places_data.cmake
file(REMOVE_RECURSE ${WORK})

function(place)
  execute_process(
    COMMAND ${CMAKE_COMMAND} -DFROM=${WORK}/from -DTO=${WORK}/to -DPLACED=${WORK}/placed
            -P ${ROOT}/cmake/place_data.cmake
    RESULT_VARIABLE result)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "placing failed")
  endif()
endfunction()

function(expect name content)
  file(READ ${WORK}/to/${name} found)
  if(NOT found STREQUAL content)
    message(FATAL_ERROR "${name} holds \"${found}\", not \"${content}\"")
  endif()
endfunction()

file(WRITE ${WORK}/from/Jugadores.dat "first cast")
file(WRITE ${WORK}/from/mus.ini "settings")
file(WRITE ${WORK}/from/personajes.txt "source")
place()
expect(Jugadores.dat "first cast")
expect(mus.ini "settings")
if(EXISTS ${WORK}/to/personajes.txt)
  message(FATAL_ERROR "what the game does not read was placed too")
endif()

file(WRITE ${WORK}/to/mus.ini "settings of Ana")
file(WRITE ${WORK}/from/Jugadores.dat "second cast")
file(WRITE ${WORK}/from/mus.ini "new settings")
place()
expect(Jugadores.dat "second cast")
expect(mus.ini "settings of Ana")

file(WRITE ${WORK}/to/Jugadores.dat "a cast of one's own")
file(WRITE ${WORK}/from/Jugadores.dat "third cast")
place()
place()
expect(Jugadores.dat "a cast of one's own")

file(REMOVE ${WORK}/to/Jugadores.dat)
place()
expect(Jugadores.dat "third cast")
message(STATUS "Placed, updated, and left alone.")
