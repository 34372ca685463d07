#include "BaseTheme.h"
#include "MessageRecorder.h"
#include "TemporaryRepository.h"
#include "ThemeColorHelper.h"
#include "ThemeResources.h"

#include <QtTest>

using namespace BRELK;

/// What the library answers while there is no application object, and how it goes on afterwards.
class tst_NoApplication : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void lookupsAnswerWithDefaults()
    {
        const QString name = QStringLiteral("Main");
        QVERIFY(!QCoreApplication::instance());
        QVERIFY(!ThemeResources::getColor(name).isValid());
        QCOMPARE(ThemeResources::getBrush(name), QBrush());
        QCOMPARE(ThemeResources::getOpacity(name), 1.0);
        QCOMPARE(ThemeResources::getCornerRadius(name), 0.0);
        QCOMPARE(ThemeResources::getDisabledFactor(name), 100);
        QCOMPARE(ThemeColorHelper::disabled(Qt::white, true), QColor(Qt::white));
    }

    void themesAreReadAndNotApplied()
    {
        const TemporaryRepository repository;
        BaseTheme theme(repository.addTheme(QStringLiteral("a"), "Title"));
        QCOMPARE(theme.getName(), QStringLiteral("Title"));
        MessageRecorder messages;
        theme.customize(nullptr);
        QCOMPARE(messages.take().size(), 1);
    }

    /// The defaults are not kept: the first lookup with an application finds its variables.
    void lookupsStartWithTheApplication()
    {
        int argc = 0;
        QCoreApplication app(argc, nullptr);
        const QVariantMap colors{{QStringLiteral("Main"), QColor(Qt::red)}};
        app.setProperty("theme_var", QVariantMap{{QStringLiteral("colors"), colors}});
        QCOMPARE(ThemeResources::getColor(QStringLiteral("Main")), QColor(Qt::red));
    }
};

QTEST_APPLESS_MAIN(tst_NoApplication)
#include "tst_NoApplication.moc"
