#include <QtTest>
#include <QtWidgets>

/// The gallery as its users start it: as a program of its own.
class tst_Gallery : public QObject
{
    Q_OBJECT

private:
    static constexpr int PageWidth = 1120;

    const QTemporaryDir m_directory;
    QString m_program = QStringLiteral(VARN_GALLERY);
    int m_exitCode = -1;
    QStringList m_output;
    QString m_messages;

    /// Words between blanks; "DIR" is a directory that lasts as long as the test.
    void run(const QString& arguments)
    {
        QStringList words = arguments.split(QLatin1Char(' '));
        words.replaceInStrings(QStringLiteral("DIR"), m_directory.path());
        QProcess process;
        process.start(m_program, words);
        QVERIFY(process.waitForFinished(100000));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        m_exitCode = process.exitCode();
        m_output = QString::fromUtf8(process.readAllStandardOutput())
                       .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        m_messages = QString::fromUtf8(process.readAllStandardError());
    }

    QVector<QImage> pictures(const char* arguments)
    {
        run(QLatin1String("--render DIR ") + QLatin1String(arguments));
        QVector<QImage> images;
        for (const QString& path : qAsConst(m_output))
            images.append(QImage(path));
        return images;
    }

    static int differingPixels(const QImage& first, const QImage& second)
    {
        int count = 0;
        for (int y = 0; y < first.height(); ++y)
            for (int x = 0; x < first.width(); ++x)
                count += first.pixel(x, y) != second.pixel(x, y);
        return count;
    }

private Q_SLOTS:

    /// What file dialogs remember is not shared with tests that run at the same time.
    void initTestCase() { qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_directory.path())); }

    void rendersEveryPageAndTheme()
    {
        run(QStringLiteral("--list-pages"));
        const QStringList pages = m_output;
        QVERIFY(!pages.isEmpty());
        const auto renders = [this](const QString& arguments, const QStringList& names) {
            run(QStringLiteral("--render DIR ") + arguments);
            QCOMPARE(m_exitCode, 0);
            QCOMPARE(m_messages, QString());
            QCOMPARE(m_output.size(), names.size());
            for (int index = 0; index < names.size(); ++index) {
                const QString& path = m_output.at(index);
                QCOMPARE(QFileInfo(path).completeBaseName(), names.at(index));
                QVERIFY2(QImage(path).width() >= PageWidth, qPrintable(path));
            }
        };
        renders({}, pages);
        const QDir repository(QStringLiteral(VARN_THEME_REPOSITORY));
        for (const QString& theme : repository.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            renders(QStringLiteral("--page overview --theme ") + theme,
                    {QStringLiteral("overview")});
    }

    void looksDoNotDependOnTheStyleSheet()
    {
        const QVector<QImage> with = pictures("");
        const QVector<QImage> without = pictures("--style-sheet=");
        QCOMPARE(with.size(), without.size());
        for (int page = 0; page < with.size(); ++page) {
            // The sheet makes the edges of open lists fainter, and in cells the toolkit then draws
            // the words of progress bars by itself.
            const bool mayDiffer = m_output.at(page).contains(QLatin1String("/combo-boxes."))
                                   || m_output.at(page).contains(QLatin1String("/views."));
            const int most = mayDiffer ? with.at(page).width() * with.at(page).height() / 200 : 0;
            QCOMPARE(with.at(page).size(), without.at(page).size());
            QVERIFY2(differingPixels(with.at(page), without.at(page)) <= most,
                     qPrintable(m_output.at(page)));
        }
    }

    void picturesDependOnArgumentsAlone()
    {
        const QVector<QImage> first = pictures("--scale 1");
        QVERIFY(!first.value(0).isNull());
        QCOMPARE(pictures("--scale 1 --via Light"), first);
        const char* const ranges = "--page ranges --scale 1";
        QCOMPARE(pictures(ranges), pictures(ranges));
        QVERIFY(pictures("--page ranges --rtl --scale 2").value(0).width() >= 2 * PageWidth);
    }

    void reportsMistakes()
    {
        const struct
        {
            const char* arguments;
            int exitCode;
            const char* message;
        } mistakes[] = {
            {"--list-pages --page No", 0, "the pages are overview"},
            {"--list-pages --scale -1", 0, "The scale must be"},
            {"--list-pages --wrong", 1, "Unknown option"},
            {"--render " VARN_GALLERY "/below", 1, "Cannot write"},
            {"--render DIR --page overview --theme No", 0, "has Dark"},
            {"--render DIR --page overview --theme-repository " VARN_GALLERY, 0,
             "there is no theme repository"},
        };

        for (const auto& [arguments, exitCode, message] : mistakes) {
            run(QString::fromLatin1(arguments));
            QVERIFY2(m_exitCode == exitCode && m_output.isEmpty() == (exitCode != 0), arguments);
            QVERIFY2(m_messages.contains(QLatin1String(message)), qPrintable(m_messages));
        }
    }

    /// Last, as the surroundings stay.
    void rendersWithoutDrawingsFontsAndHome()
    {
        const QDir directory(m_directory.path());
        const QString plugins = QLibraryInfo::location(QLibraryInfo::PluginsPath);
        QFile::link(plugins + QLatin1String("/platforms"),
                    directory.filePath(QStringLiteral("platforms")));
        QFile configuration(directory.filePath(QStringLiteral("qt.conf")));
        QVERIFY(configuration.open(QIODevice::WriteOnly)
                && configuration.write("[Paths]\nPlugins=.\n") > 0);
        configuration.close();
        const QFileInfo gallery(QStringLiteral(VARN_GALLERY));
        qputenv("LD_LIBRARY_PATH", QFile::encodeName(gallery.path() + QLatin1String("/../lib")));
        for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "FONTCONFIG_FILE"})
            qputenv(name, "/dev/null");
        m_program = directory.filePath(gallery.fileName());
        QVERIFY(QFile::copy(gallery.filePath(), m_program));
        run(QStringLiteral("--render DIR --page overview"));
        QCOMPARE(m_exitCode, 0);
        QVERIFY2(m_messages.contains(QLatin1String("need Qt's SVG plugins")),
                 qPrintable(m_messages));
    }
};

QTEST_GUILESS_MAIN(tst_Gallery)
#include "tst_Gallery.moc"
