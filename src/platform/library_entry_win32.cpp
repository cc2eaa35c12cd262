#include <windows.h>

// Hosts start threads all the time, and the library wants to be told of none.
extern "C" BOOL WINAPI DllMain(HINSTANCE library, DWORD reason, void* /*reserved*/) {
  if (reason == DLL_PROCESS_ATTACH) ::DisableThreadLibraryCalls(library);
  return TRUE;
}
