#include "Kept.h"

#include <QGuiApplication>

namespace BRELK::Kept {

namespace {

constexpr qint64 MostBytes = 8 << 20;

/// Larger things would drive out too many others: only the newest of them is kept, beside the rest.
constexpr qint64 LargestBytes = MostBytes / 8;

} // namespace

/// All that is kept, in the order of its last use.
class Shelf
{
public:
    void add(Item& item)
    {
        if (item.m_bytes > LargestBytes) {
            delete m_large;
            m_large = &item;
            return;
        }
        link(item);
        m_bytes += item.m_bytes;
        while (m_bytes > MostBytes)
            delete m_oldest;
    }

    void remove(Item& item)
    {
        if (m_large == &item) {
            m_large = nullptr;
            return;
        }
        unlink(item);
        m_bytes -= item.m_bytes;
    }

    void use(Item& item)
    {
        if (m_newest == &item || m_large == &item)
            return;
        unlink(item);
        link(item);
    }

    void clear()
    {
        delete m_large;
        while (m_oldest)
            delete m_oldest;
    }

private:
    void link(Item& item)
    {
        item.m_newer = nullptr;
        item.m_older = m_newest;
        (m_newest ? m_newest->m_newer : m_oldest) = &item;
        m_newest = &item;
    }

    void unlink(Item& item)
    {
        (item.m_newer ? item.m_newer->m_older : m_newest) = item.m_older;
        (item.m_older ? item.m_older->m_newer : m_oldest) = item.m_newer;
    }

    Item* m_newest = nullptr;
    Item* m_oldest = nullptr;
    Item* m_large = nullptr;
    qint64 m_bytes = 0;
};

namespace {

// It is never destroyed before a store, nor an application, that is static itself.
Shelf s_shelf;
const QGuiApplication* s_application = nullptr;

void forgetApplication()
{
    forgetAll();
    s_application = nullptr;
}

void watchApplication()
{
    const auto* application = qobject_cast<QGuiApplication*>(QCoreApplication::instance());
    if (s_application == application)
        return;
    s_application = application;
    qAddPostRoutine(forgetApplication);
    QObject::connect(application, &QGuiApplication::fontDatabaseChanged, application, forgetAll);
}

} // namespace

void forgetAll()
{
    s_shelf.clear();
}

Item::Item(qint64 bytes) : m_bytes(bytes)
{
    watchApplication();
    s_shelf.add(*this);
}

Item::~Item()
{
    s_shelf.remove(*this);
}

void Item::use()
{
    s_shelf.use(*this);
}

} // namespace BRELK::Kept
