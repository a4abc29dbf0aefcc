// A revocation list taken apart, and put together again.
#ifndef VELKORD_EXAMPLES_LIST_PARTS_H_
#define VELKORD_EXAMPLES_LIST_PARTS_H_

#include <vector>

#include "handles.h"
#include "readable_text.h"

struct ListParts {
  CertificateListPtr list;
  TbsCertListPtr tbs;
  std::vector<RevokedCertificatePtr> entries;
};

// All throw std::runtime_error naming the step that failed and its code. Times are read as local
// time: call UseUtc before.
ListParts ReadListParts(Bytes der);

// Each writes from the parts alone: every part goes through its setter into new records. The list
// is put around the signed part as it was signed, since the library does not write every version of
// it.
NodePtr RebuildSignedList(const ListParts& parts);
NodePtr RebuildList(const ListParts& parts);

#endif  // VELKORD_EXAMPLES_LIST_PARTS_H_
