# What a project has installed, and the operations on its scripts.
brlv_library(brlv_project
  ${CMAKE_CURRENT_LIST_DIR}/include_run.cpp
  ${CMAKE_CURRENT_LIST_DIR}/project_record.cpp
  ${CMAKE_CURRENT_LIST_DIR}/project_record_file.cpp
  ${CMAKE_CURRENT_LIST_DIR}/script_info.cpp
  ${CMAKE_CURRENT_LIST_DIR}/script_install.cpp
  ${CMAKE_CURRENT_LIST_DIR}/script_location.cpp
  ${CMAKE_CURRENT_LIST_DIR}/script_operations.cpp)
target_link_libraries(brlv_project PUBLIC brlv_tags)
