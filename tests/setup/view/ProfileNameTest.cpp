#include "setup/view/ProfileName.h"

#include <QTest>

using namespace skeldon;

/// Names of files as texts, and back.
class ProfileNameTest : public QObject
{
    Q_OBJECT

private slots:
    void NameComesBackByteForByte_data();
    void NameComesBackByteForByte();
    void DifferentNamesStayDifferent();
    void NameInUtf8ReadsAsItIs();
    void LetterCaseIsNoDifference_data();
    void LetterCaseIsNoDifference();
};

void ProfileNameTest::NameComesBackByteForByte_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("ascii") << QByteArray("crate 7");
    QTest::newRow("utf-8") << QByteArray("Gl\xC3\xA4ser \xE6\xA2\xB1");
    QTest::newRow("beyond the first plane") << QByteArray("\xF0\x9F\x93\xA6 box");
    QTest::newRow("latin") << QByteArray("Gl\xE4ser");
    QTest::newRow("shift_jis") << QByteArray("\x8D\xAB\x95\xEF\x5C");
    QTest::newRow("cut short") << QByteArray("a\xE6\xA2");
    QTest::newRow("bytes behind a pair") << QByteArray("\xF0\x9F\x93\xA6\xE4\xFF");
    QTest::newRow("replacement character") << QByteArray("\xEF\xBF\xBD\xFF");
    QTest::newRow("surrogate in utf-8") << QByteArray("\xED\xB2\x80");
}

void ProfileNameTest::NameComesBackByteForByte()
{
    QFETCH(QByteArray, bytes);
    const std::string name = bytes.toStdString();
    QCOMPARE(NameBytes(NameText(name)), name);
}

void ProfileNameTest::DifferentNamesStayDifferent()
{
    QVERIFY(NameText("a\xE4") != NameText("a\xE5"));
    QVERIFY(NameText("a\xE4") != NameText("a\xC3\xA4"));
    QVERIFY(!IsSameName(NameText("a\xE4"), NameText("a\xC4")));
}

void ProfileNameTest::NameInUtf8ReadsAsItIs()
{
    QCOMPARE(NameText("Gl\xC3\xA4ser"), QStringLiteral("Gläser"));
    QCOMPARE(NameBytes(QStringLiteral("梱包")), std::string("\xE6\xA2\xB1\xE5\x8C\x85"));
}

void ProfileNameTest::LetterCaseIsNoDifference_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<bool>("isSame");
    QTest::newRow("equal") << "crate"
                           << "crate" << true;
    QTest::newRow("other case") << "Crate"
                                << "cRATE" << true;
    QTest::newRow("other case beyond ascii") << "gläser"
                                             << "GLÄSER" << true;
    QTest::newRow("other name") << "crate"
                                << "crates" << false;
    QTest::newRow("blank") << "crate"
                           << "crate " << false;
}

void ProfileNameTest::LetterCaseIsNoDifference()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QTEST(IsSameName(a, b), "isSame");
}

QTEST_APPLESS_MAIN(ProfileNameTest)
#include "ProfileNameTest.moc"
