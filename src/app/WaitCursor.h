#pragma once

namespace skeldon {

/// Shows the wait cursor for as long as it lives; may be nested.
class CWaitCursor
{
public:
    CWaitCursor();
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;
    ~CWaitCursor();
};

} // namespace skeldon
