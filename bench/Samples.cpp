#include "Samples.h"

#include "Statistics.h"
#include "tests/desktop/support/ProcessFigures.h"

#include <thread>

namespace bench {

namespace {

using namespace std::chrono_literals;

// All of it since the processes began.
Sample sampleOf(const Contestant& contestant) {
    Sample sample;
    for (const pid_t process : contestant.processes) {
        const std::chrono::duration<double, std::milli> time = desktop::processorTime(process);
        sample.milliseconds += time.count();
        sample.switches += static_cast<double>(desktop::voluntarySwitches(process));
        sample.mebibytes += static_cast<double>(desktop::proportionalSetSize(process)) / 1024;
    }
    return sample;
}

std::vector<Sample> samplesOf(const std::vector<Contestant>& contestants) {
    std::vector<Sample> samples;
    for (const Contestant& contestant : contestants) {
        samples.push_back(sampleOf(contestant));
    }
    return samples;
}

} // namespace

std::vector<Sample> measure(const std::vector<Contestant>& contestants, const Scene& scene,
                            std::chrono::seconds time) {
    std::this_thread::sleep_for(2s);
    const std::vector<Sample> before = samplesOf(contestants);
    scene(time);
    std::vector<Sample> used = samplesOf(contestants);
    for (std::size_t i = 0; i < used.size(); ++i) {
        used[i].milliseconds -= before[i].milliseconds;
        used[i].switches =
            (used[i].switches - before[i].switches) / static_cast<double>(time.count());
    }
    return used;
}

double Record::median(double Sample::*figure) const {
    return spreadOf(each(figure)).median;
}

double Record::ratioTo(const Record& other, double Sample::*figure) const {
    return pairedRatio(each(figure), other.each(figure));
}

std::vector<double> Record::each(double Sample::*figure) const {
    std::vector<double> figures;
    for (const Sample& sample : samples_) {
        figures.push_back(sample.*figure);
    }
    return figures;
}

} // namespace bench
