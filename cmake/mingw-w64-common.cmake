# Shared part of the MinGW-w64 toolchain files; GLYPHON_MINGW_TRIPLET names the target.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR ${GLYPHON_MINGW_TRIPLET})

# The posix thread model gives the standard library's threads and mutexes; everything is linked
# statically, so the programs run under Wine or Windows without the toolchain's DLLs.
set(CMAKE_C_COMPILER ${GLYPHON_MINGW_TRIPLET}-gcc-posix)
set(CMAKE_CXX_COMPILER ${GLYPHON_MINGW_TRIPLET}-g++-posix)
set(CMAKE_RC_COMPILER ${GLYPHON_MINGW_TRIPLET}-windres)
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static")
set(CMAKE_MODULE_LINKER_FLAGS_INIT "-static")

set(CMAKE_FIND_ROOT_PATH /usr/${GLYPHON_MINGW_TRIPLET})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

