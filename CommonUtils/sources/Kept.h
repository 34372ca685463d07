#pragma once

#include "CommonUtilsGlobal.h"

#include <QHash>

#include <memory>

/// What is kept because finding it is quicker than making it anew: small drawings, laid-out lines,
/// recolored icons. All of it together stays within one bound in bytes, and what was used longest
/// ago goes first. On the GUI thread only.
///
/// Nothing kept outlives the application object, or the fonts that it knows.
namespace BRELK::Kept {

/// Lets go of everything that is kept.
VARN_COMMON_UTILS_EXPORT void forgetAll();

/// Something that is kept until it is deleted, by its store or for want of room.
class VARN_COMMON_UTILS_EXPORT Item
{
public:
    explicit Item(qint64 bytes);
    virtual ~Item();

    /// Makes this the last to go.
    void use();

    Q_DISABLE_COPY_MOVE(Item)

private:
    friend class Shelf;

    qint64 m_bytes;
    Item* m_newer = nullptr;
    Item* m_older = nullptr;
};

/// Things of one kind. A key holds all that they depend on.
template <class Key, class Value>
class Store
{
public:
    Store() = default;

    ~Store() { clear(); }

    Q_DISABLE_COPY_MOVE(Store)

    /// What is kept under `key`, until something else is kept; null if there is nothing.
    Value* find(const Key& key) const
    {
        Slot* slot = m_slots.value(key);
        if (!slot)
            return nullptr;
        slot->use();
        return slot->value.get();
    }

    /// Keeps `value`, which weighs about `bytes`, and returns it.
    Value* keep(const Key& key, std::unique_ptr<Value> value, qint64 bytes)
    {
        delete m_slots.value(key);
        auto* slot = new Slot(*this, key, std::move(value), bytes);
        m_slots.insert(key, slot);
        return slot->value.get();
    }

    void clear()
    {
        while (!m_slots.isEmpty())
            delete *m_slots.begin();
    }

private:
    struct Slot : Item
    {
        Slot(Store& keptIn, const Key& itsKey, std::unique_ptr<Value> kept, qint64 bytes)
            : Item(bytes + qint64(sizeof(Slot) + sizeof(Value)))
            , store(keptIn)
            , key(itsKey)
            , value(std::move(kept))
        { }

        ~Slot() override { store.m_slots.remove(key); }

        Store& store;
        Key key;
        std::unique_ptr<Value> value;
    };

    QHash<Key, Slot*> m_slots;
};

} // namespace BRELK::Kept
