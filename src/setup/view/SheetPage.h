#pragma once

#include <QWidget>

namespace skeldon {

/// A page of a sheet. What it never was shown it never read, so it has nothing to write either.
class CSheetPage : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Once, when the page is first shown: takes the values over into the controls.
    virtual void OnInitDialog() = 0;
    /// The sheet closes with OK; only for a page that was shown.
    virtual void OnOK() = 0;
};

} // namespace skeldon
