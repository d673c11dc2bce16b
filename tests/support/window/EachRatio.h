#pragma once

#include <QApplication>
#include <QTest>

namespace skeldon::test {

/// The body of `main` of a test that is made for a pixel ratio: runs it on screens of several, one
/// after the other. Gives how many checks failed.
template <class RatioTest>
int RunAtEachRatio(int argc, char** argv)
{
    int failed = 0;
    for (const double ratio : {1.0, 1.5, 2.0}) {
        qputenv("QT_SCALE_FACTOR", QByteArray::number(ratio));
        const QApplication application(argc, argv);
        RatioTest test(ratio);
        failed += QTest::qExec(&test, argc, argv);
    }
    return failed;
}

} // namespace skeldon::test
