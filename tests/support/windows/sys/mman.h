// Pages that nobody may touch, by Windows's own calls: what GuardedBuffer asks a system for.
#pragma once

#include <cstddef>

extern "C" {
__declspec(dllimport) void* VirtualAlloc(void* address, std::size_t size, unsigned long type, unsigned long protection);
__declspec(dllimport) int VirtualFree(void* address, std::size_t size, unsigned long type);
__declspec(dllimport) int VirtualProtect(void* address, std::size_t size, unsigned long protection, unsigned long* old);
}

inline constexpr int PROT_NONE = 0, PROT_READ = 1, PROT_WRITE = 2;
inline constexpr int MAP_PRIVATE = 0, MAP_ANONYMOUS = 0;
inline void* const MAP_FAILED = nullptr;
inline constexpr int _SC_PAGESIZE = 0;

inline long sysconf(int) {
    return 4096;
}
// All of what is mapped can be read and written.
inline void* mmap(void*, std::size_t size, int, int, int, int) {
    return VirtualAlloc(nullptr, size, 0x3000 /* MEM_COMMIT | MEM_RESERVE */, 4 /* PAGE_READWRITE */);
}
inline int mprotect(void* memory, std::size_t size, int protection) {
    unsigned long old = 0;
    const unsigned long wanted = protection == PROT_NONE ? 1 : 4; // PAGE_NOACCESS, PAGE_READWRITE
    return VirtualProtect(memory, size, wanted, &old) != 0 ? 0 : -1;
}
inline int munmap(void* memory, std::size_t) {
    return VirtualFree(memory, 0, 0x8000 /* MEM_RELEASE */) != 0 ? 0 : -1;
}
