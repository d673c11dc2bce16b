#pragma once

#include <QAccessible>
#include <QString>

class QWidget;

namespace skeldon {

/// What a self-painted control tells screen readers beside its accessible name.
class CAccessibleFace
{
public:
    CAccessibleFace();
    CAccessibleFace(const CAccessibleFace&) = delete;
    CAccessibleFace& operator=(const CAccessibleFace&) = delete;
    virtual ~CAccessibleFace() = default;

    [[nodiscard]] virtual QAccessible::Role AccessibleRole() const = 0;
    /// What the control shows at present, as text.
    [[nodiscard]] virtual QString AccessibleValue() const = 0;
    /// Numbers behind the value where it is a gauge: true with present, smallest and largest set.
    virtual bool GaugeNumbers(int& present, int& smallest, int& largest) const;
};

/// Tells screen readers that what `control` shows has changed.
void AnnounceValue(QWidget* control);

} // namespace skeldon
