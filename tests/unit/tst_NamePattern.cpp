#include "NamePattern.h"

#include <QtTest>

using BRELK::expandNamePattern;

class tst_NamePattern : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void expands_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QString>("names");
        const auto row = [](const char* pattern, const char* names) {
            QTest::newRow(pattern) << QString::fromLatin1(pattern) << QString::fromLatin1(names);
        };
        row("Plain", "Plain");
        row("{,Toggle}Button", "Button ToggleButton");
        row("A{b,c}D{,e}", "AbD AcD AbDe AcDe");
        row("{a}", "a");
        row("{a,b}{1,2,3}", "a1 b1 a2 b2 a3 b3");
        // Seven names are too many, and so is what no memory could hold.
        row("{1,2,3,4,5,6,7}", "");
        row("{a,b}{a,b}{a,b}", "");
        row("{a,b}{a,b}{a,b}{a,b}{a,b}{a,b}{a,b}{a,b}{a,b}{a,b}{a,b}{a,b}{a,b}{a,b}{a,b}{a,b}{a,b}"
            "{a,b}{a,b}{a,b}{a,b}{a,b}{a,b}{a,b}{a,b}{a,b}{a,b}{a,b}{a,b}{a,b}{a,b}{a,b}{a,b}{a,b}",
            "");
        for (const char* unbalanced : {"{", "}", "a{b", "a}b", "{a,{b}}", "{a}}", "}{"})
            row(unbalanced, "");
    }

    void expands()
    {
        QFETCH(QString, pattern);
        QFETCH(QString, names);
        QCOMPARE(expandNamePattern(pattern, 6).join(QLatin1Char(' ')), names);
        QCOMPARE(expandNamePattern(pattern, 0), QStringList());
    }
};

QTEST_APPLESS_MAIN(tst_NamePattern)
#include "tst_NamePattern.moc"
