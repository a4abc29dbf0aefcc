// The library reads and writes times as the machine's local time. What it reads and writes here is
// in UTC.
#ifndef VELKORD_EXAMPLES_UTC_H_
#define VELKORD_EXAMPLES_UTC_H_

#include <stdlib.h>
#include <time.h>

#include <stdexcept>

inline void UseUtc() {
  if (setenv("TZ", "UTC0", 1) != 0) throw std::runtime_error("the time zone cannot be set");
  tzset();
}

#endif  // VELKORD_EXAMPLES_UTC_H_
