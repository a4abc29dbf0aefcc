#include "list_parts.h"

#include "node_chain.h"
#include "result_codes.h"
#include "signed_whole.h"

namespace {

std::vector<RevokedCertificatePtr> ReadEntries(const TbsCertList& tbs) {
  std::vector<RevokedCertificatePtr> entries;
  if (tbs.hasRevokedCertificates != 1) return entries;
  NodePtr elements;
  Check(ASN1_ReadSequence(tbs.revokedCertificates, Out(elements)), "split the entries");
  for (const Anybuf* element = elements.get(); element != nullptr; element = element->next) {
    Check(ASN1_CRL_RevokedCertificateDecode(element->data, element->dataLen,
                                            Out(entries.emplace_back())),
          "decode an entry");
  }
  return entries;
}

NodePtr RebuildEntry(const RevokedCertificate& from) {
  RevokedCertificatePtr entry;
  Check(ASN1_CRL_CreateRevokedCertificate(Out(entry)), "create an entry");
  Check(ASN1_CRL_SetRevokedCertificateCertificateSerialNumber(entry.get(),
                                                              from.certificateSerialNumber),
        "set an entry's serial number");
  Check(ASN1_CRL_SetRevokedCertificateRevocationDate(entry.get(), from.revocationDate),
        "set an entry's date");
  if (from.hasCrlEntryExtensions == 1) {
    Check(ASN1_CRL_SetRevokedCertificateCrlEntryExtensions(entry.get(), from.crlEntryExtensions),
          "set an entry's extensions");
  }
  NodePtr written;
  Check(ASN1_CRL_RevokedCertificateWriteData(entry.get(), Out(written)), "write an entry");
  return written;
}

NodePtr RebuildEntries(const ListParts& parts) {
  NodeChain chain;
  for (const RevokedCertificatePtr& entry : parts.entries) chain.Append(RebuildEntry(*entry));
  NodePtr written;
  Check(ASN1_WriteSequence(chain.Head(), Out(written)), "write the entries");
  return written;
}

}  // namespace

ListParts ReadListParts(Bytes der) {
  ListParts parts;
  Check(ASN1_CRL_CertificateListDecode(der.data(), Length32(der.size()), Out(parts.list)),
        "decode the list");
  const Anybuf& signedPart = *parts.list->tbsCertList;
  Check(ASN1_CRL_TbsCertListDecode(signedPart.data, signedPart.dataLen, Out(parts.tbs)),
        "decode the signed part");
  parts.entries = ReadEntries(*parts.tbs);
  return parts;
}

NodePtr RebuildSignedList(const ListParts& parts) {
  const TbsCertList& from = *parts.tbs;
  TbsCertListPtr tbs;
  Check(ASN1_CRL_CreateTbsCertList(Out(tbs)), "create the signed part");
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
  NodePtr written;
  Check(ASN1_CRL_TbsCertListWriteData(tbs.get(), Out(written)), "write the signed part");
  return written;
}

NodePtr RebuildList(const ListParts& parts) {
  return WriteSigned(kListWhole, *parts.list->tbsCertList, *parts.list->signatureAlgorithm,
                     *parts.list->signatureValue);
}
