add_executable(windows_bench windows_bench.cpp)
target_link_libraries(windows_bench PRIVATE brlv_panels brlv_options benchmark::benchmark_main)
win32_resources(windows_bench ${CMAKE_SOURCE_DIR}/src/resources/brlv.rc)
