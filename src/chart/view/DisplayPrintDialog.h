#pragma once

#include "chart/model/PagePlan.h"
#include "chart/view/Printers.h"

#include <QDialog>

#include <memory>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QPrinter;
class QPushButton;
class QRadioButton;
class QSpinBox;
class QStackedWidget;

namespace skeldon {

class CLineNumberEdit;

/// Asks for the printer, the copies and what is to be printed. Whatever is chosen, it leaves the
/// settings of `PrintDialogSettings`. Where no printer is installed it offers to write a PDF file.
class CDisplayPrintDialog : public QDialog
{
    Q_OBJECT

public:
    /// `printers` must outlive the dialog.
    explicit CDisplayPrintDialog(CPrinters& printers, QWidget* parent);
    ~CDisplayPrintDialog() override;

    /// Makes the dialog ready to be shown: asks for the printers, and sets all fields and settings
    /// to what they always start with. `count` is the number of lines, at least 1.
    void OnInitDialog(int count);
    /// Refuses, with the dialog open, where a line number is out of range or no PDF file is chosen.
    void accept() override;

    // What is given to the dialog before it starts, and chosen in it after OK.
    PrintSettings m_settings;
    PrintLines m_lines;
    bool m_collate = false;
    int m_copies = 1;
    QString m_pdfPath; ///< proposed, and chosen; empty where a printer prints
    std::unique_ptr<QPrinter> m_printer;

private:
    [[nodiscard]] QGroupBox* MakePrinterBox();
    [[nodiscard]] QGroupBox* MakeCopiesBox();
    [[nodiscard]] QWidget* MakeRangeBoxes();
    [[nodiscard]] QWidget* MakeButtons();
    void ListPrinters();
    void OnKindChanged();
    void OnPrinterChanged();
    void ShowProperties();
    /// The chosen printer, null if it has gone.
    [[nodiscard]] QPrinter* Printer();
    [[nodiscard]] bool AskPdfPath();

    CPrinters& m_printers;
    bool m_isPdf = false; ///< no printer is installed
    QComboBox* m_names;
    QPushButton* m_properties;
    QRadioButton* m_listButton;
    QRadioButton* m_chartButton;
    QStackedWidget* m_ranges;
    QGroupBox* m_chartRange;
    QGroupBox* m_listRange;
    CLineNumberEdit* m_first;
    CLineNumberEdit* m_last;
    QLabel* m_limit;
    QSpinBox* m_copyCount;
    QCheckBox* m_collateBox;
};

} // namespace skeldon
