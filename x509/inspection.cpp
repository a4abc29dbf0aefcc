// A caller's view of a decoded certificate: the list of its subject, and one value looked up in an
// extension. What does not parse is skipped.
#include <algorithm>
#include <array>
#include <string_view>

#include "der/byte_string.h"
#include "der/object_id.h"
#include "x509/extension.h"
#include "x509/name.h"
#include "x509/record.h"

using namespace velkord::internal;

namespace {

// The TLV of the identifier of the item whose value is looked up.
constexpr std::array<uint8_t, 10> kValueItemId = [] {
  std::array<uint8_t, 10> tlv{kObjectId, 8};
  size_t at = 2;
  ForEachObjectIdOctet("1.2.156.1.8888.148", [&](uint8_t octet) { tlv[at++] = octet; });
  return tlv;
}();

// Releases a list of entries and their blocks.
template <auto... kBlocks, typename Entry>
void FreeEntries(Entry* entry) {
  while (entry != nullptr) {
    Entry* next = entry->next;
    (Release(entry->*kBlocks), ...);
    Release(entry);
    entry = next;
  }
}

// Copies bytes into a block of their own; block and length stay empty when memory runs out.
void CopyToBlock(Bytes bytes, uint8_t*& block, uint32_t& length) {
  block = AllocateBytes(bytes.size());
  if (block != nullptr) length = CopyOut(bytes, block);
}

// Stores the value of an attribute in an entry; it stays empty for a type that is not read.
void SetEntryValue(const DerElement& value, CertEntry& entry) {
  const uint8_t tag = value.whole[0];
  if (tag == kUtf8String || tag == kPrintableString) {
    CopyToBlock(value.Content(), entry.value, entry.valueLen);
  } else if (tag == kBmpString) {
    entry.value = AllocateBytes(value.Content().size());
    if (entry.value != nullptr) entry.valueLen = CopyBmpText(value.Content(), entry.value);
  }
}

// ValueItem ::= SEQUENCE {
//   id     OBJECT IDENTIFIER,  -- 1.2.156.1.8888.148
//   value  ANY }
// The content of `value`. False for an item with another identifier.
bool OpenValueItem(Bytes in, Bytes& content) {
  DerElements parts;
  DerElement id;
  DerElement value;
  return parts.Open(in, kSequenceType) == VELKORD_OK && parts.Next(id) == VELKORD_OK &&
         std::equal(id.whole.begin(), id.whole.end(), kValueItemId.begin(), kValueItemId.end()) &&
         parts.Next(value) == VELKORD_OK && DerOpenContent(value, content) == VELKORD_OK;
}

// Copies the value of the last ValueItem in a SEQUENCE of items.
void CopyItemValue(Bytes extensionValue, uint8_t* value, uint32_t* valueLength) {
  DerElements items;
  if (items.Open(extensionValue, kSequenceType) != VELKORD_OK) return;
  DerElement item;
  Bytes content;
  while (items.Next(item) == VELKORD_OK) {
    if (OpenValueItem(item.whole, content)) *valueLength = CopyOut(content, value);
  }
}

// Extensions ::= SEQUENCE SIZE (1..MAX) OF Extension
// The field of a decoded record has another SEQUENCE around them.
int32_t OpenExtensionList(const Anybuf& field, DerElements& extensions) {
  DerElements outer;
  DerElement list;
  VELKORD_TRY(outer.Open(NodeBytes(field), kSequenceType));
  VELKORD_TRY(outer.Next(list));
  return extensions.Open(list.whole, kSequenceType);
}

// Takes the next extension whose identifier has `size` octets, the first of them those of `start`.
bool NextExtension(DerElements& extensions, size_t size, Bytes start, ExtensionView& extension) {
  DerElement element;
  while (extensions.Next(element) == VELKORD_OK) {
    if (OpenExtension(element.whole, extension) == VELKORD_OK && extension.oid.size() == size &&
        std::equal(start.begin(), start.end(), extension.oid.begin())) {
      return true;
    }
  }
  return false;
}

// Takes the first extension whose identifier is that of the text. One that agrees with the octets
// so far stands until it differs in one, and then gives way to the next that agrees with them, so
// that the text is not read anew for each extension.
bool FindExtension(DerElements& extensions, std::string_view text, ExtensionView& extension) {
  const size_t size = ObjectIdSize(text);
  bool found = NextExtension(extensions, size, Bytes(), extension);
  // A refused text stands for no octets, but would give those of its first arcs.
  if (size == 0) return found;
  size_t at = 0;
  ForEachObjectIdOctet(text, [&](uint8_t octet) {
    while (found && extension.oid[at] != octet) {
      found = NextExtension(extensions, size, extension.oid.first(at), extension);
    }
    ++at;
  });
  return found;
}

}  // namespace

X509Cert* X509CertCreate(X509Cert** out) {
  auto* record = AllocateZeroed<X509Cert>();
  if (record != nullptr && out != nullptr) *out = record;
  return record;
}

void X509CertFree(X509Cert* record) {
  if (record == nullptr) return;
  for (uint8_t* block :
       {record->block1, record->block2, record->block3, record->block4, record->block5}) {
    Release(block);
  }
  ASN1_FreeTBSCertificate(record->tbs);
  FreeEntries<&CertEntry::oid, &CertEntry::value>(record->entriesA);
  FreeEntries<&CertEntry::oid, &CertEntry::value>(record->subjectEntries);
  FreeEntries<&CertWideEntry::block1, &CertWideEntry::block3>(record->entriesB);
  Release(record);
}

int32_t X509CertGetSubject(X509Cert* record) {
  if (record == nullptr || record->tbs == nullptr || record->tbs->subject == nullptr) {
    return VELKORD_NULL_ARGUMENT;
  }
  CertEntry** tail = &record->subjectEntries;
  while (*tail != nullptr) tail = &(*tail)->next;

  DerElements names;
  if (names.Open(NodeBytes(*record->tbs->subject), kSequenceType) != VELKORD_OK) return VELKORD_OK;
  DerElement name;
  while (names.Next(name) == VELKORD_OK) {
    AttributeView attribute;
    if (OpenFirstAttribute(name.whole, attribute) != VELKORD_OK) continue;
    auto* entry = AllocateZeroed<CertEntry>();
    if (entry == nullptr) return VELKORD_FAILURE;
    CopyToBlock(attribute.type, entry->oid, entry->oidLen);
    SetEntryValue(attribute.value, *entry);
    *tail = entry;
    tail = &entry->next;
  }
  return VELKORD_OK;
}

int32_t X509CertGetOIDValue(const X509Cert* record, const char* oidText, int32_t textLength,
                            uint8_t* value, uint32_t* valueLength) {
  if (record == nullptr || record->tbs == nullptr) return VELKORD_NULL_ARGUMENT;
  const Anybuf* field = record->tbs->extensions;
  if (field == nullptr || value == nullptr || valueLength == nullptr) return VELKORD_FAILURE;
  std::string_view text;
  VELKORD_TRY(CallerText(oidText, textLength, text));

  DerElements extensions;
  if (OpenExtensionList(*field, extensions) != VELKORD_OK) return VELKORD_OK;
  ExtensionView extension;
  bool found = FindExtension(extensions, text, extension);
  while (found) {
    CopyItemValue(extension.value, value, valueLength);
    found = NextExtension(extensions, extension.oid.size(), extension.oid, extension);
  }
  return VELKORD_OK;
}
