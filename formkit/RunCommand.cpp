#include "formkit/RunCommand.h"

#include "formkit/Messages.h"

#include <new>

void RunCommand(QWidget* window, const std::function<void()>& steps)
{
    try
    {
        steps();
    }
    catch (const RunTimeError& error)
    {
        if (error.Number() != static_cast<int>(RunTimeErrorNumber::Cancelled))
        {
            ShowUnexpectedError(window, error);
        }
    }
    catch (const std::bad_alloc&)
    {
        ShowUnexpectedError(window, RunTimeError(RunTimeErrorNumber::OutOfMemory));
    }
}
