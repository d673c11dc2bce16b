#include "chart/view/DisplayPrintDialog.h"

#include "app/FileChoice.h"
#include "app/SkeldonApp.h"
#include "app/WaitCursor.h"
#include "chart/view/LineNumberEdit.h"
#include "resources/FileFilters.h"
#include "resources/StringTable.h"
#include "resources/TextFormat.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPageSetupDialog>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QStackedWidget>

#include <algorithm>

namespace skeldon {

namespace {

constexpr int MostCopies = 999;

} // namespace

CDisplayPrintDialog::CDisplayPrintDialog(CPrinters& printers, QWidget* parent)
    : QDialog(parent)
    , m_printers(printers)
    , m_names(new QComboBox(this))
    , m_properties(new QPushButton(Text(StringId::PrintPrinterProperties), this))
    , m_listButton(new QRadioButton(Text(StringId::PrintList), this))
    , m_chartButton(new QRadioButton(Text(StringId::PrintChart), this))
    , m_ranges(new QStackedWidget(this))
    , m_chartRange(new QGroupBox(Text(StringId::PrintRangeOfChart), this))
    , m_listRange(new QGroupBox(Text(StringId::PrintRangeOfList), this))
    , m_first(new CLineNumberEdit(this))
    , m_last(new CLineNumberEdit(this))
    , m_limit(new QLabel(Text(StringId::PrintRangeTemplate), this))
    , m_copyCount(new QSpinBox(this))
    , m_collateBox(new QCheckBox(Text(StringId::PrintCollate), this))
{
    setWindowTitle(Text(StringId::TitlePrint));
    auto* const kinds = new QHBoxLayout;
    kinds->addWidget(m_listButton);
    kinds->addWidget(m_chartButton);
    kinds->addStretch();
    auto* const layout = new QGridLayout(this);
    layout->addWidget(MakePrinterBox(), 0, 0, 1, 2);
    layout->addLayout(kinds, 1, 0);
    layout->addWidget(MakeRangeBoxes(), 2, 0);
    layout->addWidget(MakeCopiesBox(), 2, 1);
    layout->addWidget(MakeButtons(), 3, 0, 1, 2);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    connect(m_chartButton, &QRadioButton::toggled, this, &CDisplayPrintDialog::OnKindChanged);
    connect(m_names, &QComboBox::currentIndexChanged, this, &CDisplayPrintDialog::OnPrinterChanged);
    connect(m_properties, &QPushButton::clicked, this, &CDisplayPrintDialog::ShowProperties);
}

CDisplayPrintDialog::~CDisplayPrintDialog() = default;

QGroupBox* CDisplayPrintDialog::MakePrinterBox()
{
    constexpr int NameLetters = 32;
    auto* const box = new QGroupBox(Text(StringId::PrintPrinter), this);
    auto* const label = new QLabel(Text(StringId::PrintPrinterName), box);
    label->setBuddy(m_names);
    m_names->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_names->setMinimumContentsLength(NameLetters);
    m_properties->setAutoDefault(false);
    auto* const row = new QHBoxLayout(box);
    row->addWidget(label);
    row->addWidget(m_names, 1);
    row->addWidget(m_properties);
    return box;
}

QWidget* CDisplayPrintDialog::MakeRangeBoxes()
{
    auto* const hint = new QLabel(Text(StringId::PrintChartIsView), m_chartRange);
    auto* const chart = new QVBoxLayout(m_chartRange);
    chart->addWidget(hint);
    chart->addStretch();

    auto* const list = new QGridLayout(m_listRange);
    const auto add = [&](int column, StringId text, CLineNumberEdit* edit) {
        auto* const label = new QLabel(Text(text), m_listRange);
        label->setBuddy(edit);
        edit->setAccessibleName(Text(text));
        list->addWidget(label, 0, column);
        list->addWidget(edit, 0, column + 1);
    };
    add(0, StringId::PrintFirstLine, m_first);
    add(2, StringId::PrintLastLine, m_last);
    list->addWidget(m_limit, 1, 0, 1, 4);
    list->setRowStretch(2, 1);

    m_ranges->addWidget(m_chartRange);
    m_ranges->addWidget(m_listRange);
    return m_ranges;
}

QGroupBox* CDisplayPrintDialog::MakeCopiesBox()
{
    auto* const box = new QGroupBox(this);
    auto* const label = new QLabel(Text(StringId::PrintCopies), box);
    label->setBuddy(m_copyCount);
    m_copyCount->setRange(1, MostCopies);
    auto* const row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(m_copyCount);
    auto* const layout = new QVBoxLayout(box);
    layout->addLayout(row);
    layout->addWidget(m_collateBox);
    layout->addStretch();
    return box;
}

QWidget* CDisplayPrintDialog::MakeButtons()
{
    auto* const buttons = new QDialogButtonBox(this);
    QPushButton* const ok =
        buttons->addButton(Text(StringId::ButtonOk), QDialogButtonBox::AcceptRole);
    ok->setDefault(true);
    buttons->addButton(Text(StringId::ButtonCancel), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &CDisplayPrintDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &CDisplayPrintDialog::reject);
    // Functions of the program's larger editions: the buttons keep their place out of sight.
    for (const StringId text : {StringId::PrintPreview, StringId::PrintOptions})
        (new QPushButton(Text(text), this))->hide();
    return buttons;
}

void CDisplayPrintDialog::OnInitDialog(int count)
{
    setResult(Rejected);
    m_settings = PrintDialogSettings;
    m_collate = false;
    m_copies = 1;
    m_printer.reset();
    m_collateBox->setChecked(false);
    m_copyCount->setValue(1);
    const int last = std::max(count, 1);
    const auto start = [last](CLineNumberEdit& edit, int line) {
        edit.SetRange(1, static_cast<std::uint32_t>(last));
        edit.SetValue(static_cast<std::uint32_t>(std::clamp(line, 1, last)));
    };
    start(*m_first, m_lines.first);
    start(*m_last, m_lines.last);
    m_limit->setText(FormatText(Text(StringId::PrintRangeLines), {last}));
    m_chartButton->setChecked(true);
    OnKindChanged();
    ListPrinters();
    m_chartButton->setFocus();
}

void CDisplayPrintDialog::ListPrinters()
{
    const CWaitCursor wait;
    const QString before = m_names->currentText();
    m_names->clear();
    m_names->addItems(m_printers.Names());
    m_isPdf = m_names->count() == 0;
    if (m_isPdf) {
        m_names->addItem(Text(StringId::PrintToPdf));
        return;
    }
    const int chosen = m_names->findText(before);
    m_names->setCurrentIndex(
        std::max(chosen >= 0 ? chosen : m_names->findText(m_printers.DefaultName()), 0));
}

/// Chart and list have fields of their own.
void CDisplayPrintDialog::OnKindChanged()
{
    m_ranges->setCurrentWidget(m_chartButton->isChecked() ? m_chartRange : m_listRange);
}

void CDisplayPrintDialog::OnPrinterChanged()
{
    m_printer.reset();
}

QPrinter* CDisplayPrintDialog::Printer()
{
    if (m_printer)
        return m_printer.get();
    m_printer = m_printers.Open(m_isPdf ? QString() : m_names->currentText());
    // Its properties are to show the page as it will come out.
    static_assert(PrintDialogSettings.chart.horz != 0);
    if (m_printer)
        m_printer->setPageOrientation(QPageLayout::Landscape);
    return m_printer.get();
}

void CDisplayPrintDialog::ShowProperties()
{
    QPrinter* const printer = Printer();
    if (printer == nullptr) {
        App().Prompts().ShowBox(this, BoxKind::Warning, Text(StringId::PrintFailed));
        return;
    }
    QPageSetupDialog properties(printer, this);
    App().Prompts().RunDialog(properties);
}

bool CDisplayPrintDialog::AskPdfPath()
{
    const QFileInfo proposed(m_pdfPath);
    const auto target =
        AskSaveTarget(this,
                      {Text(StringId::TitlePrint), proposed.path(), proposed.fileName(),
                       FileFilters(Text(StringId::PrintFilterPdf))},
                      "pdf");
    if (target)
        m_pdfPath = FromPath(target->target);
    return target.has_value();
}

void CDisplayPrintDialog::accept()
{
    std::uint32_t first = 1;
    std::uint32_t last = 1;
    if (!m_first->GetValue(first) || !m_last->GetValue(last))
        return;
    QPrinter* const printer = Printer();
    if (printer == nullptr) {
        App().Prompts().ShowBox(this, BoxKind::Warning, Text(StringId::PrintFailed));
        return;
    }
    if (!m_isPdf)
        m_pdfPath.clear();
    else if (!AskPdfPath())
        return;
    m_lines = {static_cast<int>(std::min(first, last)), static_cast<int>(std::max(first, last))};
    m_collate = m_collateBox->isChecked();
    m_copies = m_copyCount->value();
    // The chart, fitted to a landscape page: whichever button is pressed.
    m_settings = PrintDialogSettings;
    QDialog::accept();
}

} // namespace skeldon
