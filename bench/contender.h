// How the cases of the bench are named and timed.
#ifndef VELKORD_BENCH_CONTENDER_H_
#define VELKORD_BENCH_CONTENDER_H_

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <map>
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

// The input of so many items that `kMake` makes, made once.
template <auto kMake>
const auto& Input(size_t items) {
  static std::map<size_t, decltype(kMake(items))> inputs;
  auto input = inputs.find(items);
  if (input == inputs.end()) input = inputs.emplace(items, kMake(items)).first;
  return input->second;
}

// Like Add, with an input that is made when the case is run, outside of what is timed.
template <auto kMake, typename Run>
void AddWithInput(const std::string& name, const char* contender, size_t items, Run run) {
  benchmark::RegisterBenchmark((name + "/" + contender).c_str(),
                               [items, run](benchmark::State& state) {
                                 const auto& input = Input<kMake>(items);
                                 for (auto _ : state) run(input);
                                 state.counters["items"] = static_cast<double>(items);
                               });
}

}  // namespace bench

#endif  // VELKORD_BENCH_CONTENDER_H_
