#pragma once

#include "base/Result.h"

#include <QString>
#include <QVariant>

namespace tabo {
class Record;
struct EntityDesc;
} // namespace tabo

namespace tabo::cli {

// Attribute values as the command line writes and reads them.
class AttributeText
{
public:
    // The value of the attribute named `key` of `desc`, parsed from `text` by
    // the attribute's type: dates in ISO 8601, booleans true/false/yes/no/1/0,
    // numbers in the C locale ("NaN" allowed except for integers); refused
    // with a one-line reason.
    static Result<QVariant> convert(const EntityDesc &desc, const QString &key, const QString &text);
    // convert(), then stored in the record.
    static Error assign(Record &record, const QString &key, const QString &text);
    // A popover's check box given as text, into `value`.
    static Error flag(const QString &key, const QString &text, bool *value);
    // The value for people: "" when empty, numbers exact, dates ISO 8601.
    static QString plain(const Record &record, int attr);
};

} // namespace tabo::cli
