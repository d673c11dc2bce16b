#include "SoakFiles.h"

#include "files/DataFile.h"
#include "files/StringOutput.h"
#include "support/recorder/VirtualRecorder.h"

#include <QFile>

#include <algorithm>
#include <stdexcept>

namespace skeldon::soak {

namespace {

CMeasureData AnyLines(int count, CRandom& random)
{
    constexpr CalendarSeconds Begin = 1'740'000'000;
    CMeasureData data;
    data.m_modelName = "QM-70";
    data.m_hostNumber = random.Below(100);
    data.m_hasTemperature = true;
    data.m_hasHumidity = random.OneIn(2);
    std::int64_t ms = Begin * 1000;
    CMeasureRecord record(Begin);
    for (int i = 0; i < count; ++i) {
        const auto axis = [&] { return 0.1 * random.Between(-700, 700); };
        const double x = axis();
        const double y = axis();
        const double z = axis();
        record.SetValues(ms / 1000, static_cast<std::uint32_t>(ms % 1000), x, y, z,
                         0.1 * random.Between(-200, 600), random.Below(101));
        data.AddRecord(record);
        ms += random.OneIn(50) ? 0 : 10 * random.Between(1, 100);
        if (random.OneIn(count * 3 + 1))
            ms -= 3'600'000; // a break of the time line
    }
    return data;
}

std::string TextOf(const CMeasureData& data)
{
    constexpr CalendarSeconds SaveTime = 0;
    test::CStringOutput text;
    if (FormatDataFile(data, SaveTime, text))
        throw std::runtime_error("a text could not be made");
    return text.m_text;
}

/// Where two texts part, with some of both.
std::string Parting(const std::string& one, const std::string& other)
{
    constexpr std::size_t Shown = 80;
    const auto place =
        static_cast<std::size_t>(std::ranges::mismatch(one, other).in1 - one.begin());
    const std::size_t from = place > Shown ? place - Shown : 0;
    return "differs at byte " + std::to_string(place) + ": held \"" + one.substr(from, 2 * Shown) +
           "\", read \"" + other.substr(from, 2 * Shown) + "\"";
}

} // namespace

CSoakFiles::CSoakFiles(QString folder, int lines, CRandom& random)
    : m_folder(std::move(folder))
{
    const auto write = [&](const char* name, int count) {
        if (WriteFile(AnyLines(count, random), Path(name).toStdString()))
            throw std::runtime_error("a data file could not be written");
    };
    write("large.skd", lines);
    write("some.skd", 1000);
    write("five.skd", 5);
    write("one.skd", 1);
    write("none.skd", 0);
    QFile broken(Path("broken.skd"));
    if (!broken.open(QIODevice::WriteOnly) || broken.write("no data file") < 0)
        throw std::runtime_error("a file could not be written");
}

std::vector<QString> CSoakFiles::ToOpen() const
{
    std::vector<QString> paths{Large(), Large()};
    for (const char* const name : {"some.skd", "five.skd", "one.skd", "none.skd", "broken.skd",
                                   "missing.skd", "a.skd", "b.skd"})
        paths.push_back(Path(name));
    return paths;
}

std::vector<QString> CSoakFiles::ToSave() const
{
    return {Path("a.skd"), Path("b.skd"),         Path("a.csv"),
            Path("c"),     Path("missing/a.skd"), Path("page.pdf")};
}

QString CSoakFiles::Path(const char* name) const
{
    return m_folder + u'/' + QString::fromLatin1(name);
}

std::string DifferenceTo(const CMeasureData& held, const QString& path)
{
    CMeasureData read;
    if (const DataFileResult result = ReadFile(read, path.toStdString()); !result)
        return DescribeDataFileError(result);
    // A hazard level of 0 has no element, and without one it is unknown.
    if (held.m_hazard == 0 && read.m_hazard == CMeasureData::Unknown)
        read.m_hazard = 0;
    // These types are written and yet not taken back.
    if (held.m_typeNumber == 1 || held.m_typeNumber == 20)
        read.m_typeNumber = held.m_typeNumber;
    const std::string heldText = TextOf(held);
    // A file keeps its flags as they were before it was opened; opening it analyses the lines.
    const bool isSame = TextOf(read) == heldText;
    if (!isSame)
        read.Analyse({.now = test::CVirtualClock::Start});
    return isSame || TextOf(read) == heldText ? std::string() : Parting(heldText, TextOf(read));
}

} // namespace skeldon::soak
