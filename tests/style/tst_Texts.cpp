#include "PictureDifference.h"
#include "StateSheet.h"

#include <QPicture>
#include <QStyleFactory>

#include <memory>

/// The style keeps laid-out lines and small pictures; nobody may see that.
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

    /// A recorded picture is painted anew each time it is played; arrows are the base style's.
    void keptPicturesLookAsPainted()
    {
        const std::unique_ptr<QStyle> fusion(QStyleFactory::create(QStringLiteral("fusion")));
        const auto& style = *qobject_cast<const BRELK::BaseStyle*>(QApplication::style());
        const auto drawMarks = [&](QPainter& painter) {
            style.drawCheckMark(&painter, {5, 7, 16, 16}, QColor(20, 40, 160));
            style.drawCheckMark(&painter, {5, 30, 5, 4}, QColor(20, 40, 160));
            style.drawCheckMark(&painter, {5, 30, -5, 0}, QColor(20, 40, 160));
            style.drawRadioMark(&painter, {25, 7, 12, 13}, QColor(0, 90, 0, 200));
        };
        const auto drawArrows = [](QPainter& painter, const QStyle& by) {
            QStyleOption arrow;
            arrow.rect = QRect(45, 7, 14, 12);
            by.drawPrimitive(QStyle::PE_IndicatorSpinUp, &arrow, &painter);
            arrow.palette.setColor(QPalette::ButtonText, QColor(200, 0, 0, 128));
            arrow.rect.translate(0, 13);
            by.drawPrimitive(QStyle::PE_IndicatorSpinDown, &arrow, &painter);
        };
        const auto drawn = [&](bool anew, qreal scale, const QPointF& shift) {
            QImage image(QSize(70, 40) * scale, QImage::Format_RGB32);
            image.setDevicePixelRatio(scale);
            image.fill(Qt::white);
            QPainter painter(&image);
            painter.translate(shift);
            drawArrows(painter, anew ? *fusion : *QApplication::style());
            if (anew) {
                QPicture picture;
                QPainter recorder(&picture);
                drawMarks(recorder);
                recorder.end();
                painter.drawPicture(0, 0, picture);
            } else {
                drawMarks(painter);
            }
            return image;
        };
        constexpr int Rounding = 3;
        for (const qreal scale : {1.0, 1.25, 1.5, 2.0})
            for (const QPointF& shift : {QPointF(), QPointF(3, 1), QPointF(0.5, 0.25)}) {
                const QImage expected = drawn(true, scale, shift);
                for (int time = 0; time < 2; ++time)
                    QVERIFY2(largestDifference(drawn(false, scale, shift), expected) <= Rounding,
                             qPrintable(QStringLiteral("at scale %1").arg(scale)));
            }
    }
};

QTEST_MAIN(tst_Texts)
#include "tst_Texts.moc"
