#pragma once

#include <algorithm>
#include <string>
#include <vector>

namespace tactora::testing {

// The order in which the fakes were called, shared by all of them.
struct CallLog {
    std::vector<std::string> calls;

    void add(std::string call) { calls.push_back(std::move(call)); }
    void clear() { calls.clear(); }
    bool contains(const std::string& call) const {
        return std::find(calls.begin(), calls.end(), call) != calls.end();
    }
    std::ptrdiff_t count(const std::string& call) const {
        return std::count(calls.begin(), calls.end(), call);
    }
};

}  // namespace tactora::testing
