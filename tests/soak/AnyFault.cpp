#include "AnyFault.h"

#include "korva-simulator/Fault.h"

namespace skeldon::soak {

namespace {

/// Where a download breaks off or falls silent.
int AnyByte(CRandom& random, int lines)
{
    constexpr int LineBytes = 22;
    return random.Below(lines * LineBytes + LineBytes);
}

} // namespace

std::string AnyFault(CRandom& random, int lines)
{
    const FaultForm& form = random.AnyOf(FaultForms());
    const std::string name(form.name);
    const auto with = [&](const std::string& value) { return name + "=" + value; };
    const auto number = [&](int value) { return with(std::to_string(value)); };
    switch (form.kind) {
    case FaultKind::SilenceAfter:
    case FaultKind::PullAfter:
    case FaultKind::PullAt:
        return number(AnyByte(random, lines));
    case FaultKind::Delay:
        return number(random.OneOf({10, 149, 151, 3000, 14000, 16000}));
    case FaultKind::Garbage:
    case FaultKind::TooFew:
    case FaultKind::TooMany:
        return random.OneIn(2) ? name : number(random.OneOf({1, 2, 30, 600, lines}));
    case FaultKind::ShortLine:
    case FaultKind::Break: {
        const std::string line = number(random.Below(lines + 2));
        return random.OneIn(2) ? line : line + ":" + std::to_string(random.Between(1, 19));
    }
    case FaultKind::CorruptLine:
    case FaultKind::InvalidLine:
    case FaultKind::NewYear:
        return number(random.Below(lines + 2));
    case FaultKind::Silence:
    case FaultKind::SilenceOnce:
        return with(random.OneOf({"p", "D", "G", "x"}));
    case FaultKind::NoMark:
        return random.OneIn(2) ? name : with(random.OneOf({"p", "D", "G"}));
    case FaultKind::Count:
        return with(random.OneOf({"0", "-3", "7", "word", "32000", "400000000", "99999999999"}));
    default:
        return name;
    }
}

} // namespace skeldon::soak
