#include "base/CodePage.h"

#include <iconv.h>

#include <array>

namespace skeldon {

namespace {

constexpr std::string_view Replacement = "\xEF\xBF\xBD";

/// An open conversion to UTF-8, or none where the system does not know the page.
class CConversion
{
public:
    explicit CConversion(CodePage page)
        : m_handle(iconv_open("UTF-8", std::string(CodePageName(page)).c_str()))
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
    CConversion conversion(page);
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

} // namespace skeldon
