find_path(STB_INCLUDE_DIR stb/stb_image.h REQUIRED)

add_executable(images_bench images_bench.cpp image_generator.cpp stb_image.cpp)
target_include_directories(images_bench SYSTEM PRIVATE ${STB_INCLUDE_DIR})
target_link_libraries(images_bench PRIVATE brlv_images brlv_options benchmark::benchmark_main)
