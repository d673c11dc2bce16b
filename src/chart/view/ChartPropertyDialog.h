#pragma once

#include "chart/view/ChartSettings.h"
#include "resources/StringTable.h"

#include <QDialog>

#include <array>
#include <cstddef>

class QGroupBox;
class QLineEdit;
class QRadioButton;
class QVBoxLayout;

namespace skeldon {

class CColourSample;

/// "Chart properties": the one place where colours, line weights, time format and title of the
/// chart are changed. It works on the settings alone and knows no chart: they are read at start and
/// written on OK, and who shows the chart reads them again.
class CChartPropertyDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit CChartPropertyDialog(QWidget* parent = nullptr);

    void accept() override;

private:
    /// Two choices under a heading.
    struct Choice
    {
        QRadioButton* first = nullptr;
        QRadioButton* second = nullptr;
    };

    [[nodiscard]] QGroupBox* MakeColours();
    [[nodiscard]] Choice MakeChoice(QVBoxLayout& column, StringId title, StringId first,
                                    StringId second, bool isSecond);
    void MakeTitle(QVBoxLayout& column);
    void MakeButtons(QVBoxLayout& column);
    void LayOut();
    void Browse(std::size_t index);
    void SetStandardColours();
    void ShowColours();

    ChartProperties m_properties;
    std::array<CColourSample*, ChartColourCount> m_samples{};
    Choice m_screenWeight;
    Choice m_printWeight;
    Choice m_timeFormat;
    QLineEdit* m_title = nullptr;
};

/// Shows the dialog; true if it was closed with OK.
[[nodiscard]] bool RunChartProperties(QWidget* parent);

} // namespace skeldon
