#include "TemporaryRepository.h"

#include <QProcess>
#include <QtTest>

/// Choosing a theme at start, seen from outside the process.
class tst_ThemeQApplication : public QObject
{
    Q_OBJECT

private:
    struct Outcome
    {
        QString output;
        QString messages;
    };

    const TemporaryRepository m_repository;

    /// Starts the program, with `arguments` between blanks, in the environment that `settings` add
    /// to.
    static Outcome run(const QString& arguments, const QMap<QString, QString>& settings)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (auto entry = settings.begin(); entry != settings.end(); ++entry)
            environment.insert(entry.key(), entry.value());
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(VARN_TEST_PROGRAM), arguments.split(QLatin1Char(' ')));
        process.waitForFinished();
        if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
            return {};
        return {QString::fromLocal8Bit(process.readAllStandardOutput()),
                QString::fromLocal8Bit(process.readAllStandardError())};
    }

    QString start(const char* arguments, const char* theme,
                  QMap<QString, QString> settings = {}) const
    {
        settings.insert(QStringLiteral("TEST_THEME"), QLatin1String(theme));
        settings.insert(QStringLiteral("TEST_REPOSITORY"), m_repository.path());
        return run(QLatin1String(arguments), settings).output;
    }

    QString state(const char* theme, const char* color, const char* style,
                  const QString& repository) const
    {
        return QStringLiteral("theme=%1\nrepository=%2\ncolor=%3\nstyle=%4\n")
            .arg(QLatin1String(theme), repository, QLatin1String(color), QLatin1String(style));
    }

private Q_SLOTS:

    void initTestCase()
    {
        m_repository.addTheme(QStringLiteral("Day"), "Day of the designer", "#00ff00");
        m_repository.addTheme(QStringLiteral("Night"), "Night", "#0000ff");
        m_repository.addTheme(QStringLiteral("--theme"), "Odd", "#ff00ff");
    }

    void themeIsChosen()
    {
        const QString path = m_repository.path();
        const QString day = state("Day of the designer", "#00ff00", "the theme's", path);
        const QString night = state("Night", "#0000ff", "the theme's", path);
        QCOMPARE(start("--theme Day", ""), day);
        QCOMPARE(start("file", "Day"), day);
        QCOMPARE(start("file --theme Night", "Day"), night);
        QCOMPARE(start("--theme Night --theme Day", ""), night);
        QCOMPARE(start("--theme", "Day"), day); // has no value
        QCOMPARE(start("--theme=Night", "Day"), day);
        QCOMPARE(start("--theme --theme", "Day"), state("Odd", "#ff00ff", "the theme's", path));
        QCOMPARE(run(QLatin1String("--theme Day --theme-repository ") + path,
                     {{QStringLiteral("TEST_REPOSITORY"), QStringLiteral("/none")}})
                     .output,
                 day);
    }

    void anotherThemeMayFollow()
    {
        const QString path = m_repository.path();
        const QString day = state("Day of the designer", "#00ff00", "the theme's", path);
        const QString night = state("Night", "#0000ff", "the theme's", path);
        const auto followedBy = [this](const char* next) {
            return start("", "Day", {{QStringLiteral("TEST_NEXT_THEME"), QLatin1String(next)}});
        };
        QCOMPARE(followedBy("Night"), QString(day + QLatin1String("next=found\n") + night));
        QCOMPARE(followedBy("Dusk"), QString(day + QLatin1String("next=missing\n") + day));
    }

    void missingThemeIsReportedWithThoseThatExist_data()
    {
        QTest::addColumn<QString>("repository");
        QTest::addColumn<QString>("reason");
        const QString path = m_repository.path();
        const QString themes = m_repository.path(QStringLiteral("Day"));
        const QString repository = QStringLiteral("the repository \"%1\" has %2");
        QTest::newRow("theme") << path
                               << repository.arg(path, QStringLiteral("--theme, Day, Night"));
        QTest::newRow("repository")
            << QStringLiteral("/none") << QStringLiteral("there is no theme repository \"/none\"");
        QTest::newRow("no repository")
            << QString() << QStringLiteral("no theme repository was given");
        QTest::newRow("without themes")
            << themes << repository.arg(themes, QStringLiteral("no themes"));
    }

    void missingThemeIsReportedWithThoseThatExist()
    {
        QFETCH(QString, repository);
        QFETCH(QString, reason);
        const Outcome outcome =
            run(QStringLiteral("--theme Dusk"), {{QStringLiteral("TEST_REPOSITORY"), repository}});
        QCOMPARE(outcome.messages, QStringLiteral("No theme \"Dusk\": %1\n").arg(reason));
        QCOMPARE(outcome.output, state("none", "#000000", "another", repository));
    }
};

QTEST_GUILESS_MAIN(tst_ThemeQApplication)
#include "tst_ThemeQApplication.moc"
