#include "BaseStyle.h"
#include "ProbeTheme.h"

#include <QImage>
#include <QPainter>
#include <QtTest>

using namespace BRELK;

/// The style keeps laid-out lines; nobody may see that.
class tst_Texts : public QObject
{
    Q_OBJECT

private:
    using Draw = void (*)(QPainter&, const QRect&, int, const QString&);

    static QImage drawn(Draw draw, qreal scale)
    {
        QImage image(QSize(160, 60) * scale, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(scale);
        image.fill(Qt::white);
        QPainter painter(&image);
        QFETCH(QString, text);
        QFETCH(int, flags);
        QFETCH(int, width);
        QFETCH(bool, mirrored);
        painter.setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
        painter.setPen(QColor(20, 40, 160));
        // Lines stand on whole pixels: where the painter places them on halves, they would differ.
        const auto drawLine = [&](int x, int y) {
            draw(painter, QRect(x, y, width, painter.fontMetrics().height() + 4), flags, text);
        };
        drawLine(10, 5);
        QFont large = painter.font();
        large.setPixelSize(17);
        large.setBold(true);
        painter.setFont(large);
        drawLine(11, 33);
        return image;
    }

private Q_SLOTS:

    void initTestCase() { ProbeTheme::publish(); }

    void looksLikeThePaintersOwn_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("flags");
        QTest::addColumn<int>("width");
        QTest::addColumn<bool>("mirrored");
        const QStringList texts{QStringLiteral("Button"),
                                QStringLiteral("&Open file"),
                                QStringLiteral("Save && e&xit&"),
                                QStringLiteral("trailing   "),
                                QStringLiteral("two\nlines"),
                                QStringLiteral("tab\tstop"),
                                QStringLiteral("\u05e9\u05dc\u05d5\u05dd and more"),
                                QStringLiteral("a text that is too long for where it stands")};
        const QVector<int> flags{Qt::AlignCenter,
                                 Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic,
                                 Qt::AlignRight | Qt::AlignBottom | Qt::TextSingleLine,
                                 Qt::AlignHCenter | Qt::TextHideMnemonic,
                                 Qt::TextDontClip | Qt::AlignVCenter,
                                 Qt::TextWordWrap | Qt::AlignJustify};
        for (const QString& text : texts)
            for (const int flag : flags)
                for (const int width : {140, 33})
                    for (const bool mirrored : {false, true})
                        QTest::addRow("%s, %x, %d%s", qPrintable(text.simplified()), unsigned(flag),
                                      width, mirrored ? ", mirrored" : "")
                            << text << flag << width << mirrored;
    }

    void looksLikeThePaintersOwn()
    {
        const Draw byPainter = [](QPainter& painter, const QRect& rect, int flags,
                                  const QString& text) { painter.drawText(rect, flags, text); };
        const Draw byStyle = [](QPainter& painter, const QRect& rect, int flags,
                                const QString& text) {
            static const BaseStyle sStyle;
            sStyle.drawItemText(&painter, rect, flags, {}, true, text);
        };
        for (const qreal scale : {1.0, 1.5, 2.0}) {
            const QImage expected = drawn(byPainter, scale);
            QCOMPARE(drawn(byStyle, scale), expected);
            QCOMPARE(drawn(byStyle, scale), expected); // from what the first time left
        }
    }
};

QTEST_MAIN(tst_Texts)
#include "tst_Texts.moc"
