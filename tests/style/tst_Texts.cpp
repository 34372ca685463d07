#include "StateSheet.h"

/// The style keeps laid-out lines; nobody may see that.
class tst_Texts : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void initTestCase() { StateSheet::applyProbeTheme(); }

    void looksLikeThePaintersOwn_data()
    {
        QTest::addColumn<QString>("text");
        for (const char* text :
             {"Button", "&Open file", "Save && e&xit&", "trailing   ", "two\nlines", "tab\tstop",
              "\u05e9\u05dc\u05d5\u05dd and more", "a text that is too long for where it stands"})
            QTest::newRow(text) << QString::fromUtf8(text);
    }

    void looksLikeThePaintersOwn()
    {
        QFETCH(QString, text);
        const auto drawnBy = [&](bool style, int flags, int width, auto direction, qreal scale) {
            QImage image(QSize(160, 60) * scale, QImage::Format_ARGB32_Premultiplied);
            image.setDevicePixelRatio(scale);
            image.fill(Qt::white);
            QPainter painter(&image);
            painter.setLayoutDirection(direction);
            painter.setPen(QColor(20, 40, 160));
            const auto drawLine = [&](int x, int y) {
                // Lines stand on whole pixels: where the painter places them on halves, they would
                // differ.
                const QRect rect(x, y, width, painter.fontMetrics().height() + 4);
                if (style)
                    QApplication::style()->drawItemText(&painter, rect, flags, {}, true, text);
                else
                    painter.drawText(rect, flags, text);
            };
            drawLine(10, 5);
            QFont large = painter.font();
            large.setPixelSize(17);
            large.setBold(true);
            painter.setFont(large);
            drawLine(11, 33);
            return image;
        };
        for (const int flags :
             QVector<int>{Qt::AlignCenter, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic,
                          Qt::AlignRight | Qt::AlignBottom | Qt::TextSingleLine,
                          Qt::AlignHCenter | Qt::TextHideMnemonic,
                          Qt::AlignHCenter | Qt::AlignLeft, // as titles of group boxes
                          Qt::TextDontClip | Qt::AlignVCenter, Qt::TextWordWrap | Qt::AlignJustify})
            for (const int width : {140, 33})
                for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft})
                    for (const qreal scale : {1.0, 1.5, 2.0}) {
                        const QImage expected = drawnBy(false, flags, width, direction, scale);
                        QCOMPARE(drawnBy(true, flags, width, direction, scale), expected);
                        // Now from what the first time left.
                        QCOMPARE(drawnBy(true, flags, width, direction, scale), expected);
                    }
    }
};

QTEST_MAIN(tst_Texts)
#include "tst_Texts.moc"
