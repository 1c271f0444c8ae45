# SPDX-License-Identifier: GPL-3.0-or-later
# The program's version on its command line, and for the desktop program what
# `cmake --install` puts where and the Debian package CPack makes of it:
#   games/cardhaven                                 the program, where a
#                                                   Debian system keeps games
#   share/cardhaven/                                its sounds and music
#   share/applications/games.quillmark.cardhaven.desktop
#   share/metainfo/games.quillmark.cardhaven.metainfo.xml
#   share/mime/packages/games.quillmark.cardhaven.xml   saved games (.sfl)
#   share/icons/hicolor/NxN/apps/cardhaven.png      drawn by the program
#   share/man/man6/cardhaven.6.gz
#   share/doc/cardhaven/copyright, changelog.gz
# Included at the end of CMakeLists.txt, once the targets exist.

set_property(SOURCE app/main.cpp tools/script/main.cpp APPEND
             PROPERTY COMPILE_DEFINITIONS CARDHAVEN_VERSION="${PROJECT_VERSION}")

# Every tracked source file names its licence (tools/spdx.sh adds the line).
if(CARDHAVEN_TESTS)
  add_test(NAME packaging.licence COMMAND ${PROJECT_SOURCE_DIR}/tests/packaging/licence.sh ${PROJECT_SOURCE_DIR})
  set_tests_properties(packaging.licence PROPERTIES SKIP_RETURN_CODE 77)
endif()

if(NOT CARDHAVEN_QT)
  return()
endif()

# A release tree, the only kind the Debian package is made from: optimised,
# with the compiler and linker flags dpkg-buildflags gives and all of its
# hardening on (a position independent program, fortified library calls, a
# strong stack protector, relocations read-only once loaded). A builder's own
# DEB_BUILD_MAINT_OPTIONS and DEB_*FLAGS_* settings still apply on top.
option(CARDHAVEN_RELEASE "Build a release tree for the Debian package, with Debian's build flags and hardening" OFF)
if(CARDHAVEN_RELEASE)
  if(CARDHAVEN_SANITIZE)
    message(FATAL_ERROR "A release tree is built without the sanitizers")
  endif()
  if(NOT CMAKE_BUILD_TYPE MATCHES "^(RelWithDebInfo|Release)$")
    message(FATAL_ERROR "A release tree is built optimised: -DCMAKE_BUILD_TYPE=RelWithDebInfo")
  endif()
  foreach(kind CPPFLAGS CXXFLAGS LDFLAGS)
    execute_process(COMMAND ${CMAKE_COMMAND} -E env "DEB_BUILD_MAINT_OPTIONS=hardening=+all $ENV{DEB_BUILD_MAINT_OPTIONS}"
                            dpkg-buildflags --get ${kind}
                    WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
                    OUTPUT_VARIABLE CARDHAVEN_${kind} OUTPUT_STRIP_TRAILING_WHITESPACE
                    RESULT_VARIABLE status)
    if(NOT status EQUAL 0)
      message(FATAL_ERROR "dpkg-buildflags --get ${kind} failed (is dpkg-dev installed?)")
    endif()
  endforeach()
  string(APPEND CMAKE_CXX_FLAGS " ${CARDHAVEN_CPPFLAGS} ${CARDHAVEN_CXXFLAGS}")
  string(APPEND CMAKE_EXE_LINKER_FLAGS " ${CARDHAVEN_LDFLAGS}")
  # Programs that link Qt are position independent; this makes the link a PIE
  # link as well, whatever the compiler's default.
  include(CheckPIESupported)
  check_pie_supported(LANGUAGES CXX)
  # The package holds the program alone: the test driver and the fuzzer are
  # built only when asked for.
  set_target_properties(cardhaven-script cardhaven_driver cardhaven-fuzz cardhaven_fuzzing
                        PROPERTIES EXCLUDE_FROM_ALL ON)
endif()

