// The macro that passes the code of a failing step up. The codes are in the public header.
#ifndef VELKORD_DER_RESULT_H_
#define VELKORD_DER_RESULT_H_

#include "Velkord.h"

// Returns the code of `step` from the function around it unless the step succeeded.
#define VELKORD_TRY(step)                                                         \
  do {                                                                            \
    if (const int32_t stepCode = (step); stepCode != VELKORD_OK) return stepCode; \
  } while (false)

#endif  // VELKORD_DER_RESULT_H_
