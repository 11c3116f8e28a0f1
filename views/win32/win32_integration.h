#pragma once

#include "win32_view.h"

namespace nvrandom::win32 {

// The Win32 composition of the component, for the COM server (NVRandom.dll). The class factory
// calls InstallWin32Composition before it creates an object: the Windows services become the
// default (app::SetDefaultServicesFactory), and the forms of the calling thread's component
// state get a Win32View, kept until ReleaseWin32Views. `hold` is told of every window the views
// create and destroy (the server stays loaded while one exists).
//
// A host embeds the biller dialog by reparenting its window: ShowForm_Remote shows it modeless
// at (0, 0), Get_hWnd gives its handle, and after SetParent(handle, container) the window is a
// child of the container (see FormWindow).
void InstallWin32Composition(const Win32View::WindowHold& hold);

// Destroys every thread's view and unregisters the window classes: the server calls it when it is
// unloaded (FreeLibrary), never at process exit.
void ReleaseWin32Views();

}  // namespace nvrandom::win32
