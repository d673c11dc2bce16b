#pragma once

#include <QProxyStyle>

namespace skeldon {

/// The desktop's style, with the sign of a menu bar's entries that have no room drawn here: the
/// toolkit reads its own through every image format it knows, at each start and for each bar.
class CProgramStyle : public QProxyStyle
{
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;
    [[nodiscard]] QIcon standardIcon(StandardPixmap picture, const QStyleOption* option,
                                     const QWidget* widget) const override;
};

} // namespace skeldon
