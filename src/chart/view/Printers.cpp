#include "chart/view/Printers.h"

#include "chart/model/PagePlan.h"

#include <QPrinter>
#include <QPrinterInfo>

#include <algorithm>

namespace skeldon {

bool CPrinters::CanCollate(const QPrinter& printer) const
{
    return printer.supportsMultipleCopies();
}

QPageSize::PageSizeId UsualPaper(QLocale::MeasurementSystem system)
{
    return system == QLocale::ImperialUSSystem ? QPageSize::Letter : QPageSize::A4;
}

QStringList CDesktopPrinters::Names()
{
    return QPrinterInfo::availablePrinterNames();
}

QString CDesktopPrinters::DefaultName()
{
    return QPrinterInfo::defaultPrinterName();
}

std::unique_ptr<QPrinter> CDesktopPrinters::Open(const QString& name)
{
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    if (name.isEmpty()) {
        printer->setOutputFormat(QPrinter::PdfFormat);
        printer->setPageSize(QPageSize(UsualPaper(QLocale::system().measurementSystem())));
    } else {
        printer->setPrinterName(name);
        if (printer->printerName() != name)
            return nullptr;
    }
    printer->setResolution(std::min(printer->resolution(), FinestPrintDpi));
    return printer;
}

} // namespace skeldon
