// The signed part of a PKCS#6 extended certificate. Unlike that of a PKCS#10 request its version is
// a number, and its attributes are a plain SET.
#include "der/integer.h"
#include "x509/record.h"

using namespace velkord::internal;

namespace {

// ExtendedCertificateInfo ::= SEQUENCE {
//   version      Version,
//   certificate  Certificate,
//   attributes   SET OF Attribute }
// Unlike the standard's, the version may have any tag, and further elements are skipped.
int32_t Fill(ExtendedCertificateInfo& record, DerElements& elements) {
  DerElement element;
  VELKORD_TRY(elements.Next(element));
  record.version = DerBytesToUint(element.Content());
  VELKORD_TRY(DerRewrapNext(elements, &record.certificate));
  VELKORD_TRY(elements.Next(element));
  return DerRewrap(kSet, element, &record.attributes);
}

}  // namespace

int32_t ASN1_PKCS6_CreateExtendedCertificateInfo(ExtendedCertificateInfo** out) {
  return CreateRecord(out);
}

void ASN1_PKCS6_FreeExtendedCertificateInfo(ExtendedCertificateInfo* record) {
  FreeRecord<&ExtendedCertificateInfo::certificate, &ExtendedCertificateInfo::attributes>(record);
}

int32_t ASN1_PKCS6_SetCertificateInfoVersion(ExtendedCertificateInfo* record, uint32_t version) {
  if (record == nullptr) return VELKORD_NULL_ARGUMENT;
  record->version = version;
  return VELKORD_OK;
}

int32_t ASN1_PKCS6_SetCertificateInfoX509(ExtendedCertificateInfo* record, const Anybuf* value) {
  return SetSequence(record, &ExtendedCertificateInfo::certificate, value);
}

int32_t ASN1_PKCS6_SetCertificateInfoAttributes(ExtendedCertificateInfo* record,
                                                const Anybuf* value) {
  return SetField(
      record, &ExtendedCertificateInfo::attributes, value,
      [](const Anybuf& node, Anybuf** out) { return DerRewrap(kSet, NodeBytes(node), out); });
}

int32_t ASN1_PKCS6_CertificateInfoWriteData(const ExtendedCertificateInfo* record, Anybuf** out) {
  if (record == nullptr) return VELKORD_NULL_ARGUMENT;
  const IntegerElement version(record->version);
  return JoinFields({version.Whole(), record->certificate, record->attributes}, out);
}

int32_t ASN1_PKCS6_CertificateInfoDecode(const uint8_t* bytes, uint32_t length,
                                         ExtendedCertificateInfo** out) {
  return DecodeRecord<ASN1_PKCS6_FreeExtendedCertificateInfo>(bytes, length, out, Fill);
}
