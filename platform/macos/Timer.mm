#include "platform/Timer.h"

#include "platform/macos/CallOut.h"
#include "platform/macos/Holder.h"

#import <Foundation/Foundation.h>

namespace platform {

using macos::Object;

struct Timer::Peer {
    Object<NSTimer*> timer;
};

namespace {

using TimerBlock = void (^)(NSTimer*);

Object<TimerBlock> timerBlock(std::function<void()> block) {
    return Object<TimerBlock>::adopt([^(NSTimer*) {
        // A copy: the system may drop a block that invalidates its own timer while it runs.
        const std::function<void()> running = block;
        macos::callOut(running);
    } copy]);
}

std::shared_ptr<Timer> timerOf(NSTimer* timer) {
    return std::make_shared<Timer>(
        std::make_unique<Timer::Peer>(Timer::Peer{Object<NSTimer*>::share(timer)}));
}

NSRunLoopMode modeOf(RunLoopMode mode) {
    return mode == RunLoopMode::commonModes ? NSRunLoopCommonModes : NSDefaultRunLoopMode;
}

} // namespace

std::shared_ptr<Timer> Timer::repeatingTimer(Interval interval, std::function<void()> block) {
    return timerOf([NSTimer timerWithTimeInterval:interval.count()
                                          repeats:YES
                                            block:timerBlock(std::move(block)).get()]);
}

std::shared_ptr<Timer> Timer::scheduledRepeatingTimer(Interval interval,
                                                      std::function<void()> block) {
    return timerOf([NSTimer scheduledTimerWithTimeInterval:interval.count()
                                                   repeats:YES
                                                     block:timerBlock(std::move(block)).get()]);
}

Timer::Timer(std::unique_ptr<Peer> peer) : peer_(std::move(peer)) {}

Timer::~Timer() = default;

void Timer::invalidate() {
    [peer_->timer.get() invalidate];
}

void addTimerToMainRunLoop(const std::shared_ptr<Timer>& timer, RunLoopMode mode) {
    NSTimer* const added = timer->peer().timer.get();
    // The system counts the first interval from when the timer was made.
    added.fireDate = [NSDate dateWithTimeIntervalSinceNow:added.timeInterval];
    [NSRunLoop.mainRunLoop addTimer:added forMode:modeOf(mode)];
}

} // namespace platform
