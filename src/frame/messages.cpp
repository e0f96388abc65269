// Binding of the message catalogue, found beside this library.
#include "frame/messages.h"

#include <dlfcn.h>
#include <unistd.h>

#include <atomic>
#include <climits>
#include <mutex>
#include <string>

#include "quillmesh/quillmesh.hpp"

namespace {

using LoadStrFunction = const char* (*)(const char*);

const char* Fallback(const char*) { return "Error : DLL is not loaded. check message dll!"; }

// Read by every run, on any thread; bound and released under the lock.
std::atomic<LoadStrFunction> loadStr{Fallback};
std::mutex bindingLock;
void* messageLibrary = nullptr;

}  // namespace

#ifdef __EMSCRIPTEN__
// In the browser nothing is loaded at run time: the catalogue is linked in.
extern "C" const char* LoadStr(const char* key);
#endif

// The folder of the file that holds this code: the shared library, or the
// program it was linked into.
std::string LibraryFolder() {
  Dl_info info{};
  std::string path;
  if (dladdr(reinterpret_cast<void*>(&BindMessageLibrary), &info) && info.dli_fname)
    path = info.dli_fname;
  if (path.find('/') == std::string::npos) {
    char self[PATH_MAX];
    ssize_t n = ::readlink("/proc/self/exe", self, sizeof self - 1);
    if (n <= 0) return ".";
    path.assign(self, static_cast<std::size_t>(n));
  }
  return path.substr(0, path.rfind('/'));
}

namespace {

// Bound on load, before anything else runs; released on unload.
struct LibraryLifetime {
  LibraryLifetime() { BindMessageLibrary(); }
  ~LibraryLifetime() { ReleaseMessageLibrary(); }
} lifetime;

}  // namespace

const char* LoadStrEntry(const char* key) { return loadStr.load(std::memory_order_acquire)(key); }

int BindMessageLibrary() {
  std::lock_guard<std::mutex> hold(bindingLock);
#ifdef __EMSCRIPTEN__
  loadStr.store(LoadStr, std::memory_order_release);
  return 1;
#else
  if (messageLibrary) return 1;
  std::string name = LibraryFolder() + "/lib" + "Convert" + "msg" + ".so";
  messageLibrary = dlopen(name.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (!messageLibrary) return 0;
  if (auto entry = reinterpret_cast<LoadStrFunction>(dlsym(messageLibrary, "LoadStr"))) {
    loadStr.store(entry, std::memory_order_release);
    return 1;
  }
  loadStr.store(Fallback, std::memory_order_release);
  dlclose(messageLibrary);
  messageLibrary = nullptr;
  return 0;
#endif
}

int ReleaseMessageLibrary() {
  std::lock_guard<std::mutex> hold(bindingLock);
  loadStr.store(Fallback, std::memory_order_release);
  if (messageLibrary) dlclose(messageLibrary);
  messageLibrary = nullptr;
  return 1;
}

namespace quillmesh {
const char* LoadMessage(const char* key) { return LoadStrEntry(key); }
bool BindMessageLibrary() { return ::BindMessageLibrary() != 0; }
void ReleaseMessageLibrary() { ::ReleaseMessageLibrary(); }
}  // namespace quillmesh
