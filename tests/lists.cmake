# The list of the library's functions and records that tests and fuzzers are built with, from the
# header.
set(lists ${PROJECT_BINARY_DIR}/lists)
include_guard(GLOBAL)
find_package(Python3 REQUIRED COMPONENTS Interpreter)
file(MAKE_DIRECTORY ${lists})
add_custom_command(
  OUTPUT ${lists}/functions.inc
  COMMAND Python3::Interpreter ${PROJECT_SOURCE_DIR}/scripts/bindings.py
          --list ${lists}/functions.inc
  DEPENDS ${PROJECT_SOURCE_DIR}/include/Velkord.h ${PROJECT_SOURCE_DIR}/scripts/bindings.py
)
add_custom_target(lists DEPENDS ${lists}/functions.inc)
