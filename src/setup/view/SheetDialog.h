#pragma once

#include <QDialog>

#include <vector>

class QDialogButtonBox;
class QPushButton;
class QTabWidget;

namespace skeldon {

class CSheetPage;

/// How a sheet is left.
enum class SheetMode
{
    Close = 0, ///< its OK button reads "Close"; there is no Cancel
    OkCancel = 1,
};

/// Several pages behind tabs, closed as one.
class CSheetDialog : public QDialog
{
    Q_OBJECT

public:
    CSheetDialog(const QString& title, SheetMode mode, bool hasHelp, QWidget* parent = nullptr);

    /// The first page added is the first one shown. The sheet becomes its parent.
    void AddPage(CSheetPage* page, const QString& title);

    /// Has the pages that were shown take their controls over, in the order of the tabs.
    void accept() override;

    QTabWidget* m_tabs;
    QPushButton* m_ok;
    QPushButton* m_cancel = nullptr; ///< null where the sheet can only be closed
    QPushButton* m_help = nullptr;   ///< null for a sheet without help

signals:
    void HelpAsked();

private:
    void OnInitDialog();
    void OnSetActive(int index);

    struct Page
    {
        CSheetPage* page = nullptr;
        bool isOpened = false;
    };

    QDialogButtonBox* m_buttons;
    std::vector<Page> m_pages;
};

} // namespace skeldon
