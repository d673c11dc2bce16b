#include "controls/FittedLabel.h"

#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

using namespace skeldon;

namespace {

constexpr QSize Size(300, 20);
constexpr QChar Dash(0x2014); // no gap between it and the next

QImage PictureOf(QLabel& label)
{
    label.resize(Size);
    return label.grab().toImage();
}

/// Whether there is anything of a text in the last column.
bool IsCutOff(const QImage& picture)
{
    for (int y = 0; y < picture.height(); ++y) {
        if (picture.pixelColor(picture.width() - 1, y) != picture.pixelColor(0, 0))
            return true;
    }
    return false;
}

/// The tool tip over a label, empty if there is none.
QString TipOf(QLabel& label)
{
    QToolTip::hideText();
    const QPoint middle = label.rect().center();
    QHelpEvent help(QEvent::ToolTip, middle, label.mapToGlobal(middle));
    QCoreApplication::sendEvent(&label, &help);
    return QToolTip::text();
}

} // namespace

class FittedLabelTest : public QObject
{
    Q_OBJECT

private slots:
    void ShortTextIsThatOfAnyLabel()
    {
        QLabel usual(QStringLiteral("Ready"));
        CFittedLabel label;
        label.setText(usual.text());
        QCOMPARE(PictureOf(label), PictureOf(usual));
        QCOMPARE(TipOf(label), QString());
    }

    void TooLongTextIsNotCutThroughItsLetters()
    {
        const QString text = QString(200, Dash);
        QLabel usual(text);
        QVERIFY(IsCutOff(PictureOf(usual)));
        CFittedLabel label;
        label.setText(text);
        QVERIFY(!IsCutOff(PictureOf(label)));
        QCOMPARE(label.text(), text);
    }

    void WhatIsShortenedIsWholeInTheToolTip()
    {
        CFittedLabel label;
        label.setText(QStringLiteral("<b>") + QString(200, Dash));
        PictureOf(label);
        QCOMPARE(TipOf(label), Qt::convertFromPlainText(label.text()));
    }

    void SlightlyTooLongTextIsShownWholeInSmallerLetters()
    {
        CFittedLabel label;
        QString text;
        while (QFontMetrics(label.font()).horizontalAdvance(text) <= Size.width())
            text += Dash;
        label.setText(text);
        QVERIFY(!IsCutOff(PictureOf(label)));
        QCOMPARE(TipOf(label), QString());
    }
};

QTEST_MAIN(FittedLabelTest)
#include "FittedLabelTest.moc"
