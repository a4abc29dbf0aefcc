#include "list_parts.h"

#include "signed_whole.h"
#include "velkord.hpp"

using velkord::Bytes, velkord::Chain, velkord::ChainBuilder, velkord::Check, velkord::Handle,
    velkord::Length, velkord::Make, velkord::NodePtr, velkord::Out;

namespace {

std::vector<Handle<RevokedCertificate>> ReadEntries(const TbsCertList& tbs) {
  std::vector<Handle<RevokedCertificate>> entries;
  if (tbs.hasRevokedCertificates != 1) return entries;
  const NodePtr elements = Make("split the entries", ASN1_ReadSequence, tbs.revokedCertificates);
  for (const Anybuf& element : Chain(elements.get())) {
    Check(ASN1_CRL_RevokedCertificateDecode(element.data, element.dataLen,
                                            Out(entries.emplace_back())),
          "decode an entry");
  }
  return entries;
}

NodePtr RebuildEntry(const RevokedCertificate& from) {
  const auto entry = Make("create an entry", ASN1_CRL_CreateRevokedCertificate);
  Check(ASN1_CRL_SetRevokedCertificateCertificateSerialNumber(entry.get(),
                                                              from.certificateSerialNumber),
        "set an entry's serial number");
  Check(ASN1_CRL_SetRevokedCertificateRevocationDate(entry.get(), from.revocationDate),
        "set an entry's date");
  if (from.hasCrlEntryExtensions == 1) {
    Check(ASN1_CRL_SetRevokedCertificateCrlEntryExtensions(entry.get(), from.crlEntryExtensions),
          "set an entry's extensions");
  }
  return Make("write an entry", ASN1_CRL_RevokedCertificateWriteData, entry.get());
}

NodePtr RebuildEntries(const ListParts& parts) {
  ChainBuilder chain;
  for (const Handle<RevokedCertificate>& entry : parts.entries) chain.Append(RebuildEntry(*entry));
  return Make("write the entries", ASN1_WriteSequence, chain.Head());
}

}  // namespace

ListParts ReadListParts(Bytes der) {
  ListParts parts;
  Check(ASN1_CRL_CertificateListDecode(der.data(), Length(der), Out(parts.list)),
        "decode the list");
  const Anybuf& signedPart = *parts.list->tbsCertList;
  Check(ASN1_CRL_TbsCertListDecode(signedPart.data, signedPart.dataLen, Out(parts.tbs)),
        "decode the signed part");
  parts.entries = ReadEntries(*parts.tbs);
  return parts;
}

NodePtr RebuildSignedList(const ListParts& parts) {
  const TbsCertList& from = *parts.tbs;
  const auto tbs = Make("create the signed part", ASN1_CRL_CreateTbsCertList);
  Check(ASN1_CRL_TbsCertListSetVersion(tbs.get(), from.version), "set the version");
  Check(ASN1_CRL_TbsCertListSetSignatureAlgorithmIdentifier(tbs.get(), from.signature),
        "set the signature algorithm");
  Check(ASN1_CRL_TbsCertListSetIssuer(tbs.get(), from.issuer), "set the issuer");
  Check(ASN1_CRL_TbsCertListSetThisUpdate(tbs.get(), from.thisUpdate, from.timeForm),
        "set thisUpdate");
  if (from.hasNextUpdate == 1) {
    Check(ASN1_CRL_TbsCertListSetNextUpdate(tbs.get(), from.nextUpdate), "set nextUpdate");
  }
  if (from.hasRevokedCertificates == 1) {
    Check(ASN1_CRL_TbsCertListSetRevokedCertificates(tbs.get(), RebuildEntries(parts).get()),
          "set the entries");
  }
  if (from.hasCrlExtensions == 1) {
    Check(ASN1_CRL_TbsCertListSetCrlExtensions(tbs.get(), from.crlExtensions),
          "set the extensions");
  }
  return Make("write the signed part", ASN1_CRL_TbsCertListWriteData, tbs.get());
}

NodePtr RebuildList(const ListParts& parts) {
  return WriteSigned(kListWhole, *parts.list->tbsCertList, *parts.list->signatureAlgorithm,
                     *parts.list->signatureValue);
}
