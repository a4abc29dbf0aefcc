set(CMAKE_SYSTEM_PROCESSOR s390x)
set(machine s390x-linux-gnu)
include(${CMAKE_CURRENT_LIST_DIR}/linux.cmake)
