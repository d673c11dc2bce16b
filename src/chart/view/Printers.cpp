#include "chart/view/Printers.h"

#include "chart/model/PagePlan.h"

#include <QLocale>
#include <QPageSize>
#include <QPrinter>
#include <QPrinterInfo>

#include <algorithm>

namespace skeldon {

bool CPrinters::CanCollate(const QPrinter& printer) const
{
    return printer.supportsMultipleCopies();
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
        const bool isMetric = QLocale::system().measurementSystem() == QLocale::MetricSystem;
        printer->setPageSize(QPageSize(isMetric ? QPageSize::A4 : QPageSize::Letter));
    } else {
        printer->setPrinterName(name);
        if (printer->printerName() != name)
            return nullptr;
    }
    printer->setResolution(std::min(printer->resolution(), FinestPrintDpi));
    return printer;
}

} // namespace skeldon
