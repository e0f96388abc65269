// The library's version, set once in the build.
#include "quillmesh/quillmesh.hpp"
#include "quillmesh/version.h"

namespace quillmesh {
const char* Version() { return QUILLMESH_VERSION; }
}  // namespace quillmesh
