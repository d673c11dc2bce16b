#include "Tool.h"

#include <QColor>
#include <QImage>
#include <QString>

#include <algorithm>
#include <array>
#include <filesystem>
#include <gtest/gtest.h>

namespace skeldon::test {

namespace {

using Arguments = std::vector<std::string>;

const std::array<QColor, 6> Colours{QColor(0xC5, 0x0C, 0xC5), QColor(0x00, 0x00, 0x80),
                                    QColor(0x00, 0x80, 0x00), QColor(0x80, 0x80, 0x00),
                                    QColor(0xC1, 0x02, 0x02), QColor(0x49, 0x8B, 0xF9)};

std::string Line(int second, int x)
{
    const std::string seconds = (second < 10 ? "0" : "") + std::to_string(second);
    return "\t\t<record>\r\n\t\t\t<date_time>2026/03/04 05:06:" + seconds +
           "</date_time>\r\n\t\t\t<msec>000</msec>\r\n\t\t\t<x>" + std::to_string(x) +
           ".000</x>\r\n\t\t\t<y>-2.000</y>\r\n\t\t\t<z>5.000</z>\r\n\t\t\t<t>20.0</t>\r\n"
           "\t\t\t<h>30.0</h>\r\n\t\t\t<flag>0</flag>\r\n\t\t</record>\r\n";
}

/// Forty lines, a second apart; the axis X rises to 10 G in the middle.
std::string DataFileText()
{
    std::string text = "<?xml version=\"1.0\" encoding=\"Shift_JIS\" ?>\r\n"
                       "<ravelin_data version=\"SKELDON 1.0\">\r\n\t<Configuration>\r\n"
                       "\t\t<date_version>1</date_version>\r\n"
                       "\t\t<korva_type>QM70</korva_type>\r\n\t\t<type_num>50</type_num>\r\n"
                       "\t</Configuration>\r\n\t<data>\r\n";
    for (int i = 0; i < 40; ++i)
        text += Line(i, i == 20 ? 10 : 1);
    return text + "\t</data>\r\n</ravelin_data>\r\n";
}

/// Pixels of exactly this colour in the picture's columns from `left` on.
int Pixels(const QImage& picture, const QColor& colour, int left, int right, int top = 0)
{
    int count = 0;
    for (int y = top; y < picture.height(); ++y) {
        for (int x = left; x < right; ++x)
            count += picture.pixelColor(x, y) == colour ? 1 : 0;
    }
    return count;
}

class ChartCommandTest : public ::testing::Test
{
protected:
    ChartCommandTest() { WriteText(m_file, DataFileText()); }

    /// The picture that the command makes with more options; null where it fails.
    QImage Drawn(const Arguments& options = {}, const std::string& file = {})
    {
        const std::string output = m_folder.Path("drawn.png").string();
        Arguments arguments{"chart", file.empty() ? m_file : file, "-o", output};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const Outcome outcome = Tool(arguments);
        EXPECT_EQ(outcome.status, 0) << outcome.err;
        EXPECT_EQ(outcome.out, "");
        EXPECT_NE(outcome.err.find(output), std::string::npos) << outcome.err;
        return QImage(QString::fromStdString(output), "PNG").convertToFormat(QImage::Format_RGB32);
    }

