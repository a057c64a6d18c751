#include "cli/AttributeText.h"

#include "cli/JsonWriter.h"
#include "domain/Record.h"

#include <QLocale>

#include <QCoreApplication>
#include <cmath>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(AttributeText)
};
} // namespace

namespace tabo::cli {

namespace {

// -1 when the text is no boolean.
int boolFromText(const QString &t)
{
    static const char *const words[] = {"false", "no", "0", "true", "yes", "1"};
    for (int i = 0; i < 6; ++i)
        if (t.compare(QLatin1String(words[i]), Qt::CaseInsensitive) == 0)
            return i < 3 ? 0 : 1;
    return -1;
}

QString invalid(const QString &text, AttrType type, const QString &key)
{
    return Tr::tr("“%1” is not a valid %2 for %3.").arg(text, attrTypeName(type), key);
}

} // namespace

Result<QVariant> AttributeText::convert(const EntityDesc &desc, const QString &key, const QString &text)
{
    const int attr = desc.attributeIndex(key);
    if (attr < 0)
        return Error::input(desc.relationIndex(key) >= 0
                ? Tr::tr("“%1” is a relationship of %2, not an attribute.").arg(key, desc.name)
                : QStringLiteral("%1 has no attribute “%2”.").arg(desc.name, key));
    const AttrType type = desc.attributes[attr].type;
    const QString t = text.trimmed();
    bool ok = true;
    QVariant converted;
    QVariant *value = &converted;
    switch (type) {
    case AttrType::Text: *value = text; break;
    case AttrType::Date: {
        const Date d = Date::fromIso8601(t);
        ok = d.isValid();
        *value = QVariant::fromValue(d);
        break;
    }
    case AttrType::Bool: {
        const int b = boolFromText(t);
        ok = b >= 0;
        *value = b == 1;
        break;
    }
    // Integers are truncated when stored, so a fraction (or NaN) would be
    // silently changed: refuse it instead.
    case AttrType::Int: *value = QLocale::c().toLongLong(t, &ok); break;
    case AttrType::Double:
    case AttrType::Float:
        if (t.compare(QLatin1String("nan"), Qt::CaseInsensitive) == 0)
            *value = std::nan("");
        else
            *value = QLocale::c().toDouble(t, &ok);
        break;
    }
    // A value the attribute cannot hold (1e39 in a float) would be stored as
    // infinity and poison every total.
    if (ok && (type == AttrType::Double || type == AttrType::Float) && !fitsAttribute(type, value->toDouble()))
        return Error::input(
            Tr::tr("“%1” is too large for %2 (at most %3).")
                .arg(text, key, type == AttrType::Float ? Tr::tr("about 3.4e38") : Tr::tr("about 1.8e308")));
    if (!ok)
        return Error::input(invalid(text, type, key));
    return converted;
}

Error AttributeText::assign(Record &record, const QString &key, const QString &text)
{
    const Result<QVariant> value = convert(record.desc(), key, text);
    if (!value)
        return value.error();
    const int attr = record.desc().attributeIndex(key);
    if (!record.setValue(attr, value.value()))
        return Error::input(invalid(text, record.desc().attributes[attr].type, key));
    return {};
}

Error AttributeText::flag(const QString &key, const QString &text, bool *value)
{
    const int b = boolFromText(text.trimmed());
    if (b < 0)
        return Error::input(invalid(text, AttrType::Bool, key));
    *value = b == 1;
    return {};
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
