#include "chart/view/ChartPropertyDialog.h"

#include "app/SkeldonApp.h"
#include "controls/ColourSample.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace skeldon {

namespace {

constexpr QSize SampleSize{64, 24};
/// A usual title can be seen whole.
constexpr int TitleLetters = 32;

/// Texts of the rows, in the order of the colours.
constexpr std::array<StringId, ChartColourCount> RowTexts{
    StringId::ChartColorX,         StringId::ChartColorY,           StringId::ChartColorZ,
    StringId::ChartColorResultant, StringId::ChartColorTemperature, StringId::ChartColorHumidity,
    StringId::ChartColorDirection, StringId::ChartColorMark};

/// What a screen reader says of a label's text.
QString Spoken(StringId label)
{
    QString text = Text(label);
    text.remove(QLatin1Char('&'));
    while (text.endsWith(QLatin1Char(':')) || text.endsWith(QLatin1Char(' ')))
        text.chop(1);
    return text;
}

} // namespace

CChartPropertyDialog::CChartPropertyDialog(QWidget* parent)
    : QDialog(parent)
    , m_properties(ReadChartProperties(App().Settings()))
{
    setWindowTitle(Text(StringId::TitleChartProperties));
    LayOut();
    ShowColours();
}

void CChartPropertyDialog::LayOut()
{
    auto* const columns = new QGridLayout(this);
    auto* const left = new QVBoxLayout;
    left->addWidget(MakeColours());
    auto* const standard = new QPushButton(Text(StringId::ChartStandardColors), this);
    connect(standard, &QPushButton::clicked, this, &CChartPropertyDialog::SetStandardColours);
    left->addWidget(standard);
    left->addStretch();
    columns->addLayout(left, 0, 0);

    auto* const right = new QVBoxLayout;
    m_screenWeight = MakeChoice(*right, StringId::ChartScreenLines, StringId::ChartThin,
                                StringId::ChartThick, IsOfferedAsThick(m_properties.screenWeight));
    m_printWeight = MakeChoice(*right, StringId::ChartPrintLines, StringId::ChartThin,
                               StringId::ChartThick, IsOfferedAsThick(m_properties.printWeight));
    m_timeFormat = MakeChoice(*right, StringId::ChartTimeFormat, StringId::ChartFormatTime,
                              StringId::ChartFormatElapsed, m_properties.isElapsed);
    MakeTitle(*right);
    right->addStretch();
    MakeButtons(*right);
    columns->addLayout(right, 0, 1);
    columns->setSizeConstraint(QLayout::SetFixedSize);
}

QGroupBox* CChartPropertyDialog::MakeColours()
{
    auto* const group = new QGroupBox(Text(StringId::ChartColor), this);
    auto* const rows = new QGridLayout(group);
    for (std::size_t i = 0; i < ChartColourCount; ++i) {
        auto* const label = new QLabel(Text(RowTexts[i]), group);
        m_samples[i] = new CColourSample(group);
        m_samples[i]->setFixedSize(SampleSize);
        m_samples[i]->setAccessibleName(Spoken(RowTexts[i]));
        auto* const browse = new QPushButton(Text(StringId::ChartBrowse), group);
        browse->setAccessibleName(Spoken(RowTexts[i]) + QLatin1Char(' ') + browse->text());
        connect(browse, &QPushButton::clicked, this, [this, i] { Browse(i); });
        label->setBuddy(browse);
        if (i == 0)
            browse->setFocus();
        const int row = static_cast<int>(i);
        rows->addWidget(label, row, 0);
        rows->addWidget(m_samples[i], row, 1);
        rows->addWidget(browse, row, 2);
        if (i != MarkColourIndex)
            continue;
        // Marks are not drawn: their colour is kept and written with the others, and not offered.
        label->hide();
        m_samples[i]->hide();
        browse->hide();
    }
    return group;
}

CChartPropertyDialog::Choice CChartPropertyDialog::MakeChoice(QVBoxLayout& column, StringId title,
                                                              StringId first, StringId second,
                                                              bool isSecond)
{
    auto* const group = new QGroupBox(Text(title), this);
    auto* const row = new QHBoxLayout(group);
    const Choice choice{new QRadioButton(Text(first), group),
                        new QRadioButton(Text(second), group)};
    row->addWidget(choice.first);
    row->addWidget(choice.second);
    row->addStretch();
    (isSecond ? choice.second : choice.first)->setChecked(true);
    // Tab goes to what is chosen; from there on the toolkit sees to that.
    (isSecond ? choice.first : choice.second)->setFocusPolicy(Qt::ClickFocus);
    column.addWidget(group);
    return choice;
}

void CChartPropertyDialog::MakeTitle(QVBoxLayout& column)
{
    auto* const group = new QGroupBox(Text(StringId::ChartPrintTitle), this);
    m_title = new QLineEdit(m_properties.title, group);
    m_title->setMinimumWidth(TitleLetters * fontMetrics().averageCharWidth());
    m_title->setAccessibleName(Spoken(StringId::ChartPrintTitle));
    m_title->setCursorPosition(0);
    auto* const row = new QHBoxLayout(group);
    row->addWidget(m_title);
    column.addWidget(group);
}

void CChartPropertyDialog::MakeButtons(QVBoxLayout& column)
{
    auto* const buttons = new QDialogButtonBox(this);
    buttons->addButton(Text(StringId::ButtonOk), QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(Text(StringId::ButtonCancel), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &CChartPropertyDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &CChartPropertyDialog::reject);
    column.addWidget(buttons);
}

void CChartPropertyDialog::ShowColours()
{
    for (std::size_t i = 0; i < ChartColourCount; ++i)
        m_samples[i]->SetColour(m_properties.colours[i]);
}

void CChartPropertyDialog::Browse(std::size_t index)
{
    const auto colour = App().Prompts().AskColour(this, m_properties.colours[index]);
    if (!colour)
        return;
    m_properties.colours[index] = *colour;
    ShowColours();
}

void CChartPropertyDialog::SetStandardColours()
{
    m_properties.colours = StandardColours();
    ShowColours();
}

void CChartPropertyDialog::accept()
{
    m_properties.screenWeight = ChosenWeight(m_screenWeight.second->isChecked());
    m_properties.printWeight = ChosenWeight(m_printWeight.second->isChecked());
    m_properties.isElapsed = m_timeFormat.second->isChecked();
    m_properties.title = m_title->text();
    WriteChartProperties(App().Settings(), m_properties);
    QDialog::accept();
}

bool RunChartProperties(QWidget* parent)
{
    CChartPropertyDialog dialog(parent);
    return App().Prompts().RunDialog(dialog);
}

} // namespace skeldon
