#pragma once

#include <dlfcn.h>

#include <cstring>
#include <stdexcept>
#include <string>

namespace tactora::testing {

// A library opened by path for the length of a test, for reaching a stand-in's controls.
// Opening the path the bridge opened yields the same loaded copy.
class LoadedLibrary {
  public:
    explicit LoadedLibrary(const std::string& path) : handle_(dlopen(path.c_str(), RTLD_NOW)) {
        if (handle_ == nullptr) {
            throw std::runtime_error("cannot load " + path);
        }
    }
    ~LoadedLibrary() { dlclose(handle_); }
    LoadedLibrary(const LoadedLibrary&) = delete;
    LoadedLibrary& operator=(const LoadedLibrary&) = delete;

    template <typename Function>
    Function function(const char* name) const {
        void* symbol = dlsym(handle_, name);
        if (symbol == nullptr) {
            throw std::runtime_error(std::string("missing ") + name);
        }
        Function result;
        static_assert(sizeof result == sizeof symbol);
        std::memcpy(&result, &symbol, sizeof result);
        return result;
    }

  private:
    void* handle_;
};

}  // namespace tactora::testing
