set(CMAKE_SYSTEM_PROCESSOR i386)
set(machine i686-linux-gnu)
include(${CMAKE_CURRENT_LIST_DIR}/linux.cmake)

# The processor runs them itself, with the loader and libraries of the compiler. On a kernel that runs
# no 32-bit programs it takes the emulator, under which the search for leaks never ends.
set(libraries /usr/${machine}/lib)
execute_process(COMMAND ${libraries}/ld-linux.so.2 --help
  RESULT_VARIABLE refused OUTPUT_QUIET ERROR_QUIET)
if(refused)
  list(PREPEND CMAKE_CROSSCOMPILING_EMULATOR env ASAN_OPTIONS=detect_leaks=0)
else()
  unset(CMAKE_CROSSCOMPILING_EMULATOR)
  set(CMAKE_EXE_LINKER_FLAGS_INIT
    "-Wl,--dynamic-linker=${libraries}/ld-linux.so.2 -Wl,-rpath,${libraries}")
endif()
