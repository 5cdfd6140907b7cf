#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <random>

namespace tactora::corpus {

// The corpus's only source of chance. The engine's output is fixed by the C++ standard, and the
// distributions are computed here rather than taken from the library (whose distributions
// differ between implementations), so a seed gives the same corpus on every system.
class Dice {
  public:
    explicit Dice(std::uint64_t seed) : engine_(seed) {}

    // Uniform in [0, 1).
    double unit() { return static_cast<double>(engine_() >> 11U) * 0x1.0p-53; }

    double uniform(double low, double high) { return low + ((high - low) * unit()); }

    // An integer from `low` to `high`, both included.
    std::int64_t integer(std::int64_t low, std::int64_t high) {
        const auto span = static_cast<double>(high - low + 1);
        return low + static_cast<std::int64_t>(std::floor(unit() * span));
    }

    bool chance(double probability) { return unit() < probability; }

    // Normal, by the Box-Muller transform.
    double normal(double mean, double deviation) {
        const double u = 1.0 - unit();  // (0, 1]: the logarithm stays finite
        const double v = unit();
        return mean +
               (deviation * std::sqrt(-2.0 * std::log(u)) * std::cos(2.0 * std::numbers::pi * v));
    }

    // Normal, kept within [low, high].
    double normalWithin(double mean, double deviation, double low, double high) {
        return std::clamp(normal(mean, deviation), low, high);
    }

    double exponential(double mean) { return -mean * std::log(1.0 - unit()); }

  private:
    std::mt19937_64 engine_;
};

}  // namespace tactora::corpus
