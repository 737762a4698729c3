#pragma once

/// Names as requests spell them, and lists of names in messages.

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// Lower case of an ASCII letter; any other character as it is.
constexpr char LowerCase(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// What requests call a name of the form: "effective-power" of "Effective Power".
std::string RequestNameOf(std::string_view name);

/// The names, or those of what bears them, with a separator between them: "eia, jis".
template <class Names, class NameOf = std::identity>
std::string ListOf(const Names& names, std::string_view separator = ", ", NameOf nameOf = {})
{
    std::string list;
    for (const auto& name : names)
    {
        list.append(list.empty() ? "" : separator).append(std::invoke(nameOf, name));
    }
    return list;
}

/// The names as a sentence lists them: "png, svg or pdf", or with another last word "x, y and code".
std::string ChoiceOf(const std::vector<std::string>& names, std::string_view lastWord = "or");

/// The known name that was probably meant: one that differs in case, hyphens and blanks, or in a letter of
/// three, at most in three. Nothing where no name is that near.
std::optional<std::string> NameMeantBy(std::string_view typed, const std::vector<std::string>& known);

/// The index of the name that is meant: "Apparent Power" and "apparent-power" name the same, in any letter
/// case.
///
/// Throws RequestError that bears the key, tells what is named and lists the names.
std::size_t IndexOfName(std::string_view name, std::span<const std::string_view> names, std::string_view what,
                        std::string_view key);
