#pragma once

#include "base/Date.h"
#include "domain/EntityModel.h"

#include <QList>
#include <QStringList>
#include <QString>
#include <QVariant>

#include <bit>
#include <bitset>
#include <cstdint>
#include <memory>

namespace tabo {

class RecordOwner;
class Store;

// One stored record of any entity. Attributes are addressed by index (the
// entity's Attr enum) or by key name; an empty attribute reads as 0, false,
// "" or an invalid Date. Numbers, booleans and dates live in one array of
// doubles, texts in another. Records are owned by their Store.
class Record
{
public:
    Record(RecordOwner *store, EntityId entity, qint64 id);
    ~Record();

    // Bytes a record of the entity needs with its numbers placed right after
    // it, and the bytes of its texts.
    static std::size_t inlineSize(const EntityDesc &desc);
    static std::size_t inlineTextSize(const EntityDesc &desc);
    // Constructs a record at `place` (inlineSize() bytes) with its texts at
    // `texts` (inlineTextSize() bytes): the store lays a whole list out this
    // way so that walking the list walks memory front to back.
    static Record *createInline(void *place, void *texts, RecordOwner *store, EntityId entity, qint64 id);
    Record(const Record &) = delete;
    Record &operator=(const Record &) = delete;

    EntityId entityId() const { return m_entity; }
    const EntityDesc &desc() const { return *m_desc; }
    qint64 id() const { return m_id; }
    RecordOwner *store() const { return m_store; }

    // Typed reads.
    bool isNull(int attr) const;
    double num(int attr) const
    {
        if (attr >= m_numericCount)
            return numFromText(attr);
        return ((m_nullMask >> attr) & 1U) ? 0.0 : m_num[attr];
    }
    int integer(int attr) const
    {
        const double v = num(attr);
        return v > -2147483649.0 && v < 2147483648.0 ? int(v) : 0; // NaN and out of range read 0
    }
    bool boolean(int attr) const { return num(attr) != 0.0; }
    float single(int attr) const { return float(num(attr)); }
    Date date(int attr) const;
    QString text(int attr) const;

    // Typed writes; writing the value already held changes nothing.
    void setNum(int attr, double value)
    {
        // The summary pass writes many values it already holds: decide those
        // inline. A stored value is already in its type's form, so equal bits
        // mean no change whatever the type.
        if (attr < m_numericCount && !((m_nullMask >> attr) & 1U)
            && std::bit_cast<std::uint64_t>(m_num[attr]) == std::bit_cast<std::uint64_t>(value))
            return;
        assignNum(attr, value);
    }
    void setInt(int attr, int value) { setNum(attr, double(value)); }
    void setBool(int attr, bool value) { setNum(attr, value ? 1.0 : 0.0); }
    void setSingle(int attr, float value) { setNum(attr, double(value)); }
    void setDate(int attr, const Date &value);
    void setText(int attr, const QString &value);
    void setNull(int attr);

    // Key-name access. value() gives an invalid QVariant for an empty attribute,
    // otherwise QString, int, bool, double, float or tabo::Date by the type.
    QVariant value(int attr) const;
    bool setValue(int attr, const QVariant &value); // false when it cannot convert
    QVariant value(QStringView key) const;
    bool setValue(QStringView key, const QVariant &value); // false for unknown keys

    // Relationships (index into desc().relations).
    Record *toOne(int rel) const;
    void setToOne(int rel, Record *target); // keeps the inverse to-many in step
    const QList<Record *> &toMany(int rel) const;

    // A new record of the same entity in the same store with every attribute
    // not named in `skip` copied; relationships are not copied.
    Record *cloneBySkippingAttributes(const QStringList &skip) const;
    Record *clone() const { return cloneBySkippingAttributes({}); }

    bool isInserted() const { return m_inserted; }
    bool isDeleted() const { return m_deleted; }
    bool isInline() const { return m_inline; }
    bool hasChanges() const { return m_inserted || m_deleted || m_changed.any(); }

private:
    friend class Store;
    using ChangeSet = std::bitset<128>;

    double numFromText(int attr) const;
    void assignNum(int attr, double value);
    void ensureText(int slot) const;
    void noteOriginal(int attr);
    void markChanged(int attr);
    int toOneSlot(int rel) const;
    struct InlineTag {};
    Record(InlineTag, void *values, void *texts, RecordOwner *store, EntityId entity, qint64 id);

    // What the summary pass reads sits in the first bytes.
    double *m_num;
    std::uint64_t m_nullMask; // bit per numeric attribute
    std::uint8_t m_numericCount;
    EntityId m_entity;
    bool m_inserted = false;
    bool m_deleted = false;
    bool m_inDirty = false;
    bool m_inline = false;
    mutable bool m_textLoaded = true;
    RecordOwner *m_store;
    const EntityDesc *m_desc;
    qint64 m_id;
    QString *m_text;
    ChangeSet m_changed;
    // To-one: foreign key and resolved record per to-one relation.
    std::unique_ptr<qint64[]> m_fk;
    mutable std::unique_ptr<Record *[]> m_toOne;
    // To-many: loaded on first use.
    mutable std::unique_ptr<std::unique_ptr<QList<Record *>>[]> m_toMany;
};

} // namespace tabo
