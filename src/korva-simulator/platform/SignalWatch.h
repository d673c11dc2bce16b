#pragma once

#include "base/platform/Descriptor.h"

namespace skeldon {

/// Turns the signals that ask a program to end into something that poll(2) sees, and keeps a
/// closed standard output from ending it.
class CSignalWatch
{
public:
    CSignalWatch();

    /// Readable once the program is asked to end; below 0 where the system has no room for it.
    [[nodiscard]] int Descriptor() const { return m_descriptor.Get(); }

private:
    CDescriptor m_descriptor;
};

} // namespace skeldon
