#pragma once

/// Somebody who sits on the names under which the instances of the program meet.

#include <string>
#include <vector>

#include <sys/types.h>

/// What a stranger does with the names.
enum class Manner
{
    /// Takes calls, as an instance of the program does.
    Listens,
    /// Holds the names and says nothing.
    IsSilent,
};

/// A process that holds abstract socket names until the end of the test. As root it can be another user.
class Stranger
{
public:
    /// A user number that nobody has; the tester's own is `getuid()`.
    static constexpr uid_t OtherUser = 54321;

    Stranger(const std::vector<std::string>& names, uid_t user, Manner manner);
    ~Stranger();
    Stranger(const Stranger&) = delete;
    Stranger& operator=(const Stranger&) = delete;

    /// False when it could not take all names, or not become that user.
    bool Holds() const { return holds; }

private:
    pid_t process = -1;
    bool holds = false;
};
