// Writes one structure to a PEM file.
#ifndef VELKORD_EXAMPLES_PEM_FILE_H_
#define VELKORD_EXAMPLES_PEM_FILE_H_

#include <string>

#include "Velkord.h"

// Throws std::runtime_error when the file cannot be written.
void WritePemFile(const std::string& path, const std::string& label, const Anybuf& der);

#endif  // VELKORD_EXAMPLES_PEM_FILE_H_
