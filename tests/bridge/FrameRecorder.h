#pragma once

#include <cstdint>
#include <vector>

namespace tactora::testing {

struct DeliveredContact {
    std::int32_t id;
    float x;
    float y;
    float size = 0;  // the first of the contact's shape values
    bool operator==(const DeliveredContact&) const = default;
};

// A client callback for the bridge that keeps every frame it is handed. The bridge takes a
// plain function pointer, so the frames live in one process-wide list.
class FrameRecorder {
  public:
    static void clear() { frames().clear(); }
    static const std::vector<std::vector<DeliveredContact>>& received() { return frames(); }

    static void record(std::int32_t count, const std::int32_t* ids, const float* xs,
                       const float* ys, const float* shapes) {
        std::vector<DeliveredContact> frame;
        for (std::int32_t index = 0; index < count; ++index) {
            const float size = shapes == nullptr ? -1.0f : shapes[index * 4];
            frame.push_back({ids[index], xs[index], ys[index], size});
        }
        frames().push_back(frame);
    }

  private:
    static std::vector<std::vector<DeliveredContact>>& frames() {
        static std::vector<std::vector<DeliveredContact>> list;
        return list;
    }
};

}  // namespace tactora::testing
