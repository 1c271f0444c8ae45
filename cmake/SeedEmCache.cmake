# SPDX-License-Identifier: GPL-3.0-or-later
# cmake -DCACHE=DIR -P SeedEmCache.cmake
# Copies the system's prebuilt Emscripten libraries into DIR once, so that a
# fresh build tree does not spend minutes building them again.
set(system_cache /usr/share/emscripten/cache)
if(NOT EXISTS ${CACHE}/sysroot_install.stamp AND EXISTS ${system_cache}/sysroot_install.stamp)
  file(MAKE_DIRECTORY ${CACHE})
  file(COPY ${system_cache}/sysroot ${system_cache}/sysroot_install.stamp DESTINATION ${CACHE})
endif()
