# Where things are installed. A program and what it looks up beside itself lie in a folder that nobody else
# writes to: in the common folder of programs any stranger's part file would come before its own. There stand
# links alone.
include(GNUInstallDirs)
set(TAVIK_INSTALL_FOLDER lib/tavik)
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME tavik)

# install_program(target): the program in its folder, and the link that a shell finds.
function(install_program target)
  install(TARGETS ${target} RUNTIME DESTINATION ${TAVIK_INSTALL_FOLDER})
  set(link ${CMAKE_BINARY_DIR}/links/${target})
  file(RELATIVE_PATH to_folder /${CMAKE_INSTALL_BINDIR} /${TAVIK_INSTALL_FOLDER})
  file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/links)
  file(CREATE_LINK ${to_folder}/${target} ${link} SYMBOLIC)
  install(FILES ${link} DESTINATION ${CMAKE_INSTALL_BINDIR})
endfunction()
