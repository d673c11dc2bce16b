#include "online/OnlineDialog.h"

#include "app/OnlineSeconds.h"
#include "app/SkeldonApp.h"
#include "controls/SkinButton.h"
#include "controls/Theme.h"
#include "online/OnlineCounter.h"
#include "recorder/OnlineTime.h"
#include "resources/Pictures.h"
#include "resources/StringTable.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QTimerEvent>

namespace skeldon {

namespace {

constexpr int FontHeight = 12;
/// Where things stand on the picture, in logical pixels.
constexpr QRect ElapsedPlace(138, 10, 44, 12);
constexpr QRect TotalPlace(138, 24, 44, 14);
constexpr QRect UnitPlace(186, 10, 20, 28);
constexpr QRect WaitPlace(8, 46, 106, 42);
constexpr QPoint CancelPlace(116, 53);
constexpr int CancelWidth = 92;
constexpr QRgb DarkInk = 0xFF1B1915;

} // namespace

COnlineDialog::COnlineDialog(CMeasureData& measured, QWidget* owner)
    : QDialog(owner, Qt::Dialog | Qt::FramelessWindowHint)
    , m_measured(measured)
{
    setModal(true);
    setWindowTitle(Text(StringId::ButtonOnlineRecording));
    setFixedSize(PictureSize(PictureId::OnlineBack));
    QFont counting = font();
    counting.setPixelSize(FontHeight);
    setFont(counting);

    m_elapsedText = MakeCounter(ElapsedPlace, Qt::AlignRight);
    m_elapsedText->setAccessibleName(Text(StringId::NameElapsed));
    m_totalText = MakeCounter(TotalPlace, Qt::AlignRight);
    m_totalText->setAccessibleName(Text(StringId::NameTotal));
    m_unitText = MakeCounter(UnitPlace, Qt::AlignLeft);
    m_unitText->SetText(Text(StringId::OnlineSeconds));
    m_waitText = new QLabel(Text(StringId::OnlineWaiting), this);
    m_waitText->setGeometry(WaitPlace);
    m_waitText->setWordWrap(true);
    QPalette ink = m_waitText->palette();
    ink.setColor(QPalette::WindowText, QColor::fromRgb(DarkInk));
    m_waitText->setPalette(ink);
    m_waitText->hide();
    m_cancel = new CSkinButton(this);
    m_cancel->SetUpPicture(PictureId::IconCancel);
    m_cancel->SetCaption(Text(StringId::ButtonCancel));
    m_cancel->SetTint(TintOf(App().m_viewBaseColour));
    m_cancel->Move(CancelPlace.x(), CancelPlace.y(), CancelWidth);
    m_cancel->setFocus();
    connect(m_cancel, &CSkinButton::clicked, this, &COnlineDialog::reject);
}

COnlineCounter* COnlineDialog::MakeCounter(const QRect& place, Qt::Alignment side)
{
    auto* const counter = new COnlineCounter(side | Qt::AlignVCenter, this);
    counter->setGeometry(place);
    return counter;
}

void COnlineDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    // Back from the task bar, where it went while the stream runs.
    if (event->spontaneous())
        return;
    const QWidget* const owner = parentWidget();
    const QRect around = owner != nullptr ? QRect(owner->mapToGlobal(QPoint()), owner->size())
                                          : QGuiApplication::primaryScreen()->availableGeometry();
    move(around.center() - rect().center());
    m_startTimer.start(StartDelayMs, this);
}

void COnlineDialog::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_startTimer.timerId()) {
        m_startTimer.stop();
        Start();
    } else if (event->timerId() == m_secondTimer.timerId()) {
        OnSecond();
    } else {
        QDialog::timerEvent(event);
    }
}

void COnlineDialog::Start()
{
    const int seconds = ReadOnlineSeconds(App().Settings());
    m_totalText->SetText(QString::number(seconds));
    m_elapsed = 0;
    m_secondTimer.start(SecondMs, this);
    m_isStarting = true;
    // A stream that could not be started is at its end at once.
    App().Conversation().Run([seconds] {
        App().m_link.StartOnline(static_cast<std::uint32_t>(seconds * OnlineLinesPerSecond));
    });
    m_isStarting = false;
    // The start takes an earlier wish back.
    App().m_link.m_stopRequest = m_isCancelled;
}

void COnlineDialog::OnSecond()
{
    // Waking the recorder takes a while, and before it is over the link tells of the transfer
    // before.
    if (m_isStarting)
        return;
    m_elapsedText->SetText(QString::number(m_elapsed));
    ++m_elapsed;
    CRecorderLink& link = App().m_link;
    const std::uint32_t lines = link.m_onlineLines;
    m_waitText->setVisible(lines == m_seenLines);
    m_seenLines = lines;
    if (!link.m_threadDone)
        return;
    m_secondTimer.stop();
    App().Link().FinishOnline(m_measured);
    accept();
}

void COnlineDialog::reject()
{
    m_isCancelled = true;
    App().m_link.m_stopRequest = true;
}

void COnlineDialog::closeEvent(QCloseEvent* event)
{
    event->ignore();
    reject();
}

void COnlineDialog::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter)
        m_cancel->click();
    else
        QDialog::keyPressEvent(event);
}

void COnlineDialog::paintEvent(QPaintEvent* /*event*/)
{
    QPainter(this).drawImage(0, 0, Picture(PictureId::OnlineBack, devicePixelRatioF()));
}

} // namespace skeldon
