#include "ThemeResources.h"

#include <QRegularExpression>
#include <QtTest>

using namespace BRELK;

class tst_ThemeResources : public QObject
{
    Q_OBJECT

private:
    static void setTheme(const QVariantMap& colors, const QVariantMap& brushes = {})
    {
        qApp->setProperty("theme_var", QVariantMap{{QStringLiteral("colors"), colors},
                                                   {QStringLiteral("brushes"), brushes},
                                                   {QStringLiteral("opacities"),
                                                    QVariantMap{{QStringLiteral("Half"), 0.5}}},
                                                   {QStringLiteral("cornerRadius"),
                                                    QVariantMap{{QStringLiteral("BaseSize"), 4}}}});
    }

private Q_SLOTS:

    void init()
    {
        setTheme({{QStringLiteral("MainColor"), QColor(Qt::red)},
                  {QStringLiteral("BackgroundColor"), QColor(Qt::red)},
                  {QStringLiteral("VeiledColor"), QColor(255, 0, 0, 128)},
                  {QStringLiteral("AtColor"), QStringLiteral("@colors/MainColor@")}},
                 {{QStringLiteral("FlatBrush"), QBrush(Qt::blue)},
                  {QStringLiteral("WrongBrush"), QColor(Qt::green)}});
    }

    void pathLookup()
    {
        const auto lookup = [](const char* path) {
            return ThemeResources::getThemeVar(QString::fromLatin1(path), 7);
        };
        QCOMPARE(lookup("colors/MainColor"), QVariant(QColor(Qt::red)));
        QCOMPARE(lookup("colors/MainColor/more/yet"), QVariant(QColor(Qt::red)));
        QCOMPARE(lookup("colors").toMap().size(), 4);
        for (const char* path : {"shapes/Round", "colors/maincolor", "", "/colors/MainColor"})
            QCOMPARE(lookup(path), QVariant(7));
    }

    void typedLookupsKeepTheFirstTheme()
    {
        QCOMPARE(ThemeResources::getColor(QStringLiteral("MainColor")), QColor(Qt::red));
        QCOMPARE(ThemeResources::getBrush(QStringLiteral("FlatBrush")), QBrush(Qt::blue));
        QCOMPARE(ThemeResources::getBrush(QStringLiteral("WrongBrush")), QBrush());
        QCOMPARE(ThemeResources::getOpacity(QStringLiteral("Half")), 0.5);

        setTheme({{QStringLiteral("MainColor"), QColor(Qt::blue)}});
        QCOMPARE(ThemeResources::getColor(QStringLiteral("MainColor")), QColor(Qt::red));
        QCOMPARE(
            ThemeResources::getThemeVar(QStringLiteral("colors/MainColor"), {}).value<QColor>(),
            QColor(Qt::blue));
        QCOMPARE(ThemeResources::getColorKey(Qt::blue), QStringLiteral("MainColor"));
    }

    void reverseLookupPrefersForegroundAndMain()
    {
        QCOMPARE(ThemeResources::getColorKey(Qt::red), QStringLiteral("MainColor"));
        QCOMPARE(ThemeResources::getColorKey(Qt::yellow), QString());
        QCOMPARE(ThemeResources::getBrushKey(QBrush(Qt::blue)), QStringLiteral("FlatBrush"));

        QVariantMap map{{QStringLiteral("MainA"), 1},
                        {QStringLiteral("ForegroundB"), 1},
                        {QStringLiteral("A"), 1}};
        QCOMPARE(ThemeResources::getColorOrBrushKey(1, map), QStringLiteral("ForegroundB"));
        map = {{QStringLiteral("StatusDanger"), 1}, {QStringLiteral("Background"), 1}};
        QCOMPARE(ThemeResources::getColorOrBrushKey(1, map), QStringLiteral("Background"));
    }

    void styleSheetPlaceholders()
    {
        const auto expanded = [](const char* sheet) {
            return ThemeResources::customizeStyleSheet(QString::fromLatin1(sheet)).toLatin1();
        };
        QCOMPARE(expanded("a: @colors/MainColor@;"), "a: #ff0000;");
        QCOMPARE(expanded("a: @colors/VeiledColor@;"), "a: #80ff0000;");
        QCOMPARE(expanded("@cornerRadius/BaseSize@px @opacities/Half@"), "4px 0.5");
        QCOMPARE(expanded("[@brushes/FlatBrush@]"), "[]");
        QCOMPARE(expanded("@colors/MainColor@@colors/MainColor@"), "#ff0000#ff0000");
        // A shared sign is not used twice, and inserted text is not expanded.
        QCOMPARE(expanded("@colors/None@colors/MainColor@"), "@colors/None@colors/MainColor@");
        QCOMPARE(expanded("@colors/AtColor@"), "@colors/MainColor@");
        QCOMPARE(expanded("@@ @a-b@ me@here"), "@@ @a-b@ me@here");
    }
};

QTEST_MAIN(tst_ThemeResources)
#include "tst_ThemeResources.moc"
