#include "setup/view/ProfileWizardPage.h"

#include "controls/LcdPanel.h"
#include "controls/SpinButton.h"
#include "resources/TextFormat.h"
#include "setup/conditions/MeasureCondition.h"
#include "setup/view/ConditionPanel.h"
#include "setup/view/WizardPages.h"

#include <QLabel>
#include <QPlainTextEdit>

#include <algorithm>

namespace skeldon {

namespace {

/// From heading to read-out, and from read-out to description.
constexpr int Gap = 16;
constexpr int SmallFontHeight = 12;

/// What the button is called, by the field that it changes.
StringId NameOf(SpinKind kind)
{
    if (kind == SpinKind::Reset)
        return StringId::NameFieldToggle;
    return kind == SpinKind::Up ? StringId::NameFieldUp : StringId::NameFieldDown;
}

} // namespace

CProfileWizardPage::CProfileWizardPage(CMeasureCondition& condition, int page, QWidget* parent)
    : QWidget(parent)
    , m_heading(new QLabel(this))
    , m_description(nullptr)
    , m_condition(condition)
    , m_rule(WizardPages()[static_cast<std::size_t>(page)])
{
    QFont strong = font();
    strong.setBold(true);
    m_heading->setFont(strong);
    m_heading->setWordWrap(true); // desktops may have large letters
    m_panel = MakeConditionPanel(m_rule.panel, this);
    if (m_rule.up != nullptr) {
        m_up = MakeSpin(SpinKind::Up, m_rule.up);
        m_down = MakeSpin(SpinKind::Down, m_rule.down);
    }
    if (m_rule.toggle != nullptr)
        m_toggle = MakeSpin(SpinKind::Reset, m_rule.toggle);
    // Last, so that the Tab key comes to it last.
    m_description = new QPlainTextEdit(this);
    m_description->setReadOnly(true);
    m_description->setTabChangesFocus(true);
    m_description->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

CProfileWizardPage::~CProfileWizardPage() = default;

CSpinButton* CProfileWizardPage::MakeSpin(SpinKind kind, Step step)
{
    auto* const spin = new CSpinButton(kind, this);
    spin->SetSpeedUp(m_rule.speedsUp);
    spin->SetName(FormatText(Text(NameOf(kind)), {m_panel->Caption()}));
    connect(spin, &CSpinButton::Stepped, this, [this, step] {
        step(m_condition, m_profiles);
        ShowValue();
    });
    return spin;
}

void CProfileWizardPage::OnSetActive()
{
    if (!m_isOpened)
        OnInitDialog();
    m_isOpened = true;
    ShowValue();
}

void CProfileWizardPage::OnInitDialog()
{
    QFont small = font();
    small.setPixelSize(SmallFontHeight);
    m_panel->setFont(small);
    m_heading->setText(Text(m_rule.heading));
    m_description->setPlainText(
        Text(m_rule.description).replace(QLatin1String("\r\n"), QLatin1String("\n")));
    m_description->setAccessibleName(m_heading->text());
    m_panel->SetDigitColour(DigitColour::Yellow);
    LayOut();
    if (m_rule.open == nullptr)
        return;
    m_profiles.Load(false);
    m_rule.open(m_condition, m_profiles);
}

void CProfileWizardPage::ShowValue()
{
    ShowCondition(*m_panel, m_rule.panel, m_condition);
}

/// The read-out stands under the heading with its buttons beside it, the description takes the
/// rest.
void CProfileWizardPage::LayOut()
{
    m_heading->setGeometry(0, 0, width(), m_heading->heightForWidth(width()));
    const QPoint place = m_heading->geometry().bottomLeft() + QPoint(Gap, Gap + 1);
    m_panel->setGeometry(QRect(place, m_panel->sizeHint()));
    if (m_up != nullptr) {
        m_up->move(place + setup_layout::ArrowUp);
        m_down->move(place + setup_layout::ArrowDown);
    }
    if (m_toggle != nullptr)
        m_toggle->move(place + setup_layout::Toggle);
    const int top = m_panel->geometry().bottom() + 1 + Gap;
    m_description->setGeometry(0, top, width(), std::max(0, height() - top));
}

void CProfileWizardPage::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    LayOut();
}

} // namespace skeldon
