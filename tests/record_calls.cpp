// Records built, written and decoded. `Record setter=value; setter=value => ...` makes a record,
// sets it and gives the codes of the setters that failed and the written node; `field=number` and
// `field=unset` change a field itself. A decoder gives all fields in order and the node written
// again.
#include <utility>
#include <variant>

#include "calls.h"

int32_t DecodeTbsCertificate(const uint8_t* bytes, uint32_t length, TBSCertificate** out) {
  const Anybuf source = {const_cast<uint8_t*>(bytes), length, 0, 2, 16, nullptr, nullptr};
  return ASN1_TBSCertificateDecode(bytes == nullptr ? nullptr : &source, out);
}

namespace {

template <typename Record>
struct RecordKind {
  using Field = std::variant<Anybuf * Record::*, uint32_t Record::*, int32_t Record::*>;
  using Setter = std::function<int32_t(Record*, const std::string&, const Check&)>;

  int32_t (*create)(Record**);
  void (*release)(Record*);
  int32_t (*write)(const Record*, Anybuf**);
  int32_t (*decode)(const uint8_t*, uint32_t, Record**);
  std::vector<std::pair<std::string, Field>> fields;
  std::map<std::string, Setter> setters;
};

template <typename Record, typename Number>
typename RecordKind<Record>::Setter Set(int32_t (*set)(Record*, Number)) {
  return [set](Record* record, const std::string& text, const Check& isAsBefore) {
    const auto number = static_cast<Number>(std::stoll(text, nullptr, 0));
    return CallLibrary(
        set, [&] { return set(record, number); }, isAsBefore);
  };
}

template <typename Record>
typename RecordKind<Record>::Setter Set(int32_t (*set)(Record*, const Anybuf*)) {
  return [set](Record* record, const std::string& text, const Check& isAsBefore) {
    const NodePtr node = ToNode(text);
    return CallLibrary(
        set, [&] { return set(record, node.get()); }, isAsBefore);
  };
}

template <typename Record>
typename RecordKind<Record>::Setter Set(int32_t (*set)(Record*, const uint8_t*, uint32_t)) {
  return [set](Record* record, const std::string& text, const Check& isAsBefore) {
    EXPECT_EQ(set(record, nullptr, 1), VELKORD_NULL_ARGUMENT);
    const ByteVector bytes = FromHex(text);
    const auto call = [&] { return set(record, bytes.data(), Size(bytes)); };
    return CallLibrary(set, call, isAsBefore);
  };
}

// A time and the form of both times, comma between them.
RecordKind<TbsCertList>::Setter Set(int32_t (*set)(TbsCertList*, int32_t, uint32_t)) {
  return [set](TbsCertList* record, const std::string& text, const Check& isAsBefore) {
    const auto form = static_cast<uint32_t>(std::stoul(text.substr(text.find(',') + 1)));
    const auto call = [&] { return set(record, std::stoi(text), form); };
    return CallLibrary(set, call, isAsBefore);
  };
}

template <typename Record>
std::string Fields(const RecordKind<Record>& kind, const Record& record) {
  std::string text;
  for (const auto& [name, field] : kind.fields) {
    if (!text.empty()) text += " ; ";
    if (const auto* node = std::get_if<Anybuf * Record::*>(&field)) {
      text += Describe(record.*(*node));
    } else if (const auto* number = std::get_if<uint32_t Record::*>(&field)) {
      text += std::to_string(record.*(*number));
    } else {
      text += std::to_string(record.*std::get<int32_t Record::*>(field));
    }
  }
  return text;
}

template <typename Record>
std::string Write(const RecordKind<Record>& kind, const Record* record) {
  EXPECT_EQ(kind.write(record, nullptr), VELKORD_NULL_ARGUMENT);
  const std::string text = Made(kind.write, record);
  EXPECT_EQ(Made(kind.write, record), text);
  return text;
}

// The code of a setter that fails, which must leave the record as it was, or nothing.
template <typename Record>
std::string Apply(const RecordKind<Record>& kind, Record* record, const std::string& name,
                  const std::string& value) {
  for (const auto& [fieldName, field] : kind.fields) {
    if (name != fieldName) continue;
    if (const auto* number = std::get_if<uint32_t Record::*>(&field)) {
      record->*(*number) = static_cast<uint32_t>(std::stoul(value));
    } else {
      ASN1_FreeAnybuf(std::exchange(record->*std::get<Anybuf * Record::*>(field), nullptr));
    }
    return "";
  }
  const auto setter = kind.setters.find(name);
  if (setter == kind.setters.end()) return name + " is no setter";
  const std::string before = Fields(kind, *record);
  const auto isAsBefore = [&] { EXPECT_EQ(Fields(kind, *record), before); };
  EXPECT_EQ(setter->second(nullptr, value, isAsBefore), VELKORD_NULL_ARGUMENT);
  const int32_t code = setter->second(record, value, isAsBefore);
  return code == 0 ? "" : std::to_string(code) + " ; ";
}

template <typename Record>
Callers::mapped_type Builder(const RecordKind<Record>& kind) {
  return [kind](const Arguments& in) {
    EXPECT_EQ(kind.create(nullptr), VELKORD_NULL_ARGUMENT);
    Record* record = nullptr;
    DirtyHeap(sizeof *record);
    EXPECT_EQ(
        CallLibrary(
            kind.create, [&] { return kind.create(&record); }, [&] { EXPECT_EQ(record, nullptr); }),
        0);
    ExpectZeros(*record);
    std::string text;
    for (const std::string& step : in) {
      const size_t equals = step.find('=');
      text += Apply(kind, record, step.substr(0, equals), step.substr(equals + 1));
    }
    EXPECT_EQ(Made(kind.write, nullptr), "-8");
    text += Write(kind, record);
    kind.release(record);
    kind.release(nullptr);
    return text;
  };
}

template <typename Record>
Callers::mapped_type Decoder(const RecordKind<Record>& kind) {
  return [kind](const Arguments& in) {
    const ByteVector bytes = FromHex(in[0]);
    Record untouched{};
    Record* record = &untouched;
    EXPECT_EQ(kind.decode(bytes.data(), Size(bytes), nullptr), VELKORD_NULL_ARGUMENT);
    EXPECT_EQ(kind.decode(nullptr, 0, &record), VELKORD_NULL_ARGUMENT);
    const auto isUntouched = [&] { EXPECT_EQ(record, &untouched); };
    const auto call = [&] { return kind.decode(bytes.data(), Size(bytes), &record); };
    const int32_t code = CallLibrary(kind.decode, call, isUntouched);
    if (code != 0) return std::to_string(code);
    const std::string text = Fields(kind, *record) + " ; " + Write(kind, record);
    kind.release(record);
    return text;
  };
}

#define FIELD(record, name) \
  { #name, &record::name }
#define SETTER(name) \
  { #name, Set(name) }

// clang-format off
const RecordKind<TBSCertificate> kTbsCertificate = {
    ASN1_CreateTBSCertificate, ASN1_FreeTBSCertificate, ASN1_TBSCertificateWriteData, DecodeTbsCertificate,
    {FIELD(TBSCertificate, version), FIELD(TBSCertificate, hasIssuerUniqueID),
     FIELD(TBSCertificate, hasSubjectUniqueID), FIELD(TBSCertificate, hasExtensions),
     FIELD(TBSCertificate, versionNode), FIELD(TBSCertificate, serialNumber),
     FIELD(TBSCertificate, signature), FIELD(TBSCertificate, issuer),
     FIELD(TBSCertificate, validity), FIELD(TBSCertificate, subject),
     FIELD(TBSCertificate, subjectPublicKeyInfo), FIELD(TBSCertificate, issuerUniqueID),
     FIELD(TBSCertificate, subjectUniqueID), FIELD(TBSCertificate, extensions)},
    {SETTER(ASN1_TBSCertificateSetVersion), SETTER(ASN1_TBSCertificateSetSerialNumber),
     SETTER(ASN1_TBSCertificateSetSignatureAlg), SETTER(ASN1_TBSCertificateSetIssuer),
     SETTER(ASN1_TBSCertificateSetValidity), SETTER(ASN1_TBSCertificateSetSubject),
     SETTER(ASN1_TBSCertificateSetSubjectPublicKeyInfo),
     SETTER(ASN1_TBSCertificateSetIssuerUniqueID), SETTER(ASN1_TBSCertificateSetSubjectUniqueID),
     SETTER(ASN1_TBSCertificateSetExtensions)}};

const RecordKind<Certificate> kCertificate = {
    ASN1_CreateCertificate, ASN1_FreeCertificate, ASN1_CertificateWriteData, ASN1_CertificateDecode,
    {FIELD(Certificate, tbsCertificate), FIELD(Certificate, signatureAlgorithm),
     FIELD(Certificate, signatureValue)},
    {SETTER(ASN1_CertificateSetTbsCertificate), SETTER(ASN1_CertificateSetSignatureAlgorithm),
     SETTER(ASN1_CertificateSetSignatureValue)}};

const RecordKind<RevokedCertificate> kRevokedCertificate = {
    ASN1_CRL_CreateRevokedCertificate, ASN1_CRL_FreeRevokedCertificate,
    ASN1_CRL_RevokedCertificateWriteData, ASN1_CRL_RevokedCertificateDecode,
    {FIELD(RevokedCertificate, hasCrlEntryExtensions),
     FIELD(RevokedCertificate, certificateSerialNumber), FIELD(RevokedCertificate, revocationDate),
     FIELD(RevokedCertificate, crlEntryExtensions)},
    {SETTER(ASN1_CRL_SetRevokedCertificateCertificateSerialNumber),
     SETTER(ASN1_CRL_SetRevokedCertificateRevocationDate),
     SETTER(ASN1_CRL_SetRevokedCertificateCrlEntryExtensions)}};

const RecordKind<TbsCertList> kTbsCertList = {
    ASN1_CRL_CreateTbsCertList, ASN1_CRL_FreeTbsCertList, ASN1_CRL_TbsCertListWriteData,
    ASN1_CRL_TbsCertListDecode,
    {FIELD(TbsCertList, hasRevokedCertificates), FIELD(TbsCertList, hasCrlExtensions),
     FIELD(TbsCertList, hasNextUpdate), FIELD(TbsCertList, timeForm), FIELD(TbsCertList, version),
     FIELD(TbsCertList, signature), FIELD(TbsCertList, issuer), FIELD(TbsCertList, thisUpdate),
     FIELD(TbsCertList, nextUpdate), FIELD(TbsCertList, revokedCertificates),
     FIELD(TbsCertList, crlExtensions)},
    {SETTER(ASN1_CRL_TbsCertListSetVersion),
     SETTER(ASN1_CRL_TbsCertListSetSignatureAlgorithmIdentifier),
     SETTER(ASN1_CRL_TbsCertListSetIssuer), SETTER(ASN1_CRL_TbsCertListSetThisUpdate),
     SETTER(ASN1_CRL_TbsCertListSetNextUpdate), SETTER(ASN1_CRL_TbsCertListSetRevokedCertificates),
     SETTER(ASN1_CRL_TbsCertListSetCrlExtensions)}};

const RecordKind<CertificateList> kCertificateList = {
    ASN1_CRL_CreateCertificateList, ASN1_CRL_FreeCertificateList,
    ASN1_CRL_CertificateListWriteData, ASN1_CRL_CertificateListDecode,
    {FIELD(CertificateList, tbsCertList), FIELD(CertificateList, signatureAlgorithm),
     FIELD(CertificateList, signatureValue)},
    {SETTER(ASN1_CRL_SetCertificateListTBSCertList),
     SETTER(ASN1_CRL_SetCertificateListAlgorithmIdentifier),
     SETTER(ASN1_CRL_SetCertificateListSignatureValue)}};

const RecordKind<PKCS10> kPkcs10 = {
    ASN1_CreatePKCS10, ASN1_FreePKCS10, ASN1_PKCS10WriteData, ASN1_PKCS10Decode,
    {FIELD(PKCS10, version), FIELD(PKCS10, subject), FIELD(PKCS10, subjectPublicKeyInfo),
     FIELD(PKCS10, attributes)},
    {SETTER(ASN1_PKCS10SetVersion), SETTER(ASN1_PKCS10SetSubject),
     SETTER(ASN1_PKCS10SetSubjectPublicKeyInfo), SETTER(ASN1_PKCS10SetAttributes)}};

const RecordKind<PKCS10Request> kPkcs10Request = {
    ASN1_CreatePKCS10Request, ASN1_FreePKCS10Request, ASN1_PKCS10RequestWriteData,
    ASN1_PKCS10RequestDecode,
    {FIELD(PKCS10Request, certificationRequestInfo), FIELD(PKCS10Request, signatureAlgorithm),
     FIELD(PKCS10Request, signature)},
    {SETTER(ASN1_PKCS10RequestSetCertificationRequestInfo),
     SETTER(ASN1_PKCS10RequestSetAlgorithmIdentifier), SETTER(ASN1_PKCS10RequestSetSignature)}};

const RecordKind<ExtendedCertificateInfo> kExtendedCertificateInfo = {
    ASN1_PKCS6_CreateExtendedCertificateInfo, ASN1_PKCS6_FreeExtendedCertificateInfo,
    ASN1_PKCS6_CertificateInfoWriteData, ASN1_PKCS6_CertificateInfoDecode,
    {FIELD(ExtendedCertificateInfo, version), FIELD(ExtendedCertificateInfo, certificate),
     FIELD(ExtendedCertificateInfo, attributes)},
    {SETTER(ASN1_PKCS6_SetCertificateInfoVersion), SETTER(ASN1_PKCS6_SetCertificateInfoX509),
     SETTER(ASN1_PKCS6_SetCertificateInfoAttributes)}};

const RecordKind<ExtendedCertificate> kExtendedCertificate = {
    ASN1_PKCS6_CreateExtendedCertificate, ASN1_PKCS6_FreeExtendedCertificate,
    ASN1_PKCS6_CertificateWriteData, ASN1_PKCS6_CertificateDecode,
    {FIELD(ExtendedCertificate, extendedCertificateInfo),
     FIELD(ExtendedCertificate, signatureAlgorithm), FIELD(ExtendedCertificate, signature)},
    {SETTER(ASN1_PKCS6_SetCertificateCertificateInfo),
     SETTER(ASN1_PKCS6_SetCertificateSignatureAlgorithmIdentifier),
     SETTER(ASN1_PKCS6_SetCertificateSignature)}};

const RecordKind<PKCS7Context> kPkcs7Context = {
    ASN1_PKCS7_CreateContext, ASN1_PKCS7_FreeContext, ASN1_PKCS7_WriteData, ASN1_PKCS7_Decode,
    {FIELD(PKCS7Context, contentType), FIELD(PKCS7Context, content)},
    {SETTER(ASN1_PKCS7_SetContentType), SETTER(ASN1_PKCS7_SetContent)}};
// clang-format on

}  // namespace

const Callers kRecordCallers = {
    {"TBSCertificate", Builder(kTbsCertificate)},
    {"ASN1_TBSCertificateDecode", Decoder(kTbsCertificate)},
    {"Certificate", Builder(kCertificate)},
    {"ASN1_CertificateDecode", Decoder(kCertificate)},
    {"RevokedCertificate", Builder(kRevokedCertificate)},
    {"ASN1_CRL_RevokedCertificateDecode", Decoder(kRevokedCertificate)},
    {"TbsCertList", Builder(kTbsCertList)},
    {"ASN1_CRL_TbsCertListDecode", Decoder(kTbsCertList)},
    {"CertificateList", Builder(kCertificateList)},
    {"ASN1_CRL_CertificateListDecode", Decoder(kCertificateList)},
    {"PKCS10", Builder(kPkcs10)},
    {"ASN1_PKCS10Decode", Decoder(kPkcs10)},
    {"PKCS10Request", Builder(kPkcs10Request)},
    {"ASN1_PKCS10RequestDecode", Decoder(kPkcs10Request)},
    {"ExtendedCertificateInfo", Builder(kExtendedCertificateInfo)},
    {"ASN1_PKCS6_CertificateInfoDecode", Decoder(kExtendedCertificateInfo)},
    {"ExtendedCertificate", Builder(kExtendedCertificate)},
    {"ASN1_PKCS6_CertificateDecode", Decoder(kExtendedCertificate)},
    {"PKCS7Context", Builder(kPkcs7Context)},
    {"ASN1_PKCS7_Decode", Decoder(kPkcs7Context)},
};
