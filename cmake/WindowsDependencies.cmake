# Third-party libraries of the Windows cross build. Debian packages none of them for MinGW-w64
# except zlib, so they are compiled here from sources that Debian ships:
#   GoogleTest from /usr/src/googletest (libgtest-dev),
#   libpng from its Debian source package, unpacked by scripts/windows-tests.sh into
#   GLYPHON_LIBPNG_SOURCE_DIR,
#   Google Benchmark likewise, into GLYPHON_BENCHMARK_SOURCE_DIR (only with benchmarks on).
# FreeType and fontconfig are not used on Windows: see the soft engine's text note in README.md.

# The static library, so the programs and the DLL need no zlib1.dll beside them.
set(ZLIB_USE_STATIC_LIBS ON)
find_package(ZLIB REQUIRED)
# nlohmann/json is header-only, so the host's copy serves the cross build; but only its own
# folder may be on the include path (not /usr/include, which holds the host's C library), so the
# headers are copied and described to find_package by a package file of our own.
set(json_root "${CMAKE_BINARY_DIR}/nlohmann_json")
file(COPY /usr/include/nlohmann DESTINATION "${json_root}/include")
file(WRITE "${json_root}/nlohmann_jsonConfig.cmake" "
if(NOT TARGET nlohmann_json::nlohmann_json)
  add_library(nlohmann_json::nlohmann_json INTERFACE IMPORTED)
  set_target_properties(nlohmann_json::nlohmann_json PROPERTIES
    INTERFACE_INCLUDE_DIRECTORIES \"${json_root}/include\")
endif()
")
file(COPY /usr/share/cmake/nlohmann_json/nlohmann_jsonConfigVersion.cmake
     DESTINATION "${json_root}")
set(nlohmann_json_DIR "${json_root}" CACHE PATH "nlohmann/json for the Windows build" FORCE)

set(GLYPHON_LIBPNG_SOURCE_DIR "${PROJECT_SOURCE_DIR}/build/windows-deps/libpng" CACHE PATH
    "libpng sources for the Windows build")
if(NOT EXISTS "${GLYPHON_LIBPNG_SOURCE_DIR}/png.h")
  message(FATAL_ERROR "No libpng sources in ${GLYPHON_LIBPNG_SOURCE_DIR}: "
                      "run scripts/windows-tests.sh (it fetches them), or set GLYPHON_LIBPNG_SOURCE_DIR")
endif()

# libpng's own configuration header for a default build, copied beside its sources' headers.
set(png_config_dir "${CMAKE_BINARY_DIR}/libpng-config")
configure_file("${GLYPHON_LIBPNG_SOURCE_DIR}/scripts/pnglibconf.h.prebuilt"
               "${png_config_dir}/pnglibconf.h" COPYONLY)
set(png_sources png pngerror pngget pngmem pngpread pngread pngrio pngrtran pngrutil pngset
                pngtrans pngwio pngwrite pngwtran pngwutil)
list(TRANSFORM png_sources PREPEND "${GLYPHON_LIBPNG_SOURCE_DIR}/")
list(TRANSFORM png_sources APPEND ".c")
add_library(glyphon_libpng STATIC ${png_sources})
target_include_directories(glyphon_libpng SYSTEM PUBLIC "${GLYPHON_LIBPNG_SOURCE_DIR}"
                                                        "${png_config_dir}")
target_link_libraries(glyphon_libpng PUBLIC ZLIB::ZLIB)
# The same name the Linux build gets from pkg-config.
add_library(PkgConfig::PNG ALIAS glyphon_libpng)

if(GLYPHON_BUILD_TESTS)
  set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
  set(BUILD_GMOCK ON CACHE BOOL "" FORCE)
  # Defines GTest::gtest, GTest::gtest_main and GTest::gmock as find_package(GTest) does.
  add_subdirectory(/usr/src/googletest "${CMAKE_BINARY_DIR}/googletest" EXCLUDE_FROM_ALL SYSTEM)
endif()

if(GLYPHON_BUILD_BENCHMARKS)
  set(GLYPHON_BENCHMARK_SOURCE_DIR "${PROJECT_SOURCE_DIR}/build/windows-deps/benchmark" CACHE PATH
      "Google Benchmark sources for the Windows build")
  if(NOT EXISTS "${GLYPHON_BENCHMARK_SOURCE_DIR}/CMakeLists.txt")
    message(FATAL_ERROR "No Google Benchmark sources in ${GLYPHON_BENCHMARK_SOURCE_DIR}: "
                        "run scripts/windows-tests.sh, or set GLYPHON_BENCHMARK_SOURCE_DIR")
  endif()
  set(BENCHMARK_ENABLE_TESTING OFF CACHE BOOL "" FORCE)
  set(BENCHMARK_ENABLE_GTEST_TESTS OFF CACHE BOOL "" FORCE)
  set(BENCHMARK_ENABLE_INSTALL OFF CACHE BOOL "" FORCE)
  set(BENCHMARK_ENABLE_WERROR OFF CACHE BOOL "" FORCE)
  # Debian's sources read no version from git; this value makes them take the project's own.
  set(GIT_VERSION "0.0.0")
  # Defines benchmark::benchmark and benchmark::benchmark_main as find_package(benchmark) does.
  add_subdirectory("${GLYPHON_BENCHMARK_SOURCE_DIR}" "${CMAKE_BINARY_DIR}/benchmark"
                   EXCLUDE_FROM_ALL SYSTEM)
endif()
