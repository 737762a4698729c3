# What CPack makes: the package tavik, and tavik-japanese with the book that makes the program start in the JIS
# code. scripts/package builds and checks both.
set(CPACK_GENERATOR DEB)
set(CPACK_COMPONENTS_ALL tavik tavik-japanese)
set(CPACK_PACKAGE_NAME tavik)
set(CPACK_PACKAGE_VENDOR "The tavik developers")
set(CPACK_PACKAGE_CONTACT "The tavik developers <developers@tavik.invalid>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
# The first line of a description is the summary, for which one of the whole would stand else.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_COMPONENT_TAVIK_DESCRIPTION "characteristics of multilayer chip capacitors
tavik shows how a multilayer chip capacitor behaves in a circuit: capacitance
over temperature and DC bias, temperature rise under a ripple load, allowable
power over frequency. Up to six parts or conditions are compared in one chart.
.
tavik-cli does the same for scripts, without a display.")
set(CPACK_COMPONENT_TAVIK-JAPANESE_DESCRIPTION "Japanese help for tavik, and its start in the JIS code
The help book of tavik in Japanese. With it the program starts with the size
codes, characteristics and part numbers of the JIS code on display.")

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_TAVIK_PACKAGE_NAME tavik)
set(CPACK_DEBIAN_TAVIK_PACKAGE_SECTION electronics)
set(CPACK_DEBIAN_TAVIK_PACKAGE_SHLIBDEPS ON)
# The window system's part of the toolkit is loaded when the program runs.
set(CPACK_DEBIAN_TAVIK_PACKAGE_DEPENDS qt6-qpa-plugins)
set(CPACK_DEBIAN_TAVIK_PACKAGE_RECOMMENDS "fonts-liberation, bash-completion")
set(CPACK_DEBIAN_TAVIK-JAPANESE_PACKAGE_NAME tavik-japanese)
set(CPACK_DEBIAN_TAVIK-JAPANESE_PACKAGE_SECTION doc)
set(CPACK_DEBIAN_TAVIK-JAPANESE_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_TAVIK-JAPANESE_PACKAGE_DEPENDS "tavik (>= ${PROJECT_VERSION})")

set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/finish.cmake)
set(CPACK_TAVIK_SOURCE ${PROJECT_SOURCE_DIR})
include(CPack)
