#include "setup/view/ProfileWizardDialog.h"

#include "resources/StringTable.h"
#include "setup/view/ProfileWizardPage.h"
#include "setup/view/WizardPages.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace skeldon {

namespace {

/// Room for the longest description, in either language.
constexpr QSize PageSize(540, 264);

} // namespace

CProfileWizardDialog::CProfileWizardDialog(const CMeasureCondition& condition, QWidget* parent)
    : QDialog(parent)
    , m_condition(condition)
    , m_back(new QPushButton(Text(StringId::WizardBack), this))
    , m_next(new QPushButton(Text(StringId::WizardNext), this))
    , m_finish(new QPushButton(Text(StringId::WizardFinish), this))
    , m_cancel(new QPushButton(Text(StringId::ButtonCancel), this))
    , m_stack(new QStackedWidget(this))
{
    setAccessibleName(Text(StringId::ButtonWizard));
    m_stack->setMinimumSize(PageSize);
    for (int page = 0; page < static_cast<int>(WizardPages().size()); ++page) {
        m_pages.push_back(new CProfileWizardPage(m_condition, page));
        m_stack->addWidget(m_pages.back());
    }
    connect(m_back, &QPushButton::clicked, this, [this] { SetActive(CurrentPage() - 1); });
    connect(m_next, &QPushButton::clicked, this, [this] { SetActive(CurrentPage() + 1); });
    connect(m_finish, &QPushButton::clicked, this, &CProfileWizardDialog::accept);
    connect(m_cancel, &QPushButton::clicked, this, &CProfileWizardDialog::reject);
    OnInitDialog();
    SetActive(0);
}

CProfileWizardDialog::~CProfileWizardDialog() = default;

void CProfileWizardDialog::OnInitDialog()
{
    // Next and Finish take turns in one place, so they are of one width.
    const int width = std::max({m_back->sizeHint().width(), m_next->sizeHint().width(),
                                m_finish->sizeHint().width(), m_cancel->sizeHint().width()});
    auto* const buttons = new QHBoxLayout;
    buttons->addStretch();
    for (QPushButton* const button : {m_back, m_next, m_finish, m_cancel}) {
        button->setMinimumWidth(width);
        buttons->addWidget(button);
    }
    auto* const line = new QFrame(this);
    line->setFrameStyle(static_cast<int>(QFrame::HLine) | static_cast<int>(QFrame::Sunken));
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(m_stack, 1);
    layout->addWidget(line);
    layout->addLayout(buttons);
    setTabOrder(m_stack, m_back);
    setTabOrder(m_back, m_next);
    setTabOrder(m_next, m_finish);
    setTabOrder(m_finish, m_cancel);
}

int CProfileWizardDialog::CurrentPage() const
{
    return m_stack->currentIndex();
}

CProfileWizardPage& CProfileWizardDialog::Page(int page) const
{
    return *m_pages[static_cast<std::size_t>(page)];
}

void CProfileWizardDialog::SetActive(int page)
{
    Page(page).OnSetActive();
    m_stack->setCurrentIndex(page);
    const WizardButtons offered = WizardButtonsOf(page);
    QPushButton* const onward = offered.hasFinish ? m_finish : m_next;
    // Before a button goes that may have the focus.
    onward->setVisible(true);
    onward->setDefault(true);
    onward->setFocus();
    m_back->setEnabled(offered.hasBack);
    m_next->setVisible(offered.hasNext);
    m_finish->setVisible(offered.hasFinish);
}

} // namespace skeldon
