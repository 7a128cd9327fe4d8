# Another processor with Linux, for which Debian has a compiler and qemu an emulator: DRAFTWICK_PROCESSOR is aarch64, i686
# or s390x. giflib is where scripts/lib/processors unpacks it. Everything is linked statically, so that the emulator
# needs nothing else.
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES DRAFTWICK_PROCESSOR)
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR ${DRAFTWICK_PROCESSOR})
set(CMAKE_C_COMPILER ${DRAFTWICK_PROCESSOR}-linux-gnu-gcc)
set(CMAKE_CXX_COMPILER ${DRAFTWICK_PROCESSOR}-linux-gnu-g++)
string(REPLACE i686 i386 machine ${DRAFTWICK_PROCESSOR})
set(CMAKE_LIBRARY_ARCHITECTURE ${machine}-linux-gnu)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-${machine})
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
set(CMAKE_FIND_LIBRARY_SUFFIXES .a)
set(CMAKE_FIND_ROOT_PATH ${CMAKE_CURRENT_LIST_DIR}/../build/processors/${machine})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
