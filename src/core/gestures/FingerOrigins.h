#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <vector>

namespace tactora {

// Where each finger of a touch sequence was first seen, keyed by finger id.
//
// The first `listed` ids go into a flat list searched linearly: a sequence holds a handful of
// ids, so this beats a node-based map and, because clear() keeps the capacity, a recogniser that
// has seen a sequence's ids once allocates nothing per frame afterwards. A sequence whose fingers
// keep landing with new ids could grow that list without end and make every lookup slower, so
// ids beyond the first `listed` go into an ordered map instead: a lookup compares at most
// `listed` ids, then a logarithmic number, whatever ids a surface or a trace hands over.
//
// A plain value; used on one thread with the recogniser that owns it.
class FingerOrigins {
  public:
    // As many ids as one frame of the surface reports at most.
    static constexpr std::size_t listed = 16;

    struct Origin {
        double x = 0;
        double y = 0;
        bool operator==(const Origin&) const = default;
    };

    // The origin of `id`, or null when the id has not been seen in this sequence. The list's
    // search is defined here, so that the recogniser's per-finger lookup is inlined.
    const Origin* find(std::int64_t id) const {
        for (const Entry& entry : entries_) {
            if (entry.id == id) {
                return &entry.origin;
            }
        }
        return overflow_.empty() ? nullptr : findBeyondTheList(id);
    }

    // Records the origin of an id that find() does not know.
    void insert(std::int64_t id, Origin origin) {
        if (entries_.size() < listed) {
            entries_.push_back(Entry{id, origin});
        } else {
            overflow_.emplace(id, origin);
        }
    }

    std::size_t size() const { return entries_.size() + overflow_.size(); }
    bool empty() const { return entries_.empty(); }
    // The ids that find() compares one by one; never more than `listed`.
    std::size_t listedSize() const { return entries_.size(); }
    void clear() {
        entries_.clear();
        overflow_.clear();
    }

    // Equal when both hold the same ids with the same origins, in any order.
    bool operator==(const FingerOrigins& other) const;

  private:
    struct Entry {
        std::int64_t id = 0;
        Origin origin;
    };

    const Origin* findBeyondTheList(std::int64_t id) const;

    std::vector<Entry> entries_;
    std::map<std::int64_t, Origin> overflow_;  // only once the list is full
};

}  // namespace tactora
