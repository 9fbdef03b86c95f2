# Cross-building for 32-bit Windows with Debian's MinGW-w64 (posix thread model).
set(GLYPHON_MINGW_TRIPLET i686-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64-common.cmake)
