#include "platform/MainQueue.h"

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <utility>

namespace platform {

namespace {

class TaskEvent : public QEvent {
  public:
    explicit TaskEvent(std::function<void()> task) : QEvent(QEvent::User), task_(std::move(task)) {}

    void run() const { task_(); }

  private:
    std::function<void()> task_;
};

class MainQueue : public QObject {
  public:
    bool event(QEvent* event) override {
        if (const auto* const task = dynamic_cast<TaskEvent*>(event)) {
            task->run();
            return true;
        }
        return QObject::event(event);
    }
};

} // namespace

void dispatchAsyncOnMainQueue(std::function<void()> task) {
    static auto* const queue = new MainQueue;
    QCoreApplication::postEvent(queue, new TaskEvent(std::move(task)));
}

} // namespace platform
