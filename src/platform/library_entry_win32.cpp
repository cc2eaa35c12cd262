#include <windows.h>

// Hosts start threads all the time, and the library wants to be told of none. Where the compiler's
// runtime, which is linked in, wants to be told, the system refuses and goes on telling it.
extern "C" BOOL WINAPI DllMain(HINSTANCE library, DWORD reason, void* /*reserved*/) {
  if (reason == DLL_PROCESS_ATTACH) ::DisableThreadLibraryCalls(library);
  return TRUE;
}
