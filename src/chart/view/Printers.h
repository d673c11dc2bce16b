#pragma once

#include <QLocale>
#include <QPageSize>
#include <QString>
#include <QStringList>

#include <memory>

class QPrinter;

namespace skeldon {

/// The printers that can be printed on.
class CPrinters
{
public:
    virtual ~CPrinters() = default;

    /// Those installed; may be none.
    [[nodiscard]] virtual QStringList Names() = 0;
    /// The one that is offered first; empty for no special one.
    [[nodiscard]] virtual QString DefaultName() = 0;
    /// A printer by its name, of at most `FinestPrintDpi`; an empty name gives one that writes PDF
    /// files. Null if there is none of that name any more.
    [[nodiscard]] virtual std::unique_ptr<QPrinter> Open(const QString& name) = 0;
    /// Whether it sorts the copies of several pages. One that does not make copies at all can not:
    /// its pages are sent as often as they are wanted.
    [[nodiscard]] virtual bool CanCollate(const QPrinter& printer) const;
};

/// The paper that is usual where this system of measures is: the British have inches and A4.
[[nodiscard]] QPageSize::PageSizeId UsualPaper(QLocale::MeasurementSystem system);

/// The desktop's printers.
class CDesktopPrinters final : public CPrinters
{
public:
    [[nodiscard]] QStringList Names() override;
    [[nodiscard]] QString DefaultName() override;
    [[nodiscard]] std::unique_ptr<QPrinter> Open(const QString& name) override;
};

} // namespace skeldon
