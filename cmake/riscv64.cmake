set(CMAKE_SYSTEM_PROCESSOR riscv64)
set(machine riscv64-linux-gnu)
include(${CMAKE_CURRENT_LIST_DIR}/linux.cmake)
# Where the linker shortens calls, it takes 8 minutes for a program of the tests.
set(CMAKE_EXE_LINKER_FLAGS_INIT -Wl,--no-relax)
