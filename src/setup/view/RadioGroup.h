#pragma once

#include <QString>

#include <initializer_list>

class QGroupBox;
class QRadioButton;

namespace skeldon {

/// A group with a title and one choice under the other; the mnemonic of the title leads to the
/// one that is chosen.
[[nodiscard]] QGroupBox* MakeRadioGroup(const QString& title,
                                        std::initializer_list<QRadioButton*> choices);

} // namespace skeldon