include(GNUInstallDirs)
set(CARDHAVEN_INSTALL_BINDIR games CACHE STRING "Folder under the prefix the program is installed into")
set(CARDHAVEN_APP_ID games.quillmark.cardhaven)
set(CARDHAVEN_PACKAGING_DIR ${PROJECT_SOURCE_DIR}/packaging)

# The icon at the sizes desktops look for, each drawn by the program itself.
set(CARDHAVEN_ICON_SIZES 16 22 24 32 48 64 128 256 512)
set(CARDHAVEN_ICON_FILES)
set(CARDHAVEN_ICON_COMMANDS)
foreach(size ${CARDHAVEN_ICON_SIZES})
  set(file ${PROJECT_BINARY_DIR}/icons/hicolor/${size}x${size}/apps/cardhaven.png)
  list(APPEND CARDHAVEN_ICON_FILES ${file})
  list(APPEND CARDHAVEN_ICON_COMMANDS
       COMMAND ${CMAKE_COMMAND} -E make_directory ${PROJECT_BINARY_DIR}/icons/hicolor/${size}x${size}/apps
       COMMAND $<TARGET_FILE:cardhaven> --write-icon ${file} ${size})
endforeach()
add_custom_command(OUTPUT ${CARDHAVEN_ICON_FILES}
                   ${CARDHAVEN_ICON_COMMANDS}
                   DEPENDS cardhaven
                   COMMENT "Drawing the icon")
add_custom_target(cardhaven_icon ALL DEPENDS ${CARDHAVEN_ICON_FILES})

configure_file(${CARDHAVEN_PACKAGING_DIR}/${CARDHAVEN_APP_ID}.metainfo.xml.in
               ${PROJECT_BINARY_DIR}/${CARDHAVEN_APP_ID}.metainfo.xml @ONLY)
configure_file(${CARDHAVEN_PACKAGING_DIR}/cardhaven.6.in ${PROJECT_BINARY_DIR}/cardhaven.6 @ONLY)
add_custom_command(OUTPUT ${PROJECT_BINARY_DIR}/cardhaven.6.gz
                   COMMAND gzip -9nf -k ${PROJECT_BINARY_DIR}/cardhaven.6
                   DEPENDS ${PROJECT_BINARY_DIR}/cardhaven.6
                   COMMENT "Compressing the manual page")
add_custom_command(OUTPUT ${PROJECT_BINARY_DIR}/changelog.gz
                   COMMAND gzip -9n -c ${CARDHAVEN_PACKAGING_DIR}/changelog > ${PROJECT_BINARY_DIR}/changelog.gz
                   DEPENDS ${CARDHAVEN_PACKAGING_DIR}/changelog
                   COMMENT "Compressing the changelog")
add_custom_target(cardhaven_manual ALL DEPENDS ${PROJECT_BINARY_DIR}/cardhaven.6.gz ${PROJECT_BINARY_DIR}/changelog.gz)

install(TARGETS cardhaven RUNTIME DESTINATION ${CARDHAVEN_INSTALL_BINDIR})
# The installed program carries no .comment section: it holds only the
# versions of the compilers that built its parts.
install(CODE "execute_process(COMMAND \"${CMAKE_OBJCOPY}\" --remove-section=.comment
                              \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CARDHAVEN_INSTALL_BINDIR}/$<TARGET_FILE_NAME:cardhaven>\"
                              COMMAND_ERROR_IS_FATAL ANY)")
