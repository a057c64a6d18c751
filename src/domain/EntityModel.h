#pragma once

#include "domain/Entities.def"

#include <QHash>
#include <QString>
#include <QStringView>

#include <cstdint>
#include <vector>

namespace tabo {

enum class AttrType : std::uint8_t { Text, Int, Bool, Double, Float, Date };

enum class EntityId : std::uint8_t {
#define TABO_ENTITY_ENUM(E, ATTRS, RELS) E,
    TABO_ENTITIES(TABO_ENTITY_ENUM)
#undef TABO_ENTITY_ENUM
};
inline constexpr int kEntityCount = 7;

// Attribute and relationship indices per entity, so hot code writes
// rec.num(Invoice::amount) instead of looking a key up.
#define TABO_ATTR_ENUM(name, type) name,
#define TABO_REL_ENUM(ident, key, target, card, inverse) ident,
#define TABO_ENTITY_STRUCT(E, ATTRS, RELS)                                      \
    struct E {                                                                  \
        static constexpr EntityId entity = EntityId::E;                         \
        enum Attr : int { ATTRS(TABO_ATTR_ENUM) AttrCount };                    \
        enum Rel : int { RELS(TABO_REL_ENUM) RelCount };                        \
    };
TABO_ENTITIES(TABO_ENTITY_STRUCT)
#undef TABO_ENTITY_STRUCT
#undef TABO_REL_ENUM
#undef TABO_ATTR_ENUM

struct AttributeDesc {
    QString name;
    AttrType type;
    int slot; // index into the record's numeric or text storage
    // False for what is kept in the store only: the exchange files and
    // object dictionaries carry exactly the keys other readers know.
    bool exchanged = true;
    bool isText() const { return type == AttrType::Text; }
};

struct RelationDesc {
    QString name;
    EntityId target;
    bool toMany;
    QString inverseName;
};

struct EntityDesc {
    EntityId id;
    QString name;
    std::vector<AttributeDesc> attributes;
    std::vector<RelationDesc> relations;
    int numericCount = 0;
    int textCount = 0;
    // Text attributes that the document list needs; the others of a record
    // are read from the store on first use.
    std::uint64_t listTextMask = 0;

    int attributeIndex(QStringView key) const; // -1 when unknown
    int relationIndex(QStringView key) const;  // -1 when unknown
    int toOneCount() const;

    QHash<QString, int> attributeByName;
    QHash<QString, int> relationByName;
};

const EntityDesc &entityDesc(EntityId id);
const EntityDesc *entityDescByName(QStringView name);
QString attrTypeName(AttrType type);
// Whether a number a person entered can be stored in an attribute of that
// type as it is: a float attribute holds single precision, an integer 64
// bits; only NaN, which every calculation already carries, passes unfinite.
bool fitsAttribute(AttrType type, double value);

} // namespace tabo
