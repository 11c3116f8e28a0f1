// The class's default constructor belongs to the composition root: the api layer names no
// concrete service, and a plain host that links the component gets the thread's default state.
#include "api/cls_random.h"
#include "app/thread_context.h"

namespace nvrandom {

ClsRandom::ClsRandom() : ClsRandom(app::ThreadContext()) {}

}  // namespace nvrandom
