// The cases of the bench: how one is added, and the families that add theirs.
#ifndef VELKORD_BENCH_CASES_H_
#define VELKORD_BENCH_CASES_H_

#include <benchmark/benchmark.h>

#include <map>
#include <stdexcept>
#include <string>

namespace bench {

// Ends the program when a contender does not do what it is timed for.
inline void Require(bool holds, const char* what) {
  if (!holds) throw std::runtime_error(what);
}

// A contender of a case: the library under the name "velkord", "limit" for code that does only what
// no implementation can leave out, or a peer. `run` does the case's work, of `items` items, once.
template <typename Run>
void Add(const std::string& name, const char* contender, size_t items, Run run) {
  benchmark::RegisterBenchmark((name + "/" + contender).c_str(), [=](benchmark::State& state) {
    for (auto _ : state) {
      run();
      benchmark::ClobberMemory();
    }
    state.counters["items"] = static_cast<double>(items);
  });
}

// The input of so many items that `kMake` makes, made once.
template <auto kMake>
const auto& Input(size_t items) {
  static std::map<size_t, decltype(kMake(items))> inputs;
  if (!inputs.contains(items)) inputs.emplace(items, kMake(items));
  return inputs.at(items);
}

// Like Add, with an input that is made when the case is run, outside of what is timed.
template <auto kMake, typename Run>
void AddWithInput(const std::string& name, const char* contender, size_t items, Run run) {
  benchmark::RegisterBenchmark((name + "/" + contender).c_str(), [=](benchmark::State& state) {
    const auto& input = Input<kMake>(items);
    for (auto _ : state) run(input);
    state.counters["items"] = static_cast<double>(items);
  });
}

void AddCertificates();
void AddLists();
void AddBase64AndPem();
void AddCharacterSets();
void AddValues();

}  // namespace bench

#endif  // VELKORD_BENCH_CASES_H_
