#pragma once

#include "ViewApp.h"
#include "chart/view/DisplayPrintDialog.h"
#include "chart/view/Printers.h"

#include <QImage>
#include <QPageSize>
#include <QPrinter>

#include <functional>
#include <memory>
#include <vector>

namespace skeldon::test {

/// Printers that print into PDF files.
class CTestPrinters final : public CPrinters
{
public:
    [[nodiscard]] QStringList Names() override;
    [[nodiscard]] QString DefaultName() override { return m_default; }
    [[nodiscard]] std::unique_ptr<QPrinter> Open(const QString& name) override;
    [[nodiscard]] bool CanCollate(const QPrinter& /*printer*/) const override
    {
        return m_canCollate;
    }

    static constexpr double Margin = 12.0; ///< points

    QString m_folder; ///< files have the printers' names
    QStringList m_names{QStringLiteral("Laser")};
    QStringList m_gone; ///< those that can not be opened any more
    QString m_default;
    QStringList m_opened; ///< all so far
    bool m_canCollate = true;
    bool m_isMemoryShort = false;
    QPageSize m_paper{QPageSize::A4};
    int m_dpi = 150;
    std::function<void()> m_onNewPage;
};

/// The data view with a printer, and a user who answers its dialog.
class CPrintApp : public CViewApp
{
public:
    using User = std::function<void(CDisplayPrintDialog&)>;

    explicit CPrintApp(const QString& language = QStringLiteral("English"),
                       const QString& settings = {});

    /// Gives the command Print; the user does something in the dialog and presses OK.
    void Print(const User& user = {});
    /// The same, but closes the dialog by Cancel.
    void PrintCancelled(const User& user = {});
    /// Prints with settings that no dialog leaves, from OK on.
    void PrintWith(const PrintSettings& settings);
    /// What the first printer printed.
    [[nodiscard]] QString Pdf() const { return Path(QStringLiteral("Laser.pdf")); }

    CTestPrinters* m_printers;
};

/// The child of a dialog with these words.
template <class Widget>
[[nodiscard]] Widget* ChildNamed(const QWidget& parent, const QString& text)
{
    for (Widget* const child : parent.findChildren<Widget*>()) {
        if (child->text() == text)
            return child;
    }
    return nullptr;
}

/// Number of pages; 0 if the file is no PDF.
[[nodiscard]] int PageCount(const QString& pdf);
/// A page, from 1, as it comes out at a resolution.
[[nodiscard]] QImage Page(const QString& pdf, int dpi, int page = 1);
/// The pictures within the file, pixel by pixel.
[[nodiscard]] std::vector<QImage> PicturesOf(const QString& pdf);
/// The words of a page in their order.
[[nodiscard]] QString PageText(const QString& pdf, int page = 1);

} // namespace skeldon::test
