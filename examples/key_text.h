// Keys as text for a reader: nothing but what is public is shown.
#ifndef VELKORD_EXAMPLES_KEY_TEXT_H_
#define VELKORD_EXAMPLES_KEY_TEXT_H_

#include <string>

#include "readable_text.h"

// Indented lines, each with its line end. Each throws std::runtime_error naming the step that
// failed and its code, and wipes the private values that it copied.

// The two forms of PKCS#1.
std::string RsaPublicKeyText(velkord::Bytes der);
std::string RsaPrivateKeyText(velkord::Bytes der);

// The forms that name the algorithm: SubjectPublicKeyInfo, and PrivateKeyInfo of PKCS#8.
std::string PublicKeyInfoText(velkord::Bytes der);
std::string PrivateKeyInfoText(velkord::Bytes der);

#endif  // VELKORD_EXAMPLES_KEY_TEXT_H_
