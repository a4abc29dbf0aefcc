# 32-bit Linux, by the compiler for 64 bits.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(CMAKE_C_COMPILER gcc -m32)
set(CMAKE_CXX_COMPILER g++ -m32)

# A kernel that runs no 32-bit programs needs an emulator, under which the search for leaks never
# ends.
execute_process(COMMAND /lib/ld-linux.so.2 --help RESULT_VARIABLE refused OUTPUT_QUIET ERROR_QUIET)
if(refused)
  set(CMAKE_CROSSCOMPILING_EMULATOR env ASAN_OPTIONS=detect_leaks=0 qemu-i386)
endif()
