#include "app/Settings.h"
#include "app/CsvSettings.h"
#include "app/DataFolder.h"
#include "app/OnlineSeconds.h"
#include "resources/Translation.h"
#include "support/LessPower.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <limits>

using namespace skeldon;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(skeldon::CsvUnit)

namespace {

constexpr QFile::Permissions Readable = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
constexpr QFile::Permissions Enterable = QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;

QByteArray Bytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

} // namespace

class CSettingsTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_home;
    std::unique_ptr<QTemporaryDir> m_folder;

    [[nodiscard]] QString File() const { return m_folder->filePath(u"store.ini"_s); }

    void Prepare(const QByteArray& text)
    {
        QFile file(File());
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("the store can not be prepared");
    }

    /// A store with `text` in its file.
    CSettings Given(const QByteArray& text)
    {
        Prepare(text);
        return CSettings(File());
    }

    static int Number(const CSettings& settings, const QString& key)
    {
        return settings.GetInt(SystemSection, key, -77);
    }

private slots:
    void initTestCase()
    {
        qputenv("HOME", m_home.path().toLocal8Bit());
        qputenv("XDG_CONFIG_HOME", m_home.filePath(u"config"_s).toLocal8Bit());
    }

    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    // --- what stands in the store ---

    void SectionsAndKeysStandInTheFileAsNamed()
    {
        CSettings settings(File());
        settings.WriteInt(SystemSection, u"DispUnit"_s, 0);
        settings.Sync();
        QCOMPARE(Bytes(File()), "[System]\nDispUnit=0\n");
    }

    void PointsAndRectanglesAreSingleIntegers()
    {
        CSettings settings(File());
        settings.WriteInt(u"Setup2"_s, u"ShowCmd"_s, 1);
        settings.WriteProfilePoint(u"Display2"_s, u"MinPos"_s, {-1, 20});
        settings.WriteProfileRect(u"Display2"_s, u"NormalPos"_s, {10, -20, 300, 400});
        settings.Sync();
        QCOMPARE(Bytes(File()), "[Display2]\nMinPosX=-1\nMinPosY=20\nNormalPosBottom=380\n"
                                "NormalPosLeft=10\nNormalPosRight=310\nNormalPosTop=-20\n\n"
                                "[Setup2]\nShowCmd=1\n");
    }

    void TheUsersStoreLiesInTheConfigurationFolder()
    {
        CSettings settings;
        settings.WriteText(SystemSection, u"DataPath"_s, u"/data"_s);
        settings.Sync();
        QCOMPARE(Bytes(m_home.filePath(u"config/brennick-works/SKELDON Light.ini"_s)),
                 "[System]\nDataPath=/data\n");
    }

    void TextsComeBackAsTheyWent_data()
    {
        QTest::addColumn<QString>("text");
        const QStringList texts{u"/home/me/KORVA"_s,
                                u"one, two,three"_s,
                                u",;=[]#%\\n\"'"_s,
                                u" blanks around "_s,
                                u"measured\t1\nsecond line"_s,
                                u"/home/me/計測データ/Prüfung é"_s,
                                u"\U0001F4C8 chart"_s,
                                u"@Invalid()"_s,
                                u"@Rect(1 2 3 4)"_s,
                                u"D:\\new\\x41"_s,
                                u"007"_s,
                                u""_s};
        for (const QString& text : texts)
            QTest::newRow(qPrintable(text)) << text;
    }

    void TextsComeBackAsTheyWent()
    {
        QFETCH(const QString, text);
        const QString copy = m_folder->filePath(u"copy.ini"_s);
        CSettings settings(File());
        settings.WriteText(SystemSection, u"Text"_s, text);
        QCOMPARE(settings.GetText(SystemSection, u"Text"_s, u"?"_s), text);
        settings.Sync();
        // Another file, so that nothing that is still in memory can answer.
        QVERIFY(QFile::copy(File(), copy));
        QCOMPARE(CSettings(copy).GetText(SystemSection, u"Text"_s, u"?"_s), text);
    }

    void IntegersComeBackAsTheyWent()
    {
        const QString copy = m_folder->filePath(u"copy.ini"_s);
        CSettings settings(File());
        const QList<int> values{0, 1, -1, std::numeric_limits<int>::min(),
                                std::numeric_limits<int>::max()};
        for (qsizetype i = 0; i < values.size(); ++i)
            settings.WriteInt(u"Any section"_s, u"ClmnWidth%1"_s.arg(i), values[i]);
        settings.Sync();
        QVERIFY(QFile::copy(File(), copy));
        const CSettings again(copy);
        for (qsizetype i = 0; i < values.size(); ++i)
            QCOMPARE(again.GetInt(u"Any section"_s, u"ClmnWidth%1"_s.arg(i), 5), values[i]);
    }

    void RectanglesComeBackAsTheyWent_data()
    {
        QTest::addColumn<QRect>("rect");
        QTest::newRow("usual") << QRect(100, 50, 752, 515);
        QTest::newRow("off every screen") << QRect(-30000, 99999, 800, 600);
        QTest::newRow("empty") << QRect(7, 8, 0, 0);
        QTest::newRow("turned over") << QRect(300, 200, -100, -50);
    }

    void RectanglesComeBackAsTheyWent()
    {
        QFETCH(const QRect, rect);
        CSettings settings(File());
        settings.WriteProfileRect(u"Display2"_s, u"NormalPos"_s, rect);
        QCOMPARE(settings.GetProfileRect(u"Display2"_s, u"NormalPos"_s, {1, 2, 3, 4}), rect);
    }

    void AnotherSectionIsAnotherValue()
    {
        const CSettings settings = Given("[Setup2]\nShowCmd=3\n\n[System]\nUnit=1\n");
        QCOMPARE(settings.GetInt(u"Setup2"_s, u"ShowCmd"_s, 9), 3);
        QCOMPARE(settings.GetInt(u"Display2"_s, u"ShowCmd"_s, 9), 9);
        QCOMPARE(settings.GetInt(u"Setup2"_s, u"Unit"_s, 9), 9);
    }

    void WhatIsNotKnownStaysInTheFile()
    {
        CSettings settings = Given("[Other]\nKey=kept\n\n[System]\nDispUnit=2\nForeign=x\n");
        settings.WriteInt(SystemSection, u"DispUnit"_s, 1);
        settings.Sync();
        QCOMPARE(Bytes(File()), "[Other]\nKey=kept\n\n[System]\nDispUnit=1\nForeign=x\n");
    }

    // --- what others put there ---

    void WhatIsNoNumberGivesTheDefault_data()
    {
        QTest::addColumn<QByteArray>("text");
        for (const char* text :
             {"", "abc", "12abc", "1.5", "0x10", "1,2", "--1", "2147483648", "-2147483649",
              "99999999999999999999", "\"\"", "@Invalid()", "@ByteArray(5x)", "@Rect(1 2 3 4)"})
            QTest::newRow(text) << QByteArray(text);
    }

    void WhatIsNoNumberGivesTheDefault()
    {
        QFETCH(const QByteArray, text);
        const CSettings settings = Given("[System]\nValue=" + text + "\n");
        QCOMPARE(settings.GetInt(SystemSection, u"Value"_s, -77), -77);
        QCOMPARE(settings.GetInt(SystemSection, u"Value"_s, 5), 5);
    }

    void NumbersOfAnyFormAreRead()
    {
        const CSettings settings = Given("[System]\nA=007\nB=+5\nC=\" 6 \"\nD = 8\n"
                                         "E=-2147483648\nF=2147483647\n");
        QCOMPARE(Number(settings, u"A"_s), 7);
        QCOMPARE(Number(settings, u"B"_s), 5);
        QCOMPARE(Number(settings, u"C"_s), 6);
        QCOMPARE(Number(settings, u"D"_s), 8);
        QCOMPARE(Number(settings, u"E"_s), std::numeric_limits<int>::min());
        QCOMPARE(Number(settings, u"F"_s), std::numeric_limits<int>::max());
    }

    void TextWithCommasWrittenByHandStaysOneText()
    {
        const CSettings settings = Given("[System]\nDataPath=/data/a, b, c\n");
        QCOMPARE(settings.GetText(SystemSection, u"DataPath"_s, u"?"_s), u"/data/a, b, c"_s);
    }

    void MissingTextGivesTheDefaultButEmptyTextDoesNot()
    {
        const CSettings settings = Given("[System]\nEmpty=\n");
        QCOMPARE(settings.GetText(SystemSection, u"Missing"_s, u"default"_s), u"default"_s);
        QCOMPARE(settings.GetText(SystemSection, u"Empty"_s, u"default"_s), u""_s);
    }

    void EachEdgeOfARectangleHasItsOwnDefault()
    {
        const CSettings settings = Given("[Display2]\nNormalPosLeft=30\nNormalPosTop=abc\n"
                                         "NormalPosBottom=99999999999\n");
        QCOMPARE(settings.GetProfileRect(u"Display2"_s, u"NormalPos"_s, {10, 20, 300, 400}),
                 QRect(QPoint(30, 20), QPoint(309, 419)));
        QCOMPARE(settings.GetProfilePoint(u"Display2"_s, u"MinPos"_s, {-5, 6}), QPoint(-5, 6));
    }

    void AbsurdRectanglesCanBeCountedWith()
    {
        const CSettings settings = Given("[Display2]\n"
                                         "NormalPosLeft=-2147483648\nNormalPosTop=2147483647\n"
                                         "NormalPosRight=2147483647\nNormalPosBottom=-2147483648\n"
                                         "MinPosX=-2147483648\nMinPosY=2147483647\n");
        const QRect rect = settings.GetProfileRect(u"Display2"_s, u"NormalPos"_s, {});
        QCOMPARE(rect.left(), -rect.top());
        QVERIFY(rect.left() < -100000000);
        QVERIFY(rect.width() > 200000000);
        QCOMPARE(rect.height(), -rect.width());
        QCOMPARE(settings.GetProfilePoint(u"Display2"_s, u"MinPos"_s, {}),
                 QPoint(std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
    }

    void AFileOfRubbishIsAnEmptyStore()
    {
        QByteArray rubbish;
        for (int i = 0; i < 5000; ++i)
            rubbish += static_cast<char>(i * 7919 % 256);
        CSettings settings = Given(rubbish);
        QCOMPARE(settings.GetInt(SystemSection, u"DispUnit"_s, 4), 4);
        settings.WriteInt(SystemSection, u"DispUnit"_s, 1);
        settings.Sync();
        QVERIFY(Bytes(File()).contains("[System]\nDispUnit=1\n"));
    }

    // --- a store that can not be used ---

    void AnUnreadableStoreGivesDefaultsAndIsLeftAlone()
    {
        Prepare("[System]\nDispUnit=2\n");
        QVERIFY(QFile::setPermissions(m_folder->path(), Readable | Enterable));
        QVERIFY(QFile::setPermissions(File(), {}));
        {
            const test::CLessPower less;
            CSettings settings(File());
            QCOMPARE(settings.GetInt(SystemSection, u"DispUnit"_s, 9), 9);
            settings.WriteInt(SystemSection, u"DispUnit"_s, 1);
            settings.Sync();
            QCOMPARE(settings.GetInt(SystemSection, u"DispUnit"_s, 9), 1);
        }
        QVERIFY(QFile::setPermissions(m_folder->path(),
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        QVERIFY(QFile::setPermissions(File(), QFile::ReadOwner));
        QCOMPARE(Bytes(File()), "[System]\nDispUnit=2\n");
    }

    void AReadOnlyStoreIsReadAndLeftAlone()
    {
        Prepare("[System]\nDispUnit=2\n");
        QVERIFY(QFile::setPermissions(File(), Readable));
        QVERIFY(QFile::setPermissions(m_folder->path(), Readable | Enterable));
        {
            const test::CLessPower less;
            CSettings settings(File());
            QCOMPARE(settings.GetInt(SystemSection, u"DispUnit"_s, 9), 2);
            settings.WriteInt(SystemSection, u"DispUnit"_s, 1);
            settings.Sync();
            // What was set holds for as long as the program runs.
            QCOMPARE(settings.GetInt(SystemSection, u"DispUnit"_s, 9), 1);
        }
        QVERIFY(QFile::setPermissions(m_folder->path(),
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        QCOMPARE(Bytes(File()), "[System]\nDispUnit=2\n");
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 QStringList(u"store.ini"_s));
    }

    void AFolderInPlaceOfTheStoreGivesDefaults()
    {
        QVERIFY(QDir().mkpath(File() + u"/inside"_s));
        CSettings settings(File());
        QCOMPARE(settings.GetInt(SystemSection, u"DispUnit"_s, 9), 9);
        QCOMPARE(settings.GetText(SystemSection, u"DataPath"_s, u"x"_s), u"x"_s);
        settings.WriteInt(SystemSection, u"DispUnit"_s, 1);
        settings.Sync();
        QVERIFY(QFileInfo(File() + u"/inside"_s).isDir());
    }

    void AMissingFolderIsMadeForTheStore()
    {
        const QString deep = m_folder->filePath(u"not/there/store.ini"_s);
        CSettings settings(deep);
        QCOMPARE(settings.GetInt(SystemSection, u"DispUnit"_s, 9), 9);
        settings.WriteInt(SystemSection, u"DispUnit"_s, 1);
        settings.Sync();
        QCOMPARE(Bytes(deep), "[System]\nDispUnit=1\n");
    }

    // --- options of CSV files ---

    void CsvOptionsHaveTheirDefaults()
    {
        const CsvOptions options = ReadCsvOptions(CSettings(File()));
        QVERIFY(options.accel && options.temperature && options.humidity && options.dateTime);
        QVERIFY(!options.ravelin);
        QCOMPARE(options.unit, CsvUnit::G);
    }

    void EachCsvKeySwitchesItsOwnOption_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QByteArray>("expected"); // resultant, temperature, humidity, time, Ravelin
        QTest::newRow("resultant") << QByteArray("CsvAccel=0") << QByteArray("01110");
        QTest::newRow("temperature") << QByteArray("CsvTemperature=0") << QByteArray("10110");
        QTest::newRow("humidity") << QByteArray("CsvHumidity=0") << QByteArray("11010");
        QTest::newRow("date and time") << QByteArray("CsvDateTime=0") << QByteArray("11100");
        QTest::newRow("Ravelin") << QByteArray("CsvRavelin=1") << QByteArray("11111");
        QTest::newRow("any number is on")
            << QByteArray("CsvAccel=-3\nCsvRavelin=256") << QByteArray("11111");
        QTest::newRow("words are the default")
            << QByteArray("CsvAccel=no\nCsvDateTime=false\nCsvRavelin=yes") << QByteArray("11110");
        QTest::newRow("another letter case is another key")
            << QByteArray("csvaccel=0") << QByteArray("11110");
    }

    void EachCsvKeySwitchesItsOwnOption()
    {
        QFETCH(const QByteArray, line);
        const CsvOptions options = ReadCsvOptions(Given("[System]\n" + line + "\n"));
        QByteArray found;
        for (const bool on : {options.accel, options.temperature, options.humidity,
                              options.dateTime, options.ravelin})
            found += on ? '1' : '0';
        QTEST(found, "expected");
    }

    void CsvUnitsOutsideTheTableAreG_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<CsvUnit>("unit");
        QTest::newRow("0") << QByteArray("0") << CsvUnit::G;
        QTest::newRow("1") << QByteArray("1") << CsvUnit::MetresPerSecondSquared;
        QTest::newRow("2") << QByteArray("2") << CsvUnit::Gal;
        QTest::newRow("3") << QByteArray("3") << CsvUnit::G;
        QTest::newRow("-1") << QByteArray("-1") << CsvUnit::G;
        QTest::newRow("overflow") << QByteArray("4294967297") << CsvUnit::G;
        QTest::newRow("text") << QByteArray("Gal") << CsvUnit::G;
    }

    void CsvUnitsOutsideTheTableAreG()
    {
        QFETCH(const QByteArray, value);
        QTEST(ReadCsvOptions(Given("[System]\nCsvUnit=" + value + "\n")).unit, "unit");
    }

    void CsvOptionsAreReadAfreshEachTime()
    {
        CSettings settings(File());
        QVERIFY(!ReadCsvOptions(settings).ravelin);
        settings.WriteInt(SystemSection, u"CsvRavelin"_s, 1);
        QVERIFY(ReadCsvOptions(settings).ravelin);
    }

    void CsvNamesFollowTheLanguage()
    {
        InstallTranslation(false);
        const CsvNames english = LocalCsvNames();
        QCOMPARE(english.dateTime + "|" + english.date + "|" + english.time + "|" + english.x +
                     "|" + english.y + "|" + english.z + "|" + english.resultant + "|" +
                     english.temperature + "|" + english.humidity,
                 "Date/Time|Date|Time|X axis|Y axis|Z axis|Rsltnt|Temperature|Humidity");
        InstallTranslation(true);
        const CsvNames japanese = LocalCsvNames();
        InstallTranslation(false);
        QVERIFY(!japanese.resultant.empty());
        QVERIFY(japanese.resultant != english.resultant);
        QVERIFY(japanese.humidity != english.humidity);
    }

    // --- online recording ---

    void OnlineTimeIsHeldToItsLimits_data()
    {
        QTest::addColumn<QByteArray>("store");
        QTest::addColumn<int>("seconds");
        QTest::newRow("absent") << QByteArray() << 30;
        QTest::newRow("no number") << QByteArray("OnlineSecond=long") << 30;
        QTest::newRow("far below") << QByteArray("OnlineSecond=-2000000000") << 1;
        QTest::newRow("0") << QByteArray("OnlineSecond=0") << 1;
        QTest::newRow("1") << QByteArray("OnlineSecond=1") << 1;
        QTest::newRow("2") << QByteArray("OnlineSecond=2") << 2;
        QTest::newRow("4998") << QByteArray("OnlineSecond=4998") << 4998;
        QTest::newRow("4999") << QByteArray("OnlineSecond=4999") << 4999;
        QTest::newRow("5000") << QByteArray("OnlineSecond=5000") << 4999;
        QTest::newRow("10000") << QByteArray("OnlineSecond=10000") << 4999;
    }

    void OnlineTimeIsHeldToItsLimits()
    {
        QFETCH(const QByteArray, store);
        CSettings settings = Given("[System]\n" + store + "\n");
        QTEST(ReadOnlineSeconds(settings), "seconds");
        WriteOnlineSeconds(settings, 77);
        QCOMPARE(settings.GetInt(SystemSection, u"OnlineSecond"_s, 0), 77);
    }

    // --- folders ---

    void TheDataFolderLiesInTheDocumentsFolder()
    {
        QCOMPARE(DefaultDataFolder(), m_home.filePath(u"Documents/KORVA"_s));
        QDir().mkpath(m_home.filePath(u"config"_s));
        QFile chosen(m_home.filePath(u"config/user-dirs.dirs"_s));
        QVERIFY(chosen.open(QIODevice::WriteOnly));
        chosen.write("XDG_DOCUMENTS_DIR=\"$HOME/Dokumente\"\n");
        chosen.close();
        QCOMPARE(DefaultDataFolder(), m_home.filePath(u"Dokumente/KORVA"_s));
        QVERIFY(chosen.remove());
    }

    void OneSeparatorIsCutButNeverARoot()
    {
        QCOMPARE(WithoutSeparator(u"/home/me/計測/"_s), u"/home/me/計測"_s);
        QCOMPARE(WithoutSeparator(u"/home/me"_s), u"/home/me"_s);
        QCOMPARE(WithoutSeparator(u"/"_s), u"/"_s);
        QCOMPARE(WithoutSeparator(u""_s), u""_s);
    }
};

QTEST_GUILESS_MAIN(CSettingsTest)
#include "SettingsTest.moc"
