#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace skeldon {

/// What can go wrong with a recorder and its cable.
enum class FaultKind
{
    SilenceAfter,
    Silence,
    SilenceOnce,
    NoMark,
    Delay,
    Garbage,
    PullAfter,
    PullAt,
    TooFew,
    TooMany,
    ShortLine,
    CorruptLine,
    InvalidLine,
    LowerCase,
    Break,
    NewYear,
    Count,
    NoCount,
    YearOnly,
    KeysTwice,
    EndlessReport,
    LineFeeds,
};

/// One fault as it was asked for.
struct Fault
{
    FaultKind kind = FaultKind::Silence;
    std::int64_t number = 0; ///< a count of bytes, lines or milliseconds, or a line from 0
    std::int64_t second = 0; ///< behind a colon
    std::string text;        ///< where the fault takes a text
};

/// What stands behind the "=" of a fault.
enum class FaultValue
{
    None,
    Number,
    OptionalNumber,
    NumberPair, ///< the second one, behind a colon, may be left out
    Text,
    OptionalText,
};

/// How a fault is asked for and what it does.
struct FaultForm
{
    FaultKind kind;
    std::string_view name;
    FaultValue value;
    std::string_view valueName;
    std::int64_t fallback; ///< the number, or the second one, where it is left out
    std::string_view help;
};

/// All faults in the order in which they are listed.
[[nodiscard]] std::span<const FaultForm> FaultForms();
/// "silence-after=N" and the like.
[[nodiscard]] std::string FaultUsage(const FaultForm& form);

/// Reads "NAME" or "NAME=VALUE"; on a failure the text says what is wrong with it.
[[nodiscard]] std::variant<Fault, std::string> ParseFault(std::string_view text);

/// The faults in force.
class CFaults
{
public:
    void Add(Fault fault) { m_faults.push_back(std::move(fault)); }
    void Clear() { m_faults.clear(); }
    void Remove(const Fault* fault);
    /// Takes `count` off the number of the latest of that kind.
    void CountDown(FaultKind kind, std::int64_t count);

    [[nodiscard]] const std::vector<Fault>& All() const { return m_faults; }
    /// The latest of that kind; null where there is none.
    [[nodiscard]] const Fault* Find(FaultKind kind) const;
    [[nodiscard]] bool Has(FaultKind kind) const { return Find(kind) != nullptr; }
    /// The latest of that kind whose text `command` begins with.
    [[nodiscard]] const Fault* FindFor(FaultKind kind, std::string_view command) const;

private:
    std::vector<Fault> m_faults;
};

} // namespace skeldon
