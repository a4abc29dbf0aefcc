# Compiler flags of every target.

set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(VELKORD_SANITIZE)
  # With the library's assertions, which an optimised build leaves out.
  add_compile_options(-fsanitize=${VELKORD_SANITIZE} -fno-sanitize-recover=all
                      -fno-omit-frame-pointer -UNDEBUG)
  add_link_options(-fsanitize=${VELKORD_SANITIZE})
endif()

if(VELKORD_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

function(velkord_strict target)
  if(NOT MSVC)
    target_compile_options(${target} PRIVATE
      -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wcast-align
      $<$<BOOL:${VELKORD_WERROR}>:-Werror>)
  endif()
endfunction()
