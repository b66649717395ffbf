# Libraries that are headers alone and serve both worlds. The cross compiler must not see /usr/include, where
# the native system headers stand beside them, so each gets a link in a folder of the build tree.
include_guard(GLOBAL)

set(header_only_folder ${CMAKE_BINARY_DIR}/header_only)
add_library(header_only INTERFACE)
target_include_directories(header_only SYSTEM INTERFACE ${header_only_folder})

function(link_headers folder header package)
  # A Windows toolchain confines searches to its own root; these headers are the build machine's.
  find_path(HEADER_ONLY_${folder} ${folder}/${header} NO_CMAKE_FIND_ROOT_PATH)
  if(NOT HEADER_ONLY_${folder})
    message(FATAL_ERROR "${folder}/${header} not found: please install ${package}")
  endif()
  file(MAKE_DIRECTORY ${header_only_folder})
  file(CREATE_LINK ${HEADER_ONLY_${folder}}/${folder} ${header_only_folder}/${folder} SYMBOLIC)
endfunction()

link_headers(CLI CLI.hpp libcli11-dev)
link_headers(nlohmann json.hpp nlohmann-json3-dev)
