// Arbitrary bytes as a raw contact frame: the filter must never read outside the records it is
// given, and what it keeps must be exactly the first 16 touching records in order.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "bridge/FrameFilter.h"

namespace {

struct Contact {
    std::int32_t id;
    std::int32_t state;
    float x;
    float y;
};

Contact readContact(const std::uint8_t* record) {
    Contact contact{};
    std::memcpy(&contact.id, record + 16, 4);
    std::memcpy(&contact.state, record + 20, 4);
    std::memcpy(&contact.x, record + 32, 4);
    std::memcpy(&contact.y, record + 36, 4);
    return contact;
}

bool sameBits(float left, float right) {
    return std::memcmp(&left, &right, sizeof left) == 0;
}

void check(bool condition) {
    if (!condition) {
        std::abort();
    }
}

void checkKept(const std::uint8_t* records, std::int32_t count, const TAFrame& frame) {
    std::int32_t expected = 0;
    for (std::int32_t index = 0; index < count && expected < TA_MAX_KEPT_CONTACTS; ++index) {
        const Contact contact = readContact(records + index * TA_CONTACT_RECORD_SIZE);
        if (contact.state != 3 && contact.state != 4) {
            continue;
        }
        check(frame.ids[expected] == contact.id);
        check(sameBits(frame.xs[expected], contact.x));
        check(sameBits(frame.ys[expected], contact.y));
        ++expected;
    }
    check(frame.count == expected);
}

}  // namespace

// The first byte chooses the count (-64 to 63) and whether the records pointer is null; the
// rest are the records, copied to a buffer of exactly the size the count claims, at an odd
// address so that unaligned reads are exercised.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    const bool nullRecords = (data[0] & 0x80) != 0;
    const auto count = static_cast<std::int32_t>(data[0] & 0x7F) - 64;
    const std::size_t needed =
        count > 0 ? static_cast<std::size_t>(count) * TA_CONTACT_RECORD_SIZE : 0;
    std::vector<std::uint8_t> buffer(needed + 1);
    std::memcpy(buffer.data() + 1, data + 1, std::min(needed, size - 1));
    const std::uint8_t* records = nullRecords ? nullptr : buffer.data() + 1;

    TAFrame frame;
    const bool delivered = TAFilterFrame(records, count, &frame);

    const bool implausible = count > TA_MAX_FRAME_CONTACTS || (nullRecords && count != 0);
    check(delivered == !implausible);
    if (delivered) {
        check(frame.count >= 0 && frame.count <= TA_MAX_KEPT_CONTACTS);
        checkKept(records, count, frame);
    }
    return 0;
}
