#include "skeldonctl/picture/ChartCommand.h"

#include "chart/view/ChartPicture.h"
#include "files/platform/SafeFile.h"
#include "resources/StringTable.h"
#include "skeldonctl/FileCommands.h"
#include "skeldonctl/Messages.h"
#include "skeldonctl/OutputFiles.h"

#include <QBuffer>
#include <QByteArray>
#include <QFontMetrics>
#include <QGuiApplication>

#include <algorithm>
#include <clocale>
#include <string_view>
#include <system_error>

namespace skeldon {

namespace {

constexpr int LetterSize = 11;

/// The series that letters stand for.
SeriesFlags SeriesOf(std::string_view letters)
{
    constexpr std::string_view Letters = "xyzrth";
    SeriesFlags shown{};
    for (std::size_t i = 0; i < SeriesCount; ++i)
        shown[i] = letters.find(Letters[i]) != std::string_view::npos;
    return shown;
}

void SetUp(CChartModel& model, const ChartCommand& command, const CMeasureData& data,
           const QFontMetrics& metrics)
{
    ChartMetrics sizes;
    sizes.labelWidth = metrics.horizontalAdvance(QStringLiteral("-99.9"));
    sizes.labelHeight = metrics.height();
    sizes.gaugeWidth = 0;
    const QSize chart = ChartInPicture({command.width, command.height}, sizes.labelHeight);
    sizes.clientWidth = chart.width();
    sizes.clientHeight = chart.height();
    model.m_seriesShown = SeriesOf(command.series);
    model.m_barChart = command.bars;
    model.m_elapsedAxis = command.elapsed;
    model.m_unit = static_cast<DisplayUnit>(command.unit);
    model.Create(data, [&metrics](const std::string& text) {
        return metrics.horizontalAdvance(QString::fromStdString(text));
    });
    model.Resize(sizes);
    model.ResetData();
    if (!command.from && !command.to)
        return;
    model.ShowWindow({command.from.value_or(model.m_window.m_dataStart),
                      command.to.value_or(model.m_window.m_dataEnd)});
    model.DisplayInCenter();
}

/// Messages of the toolkit are none of the user's concern.
void Silence(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& /*text*/) {}

std::error_code Write(const std::filesystem::path& path, const QByteArray& bytes)
{
    CSafeFile file;
    if (const std::error_code error = file.Open(path))
        return error;
    if (const std::error_code error =
            file.Write({bytes.constData(), static_cast<std::size_t>(bytes.size())}))
        return error;
    return file.Commit();
}

ExitStatus Save(const QImage& picture, const std::filesystem::path& path)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (picture.isNull() || !buffer.open(QIODevice::WriteOnly) || !picture.save(&buffer, "PNG"))
        return FailOn(path, "not enough memory for the picture");
    return TellOutcome(path, Write(path, bytes));
}

} // namespace

ExitStatus Run(const ChartCommand& command)
{
    if (const ExitStatus checked = CheckInputStays(command.file, command.output);
        checked != ExitStatus::Done)
        return checked;
    CMeasureData data;
    if (const ExitStatus loaded = LoadDataFile(command.file, data); loaded != ExitStatus::Done)
        return loaded;
    qInstallMessageHandler(Silence);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int count = 1;
    char name[] = "skeldonctl";
    char* arguments[] = {name, nullptr};
    const QGuiApplication application(count, arguments);
    // The toolkit takes over the user's language, in which the system would then give its reasons.
    std::setlocale(LC_ALL, "C");
    QFont font = QGuiApplication::font();
    font.setPixelSize(LetterSize);
    const QFontMetrics metrics(font);
    CChartModel model;
    SetUp(model, command, data, metrics);
    const QImage picture = ChartPicture(model, ChartColours(), font,
                                        ChartTitle(Text(StringId::ChartTitleDefault), data), 1.0);
    return Save(picture, command.output);
}

} // namespace skeldon
