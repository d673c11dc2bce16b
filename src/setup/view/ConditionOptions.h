#pragma once

#include <QString>
#include <QStringList>

namespace skeldon {

class CProfileStore;

// What the boxes of the card form list.

/// A row of `SamplingTable` in the user's words, such as "0.0312 sec Trace mode".
[[nodiscard]] QString SamplingWords(int row);
/// A row of `IntervalTable` in the user's words, such as "30 minute".
[[nodiscard]] QString IntervalWords(int row);

/// All rows in their order.
[[nodiscard]] QStringList SamplingOptions();
[[nodiscard]] QStringList IntervalOptions();
/// Each step of the one scale from 0 to `highest` tenths of G, in G.
[[nodiscard]] QStringList LevelOptions(int highest);
/// The numbers from 1 to 99 that no entry of the store uses.
[[nodiscard]] QStringList FreeHostNumbers(const CProfileStore& store);
/// 0 to 90.
[[nodiscard]] QStringList StartOptions();

/// The row to select in a list of `count`; `fallback` for a row that is not in it.
[[nodiscard]] int OptionRow(int row, int count, int fallback);
/// Tenths of G of a number of G, cut toward zero.
[[nodiscard]] int TenthsOf(double g);

} // namespace skeldon
