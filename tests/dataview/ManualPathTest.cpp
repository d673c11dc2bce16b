#include "dataview/ManualPath.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace skeldon;

class CManualPathTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_root = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_root->path()).mkdir(QStringLiteral("bin")));
    }

    void ManualThatIsNotInstalledHasNoPath()
    {
        QCOMPARE(ManualPath(false, Bin()), QString());
        QCOMPARE(ManualPath(true, Bin()), QString());
    }

    void InstalledManualLiesInTheFolderOfItsLanguage()
    {
        const QString english = Make(Documents + QStringLiteral("en/SKELDON_Light_En.html"));
        QCOMPARE(ManualPath(false, Bin()), english);
        QCOMPARE(ManualPath(true, Bin()), QString());
        const QString japanese = Make(Documents + QStringLiteral("ja/SKELDON_Light_Jp.html"));
        QCOMPARE(ManualPath(false, Bin()), english);
        QCOMPARE(ManualPath(true, Bin()), japanese);
    }

    void PageBesideTheProgramComesFirst()
    {
        (void)Make(Documents + QStringLiteral("en/SKELDON_Light_En.html"));
        const QString beside = Make(QStringLiteral("bin/SKELDON_Light_En.html"));
        QCOMPARE(ManualPath(false, Bin()), beside);
    }

    void FolderOfThatNameIsNoPage()
    {
        QVERIFY(QDir(Bin()).mkdir(QStringLiteral("SKELDON_Light_En.html")));
        QCOMPARE(ManualPath(false, Bin()), QString());
    }

private:
    const QString Documents = QStringLiteral("share/doc/skeldon-light/manual/");

    QString Bin() const { return m_root->filePath(QStringLiteral("bin")); }
    QString Make(const QString& relative) const
    {
        const QString path = m_root->filePath(relative);
        QFile file(path);
        const bool isMade =
            QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly);
        return isMade ? path : QString();
    }

    std::unique_ptr<QTemporaryDir> m_root;
};

QTEST_GUILESS_MAIN(CManualPathTest)
#include "ManualPathTest.moc"
