#include "cli/AttributeText.h"

#include "cli/JsonWriter.h"
#include "domain/Record.h"

#include <QLocale>

namespace tabo::cli {

namespace {

bool isBoolText(const QString &t)
{
    static const char *const words[] = {"true", "false", "yes", "no", "1", "0"};
    for (const char *w : words)
        if (t.compare(QLatin1String(w), Qt::CaseInsensitive) == 0)
            return true;
    return false;
}

} // namespace

bool AttributeText::assign(Record &record, const QString &key, const QString &text, QString *error)
{
    const EntityDesc &desc = record.desc();
    const int attr = desc.attributeIndex(key);
    if (attr < 0) {
        *error = desc.relationIndex(key) >= 0
                     ? QStringLiteral("“%1” is a relationship of %2, not an attribute.").arg(key, desc.name)
                     : QStringLiteral("%1 has no attribute “%2”.").arg(desc.name, key);
        return false;
    }
    const AttrType type = desc.attributes[attr].type;
    const QString t = text.trimmed();
    bool ok = true;
    // Integers are truncated when stored, so a fraction (or NaN) would be
    // silently changed: refuse it instead.
    if (type == AttrType::Int)
        QLocale::c().toLongLong(t, &ok);
    else if (type == AttrType::Bool)
        ok = isBoolText(t);
    if (!ok || !record.setValue(attr, QVariant(type == AttrType::Text ? text : t))) {
        *error = QStringLiteral("“%1” is not a valid %2 for %3.").arg(text, attrTypeName(type), key);
        return false;
    }
    return true;
}

QString AttributeText::plain(const Record &record, int attr)
{
    if (record.isNull(attr))
        return QString();
    switch (record.desc().attributes[attr].type) {
    case AttrType::Text: return record.text(attr);
    case AttrType::Date: return record.date(attr).toIso8601();
    case AttrType::Bool: return record.boolean(attr) ? QStringLiteral("true") : QStringLiteral("false");
    default: return JsonWriter::numberText(record.num(attr));
    }
}

} // namespace tabo::cli
