find_package(pugixml REQUIRED)
find_package(tinyxml2 REQUIRED)

add_executable(catalogue_bench catalogue_bench.cpp catalogue_generator.cpp)
target_link_libraries(catalogue_bench PRIVATE
  brlv_catalogue brlv_options benchmark::benchmark pugixml::pugixml tinyxml2::tinyxml2)
