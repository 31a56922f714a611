#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace bench {

/// Processes that together do what is measured.
struct Contestant {
    std::string name;
    std::vector<pid_t> processes;
};

/// What a contestant has used up, or uses.
struct Sample {
    double milliseconds = 0; ///< of processor time
    double switches = 0;     ///< voluntary ones, a second
    double mebibytes = 0;    ///< of memory (PSS), at the end
};

/// What goes on during a measurement, for so long.
using Scene = std::function<void(std::chrono::seconds time)>;

/// Measures all of them at the same time, once they have finished starting.
[[nodiscard]] std::vector<Sample> measure(const std::vector<Contestant>& contestants,
                                          const Scene& scene, std::chrono::seconds time);

/// One contestant's measurements, round for round.
class Record {
  public:
    void add(const Sample& sample) { samples_.push_back(sample); }

    [[nodiscard]] double median(double Sample::*figure) const;
    /// The median of the ratios of the rounds.
    [[nodiscard]] double ratioTo(const Record& other, double Sample::*figure) const;

  private:
    [[nodiscard]] std::vector<double> each(double Sample::*figure) const;

    std::vector<Sample> samples_;
};

} // namespace bench
