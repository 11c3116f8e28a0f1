#pragma once

#include <windows.h>
// windows.h first: the OLE headers use its types.
#include <ole2.h>

namespace nvrandom::com {

// A new ClsRandom COM object on this thread's component state, answering `iid`.
HRESULT CreateClsRandomObject(REFIID iid, void** out);

}  // namespace nvrandom::com
