#include "BaseStyle.h"
#include "ProbeTheme.h"
#include "Transcript.h"

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
};

QTEST_MAIN(tst_Transcript)
#include "tst_Transcript.moc"
