#include "domain/Record.h"

#include "domain/RecordOwner.h"

#include <QLocale>

#include <cmath>
#include <cstring>
#include <memory>
#include <new>

namespace tabo {

namespace {

bool sameBits(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

const QList<Record *> &emptyList()
{
    static const QList<Record *> list;
    return list;
}

} // namespace

Record::Record(RecordOwner *store, EntityId entity, qint64 id)
    : m_num(new double[entityDesc(entity).numericCount]())
    , m_nullMask(~std::uint64_t(0))
    , m_numericCount(std::uint8_t(entityDesc(entity).numericCount))
    , m_entity(entity)
    , m_store(store)
    , m_desc(&entityDesc(entity))
    , m_id(id)
    , m_text(new QString[m_desc->textCount])
{
    const int toOne = m_desc->toOneCount();
    if (toOne > 0) {
        m_fk.reset(new qint64[toOne]());
        m_toOne.reset(new Record *[toOne]());
    }
}

Record::Record(InlineTag, void *values, void *texts, RecordOwner *store, EntityId entity, qint64 id)
    : m_num(static_cast<double *>(values))
    , m_nullMask(~std::uint64_t(0))
    , m_numericCount(std::uint8_t(entityDesc(entity).numericCount))
    , m_entity(entity)
    , m_inline(true)
    , m_store(store)
    , m_desc(&entityDesc(entity))
    , m_id(id)
    , m_text(static_cast<QString *>(texts))
{
    std::uninitialized_value_construct_n(m_num, m_desc->numericCount);
    std::uninitialized_default_construct_n(m_text, m_desc->textCount);
    const int toOne = m_desc->toOneCount();
    if (toOne > 0) {
        m_fk.reset(new qint64[toOne]());
        m_toOne.reset(new Record *[toOne]());
    }
}

std::size_t Record::inlineSize(const EntityDesc &desc)
{
    static_assert(sizeof(Record) % alignof(double) == 0);
    return sizeof(Record) + sizeof(double) * desc.numericCount;
}

std::size_t Record::inlineTextSize(const EntityDesc &desc)
{
    return sizeof(QString) * desc.textCount;
}

Record *Record::createInline(void *place, void *texts, RecordOwner *store, EntityId entity, qint64 id)
{
    // Numbers first: the hot ones then share a cache line at the start of
    // the block, and the record's own hot fields one more.
    auto *values = static_cast<double *>(place);
    auto *self = static_cast<std::byte *>(place) + sizeof(double) * entityDesc(entity).numericCount;
    return new (self) Record(InlineTag{}, values, texts, store, entity, id);
}

Record::~Record()
{
    if (m_inline) {
        std::destroy_n(m_text, m_desc->textCount);
    } else {
        delete[] m_num;
        delete[] m_text;
    }
}

bool Record::isNull(int attr) const
{
    const AttributeDesc &a = m_desc->attributes[attr];
    if (a.isText()) {
        ensureText(a.slot);
        return m_text[a.slot].isNull();
    }
    return (m_nullMask >> a.slot) & 1U;
}

double Record::numFromText(int attr) const
{
    bool ok = false;
    const double v = text(attr).toDouble(&ok);
    return ok ? v : 0.0;
}

Date Record::date(int attr) const
{
    const AttributeDesc &a = m_desc->attributes[attr];
    if (a.type != AttrType::Date || ((m_nullMask >> a.slot) & 1U))
        return {};
    return Date::fromReferenceSeconds(m_num[a.slot]);
}

QString Record::text(int attr) const
{
    const AttributeDesc &a = m_desc->attributes[attr];
    if (!a.isText())
        return isNull(attr) ? QString() : value(attr).toString();
    ensureText(a.slot);
    return m_text[a.slot];
}

void Record::assignNum(int attr, double value)
{
    const AttributeDesc &a = m_desc->attributes[attr];
    if (a.isText()) {
        setText(attr, QString::number(value, 'g', 17));
        return;
    }
    if (a.type == AttrType::Int)
        value = std::isfinite(value) ? std::trunc(value) : 0.0; // no undefined conversion
    else if (a.type == AttrType::Bool)
        value = value != 0.0 ? 1.0 : 0.0;
    else if (a.type == AttrType::Float)
        value = double(float(value));
    const bool wasNull = (m_nullMask >> a.slot) & 1U;
    if (!wasNull && sameBits(m_num[a.slot], value))
        return;
    noteOriginal(attr);
    m_num[a.slot] = value;
    m_nullMask &= ~(std::uint64_t(1) << a.slot);
    markChanged(attr);
}

void Record::setDate(int attr, const Date &value)
{
    if (!value.isValid()) {
        setNull(attr);
        return;
    }
    setNum(attr, value.referenceSeconds());
}

void Record::setText(int attr, const QString &value)
{
    const AttributeDesc &a = m_desc->attributes[attr];
    if (!a.isText()) {
        setValue(attr, value);
        return;
    }
    ensureText(a.slot);
    QString &slot = m_text[a.slot];
    // An empty string and an empty attribute read the same; keep "" distinct
    // from null only so that a record written with "" keeps it.
    if (slot == value && slot.isNull() == value.isNull())
        return;
    noteOriginal(attr);
    slot = value;
    markChanged(attr);
}

void Record::setNull(int attr)
{
    const AttributeDesc &a = m_desc->attributes[attr];
    if (a.isText()) {
        setText(attr, QString());
        return;
    }
    if ((m_nullMask >> a.slot) & 1U)
        return;
    noteOriginal(attr);
    m_nullMask |= std::uint64_t(1) << a.slot;
    m_num[a.slot] = 0.0;
    markChanged(attr);
}

QVariant Record::value(int attr) const
{
    const AttributeDesc &a = m_desc->attributes[attr];
    if (isNull(attr))
        return {};
    switch (a.type) {
    case AttrType::Text: return m_text[a.slot];
    case AttrType::Int: return int(m_num[a.slot]);
    case AttrType::Bool: return m_num[a.slot] != 0.0;
    case AttrType::Double: return m_num[a.slot];
    case AttrType::Float: return float(m_num[a.slot]);
    case AttrType::Date: return QVariant::fromValue(Date::fromReferenceSeconds(m_num[a.slot]));
    }
    return {};
}

bool Record::setValue(int attr, const QVariant &value)
{
    const AttributeDesc &a = m_desc->attributes[attr];
    if (!value.isValid() || value.isNull()) {
        setNull(attr);
        return true;
    }
    if (a.type == AttrType::Text) {
        if (value.metaType() == QMetaType::fromType<Date>())
            return false;
        setText(attr, value.toString());
        return true;
    }
    if (a.type == AttrType::Date) {
        if (value.metaType() == QMetaType::fromType<Date>()) {
            setDate(attr, value.value<Date>());
            return true;
        }
        if (value.metaType() == QMetaType::fromType<QDateTime>()) {
            setDate(attr, Date::fromDateTime(value.toDateTime()));
            return true;
        }
        if (value.metaType() == QMetaType::fromType<QString>()) {
            const Date d = Date::fromIso8601(value.toString());
            if (!d.isValid())
                return false;
            setDate(attr, d);
            return true;
        }
        return false;
    }
    if (value.metaType() == QMetaType::fromType<QString>()) {
        const QString s = value.toString().trimmed();
        if (a.type == AttrType::Bool) {
            if (s.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0
                || s.compare(QLatin1String("yes"), Qt::CaseInsensitive) == 0) {
                setBool(attr, true);
                return true;
            }
            if (s.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0
                || s.compare(QLatin1String("no"), Qt::CaseInsensitive) == 0) {
                setBool(attr, false);
                return true;
            }
        }
        bool ok = false;
        const double v = s.compare(QLatin1String("nan"), Qt::CaseInsensitive) == 0
                             ? std::nan("")
                             : QLocale::c().toDouble(s, &ok);
        if ((!ok && !std::isnan(v)) || !fitsAttribute(a.type, v))
            return false;
        setNum(attr, v);
        return true;
    }
    if (value.metaType() == QMetaType::fromType<Date>())
        return false;
    bool ok = false;
    const double v = value.toDouble(&ok);
    if (!ok || !fitsAttribute(a.type, v))
        return false;
    setNum(attr, v);
    return true;
}

QVariant Record::value(QStringView key) const
{
    const int attr = m_desc->attributeIndex(key);
    return attr < 0 ? QVariant() : value(attr);
}

bool Record::setValue(QStringView key, const QVariant &value)
{
    const int attr = m_desc->attributeIndex(key);
    return attr >= 0 && setValue(attr, value);
}

Record *Record::cloneBySkippingAttributes(const QStringList &skip) const
{
    if (!m_store)
        return nullptr;
    Record *copy = m_store->insert(m_entity);
    for (int a = 0; a < int(m_desc->attributes.size()); ++a)
        if (!skip.contains(m_desc->attributes[a].name))
            copy->setValue(a, value(a));
    return copy;
}

int Record::toOneSlot(int rel) const
{
    int slot = 0;
    for (int i = 0; i < rel; ++i)
        slot += m_desc->relations[i].toMany ? 0 : 1;
    return slot;
}

Record *Record::toOne(int rel) const
{
    const int slot = toOneSlot(rel);
    if (!m_toOne[slot] && m_fk[slot] != 0 && m_store)
        m_toOne[slot] = m_store->byId(m_desc->relations[rel].target, m_fk[slot]);
    return m_toOne[slot];
}

void Record::setToOne(int rel, Record *target)
{
    const RelationDesc &r = m_desc->relations[rel];
    const int slot = toOneSlot(rel);
    Record *old = toOne(rel);
    if (old == target)
        return;
    const auto inverseOf = [&](Record *owner) -> QList<Record *> * {
        const int inv = owner->desc().relationIndex(r.inverseName);
        if (inv < 0 || !owner->m_toMany || !owner->m_toMany[inv])
            return nullptr; // not loaded: it will be read from the store
        return owner->m_toMany[inv].get();
    };
    if (old)
        if (auto *list = inverseOf(old))
            list->removeOne(this);
    m_toOne[slot] = target;
    m_fk[slot] = target ? target->id() : 0;
    if (target)
        if (auto *list = inverseOf(target))
            list->append(this);
    m_changed.set(m_desc->attributes.size() + slot);
    if (m_store)
        m_store->noteChanged(this);
}

const QList<Record *> &Record::toMany(int rel) const
{
    if (!m_desc->relations[rel].toMany)
        return emptyList();
    if (!m_toMany)
        m_toMany.reset(new std::unique_ptr<QList<Record *>>[m_desc->relations.size()]);
    if (!m_toMany[rel]) {
        if (!m_store)
            m_toMany[rel] = std::make_unique<QList<Record *>>();
        else
            m_toMany[rel].reset(m_store->loadToMany(this, rel));
    }
    return *m_toMany[rel];
}

void Record::ensureText(int slot) const
{
    if (m_textLoaded || ((m_desc->listTextMask >> slot) & 1U))
        return;
    if (m_store)
        m_store->faultText(const_cast<Record *>(this));
    m_textLoaded = true;
}

void Record::noteOriginal(int attr)
{
    // A save checks that nobody else changed what this one is about to
    // overwrite, so the value read from the store is kept until then.
    if (m_store && !m_inserted && !m_changed.test(attr))
        m_store->rememberOriginal(this, attr);
}

void Record::markChanged(int attr)
{
    m_changed.set(attr);
    if (m_store)
        m_store->noteChanged(this);
}

} // namespace tabo
