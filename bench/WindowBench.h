#pragma once

namespace skeldon::bench {

/// Does what a person does on a data view with a million lines, so many times each, and prints how
/// long the answer takes, painting included.
void PrintWindowActions(int rounds);

} // namespace skeldon::bench
