#pragma once

#include <unistd.h>

#include <fstream>
#include <string>
#include <utility>
#include <vector>

namespace ferna::testing {

/// What the process holds in memory now, MB.
inline double residentMb() {
    long pages = 0;
    long resident = 0;
    std::ifstream("/proc/self/statm") >> pages >> resident;
    return static_cast<double>(resident * sysconf(_SC_PAGESIZE)) / (1024 * 1024);
}

/// Memory over the length of a run.
class MemoryCurve {
public:
    void sample(double at) { points_.emplace_back(at, residentMb()); }

    double last() const { return points_.empty() ? 0 : points_.back().second; }

    /// Growth per unit of length by least squares over the second half, MB: what the first half
    /// fills (caches, the heap's own reserve) is no growth.
    double slope() const {
        const std::size_t first = points_.size() / 2;
        double n = 0, x = 0, y = 0, xx = 0, xy = 0;
        for (std::size_t i = first; i < points_.size(); ++i) {
            const auto [at, mb] = points_[i];
            n += 1;
            x += at;
            y += mb;
            xx += at * at;
            xy += at * mb;
        }
        const double spread = n * xx - x * x;
        return spread == 0 ? 0 : (n * xy - x * y) / spread;
    }

private:
    std::vector<std::pair<double, double>> points_;
};

} // namespace ferna::testing
