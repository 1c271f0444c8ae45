// SPDX-License-Identifier: GPL-3.0-or-later
// Linked into the Asyncify build of the driver only (bench/web.sh): there
// this Emscripten's fsync takes a path meant for its IndexedDB file system
// and fails on every other, so a sync is left to the operating system.
extern "C" int fsync(int) { return 0; }
