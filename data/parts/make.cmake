# Makes the libraries of parts that come with the program:
#   cmake -DPROGRAM=pelorium-script -DSOURCE=data/parts -DTARGET=folder -P make.cmake
file(REMOVE_RECURSE ${TARGET})
foreach(library parts0 parts1 parts2 parts3)
  file(MAKE_DIRECTORY ${TARGET}/${library})
endforeach()
execute_process(COMMAND ${PROGRAM} --home ${TARGET} ${SOURCE}/starter.script COMMAND_ERROR_IS_FATAL ANY)
file(GLOB materials ${TARGET}/parts0/*_materialfile.mtl)  # every export writes one
file(REMOVE ${materials})
file(COPY ${SOURCE}/presetlist.txt DESTINATION ${TARGET}/parts0)
