#include "setup/view/SetupForm.h"

#include "app/SkeldonApp.h"
#include "controls/Caption.h"
#include "controls/LcdPanel.h"
#include "controls/NameEdit.h"
#include "controls/RecorderPicture.h"
#include "controls/SkinButton.h"
#include "controls/SpinButton.h"
#include "controls/Theme.h"
#include "resources/TextFormat.h"
#include "setup/view/ConditionPanel.h"
#include "setup/view/ProfileList.h"
#include "setup/view/SetupState.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

namespace skeldon {

namespace {

constexpr int LightEdge = 130; // percent of the face
constexpr int DarkEdge = 150;  // the face by so many percent

SpinKind SpinKindOf(StepKind kind)
{
    if (kind == StepKind::Toggle)
        return SpinKind::Reset;
    return kind == StepKind::Up ? SpinKind::Up : SpinKind::Down;
}

StringId SpinName(StepKind kind)
{
    if (kind == StepKind::Toggle)
        return StringId::NameFieldToggle;
    return kind == StepKind::Up ? StringId::NameFieldUp : StringId::NameFieldDown;
}

QPoint SpinOffset(StepKind kind)
{
    if (kind == StepKind::Toggle)
        return setup_layout::Toggle;
    return kind == StepKind::Up ? setup_layout::ArrowUp : setup_layout::ArrowDown;
}

bool IsCondition(SetupPanel panel)
{
    return panel != SetupPanel::Records;
}

/// Small enough for the longer caption, so that both look alike.
QFont StartButtonFont(QFont font)
{
    font.setPixelSize(setup_layout::FontHeight - 1);
    return font;
}

/// An etched frame, as group boxes have it.
void DrawEtched(QPainter& painter, const QRect& group, const QColor& light, const QColor& dark)
{
    const QRect outline = group.adjusted(0, 0, -2, -2);
    painter.setPen(light);
    painter.drawRect(outline.translated(1, 1));
    painter.setPen(dark);
    painter.drawRect(outline);
}

} // namespace

CSetupForm::CSetupForm(QWidget* parent)
    : QWidget(parent)
    , m_name(new CNameEdit(this))
    , m_list(new CProfileList(this))
    , m_label(new QLabel(this))
    , m_picture(new CRecorderPicture(this))
{
    setFixedSize(setup_layout::Form);
    setMouseTracking(true);
    QFont small = font();
    small.setPixelSize(setup_layout::FontHeight);
    setFont(small);
    setPalette(FormPalette(App().m_viewBaseColour));
    MakeLabelAndList();
    MakePanels();
    m_picture->setGeometry(setup_layout::PicturePlace);
    // Behind the picture, so that the one over it stands on top.
    MakeButtons();
    MakeSpins();
    OrderFocus();
}

CSetupForm::~CSetupForm() = default;

CSkinButton& CSetupForm::Button(SetupButton button) const
{
    return *m_buttons[static_cast<std::size_t>(button)];
}

CLcdPanel& CSetupForm::Panel(SetupPanel panel) const
{
    return *m_panels[static_cast<std::size_t>(panel)];
}

CSpinButton& CSetupForm::Spin(SetupStep step) const
{
    return *m_spins[static_cast<std::size_t>(step)];
}

void CSetupForm::MakeLabelAndList()
{
    QFont strong = font();
    strong.setBold(true);
    m_label->setFont(strong);
    m_label->setGeometry(setup_layout::NameLabel);
    m_label->setBuddy(m_name);
    m_name->setGeometry(setup_layout::NameBox);
    m_name->SetLimit(setup_layout::NameLimit);
    m_name->setAccessibleName(Text(StringId::NameProfileName));
    m_list->setGeometry(setup_layout::List);
    for (QWidget* const child : {static_cast<QWidget*>(m_label), static_cast<QWidget*>(m_name),
                                 static_cast<QWidget*>(m_list), m_list->viewport()})
        child->setMouseTracking(true);
}

void CSetupForm::MakeButtons()
{
    for (const SetupButtonForm& form : SetupButtons()) {
        auto* const button = new CSkinButton(this);
        m_buttons[static_cast<std::size_t>(form.button)] = button;
        button->setMouseTracking(true);
        if (form.picture == PictureId::Count)
            button->SetUpPlain();
        else
            button->SetUpPicture(form.picture);
        button->SetTint(TintOf(App().m_viewBaseColour));
        button->SetCaption(Text(form.caption));
        if (form.button == SetupButton::StartPrompt || form.button == SetupButton::StartReserved)
            button->setFont(StartButtonFont(font()));
        const QRect place = PlaceOf(form.button, App().IsJapanese());
        if (place.isEmpty()) {
            button->setEnabled(false);
            button->hide();
            continue;
        }
        button->Move(place.x(), place.y(), place.width());
        const CommandId command = form.command;
        connect(button, &CSkinButton::clicked, this,
                [this, command] { emit ButtonClicked(command); });
    }
    HideDataDisplay();
}

void CSetupForm::MakePanels()
{
    for (const SetupPanelForm& form : SetupPanels()) {
        CLcdPanel* const panel = MakeConditionPanel(form.panel, this);
        m_panels[static_cast<std::size_t>(form.panel)] = panel;
        panel->setMouseTracking(true);
        panel->move(form.place);
    }
}

void CSetupForm::MakeSpins()
{
    for (const StepRule& rule : StepRules()) {
        auto* const spin = new CSpinButton(SpinKindOf(rule.kind), this);
        m_spins[static_cast<std::size_t>(rule.step)] = spin;
        const CLcdPanel& panel = Panel(rule.panel);
        spin->setMouseTracking(true);
        spin->SetSpeedUp(rule.speedsUp);
        spin->SetName(FormatText(Text(SpinName(rule.kind)), {panel.Caption()}));
        spin->move(panel.pos() + SpinOffset(rule.kind));
        spin->hide();
        connect(spin, &CSpinButton::Stepped, this, [this, &rule] { emit Stepped(rule.step); });
    }
}

/// Down the left side, then along the read-outs and on to the buttons under them.
void CSetupForm::OrderFocus()
{
    std::vector<QWidget*> order = {&Button(SetupButton::StartPrompt),
                                   &Button(SetupButton::StartReserved), m_name, m_list};
    for (const SetupButtonForm& form : SetupButtons()) {
        if (form.button >= SetupButton::Add && form.button <= SetupButton::Template)
            order.push_back(&Button(form.button));
    }
    for (const SetupPanelForm& form : SetupPanels()) {
        for (const StepRule& rule : StepRules()) {
            if (rule.panel == form.panel)
                order.push_back(&Spin(rule.step));
        }
    }
    for (const SetupButton button :
         {SetupButton::Change, SetupButton::Restore, SetupButton::Wizard, SetupButton::DataDisplay})
        order.push_back(&Button(button));
    for (std::size_t i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
}

void CSetupForm::ShowValue(SetupPanel panel, const CMeasureCondition& condition)
{
    ShowCondition(Panel(panel), panel, condition);
}

void CSetupForm::ShowConditions(const CMeasureCondition& condition)
{
    for (const SetupPanelForm& form : SetupPanels())
        ShowValue(form.panel, condition);
}

void CSetupForm::BlankConditions()
{
    for (const SetupPanelForm& form : SetupPanels()) {
        if (IsCondition(form.panel))
            Panel(form.panel).SetBlank();
    }
}

void CSetupForm::SetDigitColour(DigitColour colour)
{
    for (const SetupPanelForm& form : SetupPanels()) {
        if (IsCondition(form.panel))
            Panel(form.panel).SetDigitColour(colour);
    }
}

void CSetupForm::ShowListMode(ListMode mode)
{
    const bool isTemplates = mode == ListMode::Templates;
    m_label->setText(Text(isTemplates ? StringId::LabelTemplate : StringId::LabelProfile));
    m_list->setAccessibleName(
        Text(isTemplates ? StringId::NameTemplateList : StringId::NameProfileList));
    m_name->setReadOnly(isTemplates);
    QPalette own = palette();
    if (isTemplates)
        own.setColor(QPalette::Base, own.color(QPalette::Window));
    m_name->setPalette(own);
}

void CSetupForm::ShowSpins(bool isShown)
{
    for (CSpinButton* const spin : m_spins)
        spin->setVisible(isShown);
}

void CSetupForm::HideDataDisplay()
{
    Button(SetupButton::DataDisplay).hide();
}

void CSetupForm::mouseMoveEvent(QMouseEvent* event)
{
    Button(SetupButton::DataDisplay)
        .setVisible(setup_layout::PictureHotArea.contains(event->pos()));
}

void CSetupForm::leaveEvent(QEvent* event)
{
    HideDataDisplay();
    QWidget::leaveEvent(event);
}

void CSetupForm::paintEvent(QPaintEvent* /*event*/)
{
    using namespace setup_layout;
    const QColor face = ToColour(App().m_viewBaseColour);
    const QColor light = face.lighter(LightEdge);
    const QColor dark = face.darker(DarkEdge);
    QPainter painter(this);
    painter.fillRect(rect(), face);
    const int right = width() - 1;
    const int bottom = height() - 1;
    painter.fillRect(0, 0, width(), 1, light);
    painter.fillRect(0, 0, 1, height(), light);
    painter.fillRect(0, bottom, width(), 1, dark);
    painter.fillRect(right, 0, 1, height(), dark);
    painter.fillRect(1, DividerDark, width() - 2, 1, dark);
    painter.fillRect(1, DividerLight, width() - 2, 1, light);
    DrawEtched(painter, LeftGroup, light, dark);
    DrawEtched(painter, RightGroup, light, dark);
}

} // namespace skeldon
