// The desktop front end (GTK 4), loaded at run time from beside the library.
#pragma once

#include <memory>
#include <string>

#include "quillmesh/quillmesh.hpp"

namespace quillmesh {

/// The desktop windows for one conversion: the file dialog, modal boxes and
/// the progress window. Null when they cannot be used (the front end was not
/// built, there is no display, or this is not the thread of the program's
/// windows), with the reason in \p why.
QM_EXPORT std::unique_ptr<UserInterface> OpenDesktopUserInterface(std::string& why);

/// The front end of a call of ConvertFile or ConvertFile2: the desktop when a
/// display is there and it can be used, else the terminal. QUILLMESH_UI=terminal
/// or QUILLMESH_UI=desktop in the environment forces one; a desktop that
/// cannot be used then says why on stderr and the terminal is used.
QM_EXPORT std::unique_ptr<UserInterface> ChooseUserInterface();

}  // namespace quillmesh
