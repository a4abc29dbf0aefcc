# The functions and records of the library for the tests and fuzzers, from the header.
include_guard(GLOBAL)
find_package(Python3 REQUIRED COMPONENTS Interpreter)
set(lists ${PROJECT_BINARY_DIR}/lists)
add_custom_command(
  OUTPUT ${lists}/functions.inc ${lists}/exported_names.txt
  COMMAND Python3::Interpreter ${PROJECT_SOURCE_DIR}/scripts/bindings.py --lists ${lists}
  DEPENDS ${PROJECT_SOURCE_DIR}/include/Velkord.h ${PROJECT_SOURCE_DIR}/scripts/bindings.py
)
add_custom_target(lists DEPENDS ${lists}/functions.inc ${lists}/exported_names.txt)
