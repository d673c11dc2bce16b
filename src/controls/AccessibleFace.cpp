#include "controls/AccessibleFace.h"

#include <QAccessibleWidget>

namespace skeldon {

namespace {

/// A control as screen readers see it. A reader that knows no value of a text takes the
/// description, which says the same.
class CFaceInterface : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    CFaceInterface(QWidget* widget, const CAccessibleFace& face)
        : QAccessibleWidget(widget, face.AccessibleRole())
    {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        const CAccessibleFace* face = Face();
        const bool isValue =
            kind == QAccessible::Value ||
            (kind == QAccessible::Description && widget()->accessibleDescription().isEmpty());
        if (isValue && face != nullptr)
            return face->AccessibleValue();
        return QAccessibleWidget::text(kind);
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface && IsGauge())
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    [[nodiscard]] QVariant currentValue() const override { return Numbers().present; }
    void setCurrentValue(const QVariant& /*value*/) override {}
    [[nodiscard]] QVariant minimumValue() const override { return Numbers().smallest; }
    [[nodiscard]] QVariant maximumValue() const override { return Numbers().largest; }
    [[nodiscard]] QVariant minimumStepSize() const override { return 1; }

private:
    struct Gauge
    {
        int present = 0;
        int smallest = 0;
        int largest = 0;
    };

    /// Null while the control is being destroyed.
    [[nodiscard]] const CAccessibleFace* Face() const
    {
        return dynamic_cast<const CAccessibleFace*>(object());
    }

    [[nodiscard]] bool IsGauge() const
    {
        Gauge gauge;
        const CAccessibleFace* face = Face();
        return face != nullptr && face->GaugeNumbers(gauge.present, gauge.smallest, gauge.largest);
    }

    [[nodiscard]] Gauge Numbers() const
    {
        Gauge gauge;
        if (const CAccessibleFace* face = Face())
            face->GaugeNumbers(gauge.present, gauge.smallest, gauge.largest);
        return gauge;
    }
};

QAccessibleInterface* MakeInterface(const QString& /*className*/, QObject* object)
{
    const auto* face = dynamic_cast<const CAccessibleFace*>(object);
    auto* widget = qobject_cast<QWidget*>(object);
    return face != nullptr && widget != nullptr ? new CFaceInterface(widget, *face) : nullptr;
}

} // namespace

CAccessibleFace::CAccessibleFace()
{
    // A factory that is known already is not entered again.
    QAccessible::installFactory(MakeInterface);
}

bool CAccessibleFace::GaugeNumbers(int& /*present*/, int& /*smallest*/, int& /*largest*/) const
{
    return false;
}

void AnnounceValue(QWidget* control)
{
    QAccessibleEvent event(control, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&event);
}

} // namespace skeldon
