// One macro that compiles a function for several instruction sets and picks one at run time.
#pragma once

#include "instruction_set.h"

// VELMORA_MULTIVERSION(name, (parameters), (arguments)) defines `void name(parameters)`, which runs
// `name_body(arguments)` in the version for the instruction set in force. The body is an
// always-inline function, so each version compiles it with its own vector instructions. Products
// and sums are never contracted, so all versions give the same bits.
#define VELMORA_BODY [[gnu::always_inline]] static inline void

// VELMORA_MULTIVERSION_WIDE does the same for a body that is a template over the number of doubles
// in a vector of the instruction set, for code with vectors of its own (see `lanes.h`).

#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__)
#define VELMORA_VERSIONS(name, parameters, arguments, body_2, body_4, body_8) \
  [[gnu::target("arch=x86-64-v3")]] static void name##_avx2 parameters {      \
    body_4 arguments;                                                         \
  }                                                                           \
  [[gnu::target("arch=x86-64-v4")]] static void name##_avx512 parameters {    \
    body_8 arguments;                                                         \
  }                                                                           \
  static void name##_baseline parameters {                                    \
    body_2 arguments;                                                         \
  }                                                                           \
  void name parameters {                                                      \
    switch (instruction_set()) {                                              \
      case InstructionSet::kAvx512: return name##_avx512 arguments;           \
      case InstructionSet::kAvx2: return name##_avx2 arguments;               \
      case InstructionSet::kBaseline: break;                                  \
    }                                                                         \
    name##_baseline arguments;                                                \
  }
#else
#define VELMORA_VERSIONS(name, parameters, arguments, body_2, body_4, body_8) \
  void name parameters {                                                      \
    body_2 arguments;                                                         \
  }
#endif

#define VELMORA_MULTIVERSION(name, parameters, arguments) \
  VELMORA_VERSIONS(name, parameters, arguments, name##_body, name##_body, name##_body)
#define VELMORA_MULTIVERSION_WIDE(name, parameters, arguments) \
  VELMORA_VERSIONS(name, parameters, arguments, name##_body<2>, name##_body<4>, name##_body<8>)
