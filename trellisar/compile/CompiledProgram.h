#pragma once

#include <string>

#include "trellisar/document/DocumentData.h"

/// The program of a system as the receiver takes it. Its form is in docs/compiled-program.md.
namespace trellisar {

/// The compiled program of a system without errors. The same system, with the same projects of its
/// panels, gives the same bytes. Raises host::Error errFile or errBadFile for a project that can't
/// be read.
std::string compileProgram(const DocumentData& document);

/// Stores a compiled program beside the system's file, and in that file that it is there and
/// current; the document is saved by that. Raises host::Error errFile when the system was never
/// saved or a file can't be written; then document and files are as they were.
void storeCompiledProgram(DocumentData& document, const std::string& program);

/// The compiled program that lies beside the system, checked by its own hash. Raises host::Error
/// errFile when there is none or it can't be read, and errBadFile when it is damaged.
std::string storedProgram(const DocumentData& document);

/// Whether the stored program is the one that compiling would give now. A change that nobody has
/// marked is found all the same, since the program itself is compared.
bool isProgramCurrent(const DocumentData& document);

}  // namespace trellisar
