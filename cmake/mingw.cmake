# Debian's mingw-w64 cross compiler with POSIX threads, for the processor that the including file names.
set(mingw_tools ${CMAKE_SYSTEM_PROCESSOR}-w64-mingw32)
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_C_COMPILER ${mingw_tools}-gcc-posix) # GoogleTest's project asks for C too
set(CMAKE_CXX_COMPILER ${mingw_tools}-g++-posix)
set(CMAKE_RC_COMPILER ${mingw_tools}-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${mingw_tools})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../tools/wine.sh ${CMAKE_SYSTEM_PROCESSOR})
