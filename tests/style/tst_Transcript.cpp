#include "BaseStyle.h"
#include "Helpers.h"
#include "ProbeTheme.h"
#include "Transcript.h"

#include <QIcon>
#include <QPainterPath>
#include <QtTest>

using namespace BRELK;

/// The instruments that the style's tests measure with.
class tst_Transcript : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void initTestCase()
    {
        ProbeTheme::publish({{QStringLiteral("brushes/MainBrush"), QVariant()}});
    }

    void colorsTellTheirNames()
    {
        const auto name = [](const char* brush, bool enabled) {
            return ProbeTheme::nameOf(BaseStyle::getBrush(QString::fromLatin1(brush), enabled));
        };
        QCOMPARE(name("CardBorderBrush", true), "CardBorderBrush");
        QCOMPARE(name("ToggleButtonTarrinCheckedHoverForegroundBrush", false),
                 "ToggleButtonTarrinCheckedHoverForegroundBrushDisabled");
        QCOMPARE(name("MainBrush", true), "none");
    }

    void roundedShapesAreRecognized()
    {
        const auto rounded = [](Helpers::StraightCornerFlags squareCorners, int radius) {
            return transcriptOf(drawn([&](QPainter* painter) {
                painter->setPen(Qt::NoPen);
                painter->setBrush(Qt::red);
                Helpers::drawRoundedRectShape(QRectF(0.5, 0.5, 99, 19), radius, squareCorners,
                                              painter);
            }));
        };
        QCOMPARE(rounded(Helpers::None, 4), "rounded 0.5,0.5 99x19 r4 brush #ff0000 smooth\n");
        QCOMPARE(rounded(Helpers::LeftCorners, 4),
                 "rounded 0.5,0.5 99x19 r4 square top-left,bottom-left brush #ff0000 smooth\n");
        QCOMPARE(rounded(Helpers::AllCorners, 4), "rect 0.5,0.5 99x19 brush #ff0000 smooth\n");
        QCOMPARE(rounded(Helpers::None, 40), "rounded 0.5,0.5 99x19 r9.5 brush #ff0000 smooth\n");
    }

    void shapesAreWrittenDown()
    {
        const QVector<Shape> shapes = drawn([](QPainter* painter) {
            painter->fillRect(QRect(1, 2, 3, 4),
                              BaseStyle::getColor(QStringLiteral("MainColor"), true));
            painter->setPen(QPen(Qt::red, 1.8, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
            painter->drawLine(1, 2, 30, 40);
            painter->setClipRect(QRect(0, 0, 50, 50));
            painter->translate(0.5, 0.5);
            painter->drawEllipse(QRect(0, 0, 10, 10));
            painter->setClipping(false);
            painter->setRenderHint(QPainter::Antialiasing);
            painter->setOpacity(0.5);
            QPainterPath path;
            path.lineTo(5, 5);
            path.cubicTo(1, 1, 2, 2, 3, 3);
            painter->drawPath(path);
        });
        QCOMPARE(transcriptOf(shapes),
                 "rect 1,2 3x4 brush MainColor\n"
                 "line 1,2 30,40 pen #ff0000 1.8 flat miter\n"
                 "ellipse 0,0 10x10 pen #ff0000 1.8 flat miter at 0.5,0.5 clip -0.5,-0.5 50x50\n"
                 "path 0,0 5,5 1,1c 2,2 3,3 pen #ff0000 1.8 flat miter smooth opacity 0.5 at "
                 "0.5,0.5\n");
    }

    void textAndIconsTellFontAndColor()
    {
        QPixmap pixmap(16, 16);
        pixmap.fill(BaseStyle::getColor(QStringLiteral("ForegroundColor"), true));
        const QVector<Shape> shapes = drawn([&](QPainter* painter) {
            QFont font;
            font.setPixelSize(ProbeTheme::MediumFont);
            font.setBold(true);
            painter->setFont(font);
            painter->setPen(ProbeTheme::palette().color(QPalette::Text));
            painter->drawText(QRect(0, 0, 200, 40), Qt::AlignCenter, QStringLiteral("Text"));
            painter->drawPixmap(4, 5, pixmap);
        });
        QCOMPARE(transcriptOf(shapes), "text \"Text\" medium bold pen palette.Text\n"
                                       "pixmap 4,5 16x16 brush ForegroundColor\n");
    }
};

QTEST_MAIN(tst_Transcript)
#include "tst_Transcript.moc"
