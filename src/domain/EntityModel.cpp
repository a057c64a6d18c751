#include "domain/EntityModel.h"

#include <cmath>

#include <array>

namespace tabo {

namespace {

struct Builder {
    EntityDesc desc;
    void attr(const char *name, AttrType type)
    {
        // Numbers come before texts in every entity, so a number's slot is its
        // attribute index and records read it without a lookup.
        Q_ASSERT(type == AttrType::Text || desc.textCount == 0);
        const int slot = type == AttrType::Text ? desc.textCount++ : desc.numericCount++;
        desc.attributeByName.insert(QString::fromLatin1(name), int(desc.attributes.size()));
        desc.attributes.push_back({QString::fromLatin1(name), type, slot});
    }
    void rel(const char *name, EntityId target, bool toMany, const char *inverse)
    {
        desc.relationByName.insert(QString::fromLatin1(name), int(desc.relations.size()));
        desc.relations.push_back(
            {QString::fromLatin1(name), target, toMany, QString::fromLatin1(inverse)});
    }
};

constexpr bool ToMany = true;
constexpr bool ToOne = false;

std::array<EntityDesc, kEntityCount> buildAll()
{
    std::array<EntityDesc, kEntityCount> all;
#define TABO_BUILD_ATTR(name, type) b.attr(#name, AttrType::type);
#define TABO_BUILD_REL(ident, key, target, card, inverse)                       \
    b.rel(key, EntityId::target, card, inverse);
#define TABO_BUILD_ENTITY(E, ATTRS, RELS)                                       \
    {                                                                           \
        Builder b;                                                              \
        b.desc.id = EntityId::E;                                                \
        b.desc.name = QStringLiteral(#E);                                       \
        ATTRS(TABO_BUILD_ATTR)                                                  \
        RELS(TABO_BUILD_REL)                                                    \
        all[int(EntityId::E)] = std::move(b.desc);                              \
    }
    TABO_ENTITIES(TABO_BUILD_ENTITY)
#undef TABO_BUILD_ENTITY
#undef TABO_BUILD_REL
#undef TABO_BUILD_ATTR

    auto &invoice = all[int(EntityId::Invoice)];
    // What the list shows and searches is read with it.
    for (int a : {Invoice::number, Invoice::uniqueID, Invoice::customerName, Invoice::title, Invoice::subject,
                  Invoice::address})
        invoice.listTextMask |= std::uint64_t(1) << invoice.attributes[a].slot;
    for (auto &d : all)
        if (d.id != EntityId::Invoice)
            d.listTextMask = ~std::uint64_t(0);
    const auto local = [&all](EntityId e, std::initializer_list<int> attrs) {
        for (int a : attrs)
            all[int(e)].attributes[a].exchanged = false;
    };
    local(EntityId::Invoice, {Invoice::company, Invoice::street, Invoice::postcode, Invoice::city,
                              Invoice::countryCode, Invoice::buyerReference, Invoice::electronicAddress,
                              Invoice::precedingNumber, Invoice::precedingDate, Invoice::centExactTotals});
    local(EntityId::Template, {Template::centExactTotals});
    local(EntityId::Address, {Address::company, Address::street, Address::postcode, Address::city,
                              Address::countryCode, Address::buyerReference, Address::electronicAddress});
    local(EntityId::Item, {Item::unitCode});
    local(EntityId::RecentItem, {RecentItem::unitCode});
    return all;
}

const std::array<EntityDesc, kEntityCount> &allDescs()
{
    static const auto descs = buildAll();
    return descs;
}

} // namespace

int EntityDesc::attributeIndex(QStringView key) const
{
    return attributeByName.value(key.toString(), -1);
}

int EntityDesc::relationIndex(QStringView key) const
{
    return relationByName.value(key.toString(), -1);
}

int EntityDesc::toOneCount() const
{
    int n = 0;
    for (const auto &r : relations)
        n += r.toMany ? 0 : 1;
    return n;
}

const EntityDesc &entityDesc(EntityId id)
{
    return allDescs()[int(id)];
}

const EntityDesc *entityDescByName(QStringView name)
{
    for (const auto &d : allDescs())
        if (d.name == name)
            return &d;
    return nullptr;
}

bool fitsAttribute(AttrType type, double value)
{
    if (std::isnan(value))
        return type != AttrType::Int && type != AttrType::Bool;
    if (!std::isfinite(value))
        return false;
    switch (type) {
    case AttrType::Float: return std::isfinite(static_cast<float>(value));
    case AttrType::Int:
    case AttrType::Bool: return value >= -9223372036854775808.0 && value < 9223372036854775808.0;
    default: return true;
    }
}

QString attrTypeName(AttrType type)
{
    switch (type) {
    case AttrType::Text: return QStringLiteral("text");
    case AttrType::Int: return QStringLiteral("integer");
    case AttrType::Bool: return QStringLiteral("boolean");
    case AttrType::Double: return QStringLiteral("double");
    case AttrType::Float: return QStringLiteral("float");
    case AttrType::Date: return QStringLiteral("date");
    }
    return {};
}

} // namespace tabo
