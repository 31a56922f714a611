#pragma once

/// The one observer of keep-awake state.
class KeepAwakeManagerDelegate {
  public:
    /// Called at every start, stop and adjustment and once a second during a run, from within the
    /// manager's operations: it must not start or stop a run itself. `remaining` is in seconds,
    /// never negative, and 0 when inactive.
    virtual void keepAwakeDidChangeState(bool active, double remaining) = 0;

  protected:
    KeepAwakeManagerDelegate() = default;
    ~KeepAwakeManagerDelegate() = default;
    KeepAwakeManagerDelegate(const KeepAwakeManagerDelegate&) = default;
    KeepAwakeManagerDelegate& operator=(const KeepAwakeManagerDelegate&) = default;
};
