#include "setup/view/SheetDialog.h"

#include "resources/StringTable.h"
#include "setup/view/SheetPage.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace skeldon {

CSheetDialog::CSheetDialog(const QString& title, SheetMode mode, bool hasHelp, QWidget* parent)
    : QDialog(parent)
    , m_tabs(new QTabWidget(this))
    , m_ok(nullptr)
    , m_buttons(new QDialogButtonBox(this))
{
    setWindowTitle(title);
    const bool hasCancel = mode == SheetMode::OkCancel;
    m_ok = m_buttons->addButton(Text(hasCancel ? StringId::ButtonOk : StringId::ButtonClose),
                                QDialogButtonBox::AcceptRole);
    m_ok->setDefault(true);
    if (hasCancel)
        m_cancel = m_buttons->addButton(Text(StringId::ButtonCancel), QDialogButtonBox::RejectRole);
    if (hasHelp)
        m_help = m_buttons->addButton(Text(StringId::MenuHelpHelp), QDialogButtonBox::HelpRole);
    OnInitDialog();
}

void CSheetDialog::OnInitDialog()
{
    connect(m_buttons, &QDialogButtonBox::accepted, this, &CSheetDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &CSheetDialog::reject);
    connect(m_buttons, &QDialogButtonBox::helpRequested, this, &CSheetDialog::HelpAsked);
    connect(m_tabs, &QTabWidget::currentChanged, this, &CSheetDialog::OnSetActive);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(m_tabs);
    layout->addWidget(m_buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void CSheetDialog::AddPage(CSheetPage* page, const QString& title)
{
    m_pages.push_back({page});
    m_tabs->addTab(page, title);
}

void CSheetDialog::OnSetActive(int index)
{
    Page& active = m_pages[static_cast<std::size_t>(index)];
    if (!active.isOpened)
        active.page->OnInitDialog();
    active.isOpened = true;
}

void CSheetDialog::accept()
{
    for (const Page& page : m_pages) {
        if (page.isOpened)
            page.page->OnOK();
    }
    QDialog::accept();
}

} // namespace skeldon
