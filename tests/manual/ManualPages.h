#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace skeldon::manual {

/// One language of the manual.
struct Language
{
    const char* folder; ///< of its pages
    const char* first;  ///< the page among them that Help opens
};

inline constexpr Language English{"en", "SKELDON_Light_En.html"};
inline constexpr Language Japanese{"ja", "SKELDON_Light_Jp.html"};

/// The folder that holds the manual.
[[nodiscard]] std::filesystem::path Folder();

/// A file's bytes; fails the test where it can not be read.
[[nodiscard]] std::string ReadAll(const std::filesystem::path& path);

/// The pages of a language: the first page, then the others by name.
[[nodiscard]] std::vector<std::filesystem::path> Pages(const Language& language);

/// The values of an attribute, in the order of the page.
[[nodiscard]] std::vector<std::string> Attributes(std::string_view page, std::string_view name);

/// What stands between an opening and a closing tag, each time, with entities resolved.
[[nodiscard]] std::vector<std::string> Between(std::string_view text, std::string_view open,
                                               std::string_view close);

/// A text of the program in both languages, as it is seen: without mnemonics, keys and colons.
struct ProgramText
{
    std::string english;
    std::string japanese;
};

/// All texts of the program.
[[nodiscard]] std::vector<ProgramText> ProgramTexts();

/// Whether a quoted text is what the program says, where any words may stand in the places that the
/// program fills in ("%d", "%.1f", "%s").
[[nodiscard]] bool Says(std::string_view text, std::string_view quoted);

} // namespace skeldon::manual
