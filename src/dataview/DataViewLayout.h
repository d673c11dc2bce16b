#pragma once

#include <QRect>
#include <QSize>

namespace skeldon {

/// The buttons of the data view that are shown.
enum class DataViewButton
{
    Open,
    Save,
    Print,
    GetData,
    OnlineRecording,
    Setup,
    X,
    Y,
    Z,
    Resultant,
    Temperature,
    Humidity,
    ZoomIn,
    ZoomOut,
    Properties,
    Count,
};

/// Where everything stands on the data view, in logical pixels of its client area.
class CDataViewLayout
{
public:
    static constexpr int ButtonHeight = 28;
    static constexpr int TopRow = 3;
    static constexpr int StripHeight = 18;
    static constexpr int DefaultListBorder = 182;
    static constexpr int HighestListBorder = 96;
    static constexpr int SplitterHeight = 4;

    /// Buttons have other places under Japanese.
    CDataViewLayout(QSize client, bool isJapanese);

    /// The smallest client area, by language.
    [[nodiscard]] static QSize FormSize(bool isJapanese);

    [[nodiscard]] QRect Button(DataViewButton button) const;
    /// A splitter within the limits of the window; the limit from the bottom wins where both can
    /// not be held.
    [[nodiscard]] int ClampListBorder(int border) const;
    [[nodiscard]] QRect Splitter(int listBorder) const;
    [[nodiscard]] QRect List(int listBorder) const;
    [[nodiscard]] QRect Chart(int listBorder) const;
    /// The strip with the condition summary.
    [[nodiscard]] QRect Strip() const;
    [[nodiscard]] QRect ConnectionIcon() const;

private:
    QSize m_client;
    bool m_isJapanese;
};

} // namespace skeldon
