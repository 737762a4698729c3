#include "tests/e2e/mutated/Child.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
using Clock = std::chrono::steady_clock;

void SetLimit(int resource, rlim_t value)
{
    const rlimit limit{.rlim_cur = value, .rlim_max = value};
    setrlimit(static_cast<__rlimit_resource>(resource), &limit);
}

/// A file without a name, for one stream of a process.
class Stream
{
public:
    Stream()
        : file(std::tmpfile())
    {
    }
    ~Stream() { std::fclose(file); }
    Stream(const Stream&) = delete;
    Stream& operator=(const Stream&) = delete;

    int Handle() const { return fileno(file); }

    void Write(const std::string& text) const
    {
        std::fwrite(text.data(), 1, text.size(), file);
        std::rewind(file);
    }

    std::string Text() const
    {
        std::rewind(file);
        std::string text;
        std::array<char, 65536> buffer;
        for (std::size_t got = 0; (got = std::fread(buffer.data(), 1, buffer.size(), file)) > 0;)
        {
            text.append(buffer.data(), got);
        }
        return text;
    }

private:
    std::FILE* file;
};

/// Waits for the end, up to the patience; then asks the process to end, and soon makes it.
int WaitFor(pid_t child, double patience, rusage& used)
{
    int status = 0;
    const auto start = Clock::now();
    bool asked = false;
    while (wait4(child, &status, WNOHANG, &used) == 0)
    {
        const double waited = std::chrono::duration<double>(Clock::now() - start).count();
        if (waited > patience && !asked)
        {
            kill(child, SIGTERM);
            asked = true;
        }
        if (waited > patience + 5)
        {
            kill(child, SIGKILL);
        }
        usleep(waited < 0.05 ? 300 : 2000);
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

ChildEnd Run(const std::function<int()>& function, const std::string& input, const ChildLimits& limits)
{
    const Stream in;
    const Stream out;
    const Stream messages;
    in.Write(input);
    const auto start = Clock::now();
    const pid_t child = fork();
    if (child == 0)
    {
        dup2(in.Handle(), STDIN_FILENO);
        dup2(out.Handle(), STDOUT_FILENO);
        dup2(messages.Handle(), STDERR_FILENO);
#ifndef __SANITIZE_ADDRESS__
        // The address sanitizer reserves far more than it uses.
        SetLimit(RLIMIT_AS, limits.AddressSpace);
#endif
        SetLimit(RLIMIT_CPU, limits.ProcessorSeconds);
        SetLimit(RLIMIT_CORE, 0);
        _exit(function());
    }
    rusage used{};
    ChildEnd end;
    end.Status = WaitFor(child, limits.Patience, used);
    end.Seconds = std::chrono::duration<double>(Clock::now() - start).count();
    end.Megabytes = static_cast<double>(used.ru_maxrss) / 1024;
    end.Output = out.Text();
    end.Messages = messages.Text();
    return end;
}
} // namespace

ChildEnd RunLimited(const std::vector<std::string>& command, const std::string& input,
                    const ChildLimits& limits)
{
    std::vector<char*> arguments;
    for (const auto& argument : command)
    {
        arguments.push_back(const_cast<char*>(argument.c_str()));
    }
    arguments.push_back(nullptr);
    const auto exchange = [&]
    {
        execv(arguments.front(), arguments.data());
        return 127;
    };
    return Run(exchange, input, limits);
}

ChildEnd RunCopy(const std::function<int()>& function, const ChildLimits& limits)
{
    return Run(function, "", limits);
}
