#include "EmbeddedIcons.h"

#include "Kept.h"
#include "ThemeValues.h"

#include <QFile>
#include <QResource>

#include <algorithm>
#include <memory>
#include <string_view>

// In a static library nobody else registers what rcc made. The macro needs the global namespace.
static void registerCollections()
{
    Q_INIT_RESOURCE(internalRC);
    Q_INIT_RESOURCE(ThemeLibrary);
}

namespace BRELK::EmbeddedIcons {

namespace {

QResource embedded(const QString& name)
{
    registerCollections();
    return QResource(QLatin1String(":/BRELK/ThemeLibrary/") + name);
}

/// A binary collection of icons, to be found below a root for as long as this lives.
class Mapping
{
public:
    Mapping(const uchar* collection, const QString& root) : m_collection(collection), m_root(root)
    {
        QResource::registerResource(m_collection, m_root);
    }

    ~Mapping() { QResource::unregisterResource(m_collection, m_root); }

    Q_DISABLE_COPY_MOVE(Mapping)

private:
    const uchar* m_collection;
    QString m_root;
};

using MappingPointer = std::unique_ptr<Mapping>;

/// The icons below `root` by the library's names, always the same bytes.
MappingPointer mapOwnNames(const QString& root)
{
    static const QResource sIcons = embedded(QStringLiteral("icons.rcc"));
    return std::make_unique<Mapping>(sIcons.data(), root);
}

/// Whether one of the places has a file, or a folder, of the name.
bool holds(const QStringList& places, const QString& name)
{
    return std::any_of(places.begin(), places.end(), [&name](const QString& place) {
        return QFile::exists(place + QLatin1Char('/') + name);
    });
}

MappingPointer mapIndex(const QString& themeName)
{
    static const QResource sIndex = embedded(QStringLiteral("index.rcc"));
    if (themeName.isEmpty()
        || holds(QIcon::themeSearchPaths(), themeName + QLatin1String("/index.theme")))
        return {};
    return std::make_unique<Mapping>(sIndex.data(), QLatin1String("/icons/") + themeName);
}

/// A copy of the icons by the names of desktop icons, in a color. All colors are written with
/// equally many characters, so the collection stays intact.
QByteArray standardIcons(const QColor& color)
{
    const QResource icons = embedded(QStringLiteral("standard.rcc"));
    QByteArray copy(reinterpret_cast<const char*>(icons.data()), int(icons.size()));
    const QByteArray from = QColor(ReferenceColor).name().toUpper().toLatin1();
    const QByteArray to = color.name().toLatin1();
    const std::string_view text(copy.constData(), size_t(copy.size()));
    // A search for the sign is far quicker than one for all of it.
    for (size_t at = text.find('#'); at != text.npos; at = text.find('#', at + 1))
        if (text.compare(at, size_t(from.size()), from.constData()) == 0)
            std::copy(to.begin(), to.end(), copy.begin() + int(at));
    return copy;
}

const MappingPointer ownIcons = mapOwnNames(QStringLiteral("/Icons"));

QColor currentColor(ReferenceColor);
QString themeWithoutFolder;

} // namespace

void offerToIconTheme(const QString& themeName, const QColor& foreground)
{
    static QByteArray sStandardIcons;
    static MappingPointer sByStandardNames;
    static MappingPointer sByOwnNames;
    static MappingPointer sIndex;
    const QString root = QStringLiteral("/icons");
    sIndex.reset();
    sByOwnNames.reset();
    sByStandardNames.reset();
    currentColor = foreground;
    sStandardIcons = standardIcons(foreground);
    sByStandardNames =
        std::make_unique<Mapping>(reinterpret_cast<const uchar*>(sStandardIcons.constData()), root);
    sByOwnNames = mapOwnNames(root);
    const bool hasFolder = holds(QIcon::themeSearchPaths(), themeName);
    themeWithoutFolder = hasFolder ? QString() : themeName;
    sIndex = mapIndex(themeName);
}

QColor offeredColor()
{
    return currentColor;
}

bool mayBeHandMade(const QString& icon)
{
    if (themeWithoutFolder.isEmpty() || QIcon::themeName() != themeWithoutFolder)
        return true;
    const QStringList places = QIcon::fallbackSearchPaths();
    return holds(places, icon + QLatin1String(".svg"))
           || holds(places, icon + QLatin1String(".png"))
           || holds(places, icon + QLatin1String(".xpm"));
}

StyleIcon::operator QIcon() const
{
    constexpr int BytesOfIcon = 1024;
    if (!m_themed.isNull())
        return m_themed;
    // One icon for all calls: what is kept of it elsewhere is found by its key.
    static Kept::Store<QString, QIcon> sIcons;
    if (const QIcon* known = sIcons.find(m_name))
        return *known;
    const QString path = QLatin1String(":/Icons/") + m_name + QLatin1String(".svg");
    const QIcon own = QResource(path).isValid() ? QIcon(path) : QIcon();
    if (own.isNull())
        reportMissing(m_name);
    return *sIcons.keep(m_name, std::make_unique<QIcon>(own), BytesOfIcon);
}

} // namespace BRELK::EmbeddedIcons
