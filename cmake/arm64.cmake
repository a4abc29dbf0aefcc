set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(machine aarch64-linux-gnu)
include(${CMAKE_CURRENT_LIST_DIR}/linux.cmake)
