#include "frame/SideWork.h"

#include <utility>

namespace
{
/// Leaves work that is no longer wanted.
struct Stopped
{
};
} // namespace

SideWork::~SideWork()
{
    isStopped = true;
    if (thread.joinable())
    {
        thread.join();
    }
}

void SideWork::Begin(Work work)
{
    SetBusy(true);
    if (thread.joinable())
    {
        isStopped = true;
        next = std::move(work);
        return;
    }
    isStopped = false;
    thread = std::thread([this, begun = std::move(work)] { Run(begun); });
}

void SideWork::Stop()
{
    isStopped = true;
    next.reset();
    SetBusy(false);
}

/// In the thread of the work.
void SideWork::Run(const Work& work)
{
    Answer answer;
    try
    {
        answer = work(
            [this]
            {
                if (isStopped)
                {
                    throw Stopped();
                }
            });
    }
    catch (const Stopped&)
    {
        answer = nullptr;
    }
    QMetaObject::invokeMethod(
        this, [this, answer] { End(answer); }, Qt::QueuedConnection);
}

void SideWork::End(const Answer& answer)
{
    thread.join();
    if (next)
    {
        Begin(*std::exchange(next, std::nullopt));
        return;
    }
    if (!isStopped)
    {
        SetBusy(false);
        answer();
    }
}

void SideWork::SetBusy(bool busy)
{
    if (std::exchange(isBusy, busy) != busy)
    {
        Q_EMIT BusyChanged(busy);
    }
}
