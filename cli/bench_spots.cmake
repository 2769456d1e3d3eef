# The fixed spots that the headless tool and the microbenchmarks measure.
add_library(velmora_bench_spots STATIC ${CMAKE_CURRENT_LIST_DIR}/bench_spots.cpp)
target_include_directories(velmora_bench_spots PUBLIC ${CMAKE_CURRENT_LIST_DIR})
target_link_libraries(velmora_bench_spots PUBLIC velmora_session)
velmora_target(velmora_bench_spots STRICT)
