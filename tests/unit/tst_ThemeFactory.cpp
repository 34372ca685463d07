#include "TemporaryRepository.h"
#include "Theme.h"
#include "ThemeFactory.h"

#include <QDir>
#include <QtTest>

#include <memory>

using namespace BRELK;

class tst_ThemeFactory : public QObject
{
    Q_OBJECT

private:
    ThemeFactory& m_factory = ThemeFactory::getInstance();

private Q_SLOTS:

    void listsDirectoriesOfTheRepository()
    {
        const TemporaryRepository repository;
        repository.addTheme(QStringLiteral("light"), "Any name");
        repository.addTheme(QStringLiteral("Zebra"), "Another");
        repository.write(QStringLiteral("README.txt"), "a file");
        repository.write(QStringLiteral(".hidden/theme.xml"), "<theme/>");
        QDir().mkdir(repository.path(QStringLiteral("empty")));

        m_factory.setThemesRepositoryPath(repository.path() + QLatin1String("/./"));
        QCOMPARE(m_factory.getAvailableThemes(),
                 QStringList(
                     {QStringLiteral("Zebra"), QStringLiteral("empty"), QStringLiteral("light")}));

        m_factory.setThemesRepositoryPath(repository.path(QStringLiteral("none")));
        QCOMPARE(m_factory.getAvailableThemes(), QStringList());
        QCOMPARE(m_factory.getTheme(QStringLiteral("light")), nullptr);
    }

    void everyCallCreatesATheme()
    {
        const TemporaryRepository repository;
        repository.addTheme(QStringLiteral("night"), "Night shift");
        m_factory.setThemesRepositoryPath(repository.path());

        const std::unique_ptr<Theme> first(m_factory.getTheme(QStringLiteral("night")));
        const std::unique_ptr<Theme> second(m_factory.getTheme(QStringLiteral("night")));
        QVERIFY(first && second && first != second);
        QCOMPARE(first->getName(), QStringLiteral("Night shift"));
        QCOMPARE(m_factory.getTheme(QStringLiteral("Night shift")), nullptr);
        QCOMPARE(m_factory.getTheme(QString()), nullptr);
    }
};

QTEST_MAIN(tst_ThemeFactory)
#include "tst_ThemeFactory.moc"
