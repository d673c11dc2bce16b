#include "resources/FileFilters.h"
#include "resources/StringTable.h"

#include <QTest>

using namespace skeldon;

class CFileFiltersTest : public QObject
{
    Q_OBJECT

private slots:
    void EachPairIsOneFilter()
    {
        QCOMPARE(FileFilters(Text(StringId::FilterOpenData)),
                 QStringList({QStringLiteral("SKELDON file(skd,sks) (*.skd *.sks)"),
                              QStringLiteral("All (*)")}));
        QCOMPARE(FileFilters(Text(StringId::FilterCsv)),
                 QStringList({QStringLiteral("Comma separated text(csv) (*.csv)"),
                              QStringLiteral("All (*)")}));
    }

    void WhatIsNotWholeIsDropped()
    {
        QCOMPARE(FileFilters(QString()), QStringList());
        QCOMPARE(FileFilters(QStringLiteral("Name")), QStringList());
        QCOMPARE(FileFilters(QStringLiteral("Name||All|*.*|")),
                 QStringList(QStringLiteral("All (*)")));
        QCOMPARE(FileFilters(QStringLiteral("A|*.a|B")), QStringList(QStringLiteral("A (*.a)")));
    }
};

QTEST_GUILESS_MAIN(CFileFiltersTest)
#include "FileFiltersTest.moc"
