#pragma once

#include "files/Output.h"

#include <string>

namespace skeldon::test {

/// An output that keeps what it is given.
class CStringOutput final : public COutput
{
public:
    [[nodiscard]] std::error_code Write(std::string_view bytes) override
    {
        m_text += bytes;
        return {};
    }

    std::string m_text;
};

} // namespace skeldon::test
