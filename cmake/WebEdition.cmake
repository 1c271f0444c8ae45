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
