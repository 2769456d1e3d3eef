// One macro that compiles a function for several instruction sets and picks one at run time.
#pragma once

#include "instruction_set.h"

// VELMORA_MULTIVERSION(name, (parameters), (arguments)) defines `void name(parameters)`, which runs
// `name_body(arguments)` in the version for the instruction set in force. The body is an
// always-inline function, so each version compiles it with its own vector instructions. Products
// and sums are never contracted, so all versions give the same bits.
#define VELMORA_BODY [[gnu::always_inline]] static inline void

#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__)
#define VELMORA_MULTIVERSION(name, parameters, arguments)                  \
  [[gnu::target("arch=x86-64-v3")]] static void name##_avx2 parameters {   \
    name##_body arguments;                                                 \
  }                                                                        \
  [[gnu::target("arch=x86-64-v4")]] static void name##_avx512 parameters { \
    name##_body arguments;                                                 \
  }                                                                        \
  static void name##_baseline parameters {                                 \
    name##_body arguments;                                                 \
  }                                                                        \
  void name parameters {                                                   \
    switch (instruction_set()) {                                           \
      case InstructionSet::kAvx512: return name##_avx512 arguments;        \
      case InstructionSet::kAvx2: return name##_avx2 arguments;            \
      case InstructionSet::kBaseline: break;                               \
    }                                                                      \
    name##_baseline arguments;                                             \
  }
#else
#define VELMORA_MULTIVERSION(name, parameters, arguments) \
  void name parameters {                                  \
    name##_body arguments;                                \
  }
#endif
