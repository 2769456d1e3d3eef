# What every target of this tree has in common.
#
# Results must be equal on every instruction set, so contraction of products and sums is off
# and nothing of fast-math is ever switched on. -fno-trapping-math changes no result: it tells the
# compiler that nobody looks at floating-point exception flags, without which it would not turn
# loops with a condition into vector code.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_package(Threads REQUIRED)

# velmora_target(<target> [STRICT])
# STRICT adds the warnings that the solver's floors keep to and that Qt's macros do not.
function(velmora_target target)
  cmake_parse_arguments(ARG "STRICT" "" "" ${ARGN})
  target_compile_options(${target} PRIVATE
    -ffp-contract=off -fno-trapping-math -fno-math-errno -Wall -Wextra -Wpedantic -Wshadow
    # GCC 12 reports overlaps in std::string that are none (its bug 105651).
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
    $<$<BOOL:${ARG_STRICT}>:-Wconversion>
    $<$<BOOL:${VELMORA_WERROR}>:-Werror>)
  if(VELMORA_SANITIZE)
    target_compile_options(${target} PRIVATE
      -fsanitize=${VELMORA_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(${target} PRIVATE -fsanitize=${VELMORA_SANITIZE})
  endif()
  target_link_libraries(${target} PRIVATE Threads::Threads)
endfunction()
