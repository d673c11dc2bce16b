// Draws all controls in all states into pictures: controls_gallery FOLDER [ja]

#include "controls/AboutBox.h"
#include "controls/ColourSample.h"
#include "controls/ConnectionIcon.h"
#include "controls/FloatComboEdit.h"
#include "controls/IntComboEdit.h"
#include "controls/IntervalPanel.h"
#include "controls/NameEdit.h"
#include "controls/ProgressWindow.h"
#include "controls/RecorderPicture.h"
#include "controls/SamplingPanel.h"
#include "controls/SkinButton.h"
#include "controls/SpinButton.h"
#include "resources/StringTable.h"
#include "resources/Translation.h"
#include "support/window/TestApp.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>

namespace skeldon {

namespace {

/// A form on which the controls stand.
class CBoard : public QWidget
{
public:
    explicit CBoard(ColourRef face, QSize size)
    {
        QPalette colours = palette();
        colours.setColor(QPalette::Window, ToColour(face));
        setPalette(colours);
        QFont small = font();
        small.setPixelSize(12);
        setFont(small);
        resize(size);
    }

    void Save(const QString& path)
    {
        show();
        qApp->processEvents();
        const double ratio = devicePixelRatioF();
        QImage image(size() * ratio, QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        render(&image);
        image.save(path);
    }
};

void SetUpButton(CSkinButton* button, int kind, bool isJapanese)
{
    switch (kind) {
    case 0:
        button->SetUpPicture(PictureId::IconOpen);
        button->SetCaption(Text(StringId::ButtonOpen));
        break;
    case 1:
        button->SetUpPicture(PictureId::IconOnline);
        button->SetCaption(Text(StringId::ButtonOnlineRecording));
        break;
    case 2:
        button->SetUpSwatch(PictureId::IconX, !isJapanese);
        button->SetSwatchColour(0xC50CC5);
        break;
    case 3:
        button->SetUpSwatch(PictureId::IconSwatch, false);
        button->SetCaption(Text(StringId::ButtonResultant));
        button->SetSwatchColour(0x008080);
        break;
    case 4:
        button->SetUpSwatch(PictureId::IconSwatch, false);
        button->SetCaption(Text(StringId::ButtonTemperature));
        button->SetSwatchColour(0x0202C1);
        break;
    default:
        button->SetUpPlain();
        button->SetCaption(Text(StringId::ButtonProfile));
        break;
    }
}

/// Columns: normal, disabled, pressed, pressed and disabled, pushed, focus (the last of all).
void ShowButtons(const QString& path, ColourRef face, bool isJapanese)
{
    CBoard board(face, {820, 250});
    const int widths[] = {76, 132, 44, 80, 66, 100};
    QWidget* focused = nullptr;
    for (int kind = 0; kind < 6; ++kind) {
        for (int state = 0; state < 6; ++state) {
            auto* button = new CSkinButton(&board);
            SetUpButton(button, kind, isJapanese);
            button->SetTint(TintOf(face));
            button->Move(8 + state * 136, 8 + kind * 40, widths[kind]);
            button->SetPressed(state == 2 || state == 3);
            button->setEnabled(state != 1 && state != 3);
            button->setDown(state == 4);
            if (state == 5)
                focused = button;
        }
    }
    board.show();
    focused->setFocus();
    board.activateWindow();
    board.Save(path);
}

void ShowPanels(const QString& path, ColourRef face)
{
    CBoard board(face, {650, 420});
    const char* captions[] = {
        "# of Records", "Sampling", "R Interval",   "Threshold",     "ID",
        "Hazard",       "Endless",  "Start Option", "Detect Over T", "Buzzer"};
    for (int row = 0; row < 6; ++row) {
        for (int column = 0; column < 6; ++column) {
            const int index = (row % 2) * 6 + column;
            if (index > 9)
                continue;
            const auto kind = static_cast<LcdPanelKind>(index);
            CLcdPanel* panel = nullptr;
            if (kind == LcdPanelKind::Sampling) {
                auto* sampling = new CSamplingPanel(&board);
                sampling->SetRow(row < 2 ? 2 : 5);
                panel = sampling;
            } else if (kind == LcdPanelKind::Interval) {
                auto* interval = new CIntervalPanel(&board);
                interval->SetRow(row < 2 ? 0 : 13);
                panel = interval;
            } else {
                panel = new CLcdPanel(kind, &board);
                const int values[] = {123456, 0, 0, 105, 99, -5, 1, 90, 0, 1};
                panel->SetValue(row < 2 ? values[index] : values[index] / 2);
            }
            panel->SetCaption(QString::fromLatin1(captions[index]));
            panel->SetTint(TintOf(face));
            panel->SetDigitColour(static_cast<DigitColour>(row / 2));
            if (row == 4 && column % 2 == 1)
                panel->SetBlank();
            panel->move(8 + column * 106, 8 + row * 66);
        }
    }
    board.Save(path);
}

void ShowPictures(const QString& path, ColourRef face)
{
    CBoard board(face, {440, 200});
    for (int state = 0; state < 2; ++state) {
        auto* icon = new CConnectionIcon(&board);
        icon->SetConnected(state == 1);
        icon->move(8 + state * 60, 8);
        auto* recorder = new CRecorderPicture(&board);
        recorder->SetConnected(state == 1);
        recorder->move(160 + state * 110, 8);
    }
    board.Save(path);
}

void ShowStrips(const QString& path)
{
    const int positions[] = {0, 300, 500, 1000};
    QImage all;
    for (int i = 0; i < 4; ++i) {
        CProgressWindow strip(nullptr);
        QFont small = strip.font();
        small.setPixelSize(12);
        strip.setFont(small);
        strip.SetRange(1000);
        strip.SetPosition(positions[i]);
        if (i != 3)
            strip.SetTextColor(i == 1 ? 0x0000FF : 0xFFFFFF, false);
        strip.SetText(Text(StringId::DoNotSeparate));
        strip.show();
        qApp->processEvents();
        const QImage face = strip.grab().toImage();
        if (all.isNull())
            all = QImage(face.width(), face.height() * 4, QImage::Format_RGB32);
        QPainter painter(&all);
        painter.drawImage(QRect(0, face.height() * i, face.width(), face.height()), face);
    }
    all.save(path);
}

/// Rows of the small buttons: at rest, pushed, disabled, with the focus; colour samples; edits.
void ShowSmall(const QString& path, ColourRef face)
{
    CBoard board(face, {420, 120});
    QWidget* focused = nullptr;
    for (int state = 0; state < 4; ++state) {
        for (int kind = 0; kind < 3; ++kind) {
            auto* button = new CSpinButton(static_cast<SpinKind>(kind), &board);
            button->move(8 + kind * 20, 8 + state * 16);
            button->setDown(state == 1);
            button->setEnabled(state != 2);
            if (state == 3 && kind == 0)
                focused = button;
        }
    }
    const ColourRef colours[] = {0xC50CC5, 0x800000, 0x008000};
    for (int i = 0; i < 3; ++i) {
        auto* sample = new CColourSample(&board);
        sample->SetColour(colours[i]);
        sample->setGeometry(80, 8 + i * 26, 60, 20);
        sample->setEnabled(i != 2);
    }
    auto* number = new CIntEdit(&board);
    number->SetRange(1, 99);
    number->SetValue(42);
    number->setGeometry(160, 8, 80, 22);
    auto* combo = new CFloatComboEdit(&board);
    combo->addItems({QStringLiteral("1.0"), QStringLiteral("2.5")});
    combo->SetRange(0, 50, 1);
    combo->SetValue(12.5);
    combo->setGeometry(160, 36, 80, 24);
    auto* name = new CNameEdit(&board);
    name->SetName(QStringLiteral("Transport 1"));
    name->setGeometry(160, 66, 212, 22);
    board.show();
    board.activateWindow();
    focused->setFocus();
    board.Save(path);
}

void ShowAbout(const QString& path)
{
    CAboutBox box(nullptr, [](int) { return 0; });
    box.show();
    while (box.Fade().Present() != CAboutFade::Phase::Shown)
        qApp->processEvents();
    box.grab().save(path);
}

} // namespace

} // namespace skeldon

int main(int argc, char** argv)
{
    using namespace skeldon;
    QApplication application(argc, argv);
    const QStringList words = QApplication::arguments();
    if (words.size() < 2)
        return 2;
    const bool isJapanese = words.size() > 2;
    const test::CTestApp app(isJapanese ? QStringLiteral("Japanese") : QStringLiteral("English"));
    InstallTranslation(isJapanese);
    const QString folder = words[1];
    ShowButtons(folder + QStringLiteral("/buttons-light.png"), 0xD8E9EC, isJapanese);
    ShowButtons(folder + QStringLiteral("/buttons-dark.png"), 0xC8D0D4, isJapanese);
    ShowPanels(folder + QStringLiteral("/panels-light.png"), 0xD8E9EC);
    ShowPanels(folder + QStringLiteral("/panels-dark.png"), 0xC8D0D4);
    ShowPictures(folder + QStringLiteral("/pictures.png"), 0xD8E9EC);
    ShowSmall(folder + QStringLiteral("/small.png"), 0xD8E9EC);
    ShowAbout(folder + QStringLiteral("/about.png"));
    ShowStrips(folder + QStringLiteral("/strips.png"));
    return 0;
}
