#include "store/KeyedArchive.h"

#include "base/Date.h"
#include "store/PropertyList.h"

#include <QHash>
#include <QStringList>

#include <QCoreApplication>
#include <vector>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(KeyedArchive)
};
} // namespace

namespace tabo::KeyedArchive {

namespace {

using plist::Kind;
using plist::Uid;

constexpr int kMaxDepth = 256;

const QString kNull = QStringLiteral("$null");
const QString kClass = QStringLiteral("$class");
const QString kKeys = QStringLiteral("NS.keys");
const QString kObjects = QStringLiteral("NS.objects");

QVariant uid(quint64 index)
{
    return QVariant::fromValue(Uid { index });
}

class Archiver
{
public:
    Result<QByteArray> archive(const QVariant &root);

private:
    // Index of the value in $objects; 0 ("$null") after a failure.
    quint64 encode(const QVariant &value, int depth);
    quint64 append(const QVariant &object)
    {
        m_objects.append(object);
        return quint64(m_objects.size() - 1);
    }
    quint64 classFor(const QString &name);

    QVariantList m_objects { kNull };
    QHash<QString, quint64> m_strings; // the real archiver stores equal strings once
    QHash<QString, quint64> m_classes;
    QString m_error;
};

quint64 Archiver::classFor(const QString &name)
{
    auto it = m_classes.constFind(name);
    if (it != m_classes.constEnd())
        return *it;
    const quint64 index = append(QVariantMap { { QStringLiteral("$classname"), name },
        { QStringLiteral("$classes"), QStringList { name, QStringLiteral("NSObject") } } });
    m_classes.insert(name, index);
    return index;
}

quint64 Archiver::encode(const QVariant &raw, int depth)
{
    if (!m_error.isEmpty())
        return 0;
    if (depth > kMaxDepth) {
        m_error = Tr::tr("nested deeper than %1 levels").arg(kMaxDepth);
        return 0;
    }
    const QVariant value = plist::canonical(raw);
    switch (plist::kindOf(value)) {
    case Kind::Unsupported:
    case Kind::Uid:
        m_error = Tr::tr("cannot archive a value of type %1")
                      .arg(QString::fromLatin1(raw.isValid() ? raw.typeName() : "(none)"));
        return 0;
    case Kind::String: {
        const QString text = value.toString();
        auto it = m_strings.constFind(text);
        if (it != m_strings.constEnd())
            return *it;
        const quint64 index = append(text);
        m_strings.insert(text, index);
        return index;
    }
    case Kind::Date: {
        const Date date = value.value<Date>();
        if (!date.isValid()) {
            m_error = Tr::tr("invalid date");
            return 0;
        }
        const quint64 index = append({});
        m_objects[qsizetype(index)] = QVariantMap { { QStringLiteral("NS.time"), date.referenceSeconds() },
            { kClass, uid(classFor(QStringLiteral("NSDate"))) } };
        return index;
    }
    case Kind::Array: {
        // The container takes its index before its contents, as the root must be 1.
        const quint64 index = append({});
        QVariantList uids;
        for (const QVariant &item : value.toList())
            uids.append(uid(encode(item, depth + 1)));
        m_objects[qsizetype(index)]
            = QVariantMap { { kObjects, uids }, { kClass, uid(classFor(QStringLiteral("NSArray"))) } };
        return index;
    }
    case Kind::Dictionary: {
        const quint64 index = append({});
        QVariantList keys, values;
        const QVariantMap map = value.toMap();
        for (auto it = map.begin(); it != map.end(); ++it) {
            keys.append(uid(encode(it.key(), depth + 1)));
            values.append(uid(encode(it.value(), depth + 1)));
        }
        m_objects[qsizetype(index)] = QVariantMap { { kKeys, keys }, { kObjects, values },
            { kClass, uid(classFor(QStringLiteral("NSDictionary"))) } };
        return index;
    }
    case Kind::Integer:
    case Kind::Real:
    case Kind::Boolean:
    case Kind::Data:
        return append(value);
    }
    return 0;
}

Result<QByteArray> Archiver::archive(const QVariant &root)
{
    const quint64 rootIndex = encode(root, 0);
    if (!m_error.isEmpty())
        return Error::file(m_error);
    const QVariantMap top { { QStringLiteral("$version"), 100000 },
        { QStringLiteral("$archiver"), QStringLiteral("NSKeyedArchiver") },
        { QStringLiteral("$top"), QVariantMap { { QStringLiteral("root"), uid(rootIndex) } } },
        { QStringLiteral("$objects"), m_objects } };
    return plist::write(top, plist::Format::Binary);
}

// A UID, or its XML spelling {"CF$UID": n}.
bool uidOf(const QVariant &value, quint64 &index)
{
    if (value.typeId() == qMetaTypeId<Uid>()) {
        index = value.value<Uid>().value;
        return true;
    }
    if (value.typeId() != QMetaType::QVariantMap)
        return false;
    const QVariantMap map = value.toMap();
    const QVariant n = map.value(QStringLiteral("CF$UID"));
    if (map.size() != 1 || n.typeId() != QMetaType::LongLong || n.toLongLong() < 0)
        return false;
    index = quint64(n.toLongLong());
    return true;
}

enum class ClassKind { Unknown, Dictionary, Array, String, Date, Data };

ClassKind classKindOf(const QString &name)
{
    static const QHash<QString, ClassKind> kinds {
        { QStringLiteral("NSDictionary"), ClassKind::Dictionary },
        { QStringLiteral("NSMutableDictionary"), ClassKind::Dictionary },
        { QStringLiteral("NSArray"), ClassKind::Array },
        { QStringLiteral("NSMutableArray"), ClassKind::Array },
        { QStringLiteral("NSSet"), ClassKind::Array },
        { QStringLiteral("NSMutableSet"), ClassKind::Array },
        { QStringLiteral("NSOrderedSet"), ClassKind::Array },
        { QStringLiteral("NSMutableOrderedSet"), ClassKind::Array },
        { QStringLiteral("NSString"), ClassKind::String },
        { QStringLiteral("NSMutableString"), ClassKind::String },
        { QStringLiteral("NSDate"), ClassKind::Date },
        { QStringLiteral("NSData"), ClassKind::Data },
        { QStringLiteral("NSMutableData"), ClassKind::Data },
    };
    return kinds.value(name, ClassKind::Unknown);
}

class Unarchiver
{
public:
    Result<QVariant> unarchive(const QByteArray &data);

private:
    // False for malformed input; `present` is false for "$null", NSNull and
    // objects of classes we skip.
    bool resolve(const QVariant &reference, int depth, QVariant &out, bool &present);
    bool object(quint64 index, int depth, QVariant &out, bool &present);
    bool decode(const QVariantMap &object, ClassKind kind, int depth, QVariant &out);
    bool entries(const QVariantList &keys, const QVariantList &values, int depth, QVariantMap &out);
    bool fail(const QString &reason)
    {
        if (m_error.isEmpty())
            m_error = reason;
        return false;
    }
    bool classOf(const QVariantMap &object, ClassKind &kind);

