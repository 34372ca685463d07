#include "TemporaryRepository.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

namespace {

// The colors that the library's own style sheets name have to be there for Qt to take the sheets.
const char configuration[] = R"(<Config>
  <Factors>
    <Factor name="LightForegroundDisableFactor">200</Factor>
    <Factor name="LightBackgroundDisableFactor">100</Factor>
    <Factor name="DarkForegroundDisableFactor">100</Factor>
    <Factor name="DarkBackgroundDisableFactor">200</Factor>
  </Factors>
  <Palette>
    <ColorsList>
      <Color name="MainColor">%1</Color>
      <Color name="Secret" internal="true">#00ff00</Color>
      <Color name="BackgroundColor">#102030</Color>
      <Color name="BackgroundUpLevel1Color">#203040</Color>
      <Color name="BackgroundSubLevel1Color">#0a1a2a</Color>
      <Color name="BackgroundSubLevel2Color">#081828</Color>
    </ColorsList>
    <BrushesList>
      <SolidBrush name="BackgroundBrush">BackgroundColor</SolidBrush>
      <SolidBrush name="ForegroundBrush">#ffffff</SolidBrush>
      <SolidBrush name="SecretBrush" internal="true">Secret</SolidBrush>
    </BrushesList>
  </Palette>
  <Font><BaseSize>13</BaseSize></Font>
  <CornerRadius><BaseSize>5</BaseSize></CornerRadius>
</Config>
)";

const char mapping[] = R"(<QPalette>
  <ColorRole role="Window">BackgroundBrush</ColorRole>
  <ColorRole role="WindowText">ForegroundBrush</ColorRole>
</QPalette>
)";

} // namespace

void TemporaryRepository::write(const QString& name, const QByteArray& content) const
{
    QDir().mkpath(QFileInfo(path(name)).path());
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(file.fileName()));
}

void TemporaryRepository::makePipe(const QString& name) const
{
    QDir().mkpath(QFileInfo(path(name)).path());
    ::mkfifo(QFile::encodeName(path(name)).constData(), S_IRUSR | S_IWUSR);
}

QString TemporaryRepository::addTheme(const QString& name, const QByteArray& title,
                                      const QByteArray& mainColor) const
{
    const QString file = name + QLatin1String("/%1.xml");
    write(file.arg(QLatin1String("theme")), "<theme><name>" + title + "</name></theme>");
    write(file.arg(QLatin1String("config")), QByteArray(configuration).replace("%1", mainColor));
    write(file.arg(QLatin1String("qpaletteMapping")), mapping);
    return path(name);
}

QByteArray svgSquare(const QByteArray& color)
{
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"16\" height=\"16\">"
           "<rect width=\"16\" height=\"16\" fill=\""
           + color + "\"/></svg>";
}
