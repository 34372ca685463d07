#include "LookSheet.h"
#include "Transcript.h"

#include <QProcess>
#include <QtTest>

/// The style plugin in a program that was built without the library.
class tst_StylePlugin : public QObject
{
    Q_OBJECT

private:
    /// What the program prints; `settings` are variables of its environment, and options, between
    /// blanks.
    static QByteArray start(const QString& settings)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_PLUGIN_PATH"), QStringLiteral(VARN_PLUGINS));
        environment.insert(QStringLiteral("XDG_DATA_DIRS"), QStringLiteral(VARN_DATA));
        QStringList arguments;
        for (const QString& setting : settings.split(QLatin1Char(' '))) {
            if (setting.startsWith(QLatin1Char('-')))
                arguments.append(setting);
            environment.insert(setting.section(QLatin1Char('='), 0, 0),
                               setting.section(QLatin1Char('='), 1));
        }
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(QStringLiteral(VARN_TEST_PROGRAM), arguments);
        process.waitForFinished();
        QByteArray printed = process.readAll().replace(VARN_DATA, "DATA");
        // Which themes are shipped is no matter of the plugin's.
        if (const int list = printed.indexOf("\tAvailable styles"); list >= 0)
            printed.remove(list, printed.indexOf('\n', list) + 1 - list);
        return (process.exitStatus() == QProcess::NormalExit ? "" : "crashed\n") + printed;
    }

private Q_SLOTS:

    void programsWearThemes()
    {
        LookSheet::States starts;
        for (const char* settings : {"VARN_THEME=Light", "PLAIN_SHEET=QLabel{color:red}",
                                     "PLAIN_PALETTE=#ff0000", "VARN_THEME=No", "PLAIN_LATER=whole",
                                     "PLAIN_LATER=half", "PLAIN_LATER=desktop", "PLAIN_ICONS=Mine"})
            starts.append({settings, start(QLatin1String("QT_STYLE_OVERRIDE=varn ")
                                           + QLatin1String(settings))});
        starts.append({"by its key", start(QStringLiteral("QT_STYLE_OVERRIDE=varn-highcontrast"))});
        starts.append({"fusion", start(QStringLiteral("QT_STYLE_OVERRIDE=fusion"))});
        starts.append({"wrapped, after a sheet",
                       start(QStringLiteral("QT_STYLE_OVERRIDE= PLAIN_SHEET=QLabel{color:red} "
                                            "PLAIN_STYLE=varn"))});
        QTemporaryFile file;
        QVERIFY(file.open() && file.write("QLabel{color:red}") > 0 && file.flush());
        starts.append({"a sheet of the user's",
                       start(QLatin1String("QT_STYLE_OVERRIDE=varn -stylesheet=") + file.fileName())
                           .replace(file.fileName().toUtf8(), "FILE")});
        LookSheet sheet;
        sheet.add("varn", start(QStringLiteral("QT_STYLE_OVERRIDE=varn")), starts, 0);
        COMPARE_TRANSCRIPT("StylePlugin", sheet.text());
    }
};

QTEST_GUILESS_MAIN(tst_StylePlugin)
#include "tst_StylePlugin.moc"
