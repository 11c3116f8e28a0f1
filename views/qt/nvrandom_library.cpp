// libnvrandom is made of the layer libraries, linked whole; this file gives the shared library
// its one source of its own: the version a host can ask for.
namespace nvrandom {
extern "C" const char* nvrandom_version() {
  return "0.1.0";
}
}  // namespace nvrandom
