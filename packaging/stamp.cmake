# Gives all files of the package the time of SOURCE_DATE_EPOCH. Run by CPack before it packs them.
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
  message(FATAL_ERROR "SOURCE_DATE_EPOCH is not set: ./package sets it")
endif()
execute_process(
  COMMAND find ${CPACK_TEMPORARY_INSTALL_DIRECTORY} -exec
          touch --no-dereference --date=@$ENV{SOURCE_DATE_EPOCH} {} +
  COMMAND_ERROR_IS_FATAL ANY)
