// The message catalogue, bound when the library loads.
#pragma once

#include <string>

/// The catalogue's text for \p key; the fallback text when none is bound.
const char* LoadStrEntry(const char* key);
/// Binds Convertmsg beside this library. \returns 1 when bound.
int BindMessageLibrary();
/// Releases the catalogue. \returns 1.
int ReleaseMessageLibrary();
/// The folder of the library (or of the program it is linked into), where
/// the libraries that it loads stand.
std::string LibraryFolder();
