#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tactora {

// Where each finger of a touch sequence was first seen, keyed by finger id.
//
// A flat list searched linearly: a sequence holds a handful of ids, so this beats a node-based
// map and, because clear() keeps the capacity, a recogniser that has seen a sequence's ids
// once allocates nothing per frame afterwards.
//
// A plain value; used on one thread with the recogniser that owns it.
class FingerOrigins {
  public:
    struct Origin {
        double x = 0;
        double y = 0;
        bool operator==(const Origin&) const = default;
    };

    // The origin of `id`, or null when the id has not been seen in this sequence. Defined here,
    // so that the recogniser's per-finger lookup is inlined.
    const Origin* find(std::int64_t id) const {
        for (const Entry& entry : entries_) {
            if (entry.id == id) {
                return &entry.origin;
            }
        }
        return nullptr;
    }

    // Records the origin of an id that find() does not know.
    void insert(std::int64_t id, Origin origin) { entries_.push_back(Entry{id, origin}); }

    std::size_t size() const { return entries_.size(); }
    bool empty() const { return entries_.empty(); }
    void clear() { entries_.clear(); }

    // Equal when both hold the same ids with the same origins, in any order.
    bool operator==(const FingerOrigins& other) const;

  private:
    struct Entry {
        std::int64_t id = 0;
        Origin origin;
    };
    std::vector<Entry> entries_;
};

}  // namespace tactora
