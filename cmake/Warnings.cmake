# One place for compiler flags that every target of the project shares.
add_library(glyphon_flags INTERFACE)
target_compile_options(glyphon_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion
  $<$<BOOL:${GLYPHON_WERROR}>:-Werror>)
target_include_directories(glyphon_flags INTERFACE ${PROJECT_SOURCE_DIR})

if(GLYPHON_SANITIZE)
  target_compile_options(glyphon_flags INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(glyphon_flags INTERFACE -fsanitize=address,undefined)
endif()
