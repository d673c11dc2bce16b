#pragma once

namespace skeldon {

/// The next value up on the one scale of thresholds and hazards, in tenths of G: every tenth up to
/// 10.0 G, then the multiples of 0.2 G and of 0.5 G up to 19.8 G, then the multiples of 0.5 G. A
/// value off the scale moves by the same rule.
[[nodiscard]] int StepGUp(int tenths);

/// The next value down.
[[nodiscard]] int StepGDown(int tenths);

} // namespace skeldon