    enum class State : quint8 { Unread, Reading, Read };
    QVariantList m_objects;
    std::vector<State> m_state;
    QHash<quint64, QVariant> m_values; // containers, read once even when shared
    QHash<quint64, quint64> m_weights;
    quint64 m_lastWeight = 0;
    quint64 m_maxWeight = 0;
    QString m_error;
};

bool Unarchiver::classOf(const QVariantMap &object, ClassKind &kind)
{
    quint64 index = 0;
    if (!uidOf(object.value(kClass), index) || index >= quint64(m_objects.size()))
        return fail(Tr::tr("object without a class"));
    const QVariant cls = m_objects.at(qsizetype(index));
    if (cls.typeId() != QMetaType::QVariantMap)
        return fail(Tr::tr("damaged class entry"));
    const QVariantMap map = cls.toMap();
    // A subclass we do not know still decodes as the first known class it lists.
    QVariantList names { map.value(QStringLiteral("$classname")) };
    names += map.value(QStringLiteral("$classes")).toList();
    kind = ClassKind::Unknown;
    for (const QVariant &name : std::as_const(names)) {
        if (name.typeId() == QMetaType::QString && (kind = classKindOf(name.toString())) != ClassKind::Unknown)
            break;
    }
    return true;
}

bool Unarchiver::resolve(const QVariant &reference, int depth, QVariant &out, bool &present)
{
    quint64 index = 0;
    if (!uidOf(reference, index))
        return fail(Tr::tr("expected an object reference"));
    return object(index, depth, out, present);
}

bool Unarchiver::object(quint64 index, int depth, QVariant &out, bool &present)
{
    m_lastWeight = 1;
    present = false;
    if (index >= quint64(m_objects.size()))
        return fail(Tr::tr("reference to a missing object"));
    if (index == 0)
        return true;
    if (depth > kMaxDepth)
        return fail(Tr::tr("nested deeper than %1 levels").arg(kMaxDepth));
    switch (m_state[index]) {
    case State::Reading:
        return fail(Tr::tr("cyclic object reference"));
    case State::Read:
        present = m_values.contains(index);
        out = m_values.value(index);
        m_lastWeight = m_weights.value(index, 1);
        return true;
    case State::Unread:
        break;
    }
    const QVariant &stored = m_objects.at(qsizetype(index));
    switch (plist::kindOf(stored)) {
    case Kind::Dictionary:
        break;
    case Kind::Array:
    case Kind::Uid:
    case Kind::Unsupported:
        return fail(Tr::tr("malformed object"));
    default: // plain strings, numbers, booleans, data, dates
        out = stored;
        present = true;
        return true;
    }
    const QVariantMap map = stored.toMap();
    ClassKind kind;
    if (!classOf(map, kind))
        return false;
    m_state[index] = State::Reading;
    m_lastWeight = 1;
    if (kind != ClassKind::Unknown) {
        if (!decode(map, kind, depth, out))
            return false;
        present = true;
        m_values.insert(index, out);
        m_weights.insert(index, m_lastWeight);
    }
    m_state[index] = State::Read;
    return true;
}

bool Unarchiver::entries(const QVariantList &keys, const QVariantList &values, int depth, QVariantMap &out)
{
    if (keys.size() != values.size())
        return fail(Tr::tr("dictionary with unequal keys and values"));
    quint64 weight = 1;
    for (qsizetype i = 0; i < keys.size(); ++i) {
        QVariant key, value;
        bool keyPresent = false, valuePresent = false;
        if (!resolve(keys.at(i), depth + 1, key, keyPresent))
            return false;
        if (!resolve(values.at(i), depth + 1, value, valuePresent))
            return false;
        weight += m_lastWeight + 1;
        // Keys other than strings (numbers, say) have no place in our maps.
        if (keyPresent && valuePresent && key.typeId() == QMetaType::QString)
            out.insert(key.toString(), value);
        if (weight > m_maxWeight)
            return fail(Tr::tr("too many values"));
    }
    m_lastWeight = weight;
    return true;
}

bool Unarchiver::decode(const QVariantMap &object, ClassKind kind, int depth, QVariant &out)
{
    switch (kind) {
    case ClassKind::Dictionary: {
        QVariantMap map;
        if (!entries(object.value(kKeys).toList(), object.value(kObjects).toList(), depth, map))
            return false;
        out = map;
        return true;
    }
    case ClassKind::Array: {
        QVariantList list;
        quint64 weight = 1;
        for (const QVariant &reference : object.value(kObjects).toList()) {
            QVariant item;
            bool present = false;
            if (!resolve(reference, depth + 1, item, present))
                return false;
            weight += m_lastWeight;
            if (weight > m_maxWeight)
                return fail(Tr::tr("too many values"));
            if (present)
                list.append(item);
        }
        m_lastWeight = weight;
        out = list;
        return true;
    }
    case ClassKind::String:
        out = object.value(QStringLiteral("NS.string"));
        return out.typeId() == QMetaType::QString || fail(Tr::tr("damaged string"));
    case ClassKind::Date: {
        const QVariant time = object.value(QStringLiteral("NS.time"));
        const Kind timeKind = plist::kindOf(time);
        if (timeKind != Kind::Real && timeKind != Kind::Integer)
            return fail(Tr::tr("damaged date"));
        out = QVariant::fromValue(Date::fromReferenceSeconds(time.toDouble()));
        return true;
    }
    case ClassKind::Data:
        out = object.value(QStringLiteral("NS.data"));
        return out.typeId() == QMetaType::QByteArray || fail(Tr::tr("damaged data"));
    case ClassKind::Unknown:
        break;
    }
    return false;
}

Result<QVariant> Unarchiver::unarchive(const QByteArray &data)
{
    const Result<QVariant> read = plist::read(data);
    const QVariant archive = read.value();
    const QVariantMap map = archive.toMap();
    const QVariant objects = map.value(QStringLiteral("$objects"));
    const QVariant top = map.value(QStringLiteral("$top"));
    QVariant result;
    if (!read) {
        fail(read.error().text);
    } else if (archive.typeId() != QMetaType::QVariantMap || objects.typeId() != QMetaType::QVariantList
        || top.typeId() != QMetaType::QVariantMap) {
        fail(Tr::tr("not a keyed archive"));
    } else {
        m_objects = objects.toList();
        m_state.assign(size_t(m_objects.size()), State::Unread);
        // Shared objects are read once, but whoever walks the result sees them
        // expanded; this bounds that expansion.
        m_maxWeight = std::max<quint64>(quint64(1) << 20, 16 * quint64(data.size()));
        const QVariantMap roots = top.toMap();
        bool present = false;
        if (roots.contains(QStringLiteral("root"))) {
            if (resolve(roots.value(QStringLiteral("root")), 0, result, present) && !present)
                fail(Tr::tr("the archive's root is empty or of an unknown class"));
        } else {
            // Archives written key by key rather than with one root object.
            QVariantMap values;
            for (auto it = roots.begin(); it != roots.end() && m_error.isEmpty(); ++it) {
                QVariant value;
                if (resolve(it.value(), 0, value, present) && present)
                    values.insert(it.key(), value);
            }
            result = values;
        }
    }
    if (!m_error.isEmpty())
        return Error::file(m_error);
    return result;
}

} // namespace

Result<QByteArray> archive(const QVariant &root)
{
    return Archiver().archive(root);
}

Result<QVariant> unarchive(const QByteArray &data)
{
    return Unarchiver().unarchive(data);
}

} // namespace tabo::KeyedArchive
