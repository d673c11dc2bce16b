#include "resources/Translation.h"
#include "resources/StringTable.h"

#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

#include <utility>

using namespace skeldon;

namespace {

struct Pair
{
    QString name;
    QString english;
    QString japanese;
};

QString English(StringId id)
{
    return QString::fromUtf8(FindEntry(id)->text.english);
}

/// All texts in both languages, as the program shows them.
QList<Pair> AllPairs()
{
    QList<Pair> pairs;
    for (int i = 0; i < static_cast<int>(StringId::Count); ++i) {
        const auto id = static_cast<StringId>(i);
        InstallTranslation(false);
        const auto english = Text(id);
        InstallTranslation(true);
        pairs.push_back({QString::fromUtf8(FindEntry(id)->text.name), english, Text(id)});
    }
    return pairs;
}

QStringList Matches(const QString& text, const QString& expression)
{
    QStringList found;
    auto match = QRegularExpression(expression).globalMatch(text);
    while (match.hasNext())
        found += match.next().captured();
    return found;
}

QStringList Placeholders(const QString& text)
{
    return Matches(text, QStringLiteral("%[-+ #0]*\\d*(\\.\\d+)?[a-zA-Z%]"));
}

QString Mnemonic(const QString& text)
{
    const auto found = Matches(text, QStringLiteral("&[^&]"));
    return found.isEmpty() ? QString() : found.join(QString()).toUpper();
}

struct Message
{
    QString source;
    QString name;
    QString state;
    bool translated = false;
};

/// The text of the present element, with the bytes that stand as elements in it.
QString ReadText(QXmlStreamReader& xml)
{
    QString text;
    while (!xml.atEnd()) {
        const auto token = xml.readNext();
        if (token == QXmlStreamReader::EndElement)
            break;
        if (token == QXmlStreamReader::Characters)
            text += xml.text();
        if (token == QXmlStreamReader::StartElement) {
            const auto value = xml.attributes().value(QStringLiteral("value"));
            text += QChar(value.sliced(1).toUShort(nullptr, 16));
            xml.skipCurrentElement();
        }
    }
    return text;
}

/// The messages of the translator's file.
QList<Message> FileMessages()
{
    QFile file(QStringLiteral(TRANSLATION_FILE));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QXmlStreamReader xml(&file);
    QList<Message> messages;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QStringLiteral("message"))
            messages.push_back({});
        else if (xml.name() == QStringLiteral("source"))
            messages.back().source = ReadText(xml);
        else if (xml.name() == QStringLiteral("comment"))
            messages.back().name = ReadText(xml);
        else if (xml.name() == QStringLiteral("translation")) {
            messages.back().state = xml.attributes().value(QStringLiteral("type")).toString();
            messages.back().translated = !ReadText(xml).isEmpty();
        }
    }
    return xml.hasError() ? QList<Message>() : messages;
}

} // namespace

class CTranslationTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { InstallTranslation(false); }

    void EveryIdentifierHasItsRow()
    {
        int rows = 0;
        for (const auto part : StringTableParts()) {
            for (const auto& entry : part)
                QCOMPARE(static_cast<int>(entry.id), rows++);
        }
        QCOMPARE(rows, static_cast<int>(StringId::Count));
        QSet<QString> names;
        for (int i = 0; i < rows; ++i) {
            const auto* entry = FindEntry(static_cast<StringId>(i));
            QVERIFY(entry != nullptr);
            QCOMPARE(static_cast<int>(entry->id), i);
            QVERIFY(*entry->text.english != '\0');
            names += QString::fromUtf8(entry->text.name);
        }
        QCOMPARE(names.size(), rows);
    }

    void AValueThatIsNoIdentifierHasNoText()
    {
        QCOMPARE(FindEntry(StringId::Count), nullptr);
        QCOMPARE(FindEntry(static_cast<StringId>(-1)), nullptr);
        QCOMPARE(Text(StringId::Count), QString());
    }

    void TheFileHoldsEachTextOnceAndNoOther()
    {
        const auto messages = FileMessages();
        QCOMPARE(messages.size(), static_cast<int>(StringId::Count));
        QHash<QString, QString> sources;
        for (const auto& message : messages) {
            QVERIFY2(message.state.isEmpty(), qPrintable(message.name));
            QVERIFY2(message.translated, qPrintable(message.name));
            sources.insert(message.name, message.source);
        }
        for (int i = 0; i < static_cast<int>(StringId::Count); ++i) {
            const auto* entry = FindEntry(static_cast<StringId>(i));
            const auto name = QString::fromUtf8(entry->text.name);
            QVERIFY2(sources.contains(name), entry->text.name);
            QCOMPARE(sources.value(name), QString::fromUtf8(entry->text.english));
        }
    }

    void EveryTextIsTranslated()
    {
        QVERIFY(InstallTranslation(true));
        for (int i = 0; i < static_cast<int>(StringId::Count); ++i) {
            const auto* entry = FindEntry(static_cast<StringId>(i));
            // A text that the translator does not know comes back in English; those that read
            // alike in both languages are short and hold no sentence.
            const auto text = Text(entry->id);
            const bool alike = text == QString::fromUtf8(entry->text.english);
            QVERIFY2(!alike || !text.contains(QRegularExpression(QStringLiteral("[a-z]{4}"))) ||
                         QStringList({QStringLiteral("AppName"), QStringLiteral("AboutVersion"),
                                      QStringLiteral("AboutCopyright"),
                                      QStringLiteral("DisplayWindowsXp")})
                             .contains(QString::fromUtf8(entry->text.name)),
                     entry->text.name);
        }
    }

    void PlaceholdersAgree()
    {
        // These take the lower bound before the upper in Japanese.
        const QStringList reordered{QStringLiteral("IntRange"), QStringLiteral("IntRangeNamed"),
                                    QStringLiteral("FloatRange"),
                                    QStringLiteral("FloatRangeNamed")};
        for (const auto& pair : AllPairs()) {
            auto english = Placeholders(pair.english);
            auto japanese = Placeholders(pair.japanese);
            if (reordered.contains(pair.name)) {
                english.sort();
                japanese.sort();
            }
            QVERIFY2(english == japanese, qPrintable(pair.name));
        }
    }

    void AcceleratorsAgree()
    {
        for (const auto& pair : AllPairs())
            QVERIFY2(pair.english.split(u'\t').sliced(1) == pair.japanese.split(u'\t').sliced(1),
                     qPrintable(pair.name));
    }

    void MnemonicsAgreeAndStandInBrackets()
    {
        int seen = 0;
        for (const auto& pair : AllPairs()) {
            const auto mnemonic = Mnemonic(pair.english);
            QVERIFY2(Mnemonic(pair.japanese) == mnemonic, qPrintable(pair.name));
            if (mnemonic.isEmpty())
                continue;
            QVERIFY2(pair.japanese.contains(QStringLiteral("(%1)").arg(mnemonic)),
                     qPrintable(pair.name));
            ++seen;
        }
        QVERIFY(seen > 100);
    }

    void FileFiltersKeepTheirPatterns()
    {
        for (const auto& pair : AllPairs()) {
            const auto english = pair.english.split(u'|');
            const auto japanese = pair.japanese.split(u'|');
            if (!pair.name.startsWith(QStringLiteral("Filter")))
                continue;
            QCOMPARE(japanese.size(), english.size());
            for (qsizetype i = 1; i < english.size(); i += 2)
                QCOMPARE(japanese[i], english[i]);
        }
    }

    void OddEnglishTextsStandAsTheyAre()
    {
        QCOMPARE(Text(StringId::SummaryHazard), QStringLiteral("\u0081@\u0081@Hazard:%.1fG"));
        QCOMPARE(Text(StringId::SummaryEndlessOn), QStringLiteral("\u0081@\u0081@Endless:on"));
        QCOMPARE(Text(StringId::SummaryThreshold), QStringLiteral("    Threshold:%.1fG"));
        QCOMPARE(Text(StringId::ProfileNameCharacters),
                 QStringLiteral(R"(Profile name cannot contain  \"*./:<>?\|)"));
        QCOMPARE(Text(StringId::AskSaveData),
                 QStringLiteral("The data is not saved. \nDo you want to save it?"));
        QCOMPARE(Text(StringId::ChartBrowse), QStringLiteral("Bowse..."));
        QCOMPARE(Text(StringId::ChartTemperature), QStringLiteral("Temperature(C) "));
        QVERIFY(Text(StringId::WizardStartOptionText).contains(QStringLiteral("\r\n3 Magnet")));
        QVERIFY(
            Text(StringId::WizardStartOptionText).contains(QStringLiteral("\r\n5\u301C90: Set")));
        QVERIFY(Text(StringId::WizardSamplingText).contains(QStringLiteral("every  specified")));
        QVERIFY(Text(StringId::WizardDetectOverText).contains(QStringLiteral("\"SHOCKED\"")));
    }

    void TextsThatNothingShowsStandAsGiven()
    {
        const QList<std::pair<StringId, const char*>> texts{
            {StringId::AskAdjustTemperature, "Start adjusting temperature.\nAre you sure?"},
            {StringId::CouldNotAdjustTemperature, "Could not start adjusting temperature."},
            {StringId::FailedToAdjustHostNumber, "Failed to adjust host number."},
            {StringId::RemoveCable, "Remove KORVA cable."},
            {StringId::DatesCorrected, "Dates have been corrected for the new year."},
            {StringId::PrintRangeTemplate, "Pring range is 1 to 9999 lines."},
            {StringId::PrintAdvancedChart, "Advanced Settings for Graph printing"},
            {StringId::PrintAdvancedList, "Advanced Settings for List printing"},
            {StringId::PrintMargins, "Mar&gins 0-%d"},
            {StringId::PrintZoom, "&Zoom %d-%d"},
            {StringId::PromptStartReal, "Start measuring in real mode"},
            {StringId::PromptStopReal, "Stop measuring in real mode"},
            {StringId::PromptConfigureReal, "Configure the real mode setup"},
            {StringId::CaptionReal, "Real"},
            {StringId::CaptionStart, "Start"},
            {StringId::CaptionReplay, "Replay"},
            {StringId::AskStopReal, "Do you want to stop real mode?"},
            {StringId::AskEndReal, "Are you sure to end real mode?"},
            {StringId::StoppingReal, "Can not get the measured data. Stopping real mode."},
            {StringId::StopMeasuring, "Failed to get the data. Stop measuring."},
            {StringId::PromptDeleteMarked, "Delete all marked lines"},
            {StringId::PromptDeleteUnmarked, "Delete all unmarked lines"},
            {StringId::PromptAddMarkAtClick, "Add mark to the clicked position"},
            {StringId::PromptRemoveMarkAtClick, "Remove mark from the clicked position"},
            {StringId::PromptPreviousMark, "Move to the previous mark"},
            {StringId::PromptNextMark, "Move to the next mark"},
            {StringId::PromptExtract, "Extract matched condition from measured data"}};
        for (const auto& [id, text] : texts)
            QCOMPARE(Text(id), QString::fromLatin1(text));
    }

    void GivenJapaneseTextsStandAsTheyAre()
    {
        QVERIFY(InstallTranslation(true));
        QCOMPARE(Text(StringId::IntRange), QStringLiteral("%d から %d の値を入力してください"));
        QCOMPARE(Text(StringId::IntRangeNamed),
                 QStringLiteral("%sには %d から %d の値を入力してください"));
        QCOMPARE(Text(StringId::FloatRange), QStringLiteral("%s から %s の値を入力してください。"));
        QCOMPARE(Text(StringId::FloatRangeNamed),
                 QStringLiteral("%sには %s から %s の値を入力してください。"));
        QVERIFY(Text(StringId::SummaryHazard).startsWith(QStringLiteral("\u3000\u3000")));
        QVERIFY(Text(StringId::SummaryEndlessOn).startsWith(QStringLiteral("\u3000\u3000")));
        QVERIFY(Text(StringId::SummaryThreshold).startsWith(QStringLiteral("    ")));
        QVERIFY(Text(StringId::WizardStartOptionText).contains(QStringLiteral("\r\n5\u301C90")));
    }

    void TheLanguageCanBeChangedBackAndForth()
    {
        QCOMPARE(Text(StringId::Ready), English(StringId::Ready));
        QVERIFY(InstallTranslation(true));
        QVERIFY(Text(StringId::Ready) != English(StringId::Ready));
        QVERIFY(InstallTranslation(true));
        QVERIFY(InstallTranslation(false));
        QCOMPARE(Text(StringId::Ready), English(StringId::Ready));
    }
};

QTEST_GUILESS_MAIN(CTranslationTest)
#include "TranslationTest.moc"
