# Adds what Debian wants within each package beyond what is installed elsewhere: manuals and lists of changes
# compressed, the licence beside them, and what its checker is to pass over.
function(compress file)
  execute_process(COMMAND gzip -9nf ${file} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

file(GLOB packages ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/*)
foreach(package IN LISTS packages)
  cmake_path(GET package FILENAME name)
  set(documents ${package}/usr/share/doc/${name})
  configure_file(${CPACK_TAVIK_SOURCE}/CHANGELOG.md ${documents}/changelog COPYONLY)
  configure_file(${CPACK_TAVIK_SOURCE}/packaging/debian/changelog.in ${documents}/changelog.Debian @ONLY)
  configure_file(${CPACK_TAVIK_SOURCE}/LICENSE ${documents}/copyright COPYONLY)
  configure_file(${CPACK_TAVIK_SOURCE}/packaging/debian/lintian-overrides
    ${package}/usr/share/lintian/overrides/${name} COPYONLY)
  file(GLOB pages ${package}/usr/share/man/man1/*.1)
  foreach(file IN LISTS pages ITEMS ${documents}/changelog ${documents}/changelog.Debian)
    compress(${file})
  endforeach()
endforeach()
