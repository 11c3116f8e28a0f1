#pragma once

namespace nvrandom {
class Context;
}

namespace nvrandom::app {

// The component state of the calling thread (apartment), built with MakeDefaultServices() on
// first use and shared by every ClsRandom made with the default constructor on that thread.
//
// The states are owned by one registry of the library, not by thread_local objects: a
// thread_local with a destructor would run that destructor at thread exit, possibly after the
// library (a COM server DLL) has been unloaded, calling code that is no longer mapped. The
// registry is destroyed with the library instead; the thread keeps only a plain pointer, which
// needs no destructor. A state lives until the library unloads or ReleaseThreadContext is called
// on its thread, so a host that releases its last instance and creates another keeps the record,
// as the store's rules require.
Context& ThreadContext();

// Destroys the calling thread's state (the COM server calls it when an apartment ends); the next
// ThreadContext() on the thread starts afresh. Nothing may still use the state.
void ReleaseThreadContext();

}  // namespace nvrandom::app
