# SPDX-License-Identifier: GPL-3.0-or-later
# Drives the browser edition's Emscripten tree (build-*/web) from the main
# build, and runs every scenario script a second time on the WebAssembly
# driver under Node. Emscripten's cache lives in that tree, seeded from the
# system's prebuilt libraries, because the system's own may not be writable.

find_program(CARDHAVEN_EMCMAKE emcmake)
find_program(CARDHAVEN_NODE NAMES node nodejs)
if(CARDHAVEN_EMCMAKE AND CARDHAVEN_NODE)
  set(web_default ON)
else()
  set(web_default OFF)
endif()
option(CARDHAVEN_WEB "Build the browser edition with Emscripten" ${web_default})
if(NOT CARDHAVEN_WEB)
  return()
endif()

set(CARDHAVEN_WEB_DIR ${PROJECT_BINARY_DIR}/web)
set(CARDHAVEN_EM_CACHE ${CARDHAVEN_WEB_DIR}/emcache)
set(web_env ${CMAKE_COMMAND} -E env EM_CACHE=${CARDHAVEN_EM_CACHE} NODE_PATH=/usr/share/nodejs)

include(ExternalProject)
ExternalProject_Add(cardhaven_web
  SOURCE_DIR ${PROJECT_SOURCE_DIR}
  BINARY_DIR ${CARDHAVEN_WEB_DIR}
  TMP_DIR ${CARDHAVEN_WEB_DIR}/ep/tmp
  STAMP_DIR ${CARDHAVEN_WEB_DIR}/ep/stamp
  CONFIGURE_COMMAND ${CMAKE_COMMAND} -DCACHE=${CARDHAVEN_EM_CACHE} -P ${PROJECT_SOURCE_DIR}/cmake/SeedEmCache.cmake
    COMMAND ${web_env} emcmake ${CMAKE_COMMAND} -S <SOURCE_DIR> -B <BINARY_DIR> -G Ninja
            -DCMAKE_BUILD_TYPE=Release -DCARDHAVEN_TESTS=OFF -DCARDHAVEN_QT=OFF
            -DCMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER}
            -DCARDHAVEN_WEB_URL=${CARDHAVEN_WEB_URL}
  BUILD_COMMAND ${web_env} ${CMAKE_COMMAND} --build <BINARY_DIR>
  INSTALL_COMMAND ""
  BUILD_ALWAYS ON
  USES_TERMINAL_BUILD ON)

if(CARDHAVEN_TESTS)
  # Node 18 and later fetch a module's wasm through their own fetch(), which
  # does not read files; the loader then falls back to reading the file.
  set(web_node ${CARDHAVEN_NODE} --no-experimental-fetch)
  foreach(script ${CARDHAVEN_SCENARIOS})
    get_filename_component(name ${script} NAME_WE)
    add_test(NAME wasm.scenario.${name}
             COMMAND ${web_node} ${CARDHAVEN_WEB_DIR}/cardhaven-script.js --data ${CARDHAVEN_DATA_DIR} ${script})
  endforeach()
  add_test(NAME wasm.scenario.sumfall_command_line
           COMMAND ${web_node} ${CARDHAVEN_WEB_DIR}/cardhaven-script.js --data ${CARDHAVEN_DATA_DIR}
                   --command ${PROJECT_SOURCE_DIR}/tests/scenarios/command/cleo.sfl
                   ${PROJECT_SOURCE_DIR}/tests/scenarios/command/sumfall_command_line.script)
endif()

# The site: every file of the web edition in one folder for any static host.
if(CARDHAVEN_QT)
  set(CARDHAVEN_SITE_DIR ${PROJECT_BINARY_DIR}/site)
  add_custom_target(cardhaven_site ALL
    COMMAND ${PROJECT_SOURCE_DIR}/tools/web/site.sh ${CARDHAVEN_SITE_DIR} $<TARGET_FILE:cardhaven>
            ${CARDHAVEN_WEB_DIR} ${CARDHAVEN_DATA_DIR} ${PROJECT_VERSION}
    COMMENT "Putting the web edition together in ${CARDHAVEN_SITE_DIR}"
    VERBATIM)
  add_dependencies(cardhaven_site cardhaven_web cardhaven cardhaven_data)
endif()

# The page in a headless Chromium (tests/web). Skipped, and said so, where no
# Chromium can run; never in CI.
if(CARDHAVEN_TESTS AND CARDHAVEN_QT)
  add_test(NAME web.page COMMAND ${PROJECT_SOURCE_DIR}/tools/web/page-tests.sh ${CARDHAVEN_SITE_DIR})
  set_tests_properties(web.page PROPERTIES SKIP_RETURN_CODE 77 TIMEOUT 600 RESOURCE_LOCK chromium)
endif()
