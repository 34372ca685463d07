#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

constexpr int PageWidth = 1120;

struct Run
{
    int exitCode = -1;
    QStringList output;
    QString messages;
};

Run runGallery(const QStringList& arguments)
{
    QProcess process;
    process.start(QStringLiteral(VARN_GALLERY), arguments);
    if (!process.waitForFinished(100000) || process.exitStatus() != QProcess::NormalExit)
        return {};
    const QString output = QString::fromUtf8(process.readAllStandardOutput());
    return {process.exitCode(), output.split(QLatin1Char('\n'), Qt::SkipEmptyParts),
            QString::fromUtf8(process.readAllStandardError())};
}

} // namespace

/// The gallery as its users start it: as a program of its own.
class tst_Gallery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void rendersEveryPage_data();
    void rendersEveryPage();
    void picturesDependOnArgumentsAlone();
    void startsWithoutTheme_data();
    void startsWithoutTheme();
    void reportsMistakes_data();
    void reportsMistakes();

private:
    QStringList renderPage(const QString& page) const
    {
        return {QStringLiteral("--render"), m_directory->path(), QStringLiteral("--page"), page};
    }

    QImage pictureOf(const QString& page, const QStringList& arguments) const;

    QScopedPointer<QTemporaryDir> m_directory;
};

void tst_Gallery::init()
{
    m_directory.reset(new QTemporaryDir);
}

QImage tst_Gallery::pictureOf(const QString& page, const QStringList& arguments) const
{
    const Run run = runGallery(renderPage(page) + arguments);
    return run.output.size() == 1 ? QImage(run.output.first()) : QImage();
}

void tst_Gallery::rendersEveryPage_data()
{
    QTest::addColumn<QString>("theme");
    const QDir repository(QStringLiteral(VARN_THEME_REPOSITORY));
    for (const QString& theme : repository.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        QTest::newRow(qPrintable(theme)) << theme;
}

void tst_Gallery::rendersEveryPage()
{
    QFETCH(const QString, theme);
    const QStringList pages = runGallery({QStringLiteral("--list-pages")}).output;
    QVERIFY(!pages.isEmpty());

    const Run run = runGallery(
        {QStringLiteral("--theme"), theme, QStringLiteral("--render"), m_directory->path()});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.messages, QString());
    QCOMPARE(run.output.size(), pages.size());
    for (int index = 0; index < pages.size(); ++index) {
        const QString& path = run.output.at(index);
        QCOMPARE(QFileInfo(path).completeBaseName(), pages.at(index));
        QVERIFY2(QImage(path).width() >= PageWidth, qPrintable(path));
    }
}

void tst_Gallery::picturesDependOnArgumentsAlone()
{
    const QString page = QStringLiteral("ranges");
    const QImage first = pictureOf(page, {});
    QVERIFY(!first.isNull());
    QCOMPARE(pictureOf(page, {}), first);
    QVERIFY(pictureOf(page, {QStringLiteral("--rtl")}) != first);
    const QImage doubled = pictureOf(page, {QStringLiteral("--scale"), QStringLiteral("2")});
    QVERIFY(doubled.width() >= 2 * PageWidth);
}

void tst_Gallery::startsWithoutTheme_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");
    const QString repository = QStringLiteral("--theme-repository");
    QTest::newRow("unknown theme") << QStringList{QStringLiteral("--theme"), QStringLiteral("No")}
                                   << QStringLiteral("has Dark");
    QTest::newRow("missing repository")
        << QStringList{repository, QStringLiteral("/does/not/exist")}
        << QStringLiteral("there is no theme repository");
    QTest::newRow("file as repository") << QStringList{repository, QStringLiteral(VARN_GALLERY)}
                                        << QStringLiteral("there is no theme repository");
}

void tst_Gallery::startsWithoutTheme()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, message);
    const Run run = runGallery(renderPage(QStringLiteral("overview")) + arguments);
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.messages.count(QLatin1Char('\n')), 1);
    QVERIFY2(run.messages.contains(message), qPrintable(run.messages));
    QVERIFY(!QImage(run.output.value(0)).isNull());
}

void tst_Gallery::reportsMistakes_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("message");
    QTest::newRow("unknown page") << QStringList{QStringLiteral("--list-pages"),
                                                 QStringLiteral("--page"), QStringLiteral("No")}
                                  << 0 << QStringLiteral("the pages are overview");
    QTest::newRow("bad scale") << QStringList{QStringLiteral("--list-pages"),
                                              QStringLiteral("--scale"), QStringLiteral("-1")}
                               << 0 << QStringLiteral("The scale must be");
    QTest::newRow("unknown option")
        << QStringList{QStringLiteral("--list-pages"), QStringLiteral("--wrong")} << 1
        << QStringLiteral("Unknown option");
    QTest::newRow("no directory") << QStringList{QStringLiteral("--render"),
                                                 QStringLiteral(VARN_GALLERY "/below")}
                                  << 1 << QStringLiteral("Cannot write");
}

void tst_Gallery::reportsMistakes()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const int, exitCode);
    QFETCH(const QString, message);
    const Run run = runGallery(arguments);
    QCOMPARE(run.exitCode, exitCode);
    QVERIFY2(run.messages.contains(message), qPrintable(run.messages));
}

QTEST_GUILESS_MAIN(tst_Gallery)
#include "tst_Gallery.moc"
