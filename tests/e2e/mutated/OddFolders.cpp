#include "tests/e2e/mutated/OddFolders.h"

#include <cstdint>
#include <fstream>
#include <string_view>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{
constexpr std::uintmax_t TenGigabytes = 10ULL << 30;

void Write(const fs::path& file, std::string_view bytes)
{
    std::ofstream(file, std::ios::binary) << bytes;
}

void CopySample(const fs::path& folder, const char* extension, const char* name = "halvex")
{
    fs::copy_file(fs::path(SAMPLE_RANGE) / (std::string("halvex") + extension),
                  folder / (std::string(name) + extension));
}

void CopySample(const fs::path& folder)
{
    CopySample(folder, ".idx");
    CopySample(folder, ".dat");
}

std::string Line(std::size_t part, std::string_view mark = "")
{
    const auto number = std::to_string(part) + std::string(mark);
    return "G" + number + ",J" + number + ",P" + number + ",Q" + number + ",0805,2012,X7R,R\n";
}

std::string Lines(std::size_t parts)
{
    std::string lines;
    for (std::size_t i = 0; i < parts; ++i)
    {
        lines += Line(i);
    }
    return lines;
}

/// An index text of the writer's own, beside the sample data.
std::function<void(const fs::path&)> WithIndex(const std::function<std::string()>& text)
{
    return [text](const fs::path& folder)
    {
        Write(folder / "parts.idx", text());
        CopySample(folder, ".dat");
    };
}

/// Something else in the place of one file of the sample pair.
std::function<void(const fs::path&)> InPlaceOf(const char* extension,
                                               const std::function<void(const fs::path&)>& put)
{
    return [=](const fs::path& folder)
    {
        CopySample(folder, std::string_view(extension) == ".idx" ? ".dat" : ".idx");
        put(folder / (std::string("halvex") + extension));
    };
}

void PutNothing(const fs::path&)
{
}

void PutEmptyFile(const fs::path& file)
{
    Write(file, "");
}

void PutFolder(const fs::path& file)
{
    fs::create_directory(file);
}

void PutPipe(const fs::path& file)
{
    mkfifo(file.c_str(), 0600);
}

void PutSocket(const fs::path& file)
{
    const int handle = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    file.string().copy(address.sun_path, sizeof address.sun_path - 1);
    static_cast<void>(bind(handle, reinterpret_cast<const sockaddr*>(&address), sizeof address));
    close(handle);
}

void PutEndlessDevice(const fs::path& file)
{
    fs::create_symlink("/dev/zero", file);
}

void PutLinkLoop(const fs::path& file)
{
    fs::create_symlink(file.filename(), file);
}

void PutDanglingLink(const fs::path& file)
{
    fs::create_symlink("nowhere", file);
}

void PutUnreadable(const fs::path& file)
{
    Write(file, Line(1));
    fs::permissions(file, fs::perms::none);
}

void PutSparse(const fs::path& file, std::uintmax_t size)
{
    Write(file, "");
    fs::resize_file(file, size);
}

