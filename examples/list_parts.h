// A revocation list taken apart, and put together again.
#ifndef VELKORD_EXAMPLES_LIST_PARTS_H_
#define VELKORD_EXAMPLES_LIST_PARTS_H_

#include <vector>

#include "readable_text.h"
#include "velkord.hpp"

struct ListParts {
  velkord::Handle<CertificateList> list;
  velkord::Handle<TbsCertList> tbs;
  std::vector<velkord::Handle<RevokedCertificate>> entries;
};

// All throw std::runtime_error naming the step that failed and its code. Times are read as local
// time: call UseUtc before.
ListParts ReadListParts(velkord::Bytes der);

// Each writes from the parts alone: every part goes through its setter into new records. The list
// is put around the signed part as it was signed, since the library does not write every version of
// it.
velkord::NodePtr RebuildSignedList(const ListParts& parts);
velkord::NodePtr RebuildList(const ListParts& parts);

#endif  // VELKORD_EXAMPLES_LIST_PARTS_H_
