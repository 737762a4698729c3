#include "separatedtext/Encoding.h"

#include "partdata/Utf8.h"
#include "partdata/Windows1252.h"

#include <algorithm>
#include <utility>

static constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";
static constexpr std::string_view LittleMark = "\xFF\xFE";
static constexpr std::string_view BigMark = "\xFE\xFF";
static constexpr char32_t Unreadable = 0xFFFD;

namespace
{
/// Takes UTF-16 apart behind its mark.
class Utf16Text
{
public:
    explicit Utf16Text(std::string_view marked)
        : bytes(marked.substr(2))
        , high(marked.starts_with(BigMark) ? 0 : 1)
    {
    }

    bool AtEnd() const { return bytes.empty(); }

    char32_t Take()
    {
        const auto unit = TakeUnit();
        if (!IsHighHalf(unit) || !IsLowHalf(PeekUnit()))
        {
            return IsHighHalf(unit) || IsLowHalf(unit) ? Unreadable : unit;
        }
        return 0x10000 + ((unit - 0xD800) << 10) + (TakeUnit() - 0xDC00);
    }

private:
    static bool IsHighHalf(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
    static bool IsLowHalf(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

    /// A text that ends within a unit ends with one that cannot be read.
    char32_t PeekUnit() const
    {
        return bytes.size() < 2 ? Unreadable
                                : static_cast<char32_t>(static_cast<unsigned char>(bytes[high]) << 8 |
                                                        static_cast<unsigned char>(bytes[1 - high]));
    }

    char32_t TakeUnit()
    {
        const auto unit = PeekUnit();
        bytes.remove_prefix(std::min<std::size_t>(2, bytes.size()));
        return unit;
    }

    std::string_view bytes;
    /// Which byte of a unit is its higher one.
    std::size_t high;
};

std::string Utf8FromUtf16(std::string_view marked)
{
    std::string utf8;
    utf8.reserve(marked.size());
    for (Utf16Text text(marked); !text.AtEnd();)
    {
        AppendUtf8(utf8, text.Take());
    }
    return utf8;
}
} // namespace

bool HasUtf16Mark(std::string_view bytes)
{
    return bytes.starts_with(LittleMark) || bytes.starts_with(BigMark);
}

std::size_t EndOfUtf8(std::string_view text)
{
    std::size_t at = 0;
    while (at < text.size())
    {
        const auto length = Utf8Length(text[at]);
        const auto rest = text.substr(at, length);
        if (length == 0 || rest.size() != length || !std::ranges::all_of(rest.substr(1), ContinuesUtf8))
        {
            return at;
        }
        at += length;
    }
    return at;
}

std::string_view WithoutMark(std::string_view text)
{
    return text.starts_with(Utf8Mark) ? text.substr(Utf8Mark.size()) : text;
}

std::string Utf8Of(std::string bytes)
{
    if (HasUtf16Mark(bytes))
    {
        return Utf8FromUtf16(bytes);
    }
    if (EndOfUtf8(bytes) != bytes.size())
    {
        return Utf8FromWindows1252(bytes);
    }
    bytes.erase(0, bytes.size() - WithoutMark(bytes).size());
    return bytes;
}
