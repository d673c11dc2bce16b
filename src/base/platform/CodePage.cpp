#include "base/CodePage.h"

#include <iconv.h>

#include <array>

namespace skeldon {

namespace {

constexpr std::string_view Replacement = "\xEF\xBF\xBD";

constexpr const char* Utf8Name = "UTF-8";

/// An open conversion, or none where the system does not know one of the pages.
class CConversion
{
public:
    CConversion(const std::string& to, const std::string& from)
        : m_handle(iconv_open(to.c_str(), from.c_str()))
    {}
    ~CConversion()
    {
        if (IsOpen())
            iconv_close(m_handle);
    }
    CConversion(const CConversion&) = delete;
    CConversion& operator=(const CConversion&) = delete;

    [[nodiscard]] bool IsOpen() const
    {
        // NOLINTNEXTLINE(performance-no-int-to-ptr): the value that iconv_open is defined to give.
        return m_handle != reinterpret_cast<iconv_t>(-1);
    }

    /// Converts what it can of `bytes` from the front and takes that off.
    std::string Convert(std::string_view& bytes)
    {
        std::array<char, 256> buffer{};
        char* out = buffer.data();
        std::size_t room = buffer.size();
        char* in = const_cast<char*>(bytes.data()); // iconv does not write there
        std::size_t left = bytes.size();
        (void)iconv(m_handle, &in, &left, &out, &room);
        bytes.remove_prefix(bytes.size() - left);
        return {buffer.data(), buffer.size() - room};
    }

private:
    iconv_t m_handle;
};

} // namespace

std::string ToUtf8(std::string_view bytes, CodePage page)
{
    if (IsUtf8(bytes))
        return std::string(bytes);
    CConversion conversion(Utf8Name, std::string(CodePageName(page)));
    std::string text;
    while (!bytes.empty()) {
        const std::string part = conversion.IsOpen() ? conversion.Convert(bytes) : std::string();
        text += part;
        if (part.empty() && !bytes.empty()) {
            text += Replacement;
            bytes.remove_prefix(1);
        }
    }
    return text;
}

std::string FromUtf8(std::string_view text, CodePage page)
{
    constexpr unsigned char ContinuationMask = 0xC0;
    constexpr unsigned char Continuation = 0x80;
    CConversion conversion(std::string(CodePageName(page)), Utf8Name);
    std::string bytes;
    while (!text.empty()) {
        const std::string part = conversion.IsOpen() ? conversion.Convert(text) : std::string();
        bytes += part;
        if (part.empty() && !text.empty()) {
            bytes += '?';
            do
                text.remove_prefix(1);
            while (!text.empty() &&
                   (static_cast<unsigned char>(text.front()) & ContinuationMask) == Continuation);
        }
    }
    return bytes;
}

} // namespace skeldon
