#pragma once

#include <utility>

namespace skeldon {

/// Says that the data view is in the middle of an operation for as long as this lives; what was
/// said before holds again afterwards.
class CDisplayViewBusy
{
public:
    explicit CDisplayViewBusy(bool& busy)
        : m_busy(busy)
        , m_before(std::exchange(busy, true))
    {}
    CDisplayViewBusy(const CDisplayViewBusy&) = delete;
    CDisplayViewBusy& operator=(const CDisplayViewBusy&) = delete;
    ~CDisplayViewBusy() { m_busy = m_before; }

private:
    bool& m_busy;
    bool m_before;
};

} // namespace skeldon
