# Copies the game's files beside the programs. A "mus.ini" that is already there holds the player's
# name and settings and is left alone.
file(GLOB data_files ${FROM}/*.dat ${FROM}/*.mp3 ${FROM}/*.wav)
file(COPY ${data_files} DESTINATION ${TO})
if(NOT EXISTS ${TO}/mus.ini)
  file(COPY ${FROM}/mus.ini DESTINATION ${TO})
endif()
