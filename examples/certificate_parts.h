// A certificate taken apart, and put together again.
#ifndef VELKORD_EXAMPLES_CERTIFICATE_PARTS_H_
#define VELKORD_EXAMPLES_CERTIFICATE_PARTS_H_

#include <vector>

#include "readable_text.h"
#include "velkord.hpp"

struct CertificateParts {
  velkord::Handle<Certificate> certificate;
  velkord::Handle<X509Cert> view;  // Owns the signed part and the subject's entries.
  uint32_t version = 0;
  std::vector<uint8_t> serialNumber;

  const TBSCertificate& Tbs() const { return *view->tbs; }
};

// Both throw std::runtime_error naming the step that failed and its code.
CertificateParts ReadCertificateParts(velkord::Bytes der);

// Writes the certificate again from the parts alone: each goes through its setter into new records.
velkord::NodePtr RebuildCertificate(const CertificateParts& parts);

// The node around the list of extensions in a decoded record, empty when there is none.
velkord::NodePtr ReadExtensionList(const TBSCertificate& tbs);

#endif  // VELKORD_EXAMPLES_CERTIFICATE_PARTS_H_
