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
        QStringList lines;
        QString messages;
    };

    const TemporaryRepository m_repository;

    Outcome run(const QStringList& arguments, const QMap<QString, QString>& settings = {}) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (auto entry = settings.begin(); entry != settings.end(); ++entry)
            environment.insert(entry.key(), entry.value());
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(VARN_TEST_PROGRAM), arguments);
        process.waitForFinished();
        Outcome outcome;
        outcome.messages = QString::fromLocal8Bit(process.readAllStandardError());
        if (process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
            outcome.lines = QString::fromLocal8Bit(process.readAllStandardOutput())
                                .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        return outcome;
    }

    QStringList state(const char* theme, const char* color, const char* style,
                      const QString& repository) const
    {
        return {QLatin1String("theme=") + QLatin1String(theme),
                QLatin1String("repository=") + repository,
                QLatin1String("color=") + QLatin1String(color),
                QLatin1String("style=") + QLatin1String(style)};
    }

private Q_SLOTS:

    void initTestCase()
    {
        m_repository.addTheme(QStringLiteral("Day"), "Day of the designer", "#00ff00");
        m_repository.addTheme(QStringLiteral("Night"), "Night", "#0000ff");
        m_repository.addTheme(QStringLiteral("--theme"), "Odd", "#ff00ff");
    }

    void themeIsChosen_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("theme");
        QTest::addColumn<QStringList>("expected");
        const QString path = m_repository.path();
        const QStringList day = state("Day of the designer", "#00ff00", "the theme's", path);
        const QStringList night = state("Night", "#0000ff", "the theme's", path);
        const QStringList odd = state("Odd", "#ff00ff", "the theme's", path);
        const auto row = [](const char* name, const char* arguments, const char* theme,
                            const QStringList& expected) {
            QTest::newRow(name) << QString::fromLatin1(arguments).split(QLatin1Char(' '))
                                << QString::fromLatin1(theme) << expected;
        };
        row("by argument", "--theme Day", "", day);
        row("by constructor", "file", "Day", day);
        row("an argument wins", "file --theme Night", "Day", night);
        row("the first argument wins", "--theme Night --theme Day", "", night);
        row("the last argument has no value", "--theme", "Day", day);
        row("joined by a sign", "--theme=Night", "Day", day);
        row("a value may look like an option", "--theme --theme", "Day", odd);
    }

    void themeIsChosen()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, theme);
        QFETCH(QStringList, expected);
        const Outcome outcome =
            run(arguments, {{QStringLiteral("TEST_THEME"), theme},
                            {QStringLiteral("TEST_REPOSITORY"), m_repository.path()}});
        QCOMPARE(outcome.messages, QString());
        QCOMPARE(outcome.lines, expected);
    }

    void repositoryMayBeAnArgument()
    {
        const Outcome outcome = run({QStringLiteral("--theme"), QStringLiteral("Day"),
                                     QStringLiteral("--theme-repository"), m_repository.path()},
                                    {{QStringLiteral("TEST_REPOSITORY"), QStringLiteral("/none")}});
        QCOMPARE(outcome.messages, QString());
        QCOMPARE(outcome.lines,
                 state("Day of the designer", "#00ff00", "the theme's", m_repository.path()));
    }

    void missingThemeIsReportedWithThoseThatExist_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("repository");
        QTest::addColumn<QString>("message");
        const QStringList dusk{QStringLiteral("--theme"), QStringLiteral("Dusk")};
        const QStringList elsewhere{QStringLiteral("--theme-repository"), QStringLiteral("/none")};
        QTest::newRow("theme") << dusk << m_repository.path()
                               << QStringLiteral("No theme \"Dusk\": the repository \"%1\" has "
                                                 "--theme, Day, Night\n")
                                      .arg(m_repository.path());
        QTest::newRow("repository")
            << dusk + elsewhere << QStringLiteral("/none")
            << QStringLiteral("No theme \"Dusk\": there is no theme repository \"/none\"\n");
        QTest::newRow("no repository")
            << dusk << QString()
            << QStringLiteral("No theme \"Dusk\": no theme repository was given\n");
        QTest::newRow("a repository without themes")
            << dusk << m_repository.path(QStringLiteral("Day"))
            << QStringLiteral("No theme \"Dusk\": the repository \"%1\" has no themes\n")
                   .arg(m_repository.path(QStringLiteral("Day")));
    }

    void missingThemeIsReportedWithThoseThatExist()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, repository);
        QFETCH(QString, message);
        const Outcome outcome = run(arguments, {{QStringLiteral("TEST_REPOSITORY"), repository}});
        QCOMPARE(outcome.messages, message);
        QCOMPARE(outcome.lines, state("none", "#000000", "another", repository));
    }

    void nativeStyleIsLeft()
    {
        const Outcome outcome = run({}, {{QStringLiteral("BRELK_USE_NATIVE_STYLE"), QString()},
                                         {QStringLiteral("TEST_THEME"), QStringLiteral("Night")},
                                         {QStringLiteral("TEST_REPOSITORY"), m_repository.path()}});
        QCOMPARE(outcome.messages, QString());
        QCOMPARE(outcome.lines, state("Night", "#0000ff", "another", m_repository.path()));
    }

    void anotherThemeMayFollow_data()
    {
        QTest::addColumn<QString>("next");
        QTest::addColumn<QStringList>("expected");
        const QString path = m_repository.path();
        const QStringList found{QStringLiteral("next=found")};
        const QStringList missing{QStringLiteral("next=missing")};
        QTest::newRow("found") << QStringLiteral("Night")
                               << found + state("Night", "#0000ff", "the theme's", path);
        QTest::newRow("missing") << QStringLiteral(
            "Dusk") << missing + state("Day of the designer", "#00ff00", "the theme's", path);
    }

    void anotherThemeMayFollow()
    {
        QFETCH(QString, next);
        QFETCH(QStringList, expected);
        const Outcome outcome = run({}, {{QStringLiteral("TEST_THEME"), QStringLiteral("Day")},
                                         {QStringLiteral("TEST_REPOSITORY"), m_repository.path()},
                                         {QStringLiteral("TEST_NEXT_THEME"), next}});
        QCOMPARE(outcome.lines.mid(4), expected);
    }
};

QTEST_GUILESS_MAIN(tst_ThemeQApplication)
#include "tst_ThemeQApplication.moc"
