// How the cases of the bench are named and timed.
#ifndef VELKORD_BENCH_CONTENDER_H_
#define VELKORD_BENCH_CONTENDER_H_

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace bench {

// Ends the program when a contender does not do what it is timed for.
inline void Require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "bench: %s\n", what);
  std::exit(1);
}

// A contender of a case: the library under the name "velkord", "limit" for code that does only what
// no implementation can leave out, or a peer. `run` does the case's work, of `items` items, once.
template <typename Run>
void Add(const std::string& name, const char* contender, double items, Run run) {
  benchmark::RegisterBenchmark((name + "/" + contender).c_str(),
                               [items, run](benchmark::State& state) {
                                 for (auto _ : state) run();
                                 state.counters["items"] = items;
                               });
}

}  // namespace bench

#endif  // VELKORD_BENCH_CONTENDER_H_
