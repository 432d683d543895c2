# Installing and packaging. `cmake --install BUILD` puts the game, its manual
# page skarmada(6) and the README where a system keeps them; `cpack` run in
# the build folder makes a Debian package of the same files.
include(GNUInstallDirs)

# Debian and Ubuntu keep games in games/, which is on their users' PATH;
# elsewhere the game goes to bin/.
if(APPLE)
  set(SKARMADA_INSTALL_GAMEDIR ${CMAKE_INSTALL_BINDIR})
else()
  set(SKARMADA_INSTALL_GAMEDIR games)
endif()
install(TARGETS skarmada RUNTIME DESTINATION ${SKARMADA_INSTALL_GAMEDIR})

# The manual page goes in gzipped, as Debian keeps them, when gzip is there.
set(SKARMADA_MANUAL ${CMAKE_CURRENT_SOURCE_DIR}/doc/skarmada.6)
find_program(SKARMADA_GZIP gzip)
if(SKARMADA_GZIP)
  add_custom_command(
    OUTPUT skarmada.6.gz
    COMMAND ${CMAKE_COMMAND} -E copy ${SKARMADA_MANUAL} skarmada.6
    COMMAND ${SKARMADA_GZIP} -9nf skarmada.6
    DEPENDS ${SKARMADA_MANUAL}
    VERBATIM)
  add_custom_target(skarmada_manual ALL DEPENDS skarmada.6.gz)
  set(SKARMADA_MANUAL ${CMAKE_CURRENT_BINARY_DIR}/skarmada.6.gz)
endif()
install(FILES ${SKARMADA_MANUAL} DESTINATION ${CMAKE_INSTALL_MANDIR}/man6)
install(FILES README.md DESTINATION ${CMAKE_INSTALL_DOCDIR})

set(CPACK_PACKAGE_NAME skarmada)
set(CPACK_PACKAGE_VENDOR "The Skarmada developers")
set(CPACK_PACKAGE_CONTACT "The Skarmada developers <skarmada@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "turn-based strategy game for the text terminal")
string(CONCAT CPACK_PACKAGE_DESCRIPTION
       "Captain an alien Mothership come to clear the Earth: walk the ship's\n"
       "decks, steer it from sector to sector, fire the Ion Cannon on the land\n"
       "below and end each day from the Library. Played full screen in an 80x25\n"
       "terminal with the keyboard alone.")
if(APPLE)
  set(CPACK_GENERATOR TGZ)
else()
  set(CPACK_GENERATOR DEB)
endif()
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
# The libraries the game links (ncursesw, the C++ runtime) become the
# package's dependencies: dpkg-shlibdeps (from dpkg-dev, with file) works them
# out, and without them they are named as Debian 12 and Ubuntu 24.04 call them.
find_program(SKARMADA_SHLIBDEPS dpkg-shlibdeps)
find_program(SKARMADA_FILE file)
if(SKARMADA_SHLIBDEPS AND SKARMADA_FILE)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
else()
  set(CPACK_DEBIAN_PACKAGE_DEPENDS "libc6, libgcc-s1, libncursesw6, libstdc++6, libtinfo6")
endif()
include(CPack)
