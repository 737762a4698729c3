#include "files/InputsAndOutputs.h"

#include "files/FileState.h"

#include <algorithm>

#include <unistd.h>

namespace fs = std::filesystem;

static std::optional<FileState> StateOfStream(const fs::path& name, int standardStream)
{
    return name == "-" ? StateOf(standardStream) : StateOf(name);
}

const fs::path* InputThatIs(const fs::path& output, std::span<const fs::path> inputs)
{
    const auto written = StateOfStream(output, STDOUT_FILENO);
    if (!written || !written->IsRegular)
    {
        return nullptr;
    }
    const auto isWritten = [&](const fs::path& input)
    {
        const auto read = StateOfStream(input, STDIN_FILENO);
        return read && read->File == written->File;
    };
    const auto found = std::ranges::find_if(inputs, isWritten);
    return found == inputs.end() ? nullptr : &*found;
}

static fs::path PlaceOf(const fs::path& name)
{
    std::error_code fault;
    return fs::weakly_canonical(fs::absolute(name, fault), fault);
}

bool IsOnePlace(const fs::path& one, const fs::path& other)
{
    return !one.empty() && !other.empty() && PlaceOf(one) == PlaceOf(other);
}
