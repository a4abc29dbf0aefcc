// The cases of the bench by family. Each function adds its contenders.
#ifndef VELKORD_BENCH_CASES_H_
#define VELKORD_BENCH_CASES_H_

namespace bench {

void AddCertificates();
void AddLists();
void AddBase64();
void AddPem();
void AddCharacterSets();
void AddValues();

}  // namespace bench

#endif  // VELKORD_BENCH_CASES_H_
