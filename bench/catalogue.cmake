find_package(pugixml REQUIRED)
find_package(tinyxml2 REQUIRED)

add_executable(catalogue_bench catalogue_bench.cpp catalogue_generator.cpp opened_files.cpp project_bench.cpp)
target_link_libraries(catalogue_bench PRIVATE
  brlv_host brlv_manager_pages brlv_options benchmark::benchmark_main pugixml::pugixml tinyxml2::tinyxml2)
# Every opening of a file goes through opened_files.cpp, which counts it.
target_link_options(catalogue_bench PRIVATE -Wl,--wrap=_fsopen)