std::vector<OddFolder> FilesThatAreNone()
{
    std::vector<OddFolder> folders;
    folders.push_back({"nothing", [](const fs::path&) {}});
    folders.push_back({"no index", InPlaceOf(".idx", PutNothing)});
    folders.push_back({"no data", InPlaceOf(".dat", PutNothing)});
    folders.push_back({"empty index", InPlaceOf(".idx", PutEmptyFile)});
    folders.push_back({"empty data", InPlaceOf(".dat", PutEmptyFile)});
    folders.push_back({"index is a folder", InPlaceOf(".idx", PutFolder)});
    folders.push_back({"data is a folder", InPlaceOf(".dat", PutFolder)});
    folders.push_back({"index is a pipe", InPlaceOf(".idx", PutPipe)});
    folders.push_back({"data is a pipe", InPlaceOf(".dat", PutPipe)});
    folders.push_back({"index is a socket", InPlaceOf(".idx", PutSocket)});
    folders.push_back({"index is an endless device", InPlaceOf(".idx", PutEndlessDevice)});
    folders.push_back({"data is an endless device", InPlaceOf(".dat", PutEndlessDevice)});
    folders.push_back({"index is a link to itself", InPlaceOf(".idx", PutLinkLoop)});
    folders.push_back({"data is a link to itself", InPlaceOf(".dat", PutLinkLoop)});
    folders.push_back({"index is a dangling link", InPlaceOf(".idx", PutDanglingLink)});
    folders.push_back({"data is a dangling link", InPlaceOf(".dat", PutDanglingLink)});
    folders.push_back({"unreadable index", InPlaceOf(".idx", PutUnreadable)});
    folders.push_back({"unreadable data", InPlaceOf(".dat", PutUnreadable)});
    folders.push_back({"broken index beside a data folder", [](const fs::path& folder)
                       {
                           Write(folder / "parts.idx", "A,B,C");
                           PutFolder(folder / "parts.dat");
                       }});
    return folders;
}

std::vector<OddFolder> OddNames()
{
    std::vector<OddFolder> folders;
    folders.push_back({"capital letters", [](const fs::path& folder)
                       {
                           Write(folder / "PARTS.IDX", Lines(3));
                           CopySample(folder, ".dat");
                       }});
    folders.push_back({"extensions alone", [](const fs::path& folder)
                       {
                           Write(folder / ".idx", Lines(3));
                           Write(folder / ".dat", "");
                       }});
    folders.push_back({"two pairs", [](const fs::path& folder)
                       {
                           CopySample(folder);
                           Write(folder / "B.idx", Lines(3));
                           Write(folder / "a.dat", std::string(264, '\x3F'));
                           Write(folder / "c.IDX", "broken");
                       }});
    folders.push_back({"file name of two lines", [](const fs::path& folder)
                       {
                           Write(folder / "two\nlines.idx", "A,B,C");
                           CopySample(folder, ".dat");
                       }});
    folders.push_back({"links to files elsewhere", [](const fs::path& folder)
                       {
                           fs::create_symlink(SAMPLE_RANGE "/halvex.idx", folder / "x.idx");
                           fs::create_symlink(SAMPLE_RANGE "/halvex.dat", folder / "y.dat");
                       }});
    folders.push_back({"swapped files", [](const fs::path& folder)
                       {
                           fs::copy_file(SAMPLE_RANGE "/halvex.idx", folder / "halvex.dat");
                           fs::copy_file(SAMPLE_RANGE "/halvex.dat", folder / "halvex.idx");
                       }});
    return folders;
}

std::vector<OddFolder> OddSizes()
{
    const auto sparse = [](std::uintmax_t size)
    { return [size](const fs::path& file) { PutSparse(file, size); }; };
    return {{"index of ten empty gigabytes", InPlaceOf(".idx", sparse(TenGigabytes))},
            {"data of ten empty gigabytes", InPlaceOf(".dat", sparse(TenGigabytes))},
            {"index one byte larger than one may be", InPlaceOf(".idx", sparse((64 << 20) + 1))}};
}

std::vector<OddFolder> OddDuplicates()
{
    const auto twice = [](const std::string& number)
    { return WithIndex([number] { return number + ",1,2,3,4,5,6,7\n" + number + ",8,9,A,B,C,D,E\n"; }); };
    return {{"part number of two lines twice", twice("\"A\nB\"")},
            {"part number of no English letter twice", twice("\xC4\x80")},
            {"part number of ten thousand letters twice", twice(std::string(10000, 'M'))}};
}
} // namespace

const std::vector<OddFolder>& OddFolders()
{
    static const std::vector<OddFolder> all = []
    {
        auto folders = FilesThatAreNone();
        for (const auto& some : {OddNames(), OddSizes(), OddDuplicates()})
        {
            folders.insert(folders.end(), some.begin(), some.end());
        }
        return folders;
    }();
    return all;
}
