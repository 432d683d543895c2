# The Windows build, included from CMakeLists.txt: the game on the Win32
# console (backend_windows.cpp), no curses, and the tests of the logic. Built
# natively (Visual Studio's CMake or MinGW) or cross-compiled from Linux with
# cmake/mingw-w64.cmake, where the tests run under wine.

if(MSVC)
  # The compiler flags above are GCC's and Clang's.
  set(SKARMADA_MSVC_OPTIONS /W4 /utf-8 /permissive- /D_CRT_SECURE_NO_WARNINGS)
  set_property(DIRECTORY PROPERTY COMPILE_OPTIONS ${SKARMADA_MSVC_OPTIONS})
  set_property(TARGET skarmada_game PROPERTY COMPILE_OPTIONS ${SKARMADA_MSVC_OPTIONS})
endif()

add_executable(skarmada game/shell/main.cpp game/console/backend_windows.cpp)
target_link_libraries(skarmada PRIVATE skarmada_game)

# GoogleTest is rarely installed for Windows compilers: without a package, it
# is built from its sources (Debian's googletest package puts them in
# /usr/src/googletest; elsewhere, point SKARMADA_GTEST_SOURCE at a checkout).
if(SKARMADA_TESTS)
  find_package(GTest QUIET)
  set(SKARMADA_GTEST_SOURCE /usr/src/googletest/googletest
      CACHE PATH "GoogleTest's sources, built when no GoogleTest package is found")
  if(NOT GTest_FOUND AND NOT EXISTS ${SKARMADA_GTEST_SOURCE}/CMakeLists.txt)
    message(WARNING "No GoogleTest package and no sources in ${SKARMADA_GTEST_SOURCE}: "
                    "the tests are not built")
    set(SKARMADA_TESTS OFF)
  endif()
endif()

if(SKARMADA_TESTS)
  enable_testing()
  if(NOT GTest_FOUND)
    set(gtest_force_shared_crt ON CACHE BOOL "" FORCE)
    set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
    add_subdirectory(${SKARMADA_GTEST_SOURCE} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
    foreach(library gtest gtest_main)
      if(NOT MSVC)
        target_compile_options(${library} PRIVATE -w)
      endif()
      if(NOT TARGET GTest::${library})
        add_library(GTest::${library} ALIAS ${library})
      endif()
    endforeach()
  endif()

  # The tests of the logic, on the scripted console. The end-to-end script of
  # the terminal stays with the Unix build.
  file(GLOB_RECURSE TEST_SOURCES CONFIGURE_DEPENDS tests/*.cpp)
  list(FILTER TEST_SOURCES EXCLUDE REGEX "tests/windows/")
  # Tests that stand on POSIX calls (a scratch folder made with mkdtemp, and
  # the like) stay with the Unix build.
  foreach(source ${TEST_SOURCES})
    file(STRINGS ${source} posix_includes
         REGEX "#include [<\"](unistd[.]h|pty[.]h|iconv[.]h|sys/.*|tests/cargo/working_folder[.]h)[>\"]")
    if(posix_includes)
      list(REMOVE_ITEM TEST_SOURCES ${source})
      list(APPEND SKARMADA_POSIX_TESTS ${source})
    endif()
  endforeach()
  if(SKARMADA_POSIX_TESTS)
    list(TRANSFORM SKARMADA_POSIX_TESTS REPLACE "^${CMAKE_CURRENT_SOURCE_DIR}/" "")
    message(STATUS "Tests left to the Unix build: ${SKARMADA_POSIX_TESTS}")
  endif()
  add_executable(skarmada_tests ${TEST_SOURCES} game/console/backend_scripted.cpp)
  target_link_libraries(skarmada_tests PRIVATE skarmada_game GTest::gtest GTest::gtest_main)
  target_compile_definitions(skarmada_tests PRIVATE SKARMADA_GOLDEN_DIR="${CMAKE_CURRENT_SOURCE_DIR}/tests/golden")

  # The Windows backend itself, on a real console.
  add_executable(skarmada_console_tests tests/windows/console_backend_test.cpp
                                        game/console/backend_windows.cpp)
  target_link_libraries(skarmada_console_tests PRIVATE skarmada_game GTest::gtest
                                                       GTest::gtest_main)

  if(CMAKE_CROSSCOMPILING AND CMAKE_CROSSCOMPILING_EMULATOR)
    # Under wine: all tests in one run (a start of wine per test would take
    # minutes), and the game played on wine's console in tmux. Wine keeps its
    # prefix in the build folder, made once before the tests.
    set(wine_environment "WINEPREFIX=${CMAKE_BINARY_DIR}/wine" "WINEDEBUG=-all")
    add_test(NAME wine_prefix COMMAND ${CMAKE_CROSSCOMPILING_EMULATOR} wineboot --init)
    set_tests_properties(wine_prefix PROPERTIES FIXTURES_SETUP wine ENVIRONMENT
                                                "${wine_environment}" TIMEOUT 300)
    add_test(NAME windows_unit_tests COMMAND skarmada_tests --gtest_brief=1)
    # The backend on a console of wine's, which wants a terminal.
    add_test(NAME windows_console_backend
             COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/tests/windows/in_console.sh
                     ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:skarmada_console_tests>
                     --gtest_brief=1)
    add_test(NAME windows_end_to_end
             COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/tests/e2e/windows.sh $<TARGET_FILE:skarmada>)
    set_tests_properties(windows_unit_tests windows_console_backend windows_end_to_end
                         PROPERTIES FIXTURES_REQUIRED wine ENVIRONMENT "${wine_environment}"
                                    RESOURCE_LOCK wine TIMEOUT 600 SKIP_RETURN_CODE 77)
  else()
    include(GoogleTest)
    gtest_discover_tests(skarmada_tests DISCOVERY_TIMEOUT 60)
    add_test(NAME windows_console_backend COMMAND skarmada_console_tests)
  endif()
endif()

# The wine benchmark's yardstick (bench/windows/wine_bench.sh).
add_executable(console_echo bench/windows/console_echo.cpp)
