set(CMAKE_SYSTEM_PROCESSOR arm)
set(machine arm-linux-gnueabihf)
include(${CMAKE_CURRENT_LIST_DIR}/linux.cmake)
