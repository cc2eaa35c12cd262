// What a program of Microsoft's compiler gets from that compiler's own libraries, as far as the
// hosts here need it.

#include <cstddef>
#include <cstdio>
#include <cstring>

extern "C" {
__declspec(dllimport) void* GetProcessHeap();
__declspec(dllimport) void* HeapAlloc(void* heap, unsigned long flags, std::size_t size);
__declspec(dllimport) int HeapFree(void* heap, unsigned long flags, void* block);
__declspec(dllimport) void* GetStdHandle(unsigned long which);
__declspec(dllimport) int WriteFile(void* file, const void* bytes, unsigned long size,
                                    unsigned long* written, void* overlapped);
[[noreturn]] __declspec(dllimport) void ExitProcess(unsigned status);

// Whoever calculates with floating values asks for it.
int _fltused = 1;

void* memcpy(void* to, const void* from, std::size_t size) {
  for (std::size_t i = 0; i < size; ++i) {
    static_cast<char*>(to)[i] = static_cast<const char*>(from)[i];
  }
  return to;
}

void* memmove(void* to, const void* from, std::size_t size) {
  if (to <= from) return memcpy(to, from, size);
  for (std::size_t i = size; i > 0; --i) {
    static_cast<char*>(to)[i - 1] = static_cast<const char*>(from)[i - 1];
  }
  return to;
}

void* memset(void* to, int byte, std::size_t size) {
  for (std::size_t i = 0; i < size; ++i) static_cast<char*>(to)[i] = static_cast<char>(byte);
  return to;
}

std::size_t strlen(const char* text) {
  std::size_t length = 0;
  while (text[length] != '\0') ++length;
  return length;
}

int strcmp(const char* one, const char* other) {
  while (*one != '\0' && *one == *other) {
    ++one;
    ++other;
  }
  return *one - *other;
}

// Named by whatever could be thrown through; nothing is here.
int __CxxFrameHandler3() { ExitProcess(99); }
[[noreturn]] void __std_terminate() { ExitProcess(98); }

// Named by the description of each class with virtual operations; nobody here asks for one.
extern void* const kTypeInfoTable[1] __asm__("??_7type_info@@6B@");
void* const kTypeInfoTable[1] = {nullptr};

FILE* const stdout = nullptr;

int fputs(const char* text, FILE* /*file*/) {
  constexpr unsigned long kStandardOutput = static_cast<unsigned long>(-11);
  unsigned long written = 0;
  const auto size = static_cast<unsigned long>(strlen(text));
  return WriteFile(GetStdHandle(kStandardOutput), text, size, &written, nullptr) != 0 ? 0 : -1;
}
}

void* operator new(std::size_t size) { return HeapAlloc(GetProcessHeap(), 0, size); }
void* operator new[](std::size_t size) { return HeapAlloc(GetProcessHeap(), 0, size); }
void operator delete(void* block) noexcept { HeapFree(GetProcessHeap(), 0, block); }
void operator delete[](void* block) noexcept { HeapFree(GetProcessHeap(), 0, block); }
void operator delete(void* block, std::size_t) noexcept { HeapFree(GetProcessHeap(), 0, block); }
void operator delete[](void* block, std::size_t) noexcept { HeapFree(GetProcessHeap(), 0, block); }

int main();

extern "C" void mainCRTStartup() { ExitProcess(static_cast<unsigned>(main())); }
