#include "LookSheet.h"
#include "TemporaryRepository.h"
#include "Transcript.h"

#include <QProcess>
#include <QtTest>

/// Choosing a theme at start, seen from outside the process.
class tst_ThemeQApplication : public QObject
{
    Q_OBJECT

private:
    const TemporaryRepository m_repository;

    /// What the program reports and prints when it is started with these arguments between blanks,
    /// and these given to its constructor; "REPOSITORY" stands for the themes' directory.
    LookSheet::States::value_type start(const char* arguments, const char* theme,
                                        const char* repository, const char* next = nullptr) const
    {
        const auto expanded = [this](const char* text) {
            return QString::fromLatin1(text).replace(QLatin1String("REPOSITORY"),
                                                     m_repository.path());
        };
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("TEST_THEME"), QLatin1String(theme));
        environment.insert(QStringLiteral("TEST_REPOSITORY"), expanded(repository));
        if (next)
            environment.insert(QStringLiteral("TEST_NEXT_THEME"), QLatin1String(next));
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(QStringLiteral(VARN_TEST_PROGRAM),
                      expanded(arguments).split(QLatin1Char(' ')));
        process.waitForFinished();
        return {QByteArray("'") + arguments + "' '" + theme + "' '" + repository + "'"
                    + (next ? QByteArray(" then ") + next : QByteArray()),
                (process.exitCode() == 0 ? "" : "crashed\n")
                    + process.readAll().replace(m_repository.path().toUtf8(), "REPOSITORY")};
    }

private Q_SLOTS:

    void themesAreChosen()
    {
        m_repository.addTheme(QStringLiteral("Day"), "Daylight", "#00ff00");
        m_repository.addTheme(QStringLiteral("Night"), "Night", "#0000ff");
        m_repository.addTheme(QStringLiteral("--theme"), "Odd", "#ff00ff");
        LookSheet::States starts;
        for (const char* arguments :
             {"--theme Day", "file", "file --theme Night", "--theme Night --theme Day", "--theme",
              "--theme=Night", "--theme --theme", "--theme Dusk"})
            starts += start(arguments, "Day", "REPOSITORY");
        starts += start("--theme Day --theme-repository REPOSITORY", "", "/none");
        for (const char* repository : {"/none", "", "REPOSITORY/Day"})
            starts += start("--theme Dusk", "", repository);
        for (const char* next : {"Night", "Dusk"})
            starts += start("", "Day", "REPOSITORY", next);
        LookSheet sheet;
        sheet.add(starts.first().first, starts.first().second, starts.mid(1), 0);
        COMPARE_TRANSCRIPT("ThemeQApplication", sheet.text());
    }
};

QTEST_GUILESS_MAIN(tst_ThemeQApplication)
#include "tst_ThemeQApplication.moc"
