#include "tests/e2e/mutated/PlainPair.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>
#include <map>

#include <fcntl.h>
#include <iconv.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{
/// An error as it is met.
struct Fault
{
    int Number;
    std::string File;
    std::size_t Record = 0;
};

constexpr std::size_t MostParts = 32767;
constexpr off_t MostIndexBytes = 64 << 20;

/// Lower case of the letters of the code page that exist in both cases within Latin-1.
std::string Lower(std::string text)
{
    for (char& c : text)
    {
        const int code = static_cast<unsigned char>(c);
        if ((code >= 'A' && code <= 'Z') || (code >= 0xC0 && code <= 0xDE && code != 0xD7))
        {
            c = static_cast<char>(code + 0x20);
        }
    }
    return text;
}

/// The first name of the folder that ends in the extension and is no folder itself.
std::string FirstName(const fs::path& folder, const std::string& extension)
{
    std::map<std::pair<std::string, std::string>, int> sorted;
    for (const auto& entry : fs::directory_iterator(folder))
    {
        const auto name = entry.path().filename().string();
        std::error_code fault;
        if (Lower(name).ends_with(extension) && !fs::is_directory(entry.path(), fault))
        {
            sorted[{Lower(name), name}] = 0;
        }
    }
    if (sorted.empty())
    {
        throw Fault{53, "*" + extension};
    }
    return sorted.begin()->first.second;
}

/// The first bytes of a regular file.
std::string ReadFile(const fs::path& file, std::size_t most, off_t largest)
{
    const auto name = file.filename().string();
    // Opening a pipe must not wait for its other end.
    const int handle = open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (handle < 0)
    {
        throw Fault{errno == ENOENT ? 53 : 75, name};
    }
    struct stat status = {};
    fstat(handle, &status);
    std::string bytes;
    if (S_ISREG(status.st_mode) && status.st_size <= largest)
    {
        bytes.resize(std::min(most, static_cast<std::size_t>(status.st_size)));
        bytes.resize(
            static_cast<std::size_t>(std::max<ssize_t>(0, read(handle, bytes.data(), bytes.size()))));
    }
    close(handle);
    if (!S_ISREG(status.st_mode))
    {
        throw Fault{75, name};
    }
    if (status.st_size > largest)
    {
        throw Fault{6, name};
    }
    return bytes;
}

/// Reads fields one after the other off a text.
struct FieldWalk
{
    const std::string& Text;
    std::size_t At = 0;

    bool Over() const { return At >= Text.size(); }
    bool On(const char* characters) const
    {
        return !Over() && Text[At] != '\0' && std::strchr(characters, Text[At]) != nullptr;
    }
    void Skip(const char* characters)
    {
        while (On(characters))
        {
            ++At;
        }
    }

    /// False at the end of the text or within quotes that never end.
    bool Field(std::string& field)
    {
        field.clear();
        Skip(" \t");
        if (Over())
        {
            return false;
        }
        if (On("\""))
        {
            const auto closing = Text.find('"', At + 1);
            if (closing == std::string::npos)
            {
                return false;
            }
            field = Text.substr(At + 1, closing - At - 1);
            At = closing + 1;
            Skip(" \t");
        }
        else
        {
            while (!Over() && !On(",\r\n"))
            {
                field += Text[At++];
            }
            while (field.ends_with(' ') || field.ends_with('\t'))
            {
                field.pop_back();
            }
        }
        const bool carriageReturn = On("\r");
        At += On(",\r\n") ? 1 : 0;
        At += carriageReturn && On("\n") ? 1 : 0;
        return true;
    }
};

std::vector<PlainPart> PartsOf(std::string text, const std::string& file)
{
    if (text.starts_with("\xEF\xBB\xBF"))
    {
        text.erase(0, 3);
    }
    if (text.ends_with('\x1A'))
    {
        text.pop_back();
    }
    std::vector<PlainPart> parts;
    FieldWalk walk{.Text = text};
    for (walk.Skip(" \t\r\n"); !walk.Over(); walk.Skip(" \t\r\n"))
    {
        PlainPart part;
        for (std::string& name : part.Names)
        {
            if (!walk.Field(name))
            {
                throw Fault{62, file, parts.size() + 1};
            }
        }
        parts.push_back(part);
        // The count is a 16-bit number.
        if (parts.size() > MostParts)
        {
            throw Fault{6, file, parts.size()};
        }
    }
    return parts;
}

void TakeData(std::vector<PlainPart>& parts, const std::string& bytes)
{
    for (std::size_t i = 0; i < parts.size() && (i + 1) * 264 <= bytes.size(); ++i)
    {
        for (std::size_t j = 0; j < 66; ++j)
        {
            std::uint32_t bits = 0;
            for (std::size_t k = 4; k-- > 0;)
            {
                bits = bits << 8 | static_cast<unsigned char>(bytes[i * 264 + j * 4 + k]);
            }
            std::memcpy(&parts[i].Data[j], &bits, sizeof bits);
        }
    }
}

void RefuseDuplicates(const std::vector<PlainPart>& parts, const std::string& file)
{
    for (std::size_t form = 0; form < 4; ++form)
    {
        std::map<std::string, std::size_t> known;
        for (std::size_t i = 0; i < parts.size(); ++i)
        {
            if (!known.emplace(Lower(parts[i].Names[form]), i).second)
            {
                throw Fault{457, file, i + 1};
            }
        }
    }
}
} // namespace

PlainPair ReadPlainly(const fs::path& folder)
{
    PlainPair pair;
    try
    {
        const auto index = FirstName(folder, ".idx");
        const auto data = FirstName(folder, ".dat");
        const auto any = std::numeric_limits<std::size_t>::max();
        auto parts = PartsOf(ReadFile(folder / index, any, MostIndexBytes), index);
        TakeData(parts, ReadFile(folder / data, parts.size() * 264, std::numeric_limits<off_t>::max()));
        RefuseDuplicates(parts, index);
        pair.Parts = std::move(parts);
    }
    catch (const Fault& fault)
    {
        pair = {.Error = fault.Number, .File = fault.File, .Record = fault.Record, .Parts = {}};
    }
    return pair;
}

bool IsOffered(const PlainPart& part, int chartType)
{
    const std::size_t first = chartType <= 1 ? 28 : 3;
    const std::size_t last = chartType <= 1 ? 65 : 27;
    bool hasData = false;
    for (std::size_t i = first; i <= last; ++i)
    {
        hasData = hasData || part.Data[i] != 0;
    }
    return hasData && std::isfinite(part.Data[0]) && std::isfinite(part.Data[2]);
}

std::string Utf8Of(const std::string& text)
{
    // What the code page leaves open is a control character of the same number.
    const iconv_t ansi = iconv_open("UTF-8", "CP1252");
    const iconv_t latin = iconv_open("UTF-8", "ISO-8859-1");
    std::string utf8;
    for (char c : text)
    {
        std::array<char, 8> buffer{};
        for (const iconv_t table : {ansi, latin})
        {
            char* from = &c;
            char* to = buffer.data();
            std::size_t in = 1;
            std::size_t room = buffer.size();
            if (iconv(table, &from, &in, &to, &room) == 0)
            {
                utf8.append(buffer.data(), to);
                break;
            }
        }
    }
    iconv_close(ansi);
    iconv_close(latin);
    return utf8;
}
