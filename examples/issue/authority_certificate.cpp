// The certificate of an authority, which issue_certificate and issue_crl write.
#include <openssl/rand.h>
#include <time.h>

#include "issuing.h"

using velkord::NodePtr;

namespace {

constexpr uint32_t kVersion3 = 2;
constexpr int64_t kSecondsOfYear = int64_t{365} * 24 * 60 * 60;

// digitalSignature is bit 0, counted from the highest; keyCertSign and cRLSign are bits 5 and 6.
constexpr uint8_t kUses[] = {0x80 | 0x04 | 0x02};

// The first bits are 01, so that the number is positive and its encoding the shortest.
NodePtr SerialNumber() {
  uint8_t bytes[16];
  CheckCrypto(RAND_bytes(bytes, sizeof bytes) == 1, "draw random bytes");
  bytes[0] = static_cast<uint8_t>((bytes[0] & 0x3F) | 0x40);
  return Write(ASN1_WriteIntegerArrayFromBytes, bytes);
}

}  // namespace

NodePtr AuthorityCertificate(std::string_view commonName, const KeyPtr& key) {
  const int64_t now = time(nullptr);
  const NodePtr extensions = Sequence(Extension("2.5.29.19", kCritical, Sequence(True())),
                                      Extension("2.5.29.15", kCritical, BitString(kUses, 1)),
                                      Extension("2.5.29.14", kNotCritical, KeyIdentifier(key)));
  return Sign(Sequence(Explicit(0, Integer(kVersion3)), SerialNumber(), SignatureAlgorithm(),
                       Name(commonName), Sequence(UtcTime(now), UtcTime(now + kSecondsOfYear)),
                       Name(commonName), KeyInfo(key), Explicit(3, extensions)),
              key);
}
