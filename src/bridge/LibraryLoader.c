#include "bridge/LibraryLoader.h"

#include <dlfcn.h>
#include <string.h>

_Static_assert(sizeof(TAAnyFunction) == sizeof(void*), "function and data pointers differ");

void* TAOpenLibrary(const char* path) {
    return dlopen(path, RTLD_NOW | RTLD_LOCAL);
}

TAAnyFunction TALookUpFunction(void* library, const char* name) {
    void* symbol = dlsym(library, name);
    /* ISO C has no cast from a data pointer to a function pointer; POSIX guarantees the bits. */
    TAAnyFunction function;
    memcpy(&function, &symbol, sizeof function);
    return function;
}
