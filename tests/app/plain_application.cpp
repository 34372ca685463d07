#include <QApplication>
#include <QIcon>
#include <QPointer>
#include <QPushButton>
#include <QStyle>
#include <QStyleFactory>
#include <QToolTip>

#include <cstdio>
#include <memory>

namespace {

void print(const char* key, const QString& value)
{
    std::printf("%s %s\n", key, qPrintable(value));
}

/// Enough to tell a theme's color from the toolkit's and the program's.
QString kindOf(const QColor& color)
{
    constexpr int Middle = 128;
    if (color == QColor(Qt::red))
        return QStringLiteral("red");
    return color.lightness() < Middle ? QStringLiteral("dark") : QStringLiteral("light");
}

void printLooks(const char* moment)
{
    const QStyle& style = *QApplication::style();
    print(moment, style.objectName());
    print("window", kindOf(QApplication::palette().color(QPalette::Window)));
    print("tool tip", kindOf(QToolTip::palette().color(QPalette::ToolTipBase)));
    print("font", QString::number(QApplication::font().pointSizeF()));
    print("icon theme", QIcon::themeName());
    print("sheet", qApp->styleSheet());
}

} // namespace

/// A program that was built without the library and prints what it looks like. PLAIN_SHEET is its
/// style sheet, PLAIN_PALETTE the color of its palette.
int main(int argc, char** argv)
{
    print("before", QStyleFactory::create(QStringLiteral("varn")) ? QStringLiteral("a style")
                                                                  : QStringLiteral("none"));
    if (qEnvironmentVariableIsSet("PLAIN_PALETTE"))
        QApplication::setPalette(QPalette(QColor(qEnvironmentVariable("PLAIN_PALETTE"))));
    const QApplication app(argc, argv);
    if (qEnvironmentVariableIsSet("PLAIN_SHEET"))
        qApp->setStyleSheet(qEnvironmentVariable("PLAIN_SHEET"));
    printLooks("style");

    QPushButton button;
    QPalette palette = button.palette();
    palette.setColor(QPalette::Button, Qt::green);
    button.setPalette(palette);
    QFont font = button.font();
    font.setPointSize(30);
    button.setFont(font);
    button.ensurePolished();
    print("own", button.palette().color(QPalette::Button).name() + QLatin1Char(' ')
                     + QString::number(button.font().pointSize()));

    const QPointer<QStyle> second = QStyleFactory::create(QStringLiteral("varn"));
    print("second", second ? second->objectName() + QLatin1Char(' ')
                                 + kindOf(second->standardPalette().color(QPalette::Window))
                           : QStringLiteral("none"));
    if (second)
        second->deleteLater();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    print("deleted", second ? QStringLiteral("no") : QStringLiteral("yes"));
    qApp->setStyleSheet({});
    QApplication::setStyle(QStringLiteral("windows"));
    printLooks("afterwards");
    return 0;
}
