#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

#include "app/fakes/FakeClock.h"
#include "core/platform/MainQueue.h"

namespace tactora::testing {

// A main queue on virtual time: nothing runs until the test calls runReady() or advance().
// Items run in the order they fall due, ties in the order they were given. Frames are kept by
// value in the queue's own reserved storage, so handing one over allocates nothing here.
class FakeMainQueue final : public MainQueue {
  public:
    explicit FakeMainQueue(FakeClock& clock) : clock_(clock) { items_.reserve(64); }

    void async(std::function<void()> work) override { add(clock_.now, std::move(work), 0); }

    void asyncFrame(const ContactFrame& frame, FrameReceiver receive) override {
        items_.push_back({clock_.now, nextSequence_++, {}, 0, frame, receive});
    }

    void after(double seconds, std::function<void()> work) override {
        delays.push_back(seconds);
        add(clock_.now + seconds, std::move(work), 0);
    }

    void every(double seconds, std::function<void()> work) override {
        intervals.push_back(seconds);
        add(clock_.now + seconds, std::move(work), seconds);
    }

    // Runs everything that is due now, including work that this work queues for now.
    void runReady() { advance(0); }

    // Moves time forward by `seconds`, running each item at the moment it falls due.
    void advance(double seconds) {
        const double target = clock_.now + seconds;
        while (runNextDueBy(target)) {
        }
        clock_.now = target;
    }

    std::size_t pending() const { return items_.size(); }

    std::vector<double> delays;     // every after() delay, in order
    std::vector<double> intervals;  // every every() interval, in order

  private:
    struct Item {
        double due = 0;
        std::uint64_t sequence = 0;
        std::function<void()> work;
        double interval = 0;
        ContactFrame frame;
        FrameReceiver receive = nullptr;
    };

    void add(double due, std::function<void()> work, double interval) {
        items_.push_back({due, nextSequence_++, std::move(work), interval, {}, nullptr});
    }

    bool runNextDueBy(double target) {
        const auto next =
            std::min_element(items_.begin(), items_.end(), [](const Item& a, const Item& b) {
                return a.due != b.due ? a.due < b.due : a.sequence < b.sequence;
            });
        if (next == items_.end() || next->due > target) {
            return false;
        }
        Item item = std::move(*next);
        items_.erase(next);
        clock_.now = std::max(clock_.now, item.due);
        if (item.interval > 0) {
            add(item.due + item.interval, item.work, item.interval);
        }
        if (item.receive != nullptr) {
            item.receive(item.frame);
        } else {
            item.work();
        }
        return true;
    }

    FakeClock& clock_;
    std::vector<Item> items_;
    std::uint64_t nextSequence_ = 0;
};

}  // namespace tactora::testing