install(FILES ${CARDHAVEN_SOUND_FILES} DESTINATION ${CMAKE_INSTALL_DATADIR}/cardhaven)
install(FILES ${CARDHAVEN_PACKAGING_DIR}/${CARDHAVEN_APP_ID}.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${PROJECT_BINARY_DIR}/${CARDHAVEN_APP_ID}.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${CARDHAVEN_PACKAGING_DIR}/cardhaven-mime.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages RENAME ${CARDHAVEN_APP_ID}.xml)
install(DIRECTORY ${PROJECT_BINARY_DIR}/icons/ DESTINATION ${CMAKE_INSTALL_DATADIR}/icons)
install(FILES ${PROJECT_BINARY_DIR}/cardhaven.6.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man6)
install(FILES ${CARDHAVEN_PACKAGING_DIR}/copyright ${PROJECT_BINARY_DIR}/changelog.gz
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/cardhaven)

# The Debian package, from a release tree (CARDHAVEN_RELEASE): cmake --build
# BUILD --target package, or cpack in BUILD.
# The desktop, icon and MIME caches are brought up to date by the triggers of
# the packages that own them, so the package needs no scripts of its own.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME cardhaven)
set(CPACK_PACKAGE_VENDOR Quillmark)
set(CPACK_PACKAGE_CONTACT "Quillmark <cardhaven@quillmark.games>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "seven timed arcade card games")
# The summary above is the package's synopsis; CPack indents these lines.
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Quillmark's Card Haven offers seven single-player card games behind one
selector: Sumfall, Fivestack, Blackrush, Spirehold, Duopick, Handgrid and
Treyshift. Each is played in rounds against the clock, the time left is paid
out as points, and a high score earns a bonus round and a place in the
game's high score table. Saved Sumfall games open from the file manager.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${CARDHAVEN_WEB_URL})
# The libraries the program links come from dpkg-shlibdeps. FluidSynth is
# opened only when the music starts, the windows need Qt's X11 platform
# plugin, and the music its General MIDI soundfont.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins, libfluidsynth3, timgm6mb-soundfont")
# xdg-open for the web site button, and Qt's Wayland platform for sessions
# without X.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-utils, qt6-wayland")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# Any other tree refuses to make the package, once its files are staged.
if(NOT CARDHAVEN_RELEASE)
  set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/NotARelease.cmake)
endif()
include(CPack)

if(CARDHAVEN_TESTS)
  set(CARDHAVEN_PACKAGING_TESTS ${PROJECT_SOURCE_DIR}/tests/packaging)
  add_test(NAME packaging.command_line
           COMMAND ${CARDHAVEN_PACKAGING_TESTS}/command_line.sh $<TARGET_FILE:cardhaven>
                   $<TARGET_FILE:cardhaven-script> ${PROJECT_VERSION})
  add_test(NAME packaging.metadata
           COMMAND ${CARDHAVEN_PACKAGING_TESTS}/metadata.sh ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR})
  # The package comes from a release tree of its own, release/ (configured
  # once, then rebuilt as the sources change), is made once into package-test/
  # and checked, installed and linted from there. The build uses every core.
  add_test(NAME packaging.deb
           COMMAND ${CARDHAVEN_PACKAGING_TESTS}/package.sh ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR}/release
                   ${PROJECT_BINARY_DIR}/package-test "${CMAKE_CXX_COMPILER_LAUNCHER}")
  cmake_host_system_information(RESULT CARDHAVEN_CORES QUERY NUMBER_OF_LOGICAL_CORES)
  set_tests_properties(packaging.deb PROPERTIES FIXTURES_SETUP cardhaven_deb TIMEOUT 2700
                       PROCESSORS ${CARDHAVEN_CORES})
  add_test(NAME packaging.lintian
           COMMAND ${CARDHAVEN_PACKAGING_TESTS}/lintian.sh ${PROJECT_BINARY_DIR}/package-test)
  set_tests_properties(packaging.lintian PROPERTIES FIXTURES_REQUIRED cardhaven_deb)
  add_test(NAME packaging.installed
           COMMAND ${CARDHAVEN_PACKAGING_TESTS}/installed.sh ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR}/package-test)
  set_tests_properties(packaging.installed PROPERTIES FIXTURES_REQUIRED cardhaven_deb RESOURCE_LOCK xvfb)
endif()
