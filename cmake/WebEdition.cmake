# SPDX-License-Identifier: GPL-3.0-or-later
# Targets of the browser edition, built by Emscripten in a tree of their own
# (see cmake/WebBuild.cmake, which drives this tree from the main one).
#
#   cardhaven-script.js  the headless driver under Node, reading the real disk
#   cardhaven-web.js     the suite in a Web Worker, on the browser platform

# The logic throws (the stop of a run, script errors); without this any throw aborts.
target_compile_options(cardhaven_logic PUBLIC -fexceptions)
target_link_options(cardhaven_logic PUBLIC -fexceptions)

target_link_options(cardhaven-script PRIVATE
  -sNODERAWFS=1 -sALLOW_MEMORY_GROWTH=1 -sEXIT_RUNTIME=1 -sENVIRONMENT=node)

# The suite itself, run by web/worker.js. The worker blocks in Atomics.wait
# on memory it shares with the page; the module's own memory is not shared.
add_executable(cardhaven-web
  src/web/main.cpp src/web/webplatform.cpp src/web/snapjson.cpp)
target_link_libraries(cardhaven-web PRIVATE cardhaven_logic)
target_link_options(cardhaven-web PRIVATE
  -sENVIRONMENT=worker -sMODULARIZE=1 -sEXPORT_NAME=CardHavenModule -sALLOW_MEMORY_GROWTH=1
  -sINVOKE_RUN=0 -sEXIT_RUNTIME=1 -sEXPORTED_RUNTIME_METHODS=FS,callMain
  --js-library ${PROJECT_SOURCE_DIR}/src/web/bridge.js)
set_property(TARGET cardhaven-web APPEND PROPERTY LINK_DEPENDS ${PROJECT_SOURCE_DIR}/src/web/bridge.js)

# For bench/web.sh only: the driver again with Asyncify, the other way a
# browser build could block (unwinding the stack at every wait), so that its
# size and processor cost can be set beside the worker's.
add_executable(cardhaven-script-asyncify EXCLUDE_FROM_ALL tools/script/main.cpp src/web/nosync.cpp)
target_link_libraries(cardhaven-script-asyncify PRIVATE cardhaven_driver)
target_link_options(cardhaven-script-asyncify PRIVATE
  -sNODERAWFS=1 -sALLOW_MEMORY_GROWTH=1 -sEXIT_RUNTIME=1 -sENVIRONMENT=node -sASYNCIFY=1)
