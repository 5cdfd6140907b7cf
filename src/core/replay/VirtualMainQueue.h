#pragma once

#include <cstdint>
#include <functional>
#include <queue>
#include <vector>

#include "core/platform/Clock.h"
#include "core/platform/MainQueue.h"

namespace tactora {

// A main queue on virtual time, and the clock it keeps: nothing runs until advanceTo() moves
// time on, and then each item runs at the moment it falls due, ties in the order they were
// given. A repeating item runs at most once per advanceTo(), as a timer that missed firings
// fires once for them. Single-threaded: the replay owns it.
class VirtualMainQueue final : public MainQueue, public Clock {
  public:
    explicit VirtualMainQueue(double start) : now_(start) {}

    double uptime() const override { return now_; }

    void async(std::function<void()> work) override;
    void asyncFrame(const ContactFrame& frame, FrameReceiver receive) override;
    void after(double seconds, std::function<void()> work) override;
    void every(double seconds, std::function<void()> work) override;

    // Runs everything due by `time` (work that it queues included), each at its own moment,
    // then sets the clock to `time`. A time in the past runs what is due now.
    void advanceTo(double time);
    // The same, but work due at `time` itself stays queued.
    void advanceUpTo(double time);

  private:
    struct Item {
        double due = 0;
        std::uint64_t sequence = 0;
        double interval = 0;  // 0 for work that runs once
        std::function<void()> work;
    };
    struct Later {
        bool operator()(const Item& a, const Item& b) const {
            return a.due != b.due ? a.due > b.due : a.sequence > b.sequence;
        }
    };

    void add(double due, double interval, std::function<void()> work);
    static double nextDue(const Item& item, double target);
    void runDue(double until, bool inclusive);

    double now_;
    std::uint64_t nextSequence_ = 0;
    std::priority_queue<Item, std::vector<Item>, Later> items_;
};

}  // namespace tactora
