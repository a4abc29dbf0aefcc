#include "request_parts.h"

#include "signed_whole.h"
#include "velkord.hpp"

using velkord::Bytes, velkord::Check, velkord::Length, velkord::Make, velkord::NodePtr,
    velkord::Out;

RequestParts ReadRequestParts(Bytes der) {
  RequestParts parts;
  Check(ASN1_PKCS10RequestDecode(der.data(), Length(der), Out(parts.request)),
        "decode the request");
  const Anybuf& info = *parts.request->certificationRequestInfo;
  Check(ASN1_PKCS10Decode(info.data, info.dataLen, Out(parts.info)), "decode the signed part");
  Check(ASN1_ReadInteger(parts.info->version, &parts.version), "read the version");
  return parts;
}

NodePtr ReadAttributes(const RequestParts& parts) {
  NodePtr attributes;
  uint32_t tagNumber = 0;
  if (parts.info->attributes != nullptr) {
    Check(ASN1_ReadImplicit(parts.info->attributes, Out(attributes), &tagNumber),
          "split the attributes");
  }
  return attributes;
}

NodePtr RebuildSignedRequest(const RequestParts& parts) {
  const PKCS10& from = *parts.info;
  const NodePtr attributes =
      Make("write the attributes", ASN1_WriteSet, ReadAttributes(parts).get());
  const auto info = Make("create the signed part", ASN1_CreatePKCS10);
  Check(ASN1_PKCS10SetVersion(info.get(), parts.version), "set the version");
  Check(ASN1_PKCS10SetSubject(info.get(), from.subject), "set the subject");
  Check(ASN1_PKCS10SetSubjectPublicKeyInfo(info.get(), from.subjectPublicKeyInfo),
        "set the public key");
  Check(ASN1_PKCS10SetAttributes(info.get(), attributes.get()), "set the attributes");
  return Make("write the signed part", ASN1_PKCS10WriteData, info.get());
}

NodePtr RebuildRequest(const RequestParts& parts) {
  return WriteSigned(kRequestWhole, *parts.request->certificationRequestInfo,
                     *parts.request->signatureAlgorithm, *parts.request->signature);
}
