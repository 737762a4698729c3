#pragma once

/// Long work beside the windows, which stay at hand meanwhile.

#include <QObject>

#include <atomic>
#include <functional>
#include <optional>
#include <thread>

/// One piece of work at a time, in a thread of its own. A further one takes the place of the one under way.
/// At its end it waits for the work that is still under way to give up.
class SideWork : public QObject
{
    Q_OBJECT

public:
    /// What is done with the result, among the windows.
    using Answer = std::function<void()>;
    /// Called now and then by work that takes long; leaves it by an exception where it is no longer wanted.
    using Pause = std::function<void()>;
    /// Gives the answer; throws nothing of its own.
    using Work = std::function<Answer(const Pause& pause)>;

    using QObject::QObject;
    ~SideWork() override;

    /// Begins the work as soon as the one before it has given up; the answer of that one is dropped.
    void Begin(Work work);
    /// Drops the answer of the work under way.
    void Stop();
    /// True while an answer is awaited.
    bool IsBusy() const { return isBusy; }

Q_SIGNALS:
    /// An answer is awaited, or no longer.
    void BusyChanged(bool busy);

private:
    void Run(const Work& work);
    void End(const Answer& answer);
    void SetBusy(bool busy);

    std::thread thread;
    std::atomic<bool> isStopped = false;
    bool isBusy = false;
    std::optional<Work> next;
};
