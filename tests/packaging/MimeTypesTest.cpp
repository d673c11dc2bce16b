#include "data/MeasureData.h"
#include "files/DataFile.h"

#include <QDir>
#include <QFile>
#include <QMimeDatabase>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <filesystem>

using namespace skeldon;

/// The types of the program's files as a desktop tells them, beside those it knows anyway.
class CMimeTypesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(m_folder.isValid());
        // One folder for all types, as after an installation.
        const QString mime = m_folder.filePath(QStringLiteral("mime"));
        const QString packages = mime + QStringLiteral("/packages/");
        QVERIFY(QDir().mkpath(packages));
        QVERIFY(QFile::copy(QStringLiteral(KNOWN_TYPES), packages + QStringLiteral("known.xml")));
        QVERIFY(QFile::copy(QStringLiteral(MIME_TYPES), packages + QStringLiteral("ours.xml")));
        qputenv("XDG_DATA_DIRS", QFile::encodeName(m_folder.path()));
        QProcess update;
        update.start(QStringLiteral(UPDATE_MIME_DATABASE), {mime});
        QVERIFY(update.waitForFinished());
        QCOMPARE(update.readAllStandardError(), QByteArray());
        QCOMPARE(update.exitCode(), 0);
    }

    void WhatTheProgramWritesIsADataFile()
    {
        CMeasureData data;
        data.AddRecord(CMeasureRecord(0));
        const QString named = m_folder.filePath(QStringLiteral("crate 7.skd"));
        const QString nameless = m_folder.filePath(QStringLiteral("crate"));
        for (const QString& path : {named, nameless}) {
            QVERIFY(!WriteFile(data, std::filesystem::path(path.toStdString())));
            QCOMPARE(TypeOf(path), QStringLiteral("application/x-skeldon-data"));
        }
    }

    void NamesCountInAnyLetterCase()
    {
        QCOMPARE(TypeOfName("A.SKD"), QStringLiteral("application/x-skeldon-data"));
        QCOMPARE(TypeOfName("a.sks"), QStringLiteral("application/x-skeldon-old-data"));
        QCOMPARE(TypeOfName("a.skp"), QStringLiteral("application/x-skeldon-profile"));
    }

    void OlderDataIsToldByItsRootLine()
    {
        const QByteArray text = "<?xml version=\"1.0\" encoding=\"Shift_JIS\" ?>\r\n"
                                "<ravelin_data version=\"1.0\">\r\n\t<Configuration>\r\n";
        QCOMPARE(TypeOfText(text), QStringLiteral("application/x-skeldon-old-data"));
    }

    void TemplatesAreProfiles()
    {
        const QDir folder(QStringLiteral(TEMPLATES));
        const QStringList names = folder.entryList({QStringLiteral("*.skp")});
        QVERIFY(!names.isEmpty());
        for (const QString& name : names) {
            const QString path = folder.filePath(name);
            QCOMPARE(TypeOf(path), QStringLiteral("application/x-skeldon-profile"));
            QFile file(path);
            QVERIFY(file.open(QIODevice::ReadOnly));
            QCOMPARE(TypeOfText(file.readAll()), QStringLiteral("application/x-skeldon-profile"));
        }
    }

    void OtherFilesKeepTheirTypes()
    {
        QCOMPARE(TypeOfText("<?xml version=\"1.0\"?>\n<data version=\"1.0\"></data>\n"),
                 QStringLiteral("application/xml"));
        QCOMPARE(TypeOfText("[Configuration]\r\nSpeed=3\r\n"), QStringLiteral("text/plain"));
    }

    void AnyTextEditorOpensThem()
    {
        const QMimeDatabase types;
        for (const char* const name :
             {"application/x-skeldon-data", "application/x-skeldon-old-data",
              "application/x-skeldon-profile"}) {
            const QMimeType type = types.mimeTypeForName(QString::fromLatin1(name));
            QVERIFY(type.isValid());
            QVERIFY(type.inherits(QStringLiteral("text/plain")));
            QVERIFY(!type.comment().isEmpty());
        }
    }

private:
    static QString TypeOf(const QString& path)
    {
        return QMimeDatabase().mimeTypeForFile(path).name();
    }
    static QString TypeOfName(const char* name)
    {
        return QMimeDatabase()
            .mimeTypeForFile(QString::fromLatin1(name), QMimeDatabase::MatchExtension)
            .name();
    }
    static QString TypeOfText(const QByteArray& text)
    {
        return QMimeDatabase().mimeTypeForData(text).name();
    }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(CMimeTypesTest)
#include "MimeTypesTest.moc"