    CTemporaryFolder m_folder;
    std::string m_file = m_folder.Path("crate.skd").string();
};

/// Columns left of the legend, in a picture of the usual width.
constexpr int Plot = 1080;
constexpr int Whole = 1200;
/// From here on the legend has lines and no names.
constexpr int LegendLines = 1120;

TEST_F(ChartCommandTest, APictureHasExactlyTheSizeThatIsAskedFor)
{
    EXPECT_EQ(Drawn().size(), QSize(1200, 700));
    EXPECT_EQ(Drawn({"--size", "320x200"}).size(), QSize(320, 200));
    EXPECT_EQ(Drawn({"--size", "801x333"}).size(), QSize(801, 333));
    EXPECT_EQ(Drawn({"--size", "16384x200"}).size(), QSize(16384, 200));
}

TEST_F(ChartCommandTest, TheLegendNamesAllSeriesInTheirColours)
{
    for (const char* series : {"xyzrth", "x"}) {
        const QImage picture = Drawn({"--series", series});
        // One level line each, all of the same length.
        const int length = Pixels(picture, Colours[0], LegendLines, Whole);
        EXPECT_GT(length, 12);
        for (const QColor& colour : Colours)
            EXPECT_EQ(Pixels(picture, colour, LegendLines, Whole), length) << series;
    }
}

TEST_F(ChartCommandTest, TheTitleHoldsTheNameOfTheFile)
{
    const std::string other = m_folder.Path("a much longer name.skd").string();
    WriteText(other, DataFileText());
    const QImage one = Drawn();
    const QImage two = Drawn({}, other);
    ASSERT_EQ(one.size(), two.size());
    constexpr int TitleRows = 30;
    EXPECT_NE(one.copy(0, 0, Whole, TitleRows), two.copy(0, 0, Whole, TitleRows));
    EXPECT_EQ(one.copy(0, TitleRows, Whole, 600), two.copy(0, TitleRows, Whole, 600));
}

TEST_F(ChartCommandTest, SeriesLeavesOutTheOthers)
{
    const QImage all = Drawn();
    const QImage some = Drawn({"--series", "xh"});
    // Temperature and humidity are also the colours of their labels.
    for (const std::size_t shown : {0U, 5U})
        EXPECT_GT(Pixels(some, Colours[shown], 200, Plot - 150), 300) << shown;
    for (const std::size_t hidden : {1U, 2U, 3U, 4U}) {
        EXPECT_GT(Pixels(all, Colours[hidden], 200, Plot - 150), 300) << hidden;
        EXPECT_EQ(Pixels(some, Colours[hidden], 200, Plot - 150), 0) << hidden;
    }
}

TEST_F(ChartCommandTest, BarsFillWhatLinesOnlyTouch)
{
    const int lines = Pixels(Drawn({"--series", "x"}), Colours[0], 200, Plot - 150);
    const int bars = Pixels(Drawn({"--series", "x", "--bars"}), Colours[0], 200, Plot - 150);
    EXPECT_GT(bars, 5 * lines);
}

TEST_F(ChartCommandTest, TheUnitChangesTheLabelsAlone)
{
    const QImage g = Drawn();
    const QImage gal = Drawn({"--unit", "gal"});
    const QImage ms2 = Drawn({"--unit", "ms2"});
    const auto plotOf = [](const QImage& picture) { return picture.copy(120, 0, Whole, 700); };
    const auto labelsOf = [](const QImage& picture) { return picture.copy(0, 0, 80, 700); };
    EXPECT_EQ(plotOf(g), plotOf(gal));
    EXPECT_EQ(plotOf(g), plotOf(ms2));
    EXPECT_NE(labelsOf(g), labelsOf(gal));
    EXPECT_NE(labelsOf(g), labelsOf(ms2));
    EXPECT_NE(labelsOf(ms2), labelsOf(gal));
}

TEST_F(ChartCommandTest, AWindowOfTimeShowsItsLinesAndTheirScale)
{
    // The peak lies outside, so that the axis is finer and the curve level.
    const QImage part =
        Drawn({"--series", "x", "--from", "2026-03-04 05:06:00", "--to", "2026-03-04 05:06:10"});
    std::vector<int> rows;
    for (int y = 40; y < part.height(); ++y) {
        if (Pixels(part.copy(0, y, Plot, 1), Colours[0], 200, Plot - 150) > 0)
            rows.push_back(y);
    }
    EXPECT_EQ(rows.size(), 1U);
    EXPECT_NE(part, Drawn({"--series", "x"}));
    // A bound alone keeps the other end of the data, and what lies outside is no error.
    EXPECT_EQ(Drawn({"--series", "x", "--to", "2026-03-04 05:06:10"}), part);
    EXPECT_EQ(Drawn({"--series", "x", "--from", "2020-01-01 00:00:00", "--to",
                     "2026-03-04 05:06:10.000"}),
              part);
}

TEST_F(ChartCommandTest, ElapsedChangesTheTimeStripAlone)
{
    const QImage clock = Drawn();
    const QImage elapsed = Drawn({"--elapsed"});
    EXPECT_NE(clock.copy(0, 600, Whole, 100), elapsed.copy(0, 600, Whole, 100));
    EXPECT_EQ(clock.copy(0, 0, Whole, 40), elapsed.copy(0, 0, Whole, 40));
}

TEST_F(ChartCommandTest, NeedsNoScreen)
{
    const Outcome outcome = Tool({"chart", m_file, "-o", m_folder.Path("a.png").string()},
                                 {"DISPLAY=", "WAYLAND_DISPLAY=", "QT_QPA_PLATFORM=xcb"});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
}

TEST_F(ChartCommandTest, WrongUsageIsTwoAndLeavesNoFile)
{
    const std::string output = m_folder.Path("a.png").string();
    for (const Arguments& arguments : {Arguments{"chart", m_file},
                                       {"chart", m_file, "-o", output, "--size", "10x10"},
                                       {"chart", m_file, "-o", output, "--series", "w"}}) {
        const Outcome outcome = Tool(arguments);
        EXPECT_EQ(outcome.status, 2);
        EXPECT_FALSE(outcome.err.empty());
    }
    EXPECT_FALSE(std::filesystem::exists(output));
}

TEST_F(ChartCommandTest, TellsPathAndReasonWhereAFileCanNotBeReadOrWritten)
{
    const std::string nothing = m_folder.Path("nothing.skd").string();
    const std::string nowhere = m_folder.Path("no folder/a.png").string();
    const std::string folder = m_folder.Path("").string();
    for (const auto& [input, output, named] :
         {std::array{nothing, m_folder.Path("a.png").string(), nothing},
          std::array{m_file, nowhere, nowhere}, std::array{m_file, folder, folder},
          std::array{folder, m_folder.Path("a.png").string(), folder}}) {
        const Outcome outcome = Tool({"chart", input, "-o", output});
        EXPECT_EQ(outcome.status, 1) << named;
        EXPECT_EQ(outcome.out, "");
        EXPECT_NE(outcome.err.find(named), std::string::npos) << outcome.err;
        EXPECT_GT(outcome.err.size(), named.size() + 20) << outcome.err;
        EXPECT_EQ(std::ranges::count(outcome.err, '\n'), 1) << outcome.err;
    }
    EXPECT_FALSE(std::filesystem::exists(m_folder.Path("a.png")));
}

TEST_F(ChartCommandTest, ReasonsAreEnglishWhateverTheUsersLanguage)
{
    const std::string nowhere = m_folder.Path("no folder/a.png").string();
    const Outcome outcome =
        Tool({"chart", m_file, "-o", nowhere}, {"LC_ALL=C.UTF-8", "LANGUAGE=de"});
    EXPECT_NE(outcome.err.find("No such file or directory"), std::string::npos) << outcome.err;
}

TEST_F(ChartCommandTest, AFullDiskIsAFailureAndADeviceStaysOne)
{
    const Outcome outcome = Tool({"chart", m_file, "-o", "/dev/full"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.err.find("/dev/full: Failed to write"), std::string::npos) << outcome.err;
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/full"));
}

TEST_F(ChartCommandTest, TheInputIsNeverWrittenTo)
{
    const std::string link = m_folder.Path("link.png").string();
    std::filesystem::create_symlink(m_file, link);
    EXPECT_EQ(Tool({"chart", m_file, "-o", m_file}).status, 1);
    EXPECT_EQ(Tool({"chart", m_file, "-o", link}).status, 1);
    EXPECT_FALSE(Drawn().isNull());
    EXPECT_EQ(ReadText(m_file), DataFileText());
    EXPECT_FALSE(std::filesystem::exists(m_file + ".bak"));
}

TEST_F(ChartCommandTest, AnEarlierPictureSurvivesAFailure)
{
    const std::string output = m_folder.Path("a.png").string();
    WriteText(output, "an earlier picture");
    EXPECT_EQ(Tool({"chart", m_folder.Path("nothing.skd").string(), "-o", output}).status, 1);
    EXPECT_EQ(ReadText(output), "an earlier picture");

    // No file may grow: what was there is kept beside what could be written.
    const std::string command =
        "trap '' XFSZ; ulimit -f 2; exec " SKELDONCTL " chart '" + m_file + "' -o '" + output + "'";
    const Outcome outcome = RunProgram("/bin/sh", {"-c", command});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.err.find(output + ": Failed to write"), std::string::npos) << outcome.err;
    EXPECT_EQ(ReadText(output + ".bak"), "an earlier picture");
}

} // namespace

} // namespace skeldon::test
