#include "store/ObjectDictionary.h"

#include "domain/Record.h"
#include "domain/RecordOwner.h"

#include <array>
#include <vector>

namespace tabo::ObjectDictionary {

namespace {

// Records of an entity without a class of their own carry the generic one.
const QString kGenericClass = QStringLiteral("NSManagedObject");

// "dAtEaTtr:" + name per attribute, built once: a bulk export writes
// several dates per record.
const QString &datedKey(const EntityDesc &desc, int attr)
{
    static const auto keys = [] {
        std::array<std::vector<QString>, kEntityCount> all;
        for (int e = 0; e < kEntityCount; ++e)
            for (const AttributeDesc &a : entityDesc(EntityId(e)).attributes)
                all[e].push_back(kDatePrefix + a.name);
        return all;
    }();
    return keys[int(desc.id)][attr];
}

QVariant plainValue(const Record &record, int attr)
{
    const AttributeDesc &a = record.desc().attributes[attr];
    const double v = record.num(attr);
    switch (a.type) {
    case AttrType::Int:
        // A stored integer is whole and finite but may exceed 64 bits.
        return qint64(v >= -9.2e18 && v <= 9.2e18 ? qint64(v) : 0);
    case AttrType::Bool: return v != 0.0;
    case AttrType::Float: return double(float(v));
    case AttrType::Double:
    case AttrType::Date: return v;
    case AttrType::Text: break;
    }
    return {};
}

bool isNumber(const QVariant &value)
{
    switch (value.metaType().id()) {
    case QMetaType::Double:
    case QMetaType::Float:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return true;
    default:
        return false;
    }
}

// The entity a nested dictionary would create, or nullptr.
const EntityDesc *entityOf(const QVariant &dictionary)
{
    if (dictionary.metaType() != QMetaType::fromType<QVariantMap>())
        return nullptr;
    return entityDescByName(dictionary.toMap().value(kClassKey).toString());
}

void assignToOne(Record &record, int rel, const QVariant &value)
{
    const RelationDesc &r = record.desc().relations[rel];
    const EntityDesc *target = entityOf(value);
    if (r.toMany || !target || target->id != r.target || !record.store())
        return;
    if (Record *related = createManagedObjectFromDictionary(value.toMap(), *record.store()))
        record.setToOne(rel, related);
}

void attachToMany(Record &record, int rel, const QVariantList &elements)
{
    const RelationDesc &r = record.desc().relations[rel];
    if (!r.toMany || !record.store())
        return;
    const int inverse = entityDesc(r.target).relationIndex(r.inverseName);
    for (const QVariant &element : elements) {
        const EntityDesc *target = entityOf(element);
        if (!target || target->id != r.target || inverse < 0)
            continue;
        if (Record *member = createManagedObjectFromDictionary(element.toMap(), *record.store()))
            member->setToOne(inverse, &record);
    }
}

} // namespace

QVariantMap toDictionaryWithTraversalHistory(const Record &record, QList<const Record *> *history)
{
    QList<const Record *> ownHistory;
    const bool topLevel = history == nullptr;
    if (topLevel)
        history = &ownHistory;
    history->append(&record);

    const EntityDesc &desc = record.desc();
    QVariantMap dictionary;
    dictionary.insert(kClassKey, desc.id == EntityId::Template ? kGenericClass : desc.name);
    for (int a = 0; a < int(desc.attributes.size()); ++a) {
        const AttributeDesc &attr = desc.attributes[a];
        if (!attr.exchanged)
            continue;
        if (attr.isText()) {
            const QString text = record.text(a);
            if (!text.isNull())
                dictionary.insert(attr.name, text);
        } else if (!record.isNull(a)) {
            dictionary.insert(attr.type == AttrType::Date ? datedKey(desc, a) : attr.name, plainValue(record, a));
        }
    }
    for (int r = 0; r < int(desc.relations.size()); ++r) {
        const RelationDesc &rel = desc.relations[r];
        if (rel.toMany) {
            QVariantList members;
            for (const Record *member : record.toMany(r))
                if (!history->contains(member))
                    members.append(toDictionaryWithTraversalHistory(*member, history));
            dictionary.insert(rel.name, members);
        } else if (const Record *related = record.toOne(r); related && !history->contains(related)) {
            dictionary.insert(rel.name, toDictionaryWithTraversalHistory(*related, history));
        }
    }

    if (topLevel)
        history->clear();
    return dictionary;
}

QVariantMap toDictionary(const Record &record)
{
    return toDictionaryWithTraversalHistory(record, nullptr);
}

void populateFromDictionary(Record &record, const QVariantMap &dictionary)
{
    const EntityDesc &desc = record.desc();
    for (auto it = dictionary.cbegin(); it != dictionary.cend(); ++it) {
        const QString &key = it.key();
        const QVariant &value = it.value();
        if (key == kClassKey)
            continue;
        if (value.metaType() == QMetaType::fromType<QVariantMap>()) {
            if (const int rel = desc.relationIndex(key); rel >= 0)
                assignToOne(record, rel, value);
            continue;
        }
        if (value.metaType() == QMetaType::fromType<QVariantList>()) {
            if (const int rel = desc.relationIndex(key); rel >= 0)
                attachToMany(record, rel, value.toList());
            continue;
        }
        if (!value.isValid() || value.isNull())
            continue;
        const QVariant decoded = decodedValueFrom(value, key);
        // Files carry dates under the prefixed key, which names no attribute:
        // an unknown prefixed key reaches the attribute without its prefix.
        if (desc.attributeIndex(key) >= 0)
            record.setValue(key, decoded);
        else if (key.startsWith(kDatePrefix))
            record.setValue(QStringView(key).mid(kDatePrefix.size()), decoded);
    }
}

Record *createManagedObjectFromDictionary(const QVariantMap &dictionary, RecordOwner &store)
{
    const EntityDesc *desc = entityDescByName(dictionary.value(kClassKey).toString());
    if (!desc)
        return nullptr;
    Record *record = store.insert(desc->id);
    populateFromDictionary(*record, dictionary);
    return record;
}

QVariant decodedValueFrom(const QVariant &value, const QString &key)
{
    if (key.startsWith(kDatePrefix) && isNumber(value))
        return QVariant::fromValue(Date::fromReferenceSeconds(value.toDouble()));
    return value;
}

} // namespace tabo::ObjectDictionary
