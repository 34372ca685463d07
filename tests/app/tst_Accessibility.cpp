#include "BaseTheme.h"
#include "Pages.h"
#include "kit/Page.h"

#include <QTest>
#include <QtWidgets>

#include <cstring>
#include <memory>

// What people who do not see are told of a program must not depend on its looks.

namespace {

/// One line per thing that assistive programs are told of: role, states, name, and what is wrong
/// with its place.
void describe(const QAccessibleInterface& thing, const QString& indent, QStringList& lines)
{
    QAccessible::State state = thing.state();
    const bool hasPlace = state.invisible || thing.rect().isValid() || thing.childCount() == 0;
    const QAccessibleInterface* around = thing.object() ? thing.parent() : nullptr; // no item
    const bool isInside = !around || around->rect().contains(thing.rect());
    state.offscreen = false; // looks differ in how many items fit
    if (!thing.object())
        state.invisible = false;
    quint64 states = 0;
    memcpy(&states, &state, sizeof states);
    lines.append(indent + QString::number(thing.role(), 16) + QLatin1Char(' ')
                 + QString::number(states, 16) + QLatin1Char(' ') + thing.text(QAccessible::Name)
                 + QLatin1String(hasPlace ? "" : " without place")
                 + QLatin1String(isInside ? "" : " outside"));
    if (qobject_cast<const QFileDialog*>(thing.object()))
        return; // what can be opened is known some time later
    for (int i = 0; i < thing.childCount(); ++i) {
        if (const QAccessibleInterface* child = thing.child(i))
            describe(*child, indent + QLatin1Char(' '), lines);
    }
}

QStringList description(const Gallery::PageEntry& entry)
{
    const std::unique_ptr<QWidget> page(Gallery::buildPage(entry));
    page->setAttribute(Qt::WA_DontShowOnScreen);
    page->resize(1200, page->sizeHint().height());
    page->show();
    QCoreApplication::processEvents();
    QStringList lines;
    describe(*QAccessible::queryAccessibleInterface(page.get()), {}, lines);
    return lines;
}

} // namespace

class tst_Accessibility : public QObject
{
    Q_OBJECT

    QMap<QString, QStringList> m_themed;

private Q_SLOTS:

    void initTestCase()
    {
        BRELK::BaseTheme theme(QStringLiteral(VARN_THEME_REPOSITORY "/Dark"));
        theme.customize(qApp);
        for (const Gallery::PageEntry& entry : Gallery::allPages())
            m_themed[entry.name] = description(entry);
        qApp->setStyleSheet({});
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("fusion")));
    }

    void tellsTheSameAsFusion_data()
    {
        QTest::addColumn<int>("page");
        for (int page = 0; page < Gallery::allPages().size(); ++page)
            QTest::newRow(qPrintable(Gallery::allPages().at(page).name)) << page;
    }

    void tellsTheSameAsFusion()
    {
        QFETCH(int, page);
        const Gallery::PageEntry& entry = Gallery::allPages().at(page);
        const QStringList expected = description(entry);
        QVERIFY(expected.size() > 10);
        QCOMPARE(m_themed[entry.name], expected);
    }
};

QTEST_MAIN(tst_Accessibility)
#include "tst_Accessibility.moc"
