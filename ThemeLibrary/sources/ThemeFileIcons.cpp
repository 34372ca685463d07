#include "ThemeFileIcons.h"

#include "AskedInDevicePixels.h"
#include "ThemeResources_p.h"

#include <QDataStream>
#include <QIconEngine>

namespace BRELK::ThemeFileIcons {

namespace {

int s_searches = 0;

/// What an icon made from the file would do, and has in streams.
class FileIconEngine : public QIconEngine
{
public:
    FileIconEngine(const QString& name, const QString& path) : m_name(name), m_icon(path) { }

    QIconEngine* clone() const override { return new FileIconEngine(*this); }

    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) const override
    {
        return icon().availableSizes(mode, state);
    }

    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        const AskedInDevicePixels asked;
        return icon().actualSize(size, mode, state);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        const AskedInDevicePixels asked;
        return icon().pixmap(size, mode, state);
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        icon().paint(painter, rect, Qt::AlignCenter, mode, state);
    }

    void addPixmap(const QPixmap& pixmap, QIcon::Mode mode, QIcon::State state) override
    {
        beOwn().addPixmap(pixmap, mode, state);
    }

    void addFile(const QString& file, const QSize& size, QIcon::Mode mode,
                 QIcon::State state) override
    {
        beOwn().addFile(file, size, mode, state);
    }

    QString key() const override
    {
        QString key;
        QDataStream stream(written(QDataStream::Qt_DefaultCompiledVersion));
        stream >> key;
        return key;
    }

    bool write(QDataStream& out) const override
    {
        QDataStream stream(written(out.version()));
        stream.setVersion(out.version());
        QString key;
        stream >> key; // has been written before this is called
        const QByteArray rest = stream.device()->readAll();
        return out.writeRawData(rest.constData(), rest.size()) == rest.size();
    }

    void virtual_hook(int id, void* data) override
    {
        if (id == IsNullHook)
            *static_cast<bool*>(data) = icon().isNull();
        else
            QIconEngine::virtual_hook(id, data);
    }

private:
    const QIcon& icon() const
    {
        if (m_search == s_searches || m_name.isEmpty())
            return m_icon;
        m_search = s_searches;
        if (const QString path = ThemeResources::findIconPath(m_name); !path.isEmpty())
            m_icon = QIcon(path);
        return m_icon;
    }

    QIcon& beOwn()
    {
        icon();
        m_name.clear();
        return m_icon;
    }

    QByteArray written(int version) const
    {
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        stream.setVersion(version);
        stream << icon();
        return bytes;
    }

    QString m_name; ///< empty when the icon follows no more
    mutable QIcon m_icon;
    mutable int m_search = s_searches;
};

} // namespace

QIcon icon(const QString& name, const QString& path)
{
    return QIcon(new FileIconEngine(name, path));
}

void lookAgain()
{
    ++s_searches;
}

} // namespace BRELK::ThemeFileIcons
